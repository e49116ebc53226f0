#pragma once
// TableCell: the small record every cell of a table carries besides its
// object: what the device shows in it and how. Each field is kept and
// written whatever the data type word says.
#include <string>
#include <vector>

namespace tolva {

struct TableCell {
    std::string dataType = "TABLE_TEXT";
    std::string font = "SMALL_FONT";
    int value = 0;
    std::string alignment = "LEFT";
    std::string fontColor = "COLOR_BLACK";
    std::string backColor = "COLOR_WHITE";
    std::string highlight = "FALSE";
    std::string hasBitmap = "FALSE";
    std::string text = "Text";
};

// A new row's height and a new column's width, in device pixels.
inline constexpr int kNewRowHeight = 34;
inline constexpr int kNewColumnWidth = 48;

// The grid's counts, sizes and cells as the editors hand them over: the
// cells row by row, cell (r, c) at (r - 1) x columns + c, from 1.
struct TableProperties {
    int rows = 1;
    int columns = 1;
    std::vector<int> rowHeights{kNewRowHeight};
    std::vector<int> columnWidths{kNewColumnWidth};
    std::vector<TableCell> cells{TableCell{}};
};

}  // namespace tolva
