#include "objects/table/TableEditing.h"

#include <algorithm>

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "objects/table/TableObjectEditing.h"
#include "objects/table/ctlKOMATable.h"
#include "document/ObjectOwner.h"

namespace tolva {

TableEditing::TableEditing(Host& host, ctlKOMATable& table) : host_(host), table_(table) {
    const TableProperties properties = table.GetTableProperties();
    columns_ = properties.columns;
    rowHeights_ = properties.rowHeights;
    columnWidths_ = properties.columnWidths;
    // Counts ahead of the sizes and cells (a Table Editor cancelled after an
    // insert) are made whole with new rows, columns and cells.
    rowHeights_.resize(static_cast<std::size_t>(std::max(properties.rows, 0)), kNewRowHeight);
    columnWidths_.resize(static_cast<std::size_t>(std::max(columns_, 0)), kNewColumnWidth);
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

long long TableEditing::TotalHeight() const {
    long long total = 0;
    for (int height : rowHeights_) total += height;
    return total;
}

long long TableEditing::TotalWidth() const {
    long long total = 0;
    for (int width : columnWidths_) total += width;
    return total;
}

std::string TableEditing::TableSizeText() const {
    return "Table Size: " + std::to_string(TotalHeight()) + " x " + std::to_string(TotalWidth());
}

void TableEditing::SelectTableCell(int row, int column) {
    if (row < 1 || column < 1) return;
    selectedRow_ = row;
    selectedColumn_ = column;
}

std::string TableEditing::SelectedText() const {
    return "Selected: " + std::to_string(selectedRow_) + ", " + std::to_string(selectedColumn_);
}

void TableEditing::InsertEditorRow(int row) {
    const auto at = static_cast<std::size_t>(std::clamp(row, 1, Rows() + 1) - 1);
    rowHeights_.insert(rowHeights_.begin() + static_cast<std::ptrdiff_t>(at), kNewRowHeight);
    cells_.insert(cells_.begin() + static_cast<std::ptrdiff_t>(at),
                  std::vector<TableCell>(static_cast<std::size_t>(columns_)));
    table_.InsertRow(row);
}

void TableEditing::InsertEditorColumn(int column) {
    const auto at = static_cast<std::size_t>(std::clamp(column, 1, columns_ + 1) - 1);
    columnWidths_.insert(columnWidths_.begin() + static_cast<std::ptrdiff_t>(at), kNewColumnWidth);
    for (auto& cells : cells_) cells.insert(cells.begin() + static_cast<std::ptrdiff_t>(at), TableCell{});
    ++columns_;
    table_.InsertColumn(column);
}

void TableEditing::DeleteEditorRow() {
    if (Rows() <= 1) return;
    const auto at = static_cast<std::size_t>(selectedRow_ - 1);
    if (at >= cells_.size()) return;
    rowHeights_.erase(rowHeights_.begin() + static_cast<std::ptrdiff_t>(at));
    cells_.erase(cells_.begin() + static_cast<std::ptrdiff_t>(at));
    table_.DeleteRow(selectedRow_);
    selectedRow_ = std::min(selectedRow_, Rows());
}

void TableEditing::DeleteEditorColumn() {
    if (columns_ <= 1) return;
    const auto at = static_cast<std::size_t>(selectedColumn_ - 1);
    if (static_cast<int>(at) >= columns_) return;
    columnWidths_.erase(columnWidths_.begin() + static_cast<std::ptrdiff_t>(at));
    for (auto& cells : cells_)
        if (at < cells.size()) cells.erase(cells.begin() + static_cast<std::ptrdiff_t>(at));
    --columns_;
    table_.DeleteColumn(selectedColumn_);
    selectedColumn_ = std::min(selectedColumn_, columns_);
}

TableEditing::Fields TableEditing::SelectedFields() const {
    Fields boxes;
    const TableCell& cell = CellAt(selectedRow_, selectedColumn_);
    boxes.rowHeight = std::to_string(rowHeights_.at(static_cast<std::size_t>(selectedRow_ - 1)));
    boxes.columnWidth = std::to_string(columnWidths_.at(static_cast<std::size_t>(selectedColumn_ - 1)));
    boxes.dataType = cell.dataType;
    boxes.font = cell.font;
    boxes.value = std::to_string(cell.value);
    boxes.alignment = cell.alignment;
    boxes.fontColor = cell.fontColor;
    boxes.backColor = cell.backColor;
    boxes.highlight = cell.highlight;
    boxes.hasBitmap = cell.hasBitmap;
    boxes.text = cell.text;
    return boxes;
}

void TableEditing::Choose(Field field, const std::string& word) {
    TableCell& cell = CellAt(selectedRow_, selectedColumn_);
    switch (field) {
        case Field::Font: cell.font = word; break;
        case Field::Alignment: cell.alignment = word; break;
        case Field::FontColor: cell.fontColor = word; break;
        case Field::BackColor: cell.backColor = word; break;
        case Field::Highlight: cell.highlight = word; break;
        case Field::HasBitmap: cell.hasBitmap = word; break;
    }
}

void TableEditing::ChooseDataType(const std::string& word, Fields& boxes) {
    TableCell& cell = CellAt(selectedRow_, selectedColumn_);
    if (word == cell.dataType) return;
    if (word != "TABLE_UI_OBJECT") {
        KomaObject* none = nullptr;
        bool ok = false;
        table_.SetObject(selectedRow_, selectedColumn_, none, ok);
    }
    cell.dataType = word;
    boxes.dataType = word;
    Apply(boxes);
}

namespace {

// A size box: a number from 2 to 210 (the box is corrected), else the
// stored size comes back into it.
void ApplySize(std::string& box, int& size) {
    if (!IsNumeric(box)) {
        box = std::to_string(size);
        return;
    }
    const double asked = ToReal(box);
    int wanted = 0;
    if (asked < 2)
        wanted = 2;
    else if (asked >= 211)
        wanted = 210;
    else
        wanted = static_cast<int>(RoundHalfEven(asked));
    box = std::to_string(wanted);
    size = wanted;
}

}  // namespace

void TableEditing::Apply(Fields& boxes) {
    ApplySize(boxes.rowHeight, rowHeights_.at(static_cast<std::size_t>(selectedRow_ - 1)));
    ApplySize(boxes.columnWidth, columnWidths_.at(static_cast<std::size_t>(selectedColumn_ - 1)));
    TableCell& cell = CellAt(selectedRow_, selectedColumn_);
    cell.text = boxes.text;
    try {
        cell.value = ToInt32(boxes.value);
    } catch (const RuntimeFailure&) {
        host_.MessageBox("Error 13: Type mismatch", "", MessageButtons::OK);
    }
}

void TableEditing::PrepareObjectEditing() { CellAt(selectedRow_, selectedColumn_).dataType = "TABLE_UI_OBJECT"; }

void TableEditing::EditCellObject() {
    KomaObject* object = nullptr;
    bool ok = false;
    table_.GetObject(selectedRow_, selectedColumn_, object, ok);
    if (!ok || !table_.Owner()) return;
    TableObjectEditing objects(host_, table_.Owner()->OwnerLog(), table_, table_.PCTwipsToTolvaPixels());
    objects.SetObject(selectedRow_, selectedColumn_, rowHeights_.at(static_cast<std::size_t>(selectedRow_ - 1)),
                      columnWidths_.at(static_cast<std::size_t>(selectedColumn_ - 1)), object);
    if (host_.RunDialog(objects)) objects.Ok();
}

void TableEditing::RemoveObject() {
    KomaObject* none = nullptr;
    bool ok = false;
    table_.SetObject(selectedRow_, selectedColumn_, none, ok);
    CellAt(selectedRow_, selectedColumn_).dataType = "TABLE_TEXT";
}

namespace {

bool ResizeBy(std::vector<int>& sizes, int index, double delta, int least) {
    if (index < 1 || index > static_cast<int>(sizes.size())) return false;
    int& size = sizes[static_cast<std::size_t>(index - 1)];
    const double wanted = size + delta;
    if (wanted < least) return false;
    size = static_cast<int>(RoundHalfEven(wanted));
    return true;
}

}  // namespace

bool TableEditing::ResizeRowBy(int row, double delta, int least) {
    return ResizeBy(rowHeights_, row, delta, least);
}

bool TableEditing::ResizeColumnBy(int column, double delta, int least) {
    return ResizeBy(columnWidths_, column, delta, least);
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
