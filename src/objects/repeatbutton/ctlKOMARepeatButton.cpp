#include "objects/repeatbutton/ctlKOMARepeatButton.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMARepeatButton::ctlKOMARepeatButton()
    : KomaControl(type::RepeatButton, controlstyle::RepeatButton, "REPEAT_BUTTON", 33, 33) {
    ResizeOK(false);
    VertResizeOK(false);
    HorizResizeOK(false);
}

}  // namespace tolva
