#include "objects/scrollbar/ctlKOMAScrollbar.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMAScrollbar::ctlKOMAScrollbar() : KomaObject(type::Scrollbar, "SCROLLBAR", 24, 12) {}

}  // namespace tolva
