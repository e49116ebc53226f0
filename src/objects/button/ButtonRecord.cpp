// The Button's record: its head through the control family's writer, its
// tail of radius and colours, and a loaded record applied.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/button/ctlKOMAButton.h"

namespace tolva {

void ctlKOMAButton::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendControlHead(lines, {"// Always BUTTON",
                              "//BUTTON_STYLE_0,BUTTON_STYLE_1,BUTTON_STYLE_2, ..."});
    lines.push_back("~F8");
    lines.push_back("//Button specific properties");
    lines.push_back("(SH)CONTROL_ADD.RADIUS=" + IntToText(radius_));
    lines.push_back("//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK");
    lines.push_back("(B)CONTROL_ADD.COLOR_ON=" + onColorWord_);
    lines.push_back("(B)CONTROL_ADD.COLOR_OFF=" + offColorWord_);
    lines.push_back("#END_CONTROL");
    ok = true;
}

// Groups: 0 name, ID; 1 x, y, width, height; 2 subtype; 3 text; 4 alignment;
// 5 enable, active, visible; 6 radius; 7 on and off colour.
void ctlKOMAButton::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 8 || groups[0].size() != 2 || groups[1].size() != 4 ||
        groups[5].size() != 3 || groups[7].size() != 2 || groups[6].empty())
        return;
    try {
        ApplyControlHeadGroups(groups);
        KOMARadius(ToInt32(groups[6][0]));
        KOMAOnColor(ColorFromWord(groups[7][0]));
        KOMAOffColor(ColorFromWord(groups[7][1]));
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
