// The Push button's record: the control head without the comments above its
// style word and its attributes, the tail of colours, group, value and
// radius, and a loaded record applied.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/pushbutton/ctlKOMAPushButton.h"

namespace tolva {

void ctlKOMAPushButton::ReturnResourceFileText(LineList& lines, bool& ok) {
    HeadComments comments;
    comments.subtype = "//PUSHBUTTON_STYLE_0,PUSHBUTTON_STYLE_1,PUSHBUTTON_STYLE_2, ...";
    comments.attributes.clear();
    AppendControlHead(lines, comments);
    lines.push_back("~F8");
    lines.push_back("//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK");
    lines.push_back("(B)CONTROL_ADD.COLOR_ON=" + onColorWord_);
    lines.push_back("(B)CONTROL_ADD.COLOR_OFF=" + offColorWord_);
    lines.push_back("(U)CONTROL_ADD.GROUP_ID=" + IntToText(groupId_));
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)CONTROL_ADD.CONTROL_VALUE=" + valueWord_);
    // Last here, first in the Button's tail.
    lines.push_back("(SH)CONTROL_ADD.RADIUS=" + IntToText(radius_));
    lines.push_back("#END_CONTROL");
    ok = true;
}

// Groups: 0 name, ID; 1 x, y, width, height; 2 subtype; 3 text; 4 alignment;
// 5 enable, active, visible; 6 radius; 7 on and off colour; 8 value. The
// group the record names has no group here: a load leaves it at 0.
void ctlKOMAPushButton::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 9 || groups[0].size() != 2 || groups[1].size() != 4 ||
        groups[5].size() != 3 || groups[7].size() != 2 || groups[6].empty() ||
        groups[8].empty())
        return;
    try {
        ApplyControlHeadGroups(groups);
        KOMARadius(ToInt16(groups[6][0]));
        KOMAOnColor(ColorFromWord(groups[7][0]));
        KOMAOffColor(ColorFromWord(groups[7][1]));
        KOMAControlValue(BooleanFromWord(groups[8][0]) != 0);
    } catch (const RuntimeFailure&) {
        // What was applied stays applied.
        return;
    }
    RaiseMoved();
    RaiseResized();
    LayOut();
    ok = true;
}

}  // namespace tolva
