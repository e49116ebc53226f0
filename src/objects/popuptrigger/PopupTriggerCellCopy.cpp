// What a popup trigger takes along into a table cell, out to the editor of a
// cell's object and back: the members below and nothing else.
#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"

namespace tolva {

bool ctlKOMAPopupTrigger::CopyCellMembersFrom(const KomaObject& other) {
    const auto* trigger = dynamic_cast<const ctlKOMAPopupTrigger*>(&other);
    if (!trigger) return false;
    CopyCellHeadFrom(*trigger);
    radius_ = trigger->radius_;
    std::vector<std::string> items;
    int selected = -1, topItem = 0;
    trigger->GetList(items, selected, topItem);
    SetList(items, selected, topItem);
    LayOut();
    return true;
}

}  // namespace tolva
