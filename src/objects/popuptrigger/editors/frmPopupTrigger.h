#pragma once
// frmPopupTrigger, the Popup Trigger Editor: the shared item controls on a
// PopupTriggerEditing; OK hands the items, the ticked item and the top item
// back, Cancel closes with nothing changed.
#include "objects/editors/ItemsDialog.h"
#include "objects/popuptrigger/PopupTriggerEditing.h"

namespace tolva {

class DialogModel;

class frmPopupTrigger : public ItemsDialog {
    Q_OBJECT
public:
    frmPopupTrigger(PopupTriggerEditing& edit, QWidget* parent = nullptr);

    // The dialog for the host's registry: modal on a PopupTriggerEditing,
    // true for OK. Any other model is refused at once.
    static bool Run(DialogModel& model, QWidget* parent);

protected:
    bool AddItem(const std::string& text) override { return edit_.Add(text); }
    std::vector<std::string> TopItemChoices() const override { return edit_.TopItemChoices(); }

private:
    PopupTriggerEditing& edit_;
};

}  // namespace tolva
