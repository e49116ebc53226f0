#include "shell/ObjectDialogs.h"

#include "objects/checkbox/CheckboxRelations.h"
#include "objects/checkbox/editors/frmCheckbox.h"
#include "platform/DialogRegistry.h"

namespace tolva {

void RegisterObjectDialogs() {
    RegisterDialog(CheckboxRelations::kDialogName, &frmCheckbox::Run);
}

}  // namespace tolva
