// What a scroll bar takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include <utility>

#include "objects/scrollbar/ctlKOMAScrollbar.h"

namespace tolva {

bool ctlKOMAScrollbar::CopyCellMembersFrom(const KomaObject& other) {
    const auto* bar = dynamic_cast<const ctlKOMAScrollbar*>(&other);
    if (!bar) return false;
    CopyCellPlaceFrom(*bar);
    orientationWord_ = bar->orientationWord_;
    styleWord_ = bar->styleWord_;
    text_ = bar->text_;
    max_ = bar->max_;
    min_ = bar->min_;
    current_ = bar->current_;
    pageSize_ = bar->pageSize_;
    enableWord_ = bar->enableWord_;
    activeWord_ = bar->activeWord_;
    visibleWord_ = bar->visibleWord_;
    // The arrows' sizes and files; their places and depths stay.
    for (auto [mine, theirs] : {std::pair{&arrow1_, &bar->arrow1_}, std::pair{&arrow2_, &bar->arrow2_}}) {
        mine->width = theirs->width;
        mine->height = theirs->height;
        mine->file = theirs->file;
        mine->loaded = theirs->loaded;
        mine->pixelWidth = theirs->pixelWidth;
        mine->pixelHeight = theirs->pixelHeight;
    }
    LayOut();
    return true;
}

}  // namespace tolva
