#include "shell/ObjectDialogs.h"

#include "objects/checkbox/CheckboxRelations.h"
#include "objects/checkbox/editors/frmCheckbox.h"
#include "objects/field/FieldEditorText.h"
#include "objects/field/editors/frmField.h"
#include "objects/list/ListEditing.h"
#include "objects/list/editors/frmList.h"
#include "objects/menu/MenuEditing.h"
#include "objects/menu/editors/frmMenu.h"
#include "objects/popuptrigger/PopupTriggerEditing.h"
#include "objects/popuptrigger/editors/frmPopupTrigger.h"
#include "objects/table/TableEditing.h"
#include "objects/table/TableObjectEditing.h"
#include "objects/table/editors/frmTable.h"
#include "objects/table/editors/frmTableObjects.h"
#include "platform/DialogRegistry.h"

namespace tolva {

void RegisterObjectDialogs() {
    RegisterDialog(CheckboxRelations::kDialogName, &frmCheckbox::Run);
    RegisterDialog(FieldEditorText::kDialogName, &frmField::Run);
    RegisterDialog(ListEditing::kDialogName, &frmList::Run);
    RegisterDialog(MenuEditing::kDialogName, &frmMenu::Run);
    RegisterDialog(PopupTriggerEditing::kDialogName, &frmPopupTrigger::Run);
    RegisterDialog(TableEditing::kDialogName, &frmTable::Run);
    RegisterDialog(TableObjectEditing::kDialogName, &frmTableObjects::Run);
}

}  // namespace tolva
