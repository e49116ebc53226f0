// The table's model: its counts and sizes, the look, the cell bitmap's
// members and the flags, with their setters' rules.
#include "objects/table/ctlKOMATable.h"

#include <numeric>

#include "document/Host.h"
#include "document/ObjectTypes.h"
#include "document/Words.h"
#include "objects/table/modTable.h"

namespace tolva {

ctlKOMATable::ctlKOMATable() : KomaObject(type::Table, "TABLE", 0, 0) {
    ResizeOK(false);
    VertResizeOK(false);
    HorizResizeOK(false);
    objects_.resize(1);
    objects_[0].resize(1);
    // On the design screen a table is a fixed box of 855 by 855 screen
    // units, whatever its rows and columns.
    SetCanvasSize(855, 855);
}

ctlKOMATable::~ctlKOMATable() = default;

void ctlKOMATable::OnCanvasResize() {
    KOMAWidth(0);
    KOMAHeight(0);
}

// --- counts and sizes --------------------------------------------------------------------

void ctlKOMATable::KOMANumRows(int rows) {
    if (rows < 0) {
        Message("Invalid value");
        return;
    }
    numRows_ = rows;
}

void ctlKOMATable::KOMANumColumns(int columns) {
    if (columns < 0) {
        Message("Invalid value");
        return;
    }
    numColumns_ = columns;
}

void ctlKOMATable::KOMATopRowNum(int row) {
    if (row < 0 || row > numRows_ - 1) {
        Message("Invalid value");
        return;
    }
    topRow_ = row;
}

void ctlKOMATable::KOMALeftColumnNum(int column) {
    if (column < 0 || column > numColumns_ - 1) {
        Message("Invalid value");
        return;
    }
    leftColumn_ = column;
}

void ctlKOMATable::SetTableProperties(const TableProperties& properties) {
    numRows_ = properties.rows;
    numColumns_ = properties.columns;
    rowHeights_ = properties.rowHeights;
    columnWidths_ = properties.columnWidths;
    cells_ = properties.cells;
    StoreSums();
}

TableProperties ctlKOMATable::GetTableProperties() const {
    TableProperties properties;
    properties.rows = numRows_;
    properties.columns = numColumns_;
    properties.rowHeights = rowHeights_;
    properties.columnWidths = columnWidths_;
    properties.cells = cells_;
    return properties;
}

void ctlKOMATable::StoreSums() {
    const long long height = std::accumulate(rowHeights_.begin(), rowHeights_.end(), 0LL);
    const long long width = std::accumulate(columnWidths_.begin(), columnWidths_.end(), 0LL);
    StoreSize(static_cast<int>(width), static_cast<int>(height));
}

// --- the look ---------------------------------------------------------------------------

int ctlKOMATable::KOMATableStyle() const { return TableStyleWordToNumber(styleWord_); }

void ctlKOMATable::KOMATableStyle(int style) { styleWord_ = TableStyleNumberToWord(style); }

int ctlKOMATable::KOMABackColor() const { return ColorFromWord(backColorWord_); }

void ctlKOMATable::KOMABackColor(int color) {
    if (IsDeviceColor(color)) backColorWord_ = WordFromColor(color);
}

void ctlKOMATable::KOMABitmapX(int x) {
    if (x < 0 || x > 159) {
        Message("Invalid value");
        return;
    }
    bitmapX_ = x;
}

void ctlKOMATable::KOMABitmapY(int y) {
    if (y < 0 || y > 159) {
        Message("Invalid value");
        return;
    }
    bitmapY_ = y;
}

void ctlKOMATable::KOMABitmapWidth(int width) {
    if (width < 0 || width > 160) {
        Message("Invalid value");
        return;
    }
    bitmapWidth_ = width;
}

void ctlKOMATable::KOMABitmapHeight(int height) {
    if (height < 0 || height > 160) {
        Message("Invalid value");
        return;
    }
    bitmapHeight_ = height;
}

void ctlKOMATable::KOMABitmapFile(const std::string& path) {
    if (CheckTableBitmapFile(path)) bitmapFile_ = path;
}

void ctlKOMATable::KOMABitmapDepth(int depth) {
    if (depth == 2 || depth == 4) bitmapDepth_ = depth;
}

void ctlKOMATable::KOMAObjectID(int id) {
    KomaObject::KOMAObjectID(id);
    if (id < 0) return;
    for (auto& row : objects_)
        for (auto& object : row)
            if (object) object->KOMARelatedTableID(id);
}

// --- the copy of a whole table ------------------------------------------------------

bool ctlKOMATable::CopyModelFrom(const KomaObject& other) {
    auto* table = dynamic_cast<const ctlKOMATable*>(&other);
    if (!table) return false;
    // Place, size, three flags and the style; then counts, sizes and cells;
    // then each cell's object. The background colour, the scrollbar and
    // highlight words, the first row and column and the bitmap stay.
    KOMABoundsX(table->KOMABoundsX());
    KOMABoundsY(table->KOMABoundsY());
    StoreSize(table->KOMAWidth(), table->KOMAHeight());
    enableWord_ = table->enableWord_;
    activeWord_ = table->activeWord_;
    visibleWord_ = table->visibleWord_;
    styleWord_ = table->styleWord_;
    SetTableProperties(table->GetTableProperties());
    StoreSize(table->KOMAWidth(), table->KOMAHeight());
    objects_.clear();
    for (int r = 1; r <= numRows_; ++r)
        for (int c = 1; c <= numColumns_; ++c) {
            KomaObject* object = nullptr;
            bool inGrid = false;
            table->GetObject(r, c, object, inGrid);
            if (object) SetObject(r, c, object, inGrid);
        }
    // The form it lies on goes along, as with every kind.
    ParentForm(table->ParentForm());
    return true;
}

}  // namespace tolva
