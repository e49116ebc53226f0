// What a list takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include "objects/list/ctlKOMAList.h"

namespace tolva {

bool ctlKOMAList::CopyCellMembersFrom(const KomaObject& other) {
    const auto* list = dynamic_cast<const ctlKOMAList*>(&other);
    if (!list) return false;
    CopyCellPlaceFrom(*list);
    styleWord_ = list->styleWord_;
    alignmentWord_ = list->alignmentWord_;
    visibleWord_ = list->visibleWord_;
    fontColorWord_ = list->fontColorWord_;
    backColorWord_ = list->backColorWord_;
    // The items and the number on display go along; the selection and the
    // top item do not, nor the four flags beside the visible one.
    items_ = list->items_;
    totalNumItems_ = list->totalNumItems_;
    numDisplayed_ = list->numDisplayed_;
    LayOut();
    return true;
}

}  // namespace tolva
