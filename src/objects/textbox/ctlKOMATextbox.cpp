#include "objects/textbox/ctlKOMATextbox.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMATextbox::ctlKOMATextbox() : KomaObject(type::Textbox, "TEXTBOX", 43, 36) {}

}  // namespace tolva
