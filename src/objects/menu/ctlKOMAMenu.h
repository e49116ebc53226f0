#pragma once
// ctlKOMAMenu: a menu of a form. Menus live in their forms as plain data; this class is the
// template the screen keeps for them.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMAMenu : public KomaObject {
public:
    ctlKOMAMenu();
};

}  // namespace tolva
