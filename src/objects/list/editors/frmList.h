#pragma once
// frmList, the List Editor: the shared item controls, and the number on
// display and the form's other lists to link. It works on a ListEditing,
// whose rules it follows; OK hands it back accepted once the number on
// display passes.
#include "objects/editors/ItemsDialog.h"
#include "objects/list/ListEditing.h"

namespace tolva {

class DialogModel;

class frmList : public ItemsDialog {
    Q_OBJECT
public:
    frmList(ListEditing& edit, QWidget* parent = nullptr);

    // The dialog for the host's registry: modal on a ListEditing, true for
    // OK. Any other model is refused at once.
    static bool Run(DialogModel& model, QWidget* parent);

protected:
    bool AddItem(const std::string& text) override { return edit_.Add(text); }
    std::vector<std::string> TopItemChoices() const override { return edit_.TopItemChoices(); }
    void Ok() override;

private:
    void FillLists();
    void ListTicked(QListWidgetItem* item);

    ListEditing& edit_;
    QLineEdit* txtMaxNum_ = nullptr;
    QListWidget* lbLists_ = nullptr;
};

}  // namespace tolva
