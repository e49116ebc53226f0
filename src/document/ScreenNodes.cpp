// The selection nodes of the screen. The registry calls these at the places
// where the nodes are placed, shown and hidden; the canvas half gives them
// their ten nodes, positions and stacking.
#include "document/ctlTolvaScreen.h"

namespace tolva {

void ctlTolvaScreen::PlaceNodes(KomaObject& /*object*/, bool /*lineFlag*/) {}

void ctlTolvaScreen::ShowNodes(bool /*show*/, bool /*lineFlag*/) {}

}  // namespace tolva
