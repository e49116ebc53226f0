#include "objects/table/TablePreview.h"

#include "document/Numbers.h"

namespace tolva {

TablePreview::TablePreview(const std::vector<int>& rowHeights, const std::vector<int>& columnWidths,
                           double scale, int topRow, int leftColumn)
    : rowHeights_(rowHeights), columnWidths_(columnWidths), scale_(scale), topRow_(topRow),
      leftColumn_(leftColumn) {}

long long TablePreview::RowOffset(int row) const {
    long long offset = 0;
    for (int r = 1; r < row && r <= static_cast<int>(rowHeights_.size()); ++r)
        offset += rowHeights_[static_cast<std::size_t>(r - 1)];
    return offset;
}

long long TablePreview::ColumnOffset(int column) const {
    long long offset = 0;
    for (int c = 1; c < column && c <= static_cast<int>(columnWidths_.size()); ++c)
        offset += columnWidths_[static_cast<std::size_t>(c - 1)];
    return offset;
}

double TablePreview::RowTop(int row) const {
    return kTop + scale_ * static_cast<double>(RowOffset(row) - RowOffset(topRow_));
}

double TablePreview::ColumnLeft(int column) const {
    return kLeft + scale_ * static_cast<double>(ColumnOffset(column) - ColumnOffset(leftColumn_));
}

int TablePreview::VisibleRows(double frameHeight) const {
    int count = 0;
    for (int r = topRow_; r <= static_cast<int>(rowHeights_.size()); ++r)
        if (RowTop(r + 1) < frameHeight) ++count;
    return count > 0 ? count : 1;
}

int TablePreview::VisibleColumns(double frameWidth) const {
    int count = 0;
    for (int c = leftColumn_; c <= static_cast<int>(columnWidths_.size()); ++c)
        if (ColumnLeft(c + 1) < frameWidth) ++count;
    return count > 0 ? count : 1;
}

std::optional<std::pair<int, int>> TablePreview::HitTestTableCell(double x, double y) const {
    if (x < kLeft || y < kTop) return std::nullopt;
    int row = 0;
    double edge = kTop;
    for (int r = topRow_; r <= static_cast<int>(rowHeights_.size()); ++r) {
        edge += scale_ * rowHeights_[static_cast<std::size_t>(r - 1)];
        if (y < edge) {
            row = r;
            break;
        }
    }
    int column = 0;
    edge = kLeft;
    for (int c = leftColumn_; c <= static_cast<int>(columnWidths_.size()); ++c) {
        edge += scale_ * columnWidths_[static_cast<std::size_t>(c - 1)];
        if (x < edge) {
            column = c;
            break;
        }
    }
    if (row == 0 || column == 0) return std::nullopt;
    return std::make_pair(row, column);
}

std::pair<double, double> TablePreview::CellTextPlace(int row, int column, const std::string& alignment,
                                                      double labelWidth, double labelHeight) const {
    // In pixels from the first shown row and column, then scaled.
    const double x = static_cast<double>(ColumnOffset(column) - ColumnOffset(leftColumn_));
    const double y = static_cast<double>(RowOffset(row) - RowOffset(topRow_));
    const double w = columnWidths_.at(static_cast<std::size_t>(column - 1));
    const double h = rowHeights_.at(static_cast<std::size_t>(row - 1));
    double left = kLeft + scale_ * x + 30;
    if (alignment == "CENTRE")
        left = kLeft + scale_ * (x + RoundHalfEven(w / 2)) + 15 - RoundHalfEven(labelWidth / 2);
    else if (alignment == "RIGHT")
        left = kLeft + scale_ * (x + w) + 30 - labelWidth;
    const double top = kTop + scale_ * (y + RoundHalfEven(h / 2)) + 30 - RoundHalfEven(labelHeight / 2);
    return {left, top};
}

}  // namespace tolva
