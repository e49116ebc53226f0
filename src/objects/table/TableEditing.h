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

    // The sums of the heights and widths, and the label that shows them:
    // "Table Size: " + height + " x " + width.
    long long TotalHeight() const;
    long long TotalWidth() const;
    std::string TableSizeText() const;

    // The selected cell, from 1; "Selected: " + row + ", " + column.
    int SelectedRow() const { return selectedRow_; }
    int SelectedColumn() const { return selectedColumn_; }
    void SelectTableCell(int row, int column);
    std::string SelectedText() const;

    // Rows and columns: the copy and the table at once. A new row is 34
    // high, a new column 48 wide, their cells new ones; one row or column
    // is not deleted; a selection past the end moves to the last.
    void InsertEditorRow(int row);
    void InsertEditorColumn(int column);
    void DeleteEditorRow();
    void DeleteEditorColumn();

    // The boxes of the "Table Properties" frame, as texts and words.
    struct Fields {
        std::string rowHeight;
        std::string columnWidth;
        std::string dataType;
        std::string font;
        std::string value;
        std::string alignment;
        std::string fontColor;
        std::string backColor;
        std::string highlight;
        std::string hasBitmap;
        std::string text;
    };
    // The boxes filled from the copy for the selected cell.
    Fields SelectedFields() const;

    // A word picked in one of the six lists goes into the copy at once.
    enum class Field { Font, Alignment, FontColor, BackColor, Highlight, HasBitmap };
    void Choose(Field field, const std::string& word);
    // A new data type: any but "TABLE_UI_OBJECT" takes the cell's object
    // off the table; the word goes into the copy; then Apply with the
    // boxes. Nothing happens for the word already stored.
    void ChooseDataType(const std::string& word, Fields& boxes);
    // Apply: the boxes into the selected cell of the copy. A height or
    // width that is no number gets the stored one back; below 2 it becomes
    // 2, above 210 210 (the box shows it). A value that is no number ends
    // Apply with "Error 13: Type mismatch" after the steps before it.
    void Apply(Fields& boxes);

    // The cell's object editing is about to open: the data type becomes
    // "TABLE_UI_OBJECT" in the copy, whatever the object editor then does.
    void PrepareObjectEditing();
    // The Table Object Editor on the selected cell: its object, the cell's
    // size; OK there hands the object to the table.
    void EditCellObject();
    // The cell's object goes from the table; the data type becomes
    // "TABLE_TEXT".
    void RemoveObject();

    // A drag of a row's (column's) line: the size becomes the old one plus
    // delta, rounded half to even, and the total follows; a size that would
    // fall below `least` is not taken. False when nothing changed.
    bool ResizeRowBy(int row, double delta, int least = 2);
    bool ResizeColumnBy(int column, double delta, int least = 2);

    // Done: the copy, row by row, into the table's SetTableProperties.
    void Done();

private:
    Host& host_;
    ctlKOMATable& table_;
    int columns_ = 1;
    std::vector<int> rowHeights_;
    std::vector<int> columnWidths_;
    std::vector<std::vector<TableCell>> cells_;
    int selectedRow_ = 1;
    int selectedColumn_ = 1;
};

}  // namespace tolva
