// What a string takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include "objects/string/ctlKOMAString.h"

namespace tolva {

bool ctlKOMAString::CopyCellMembersFrom(const KomaObject& other) {
    const auto* string = dynamic_cast<const ctlKOMAString*>(&other);
    if (!string) return false;
    CopyCellPlaceFrom(*string);
    styleWord_ = string->styleWord_;
    text_ = string->text_;
    alignmentWord_ = string->alignmentWord_;
    visibleWord_ = string->visibleWord_;
    CopyTextLookFrom(*string);
    LayOut();
    return true;
}

}  // namespace tolva
