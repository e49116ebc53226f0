#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMAPopupTrigger::ctlKOMAPopupTrigger()
    : KomaControl(type::PopupTrigger, controlstyle::PopupTrigger, "POPUP_TRIGGER", 53, 23) {}

}  // namespace tolva
