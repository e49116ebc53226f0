// The Line's record, written and applied. The record's bounds X and Y hold
// the start point, not the box: the record has no other place for it.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/line/ctlKOMALine.h"
#include "objects/line/modLine.h"
#include "resfile/Banners.h"

namespace tolva {

void ctlKOMALine::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendRecordBanner(lines, KOMAName(), false);
    lines.push_back("#LINE");
    lines.push_back("NAME=" + KOMAName());
    lines.push_back("ID=" + IntToText(KOMAObjectID()));
    lines.push_back("~F0");
    lines.push_back("(B)OBJECT.TYPE=" + KOMAObjectTypeWord());
    lines.push_back("~F1");
    lines.push_back("//0 - 65534 (if within table), 65535 means not within table");
    lines.push_back("(U)RELATED_TABLE_ID=" + IntToText(KOMARelatedTableID()));
    lines.push_back("~F2");
    lines.push_back("//0 - 159");
    lines.push_back("(SH)BOUNDS.X=" + IntToText(startX_));
    lines.push_back("(SH)BOUNDS.Y=" + IntToText(startY_));
    lines.push_back("//0 - 160");
    lines.push_back("(SH)BOUNDS.WIDTH=" + IntToText(KOMAWidth()));
    lines.push_back("(SH)BOUNDS.HEIGHT=" + IntToText(KOMAHeight()));
    lines.push_back("~F3");
    lines.push_back("//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK");
    lines.push_back("(B)LINE_COLOR=" + colorWord_);
    lines.push_back("~F4");
    lines.push_back("//LINE_STYLE_0,LINE_STYLE_1,LINE_STYLE_2");
    lines.push_back("(B)LINE_STYLE=" + styleWord_);
    lines.push_back("~F5");
    lines.push_back("(U)LINE_THICK=" + IntToText(thick_));
    lines.push_back("~F6");
    lines.push_back("(SH)LINE_ENDPT_X=" + IntToText(endX_));
    lines.push_back("~F7");
    lines.push_back("(SH)LINE_ENDPT_Y=" + IntToText(endY_));
    lines.push_back("~F8");
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)LINE_ATTR.LINE_VISIBLE=" + visibleWord_);
    lines.push_back("#END_LINE");
    ok = true;
}

void ctlKOMALine::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 8 || groups[0].size() != 2 || groups[1].size() != 4) return;
    for (std::size_t i = 2; i < groups.size(); ++i)
        if (groups[i].empty()) return;
    int x = 0, y = 0, width = 0, height = 0, thick = 0, endX = 0, endY = 0;
    try {
        // Every number is converted before anything is applied, so that a
        // failure changes nothing.
        x = ToInt16(groups[1][0]);
        y = ToInt16(groups[1][1]);
        width = ToInt16(groups[1][2]);
        height = ToInt16(groups[1][3]);
        thick = ToInt32(groups[4][0]);
        endX = ToInt16(groups[5][0]);
        endY = ToInt16(groups[6][0]);
    } catch (const RuntimeFailure&) {
        return;
    }
    KOMAName(groups[0][0]);
    KOMABoundsX(x);
    KOMABoundsY(y);
    KOMAStartX(x);
    KOMAStartY(y);
    const double scale = PCTwipsToTolvaPixels();
    SetCanvasSize(width * scale, height * scale);
    KOMAColor(ColorFromWord(groups[2][0]));
    KOMALineStyle(LineStyleWordToNumber(groups[3][0]));
    KOMAThick(thick);
    KOMAEndX(endX);
    KOMAEndY(endY);
    KOMAVisible(BooleanFromWord(groups[7][0]) != 0);
    WorkOutSlope();
    RaiseLineResized();
    ok = true;
}

}  // namespace tolva
