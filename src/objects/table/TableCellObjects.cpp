// The objects in a table's cells as the files see them: their records, the
// header's names and IDs, and the loader's way into a cell.
//
// A table has no grid of cell objects yet, so it answers as an empty grid:
// no records, no header lines, and every cell refuses a loaded object. The
// table's grid fills these in; the resource-file code already calls them.
#include "objects/table/ctlKOMATable.h"

namespace tolva {

void ctlKOMATable::GetTableObjectText(std::vector<LineList>& blocks) { blocks.clear(); }

void ctlKOMATable::GetHeaderEmbeddedObjectHeaderInfo(
    std::vector<std::pair<std::string, std::string>>& entries) {
    entries.clear();
}

void ctlKOMATable::GetTableObjectTypesAndIds(
    std::vector<std::pair<std::string, std::string>>& pairs) {
    pairs.clear();
}

void ctlKOMATable::CreateObjectInTable(int, int, int, const GroupList&, bool& ok) { ok = false; }

}  // namespace tolva
