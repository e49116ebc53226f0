#include "resfile/TableCellIndex.h"

namespace tolva {

TableCellIndex::TableCellIndex(const std::vector<LoadedRecord>& tables) {
    for (const LoadedRecord& table : tables) {
        cellIds_.insert(table.cellObjectIds.begin(), table.cellObjectIds.end());
        tableById_.try_emplace(table.id, &table);
    }
}

const LoadedRecord* TableCellIndex::TableWithId(int id) const {
    const auto found = tableById_.find(id);
    return found == tableById_.end() ? nullptr : found->second;
}

}  // namespace tolva
