#include "objects/menu/ctlKOMAMenu.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMAMenu::ctlKOMAMenu() : KomaObject(type::Menu, "MENU", 24, 12) {
    // Menus are never named by the screen; a new one starts with the bare prefix.
    KOMAName("MENU_");
}

}  // namespace tolva
