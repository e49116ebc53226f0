#include "shell/ObjectDialogs.h"

#include "objects/checkbox/CheckboxRelations.h"
#include "objects/checkbox/editors/frmCheckbox.h"
#include "objects/field/FieldEditorText.h"
#include "objects/field/editors/frmField.h"
#include "objects/list/ListEditing.h"
#include "objects/list/editors/frmList.h"
#include "platform/DialogRegistry.h"

namespace tolva {

void RegisterObjectDialogs() {
    RegisterDialog(CheckboxRelations::kDialogName, &frmCheckbox::Run);
    RegisterDialog(FieldEditorText::kDialogName, &frmField::Run);
    RegisterDialog(ListEditing::kDialogName, &frmList::Run);
}

}  // namespace tolva
