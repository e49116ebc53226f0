#include "objects/popuptrigger/editors/frmPopupTrigger.h"

#include <QGridLayout>

namespace tolva {

frmPopupTrigger::frmPopupTrigger(PopupTriggerEditing& edit, QWidget* parent)
    : ItemsDialog(edit, "frmPopupTrigger", "Popup Trigger Editor", parent), edit_(edit) {
    LayOutShared(new QGridLayout(this), 0, 9, 11);
    FillAll();
}

bool frmPopupTrigger::Run(DialogModel& model, QWidget* parent) {
    auto* edit = dynamic_cast<PopupTriggerEditing*>(&model);
    if (!edit) return false;
    frmPopupTrigger dialog(*edit, parent);
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace tolva
