// What a field takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include "objects/field/ctlKOMAField.h"

namespace tolva {

bool ctlKOMAField::CopyCellMembersFrom(const KomaObject& other) {
    const auto* field = dynamic_cast<const ctlKOMAField*>(&other);
    if (!field) return false;
    CopyCellPlaceFrom(*field);
    styleWord_ = field->styleWord_;
    text_ = field->text_;
    alignmentWord_ = field->alignmentWord_;
    CopyEntryStateFrom(*field);
    backlineWord_ = field->backlineWord_;
    CopyTextLookFrom(*field);
    topLineNum_ = field->topLineNum_;
    scrollbarWord_ = field->scrollbarWord_;
    fullSizeWord_ = field->fullSizeWord_;
    LayOut();
    return true;
}

}  // namespace tolva
