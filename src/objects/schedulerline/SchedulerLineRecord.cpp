// The Scheduler line's record, written and applied.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "objects/schedulerline/ctlKOMASchedulerLine.h"
#include "resfile/Banners.h"

namespace tolva {

void ctlKOMASchedulerLine::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendRecordBanner(lines, KOMAName(), false);
    AppendHeadB(lines, *this, "#SCHLINE");
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)SCHLINE_ATTR.ENABLE=" + enableWord_);
    lines.push_back("(BO)SCHLINE_ATTR.ACTIVE=" + activeWord_);
    lines.push_back("(BO)SCHLINE_ATTR.VISIBLE=" + visibleWord_);
    lines.push_back("#END_SCHLINE");
    ok = true;
}

void ctlKOMASchedulerLine::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 3 || groups[0].size() != 2 || groups[1].size() != 4 || groups[2].size() != 3)
        return;
    int x = 0, y = 0, width = 0, height = 0;
    try {
        x = ToInt16(groups[1][0]);
        y = ToInt16(groups[1][1]);
        width = ToInt16(groups[1][2]);
        height = ToInt16(groups[1][3]);
    } catch (const RuntimeFailure&) {
        return;
    }
    KOMAName(groups[0][0]);
    KOMABoundsX(x);
    KOMABoundsY(y);
    KOMAWidth(width);
    KOMAHeight(height);
    KOMAEnable(BooleanFromWord(groups[2][0]) != 0);
    KOMAActive(BooleanFromWord(groups[2][1]) != 0);
    KOMAVisible(BooleanFromWord(groups[2][2]) != 0);
    RaiseMoved();
    RaiseResized();
    LayOut();
    ok = true;
}

}  // namespace tolva
