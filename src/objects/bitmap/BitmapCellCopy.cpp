// What a bitmap takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include "objects/bitmap/ctlKOMABitmap.h"

namespace tolva {

bool ctlKOMABitmap::CopyCellMembersFrom(const KomaObject& other) {
    const auto* bitmap = dynamic_cast<const ctlKOMABitmap*>(&other);
    if (!bitmap) return false;
    CopyCellPlaceFrom(*bitmap);
    styleWord_ = bitmap->styleWord_;
    enableWord_ = bitmap->enableWord_;
    activeWord_ = bitmap->activeWord_;
    visibleWord_ = bitmap->visibleWord_;
    CopyCellPicturesFrom(*bitmap);
    LayOut();
    return true;
}

}  // namespace tolva
