// The copy of a table that the design's history keeps: unlike the copy of
// a whole table, which leaves some words as the receiving table had them,
// every member goes across, and each cell's object is copied whole into an
// object of the receiving table's own.
#include "objects/table/CellKinds.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva {

bool ctlKOMATable::CopyWholeStateFrom(const KomaObject& other) {
    auto* table = dynamic_cast<const ctlKOMATable*>(&other);
    if (!table) return false;
    CopySharedModelFrom(other);
    CopyCanvasStateFrom(other);
    numColumns_ = table->numColumns_;
    numRows_ = table->numRows_;
    columnWidths_ = table->columnWidths_;
    rowHeights_ = table->rowHeights_;
    topRow_ = table->topRow_;
    leftColumn_ = table->leftColumn_;
    styleWord_ = table->styleWord_;
    backColorWord_ = table->backColorWord_;
    bitmapX_ = table->bitmapX_;
    bitmapY_ = table->bitmapY_;
    bitmapWidth_ = table->bitmapWidth_;
    bitmapHeight_ = table->bitmapHeight_;
    bitmapFile_ = table->bitmapFile_;
    bitmapDepth_ = table->bitmapDepth_;
    enableWord_ = table->enableWord_;
    scrollbarWord_ = table->scrollbarWord_;
    activeWord_ = table->activeWord_;
    highlightWord_ = table->highlightWord_;
    visibleWord_ = table->visibleWord_;
    cells_ = table->cells_;

    objects_.clear();
    objects_.resize(table->objects_.size());
    for (std::size_t r = 0; r < table->objects_.size(); ++r) {
        objects_[r].resize(table->objects_[r].size());
        for (std::size_t c = 0; c < table->objects_[r].size(); ++c) {
            const KomaObject* from = table->objects_[r][c].get();
            if (!from) continue;
            std::unique_ptr<KomaObject> copy = NewCellObject(from->ScreenType());
            if (!copy) continue;
            copy->SetOwner(&cellOwner_);
            if (!copy->CopyWholeStateFrom(*from)) return false;
            objects_[r][c] = std::move(copy);
        }
    }
    return true;
}

}  // namespace tolva
