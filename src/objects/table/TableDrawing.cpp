// The table on the design screen.
#include "objects/table/ctlKOMATable.h"

namespace tolva {

DrawElementList ctlKOMATable::GetDrawElements() const {
    // A plain box saying "Table": nothing of the grid shows here.
    DrawElement box = ShapeElement("shpBox", {0, 0, Width(), Height()});
    box.filled = true;
    box.fillColor = kWhite;
    DrawElement label = TextElement("Label1", {240, 120, 1095, 495}, "Table");
    return {box, label};
}

}  // namespace tolva
