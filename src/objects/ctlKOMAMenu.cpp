#include "objects/ctlKOMAMenu.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMAMenu::ctlKOMAMenu() : KomaObject(type::Menu, "MENU", 24, 12) {}

}  // namespace tolva
