#include "objects/pushbutton/ctlKOMAPushButton.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMAPushButton::ctlKOMAPushButton()
    : KomaControl(type::PushButton, controlstyle::PushButton, "PUSH_BUTTON", 40, 36) {}

}  // namespace tolva
