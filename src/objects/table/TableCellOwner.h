#pragma once
// TableCellOwner: what the objects in a table's cells talk to. Their
// messages reach the table's own host; a new size is cut by the table to the
// device's edge. Nothing else of a cell object reaches the design screen.
#include "objects/table/CellObjectOwner.h"

namespace tolva {

class ctlKOMATable;

class TableCellOwner : public CellObjectOwner {
public:
    explicit TableCellOwner(ctlKOMATable& table) : table_(table) {}

    Host& OwnerHost() override;
    LogSink& OwnerLog() override;
    void ObjectResized(KomaObject& object, int width, int height) override;

private:
    ctlKOMATable& table_;
};

}  // namespace tolva
