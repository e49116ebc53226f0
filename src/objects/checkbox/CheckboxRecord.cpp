// The Checkbox's record: the control head without a comment above its style
// word, the tail with its group, value and the two picture sections under
// the very same keys, and a loaded record applied.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/ControlBitmapSection.h"
#include "objects/checkbox/ctlKOMACheckbox.h"

namespace tolva {

void ctlKOMACheckbox::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendControlHead(lines, {"", "//CHECKBOX_STYLE_0,CHECKBOX_STYLE_1,CHECKBOX_STYLE_2, ..."});
    lines.push_back("~F8");
    lines.push_back("//Checkbox specific properties");
    lines.push_back("(U)CONTROL_ADD.GROUP_ID=" + IntToText(groupId_));
    // The comment speaks of ON and OFF; the value is TRUE or FALSE.
    lines.push_back("// ON or OFF");
    lines.push_back("(BO)CONTROL_ADD.CONTROL_VALUE=" + valueWord_);
    AppendControlBitmapSection(lines, host(), bitmap1_.x, bitmap1_.y, bitmap1_.width,
                               bitmap1_.height, bitmap1_.file, bitmap1_.depth);
    lines.push_back("~F9");
    AppendControlBitmapSection(lines, host(), bitmap2_.x, bitmap2_.y, bitmap2_.width,
                               bitmap2_.height, bitmap2_.file, bitmap2_.depth);
    lines.push_back("#END_CONTROL");
    ok = true;
}

// Groups: 0 name, ID; 1 x, y, width, height; 2 subtype; 3 text; 4 alignment;
// 5 enable, active, visible; 6 value; 7 and 8 each picture's x, y, width,
// height and path; 9 and 10 the depths. The pictures' places and sizes and
// the group are read but not applied: they keep their values.
void ctlKOMACheckbox::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 11 || groups[0].size() != 2 || groups[1].size() != 4 ||
        groups[5].size() != 3 || groups[7].size() != 5 || groups[8].size() != 5 ||
        groups[6].empty() || groups[9].empty() || groups[10].empty())
        return;
    try {
        ApplyControlHeadGroups(groups);
        KOMAControlValue(BooleanFromWord(groups[6][0]));
        KOMABitmap1File(groups[7][4]);
        KOMABitmap2File(groups[8][4]);
        KOMABitmap1Depth(ToInt16(groups[9][0]));
        KOMABitmap2Depth(ToInt16(groups[10][0]));
    } catch (const RuntimeFailure&) {
        // What was applied stays applied.
        return;
    }
    RaiseMoved();
    RaiseResized();
    ok = true;
}

}  // namespace tolva
