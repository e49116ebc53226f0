// What a repeat button takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include "objects/repeatbutton/ctlKOMARepeatButton.h"

namespace tolva {

bool ctlKOMARepeatButton::CopyCellMembersFrom(const KomaObject& other) {
    const auto* button = dynamic_cast<const ctlKOMARepeatButton*>(&other);
    if (!button) return false;
    CopyCellHeadFrom(*button);
    // The picture's file, place and size; its depth stays.
    const int depth = picture_.depth;
    picture_ = button->picture_;
    picture_.depth = depth;
    LayOut();
    return true;
}

}  // namespace tolva
