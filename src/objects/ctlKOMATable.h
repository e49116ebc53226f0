#pragma once
// ctlKOMATable: a table: a grid of cells that may hold objects of their own.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMATable : public KomaObject {
public:
    ctlKOMATable();

protected:
    // The table's device size does not follow its box on the canvas.
    void OnCanvasResize() override { LayOut(); }
};

}  // namespace tolva
