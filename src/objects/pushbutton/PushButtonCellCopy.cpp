// What a push button takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include "objects/pushbutton/ctlKOMAPushButton.h"

namespace tolva {

bool ctlKOMAPushButton::CopyCellMembersFrom(const KomaObject& other) {
    const auto* button = dynamic_cast<const ctlKOMAPushButton*>(&other);
    if (!button) return false;
    CopyCellHeadFrom(*button);
    radius_ = button->radius_;
    onColorWord_ = button->onColorWord_;
    offColorWord_ = button->offColorWord_;
    valueWord_ = button->valueWord_;
    groupId_ = button->groupId_;
    LayOut();
    return true;
}

}  // namespace tolva
