#pragma once
// TablePreview: where the Table Editor's preview puts things, in screen
// units inside its frame. The first shown column's left edge lies at 320,
// the first shown row's top edge at 440; a device pixel is S units, S being
// the table's scale. Only the rows and columns from the first shown on are
// drawn, as far as the frame reaches.
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tolva {

class TablePreview {
public:
    static constexpr double kLeft = 320;
    static constexpr double kTop = 440;

    TablePreview(const std::vector<int>& rowHeights, const std::vector<int>& columnWidths, double scale,
                 int topRow, int leftColumn);

    // Edges of row r's top and column c's left, from 1; r = rows + 1 is the
    // bottom edge of the last row.
    double RowTop(int row) const;
    double ColumnLeft(int column) const;
    // The rows (columns) whose bottom (right) line lies inside a frame of
    // the height (width), from the first shown; 1 when none does.
    int VisibleRows(double frameHeight) const;
    int VisibleColumns(double frameWidth) const;
    // The cell under a point, walking from the first shown row and column;
    // none outside the grid.
    std::optional<std::pair<int, int>> HitTestTableCell(double x, double y) const;
    // The top left corner of a cell's text of the size (LW, LH), by its
    // alignment word ("LEFT", "CENTRE", "RIGHT").
    std::pair<double, double> CellTextPlace(int row, int column, const std::string& alignment,
                                            double labelWidth, double labelHeight) const;

private:
    // Pixels from the first row (column) to row (column) n.
    long long RowOffset(int row) const;
    long long ColumnOffset(int column) const;

    std::vector<int> rowHeights_;
    std::vector<int> columnWidths_;
    double scale_;
    int topRow_;
    int leftColumn_;
};

}  // namespace tolva
