#include "objects/table/ctlKOMATable.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMATable::ctlKOMATable() : KomaObject(type::Table, "TABLE", 0, 0) {
    ResizeOK(false);
    VertResizeOK(false);
    HorizResizeOK(false);
    // On the design screen a table is a fixed box of 855 by 855 screen
    // units, whatever its rows and columns.
    SetCanvasSize(855, 855);
}

}  // namespace tolva
