#pragma once
// TableEditing: what the Table Editor works on. It holds a copy of the
// table's counts, sizes and cells, shaped as a grid, and writes it back at
// Done. Rows, columns and cell objects are not copied: their operations go
// to the table at once, so that Cancel keeps the cells' fields and sizes as
// they were but not the table's objects and counts.
#include <string>
#include <vector>

#include "document/DialogModel.h"
#include "objects/table/TableCell.h"

namespace tolva {

class Host;
class ctlKOMATable;

class TableEditing : public DialogModel {
public:
    static constexpr const char* kDialogName = "frmTable";

    TableEditing(Host& host, ctlKOMATable& table);
    std::string DialogName() const override { return kDialogName; }

    ctlKOMATable& Table() { return table_; }
    Host& OwnerHost() { return host_; }

    int Rows() const { return static_cast<int>(cells_.size()); }
    int Columns() const { return columns_; }
    const std::vector<int>& RowHeights() const { return rowHeights_; }
    const std::vector<int>& ColumnWidths() const { return columnWidths_; }
    // The cell of the copy, rows and columns from 1.
    const TableCell& CellAt(int row, int column) const;
    TableCell& CellAt(int row, int column);

    // Done: the copy, row by row, into the table's SetTableProperties.
    void Done();

private:
    Host& host_;
    ctlKOMATable& table_;
    int columns_ = 1;
    std::vector<int> rowHeights_;
    std::vector<int> columnWidths_;
    std::vector<std::vector<TableCell>> cells_;
};

}  // namespace tolva
