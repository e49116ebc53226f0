// What a check box takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include "objects/checkbox/ctlKOMACheckbox.h"

namespace tolva {

bool ctlKOMACheckbox::CopyCellMembersFrom(const KomaObject& other) {
    const auto* checkbox = dynamic_cast<const ctlKOMACheckbox*>(&other);
    if (!checkbox) return false;
    CopyCellHeadFrom(*checkbox);
    CopyCellPicturesFrom(*checkbox);
    valueWord_ = checkbox->valueWord_;
    groupId_ = checkbox->groupId_;
    LayOut();
    return true;
}

}  // namespace tolva
