#include "objects/ctlKOMAButton.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMAButton::ctlKOMAButton()
    : KomaControl(type::Button, controlstyle::Button, "BUTTON", 46, 20) {}

}  // namespace tolva
