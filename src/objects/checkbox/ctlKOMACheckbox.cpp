#include "objects/checkbox/ctlKOMACheckbox.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMACheckbox::ctlKOMACheckbox()
    : KomaControl(type::Checkbox, controlstyle::Checkbox, "CHECKBOX", 14, 14) {
    ResizeOK(false);
    VertResizeOK(false);
    HorizResizeOK(false);
}

}  // namespace tolva
