// The Repeat button's record: the control head without a comment above its
// style word, the tail with the picture's place, size and file, and a loaded
// record applied.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "objects/ControlBitmapSection.h"
#include "objects/repeatbutton/ctlKOMARepeatButton.h"

namespace tolva {

void ctlKOMARepeatButton::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendControlHead(lines, {"", "//REPEATBUTTON_STYLE_0,REPEATBUTTON_STYLE_1,REPEATBUTTON_STYLE_2, ..."});
    lines.push_back("~F8");
    AppendControlBitmapSection(lines, host(), picture_.x, picture_.y, picture_.width, picture_.height,
                               picture_.file, picture_.depth);
    lines.push_back("#END_CONTROL");
    ok = true;
}

// Groups: 0 name, ID; 1 x, y, width, height; 2 subtype; 3 text; 4 alignment;
// 5 enable, active, visible; 6 the picture's x, y, width, height and path.
// The depth the record names has no group: a load leaves the depth as it is.
void ctlKOMARepeatButton::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 7 || groups[0].size() != 2 || groups[1].size() != 4 ||
        groups[5].size() != 3 || groups[6].size() != 5)
        return;
    try {
        ApplyControlHeadGroups(groups);
        KOMABitmapX(ToInt16(groups[6][0]));
        KOMABitmapY(ToInt16(groups[6][1]));
        KOMABitmapWidth(ToInt16(groups[6][2]));
        KOMABitmapHeight(ToInt16(groups[6][3]));
        KOMABitmapFile(groups[6][4]);
    } catch (const RuntimeFailure&) {
        // What was applied stays applied.
        return;
    }
    RaiseMoved();
    RaiseResized();
    ok = true;
}

}  // namespace tolva
