// What a button takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include "objects/button/ctlKOMAButton.h"

namespace tolva {

bool ctlKOMAButton::CopyCellMembersFrom(const KomaObject& other) {
    const auto* button = dynamic_cast<const ctlKOMAButton*>(&other);
    if (!button) return false;
    CopyCellHeadFrom(*button);
    radius_ = button->radius_;
    onColorWord_ = button->onColorWord_;
    offColorWord_ = button->offColorWord_;
    LayOut();
    return true;
}

}  // namespace tolva
