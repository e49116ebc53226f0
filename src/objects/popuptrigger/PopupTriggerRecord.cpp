// The Popup trigger's record: the control head without the comments above
// its style word and its text, and the tail of radius, items, selected and
// top item, the items indexed from 0; a loaded record applied.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"

namespace tolva {

void ctlKOMAPopupTrigger::ReturnResourceFileText(LineList& lines, bool& ok) {
    HeadComments comments;
    comments.subtype = "//POPUP_TRIGGER_STYLE_0,POPUP_TRIGGER_STYLE_1,POPUP_TRIGGER_STYLE_2, ...";
    comments.text.clear();
    AppendControlHead(lines, comments);
    lines.push_back("~F8");
    // "(U)" here, where the Button's record has "(SH)".
    lines.push_back("(U)CONTROL_ADD.RADIUS=" + IntToText(radius_));
    lines.push_back("(U)CONTROL_ADD.NUM_OF_OBJECTS=" + IntToText(numItems_));
    lines.push_back("(SH)CONTROL_ADD.SELECTED_ITEM=" + IntToText(selected_));
    lines.push_back("(U)CONTROL_ADD.TOP_ITEM_NUM=" + IntToText(topItem_));
    lines.push_back("//any text");
    for (std::size_t n = 0; n < items_.size(); ++n)
        lines.push_back("(S)CONTROL_ADD.ITEM" + std::to_string(n) + "=" + items_[n]);
    lines.push_back("#END_CONTROL");
    ok = true;
}

// Groups: 0 name, ID; 1 x, y, width, height; 2 subtype; 3 text;
// 4 alignment; 5 enable, active, visible; 6 radius; 7 number of items;
// 8 top item; 9 selected item; 10 the items.
void ctlKOMAPopupTrigger::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 11 || groups[0].size() != 2 || groups[1].size() != 4 ||
        groups[5].size() != 3 || groups[6].empty() || groups[8].empty() || groups[9].empty())
        return;
    try {
        ApplyControlHeadGroups(groups);
        KOMARadius(ToInt16(groups[6][0]));
        SetList(groups[10], ToInt32(groups[9][0]), ToInt32(groups[8][0]));
    } catch (const RuntimeFailure&) {
        // What was applied stays applied.
        return;
    }
    RaiseMoved();
    RaiseResized();
    ok = true;
}

}  // namespace tolva
