// The table's object grid: rows and columns of owned objects, inserted and
// deleted apart from the cell store, and the cell objects put in by their
// kinds' cell copy.
#include <algorithm>

#include "document/Host.h"
#include "document/ObjectOwner.h"
#include "document/RuntimeFailure.h"
#include "objects/table/CellKinds.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva {

std::unique_ptr<KomaObject>* ctlKOMATable::Cell(int row, int column) {
    if (row < 1 || row > numRows_ || column < 1 || column > numColumns_) return nullptr;
    // After a Cancel in the Table Editor the counts may run ahead of the
    // grid; the missing cells are empty.
    if (static_cast<int>(objects_.size()) < row) objects_.resize(static_cast<std::size_t>(row));
    auto& cells = objects_[static_cast<std::size_t>(row - 1)];
    if (static_cast<int>(cells.size()) < column) cells.resize(static_cast<std::size_t>(column));
    return &cells[static_cast<std::size_t>(column - 1)];
}

void ctlKOMATable::InsertRow(int row) {
    const std::size_t at = std::min(objects_.size(), static_cast<std::size_t>(std::max(row, 1) - 1));
    std::vector<std::unique_ptr<KomaObject>> cells;
    cells.resize(static_cast<std::size_t>(std::max(numColumns_, 0)));
    objects_.insert(objects_.begin() + static_cast<std::ptrdiff_t>(at), std::move(cells));
    ++numRows_;
}

void ctlKOMATable::InsertColumn(int column) {
    for (auto& cells : objects_) {
        const std::size_t at = std::min(cells.size(), static_cast<std::size_t>(std::max(column, 1) - 1));
        cells.insert(cells.begin() + static_cast<std::ptrdiff_t>(at), nullptr);
    }
    ++numColumns_;
}

void ctlKOMATable::DeleteRow(int row) {
    if (numRows_ == 1 || row < 1 || row > numRows_) return;
    if (row <= static_cast<int>(objects_.size())) objects_.erase(objects_.begin() + (row - 1));
    --numRows_;
}

void ctlKOMATable::DeleteColumn(int column) {
    if (numColumns_ == 1 || column < 1 || column > numColumns_) return;
    for (auto& cells : objects_)
        if (column <= static_cast<int>(cells.size())) cells.erase(cells.begin() + (column - 1));
    --numColumns_;
}

void ctlKOMATable::RemoveCellObject(int row, int column) {
    if (auto* cell = Cell(row, column)) cell->reset();
}

void ctlKOMATable::SetObject(int row, int column, KomaObject*& object, bool& ok) {
    std::unique_ptr<KomaObject>* cell = Cell(row, column);
    ok = cell != nullptr;
    if (!cell) return;
    if (!object) {
        cell->reset();
        return;
    }
    if (!IsCellKind(object->ScreenType())) return;
    // A cell object of another kind goes; one of the same kind takes the
    // copy; an empty cell gets a new one.
    if (*cell && (*cell)->ScreenType() != object->ScreenType()) RemoveCellObject(row, column);
    if (!*cell) {
        *cell = NewCellObject(object->ScreenType());
        (*cell)->SetOwner(&cellOwner_);
        (*cell)->Visible(false);
        (*cell)->PCTwipsToTolvaPixels(PCTwipsToTolvaPixels());
    }
    KomaObject& member = **cell;
    if (&member != object) member.CopyCellMembersFrom(*object);
    const int width = object->KOMAWidth();
    const int height = object->KOMAHeight();
    object = &member;
    member.SetCanvasSize(width * member.PCTwipsToTolvaPixels(), height * member.PCTwipsToTolvaPixels());
}

void ctlKOMATable::GetObject(int row, int column, KomaObject*& object, bool& ok) const {
    object = nullptr;
    ok = row >= 1 && row <= numRows_ && column >= 1 && column <= numColumns_;
    if (!ok) return;
    const auto r = static_cast<std::size_t>(row - 1);
    const auto c = static_cast<std::size_t>(column - 1);
    if (r < objects_.size() && c < objects_[r].size()) object = objects_[r][c].get();
}

void ctlKOMATable::DistributeEmbeddedObjectIDs(int& nextId) {
    for (auto& cells : objects_)
        for (auto& object : cells)
            if (object) object->KOMAObjectID(nextId++);
}

int ctlKOMATable::CellObjectCount() const {
    int count = 0;
    for (const auto& cells : objects_)
        for (const auto& object : cells) count += object ? 1 : 0;
    return count;
}

void ctlKOMATable::CellObjectResized(KomaObject& object, int width, int height) {
    // A cell object may not reach beyond the device's edge.
    if (object.KOMABoundsX() + width >= 161) width = 160 - object.KOMABoundsX();
    if (object.KOMABoundsY() + height >= 161) height = 160 - object.KOMABoundsY();
    const double p = object.PCTwipsToTolvaPixels();
    object.SetCanvasSize(width * p, height * p);
}

// --- what the cell objects talk to -------------------------------------------------------

Host& TableCellOwner::OwnerHost() {
    if (!table_.Owner()) throw RuntimeFailure("Table has no owner: " + table_.KOMAName());
    return table_.Owner()->OwnerHost();
}

LogSink& TableCellOwner::OwnerLog() {
    if (!table_.Owner()) throw RuntimeFailure("Table has no owner: " + table_.KOMAName());
    return table_.Owner()->OwnerLog();
}

void TableCellOwner::ObjectResized(KomaObject& object, int width, int height) {
    table_.CellObjectResized(object, width, height);
}

}  // namespace tolva
