#pragma once
// TableCellIndex: the loader's view of the table records of a file: which
// IDs stand in the list of cell objects of some table, and which table
// record bears an ID. Built once per load, so that no stage walks every
// table's list for every record.
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "resfile/LoadedRecord.h"

namespace tolva {

class TableCellIndex {
public:
    explicit TableCellIndex(const std::vector<LoadedRecord>& tables);

    bool InAnyTable(int id) const { return cellIds_.count(id) != 0; }
    // The first table record with the ID, or nullptr.
    const LoadedRecord* TableWithId(int id) const;

private:
    std::unordered_set<int> cellIds_;
    std::unordered_map<int, const LoadedRecord*> tableById_;
};

}  // namespace tolva
