#include "objects/table/TableEditing.h"

#include <algorithm>

#include "objects/table/ctlKOMATable.h"

namespace tolva {

TableEditing::TableEditing(Host& host, ctlKOMATable& table) : host_(host), table_(table) {
    const TableProperties properties = table.GetTableProperties();
    columns_ = properties.columns;
    rowHeights_ = properties.rowHeights;
    columnWidths_ = properties.columnWidths;
    // Cell (r, c) of the table's sequence stands at (r - 1) x columns + c.
    cells_.assign(static_cast<std::size_t>(std::max(properties.rows, 0)),
                  std::vector<TableCell>(static_cast<std::size_t>(std::max(columns_, 0))));
    for (std::size_t r = 0; r < cells_.size(); ++r)
        for (std::size_t c = 0; c < cells_[r].size(); ++c) {
            const std::size_t at = r * static_cast<std::size_t>(columns_) + c;
            if (at < properties.cells.size()) cells_[r][c] = properties.cells[at];
        }
}

const TableCell& TableEditing::CellAt(int row, int column) const {
    return cells_.at(static_cast<std::size_t>(row - 1)).at(static_cast<std::size_t>(column - 1));
}

TableCell& TableEditing::CellAt(int row, int column) {
    return cells_.at(static_cast<std::size_t>(row - 1)).at(static_cast<std::size_t>(column - 1));
}

void TableEditing::Done() {
    TableProperties properties;
    properties.rows = Rows();
    properties.columns = columns_;
    properties.rowHeights = rowHeights_;
    properties.columnWidths = columnWidths_;
    properties.cells.clear();
    for (const auto& row : cells_)
        for (const TableCell& cell : row) properties.cells.push_back(cell);
    table_.SetTableProperties(properties);
}

}  // namespace tolva
