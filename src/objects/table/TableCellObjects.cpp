// The objects in a table's cells as the files see them: their records under
// the names of their places, the header's names and IDs, the pairs of the
// form's record, and the loader's way into a cell.
#include "document/Numbers.h"
#include "objects/table/CellKinds.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva {

namespace {

// Walks the grid row by row; `visit` gets each object with its row and
// column, from 1.
template <typename Grid, typename Visit>
void EachCellObject(Grid& objects, Visit visit) {
    for (std::size_t r = 0; r < objects.size(); ++r)
        for (std::size_t c = 0; c < objects[r].size(); ++c)
            if (objects[r][c]) visit(*objects[r][c], static_cast<int>(r + 1), static_cast<int>(c + 1));
}

// "BUTTON_TABLE_1_CELL_2_3": the name a cell object is saved under.
std::string CellObjectName(const KomaObject& object, const std::string& tableName, int row,
                           int column) {
    return CellNamePrefix(object.ScreenType()) + tableName + "_CELL_" + std::to_string(row) + "_" +
           std::to_string(column);
}

}  // namespace

void ctlKOMATable::GetTableObjectText(std::vector<LineList>& blocks) {
    blocks.clear();
    EachCellObject(objects_, [&](KomaObject& object, int row, int column) {
        object.KOMAName(CellObjectName(object, KOMAName(), row, column));
        LineList lines;
        bool ok = false;
        object.ReturnResourceFileText(lines, ok);
        blocks.push_back(std::move(lines));
    });
}

void ctlKOMATable::GetHeaderEmbeddedObjectHeaderInfo(
    std::vector<std::pair<std::string, std::string>>& entries) {
    entries.clear();
    // The names the records of the cells carry, so that the header agrees
    // with the resource text whichever is written first.
    EachCellObject(objects_, [&](KomaObject& object, int row, int column) {
        object.KOMAName(CellObjectName(object, KOMAName(), row, column));
        entries.emplace_back(object.KOMAName(), IntToText(object.KOMAObjectID()));
    });
}

void ctlKOMATable::GetTableObjectTypesAndIds(
    std::vector<std::pair<std::string, std::string>>& pairs) {
    pairs.clear();
    EachCellObject(objects_, [&](KomaObject& object, int, int) {
        pairs.emplace_back(IntToText(object.KOMAObjectID()), CellTypeWord(object.ScreenType()));
    });
}

void ctlKOMATable::CreateObjectInTable(int row, int column, int screenType, const GroupList& record,
                                       bool& ok) {
    std::unique_ptr<KomaObject>* cell = Cell(row, column);
    ok = cell != nullptr;
    if (!cell) return;
    std::unique_ptr<KomaObject> made = NewCellObject(screenType);
    // A kind that cannot stand in a cell leaves it empty.
    if (!made) {
        cell->reset();
        return;
    }
    // The new object takes the whole record and is the cell's object itself,
    // so a loaded cell keeps all its record held, not only what the cell
    // copy takes along.
    made->SetOwner(&cellOwner_);
    made->Visible(false);
    made->PCTwipsToTolvaPixels(PCTwipsToTolvaPixels());
    bool applied = false;
    made->SetFromResText(record, applied);
    const int width = made->KOMAWidth();
    const int height = made->KOMAHeight();
    *cell = std::move(made);
    (*cell)->SetCanvasSize(width * (*cell)->PCTwipsToTolvaPixels(), height * (*cell)->PCTwipsToTolvaPixels());
}

}  // namespace tolva
