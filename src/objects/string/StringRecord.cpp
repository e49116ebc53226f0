// The String's record, written and applied.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/string/ctlKOMAString.h"
#include "objects/string/modString.h"
#include "objects/RecordHeads.h"
#include "resfile/Banners.h"

namespace tolva {

void ctlKOMAString::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendRecordBanner(lines, KOMAName(), false);
    AppendHeadA(lines, *this, "#STRING");
    lines.push_back("//STRING_STYLE_0,STRING_STYLE_1,STRING_STYLE_2");
    lines.push_back("(B)STRING_STYLE=" + styleWord_);
    lines.push_back("~F4");
    lines.push_back("//any text");
    lines.push_back("(S)STRING_TEXT=" + text_);
    lines.push_back("~F5");
    lines.push_back("//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK");
    lines.push_back("(B)STRING_FONT_COLOR=" + fontColorWord_);
    lines.push_back("~F6");
    lines.push_back("(B)STRING_BACKGROUND_COLOR=" + backColorWord_);
    lines.push_back("~F7");
    lines.push_back("//SMALL_FONT,MEDIUM_FONT");
    lines.push_back("(B)STRING_FONT=" + fontWord_);
    lines.push_back("~F8");
    lines.push_back("//LEFT,CENTRE,RIGHT");
    lines.push_back("(B)STRING_TEXTMENT=" + alignmentWord_);
    lines.push_back("~F9");
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)STRING_ATTR.STRING_VISIBLE=" + visibleWord_);
    lines.push_back("#END_STRING");
    ok = true;
}

void ctlKOMAString::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 9 || groups[0].size() != 2 || groups[1].size() != 4) return;
    for (std::size_t i = 2; i < groups.size(); ++i)
        if (groups[i].empty()) return;
    try {
        const double scale = PCTwipsToTolvaPixels();
        KOMAName(groups[0][0]);
        KOMABoundsX(ToInt16(groups[1][0]));
        KOMABoundsY(ToInt16(groups[1][1]));
        SetCanvasSize(ToInt16(groups[1][2]) * scale, ToInt16(groups[1][3]) * scale);
    } catch (const RuntimeFailure&) {
        return;
    }
    // The style word is kept as the record has it, styles 2 to 5 included.
    KOMAStringStyle(StringStyleWordToNumber(groups[2][0]));
    KOMAText(groups[3][0]);
    KOMAFontColor(ColorFromWord(groups[4][0]));
    KOMABackColor(ColorFromWord(groups[5][0]));
    KOMAFont(FontFromWord(groups[6][0]));
    KOMATextAlignment(AlignmentFromWord(groups[7][0]));
    KOMAVisible(BooleanFromWord(groups[8][0]) != 0);
    RaiseMoved();
    RaiseResized();
    LayOut();
    ok = true;
}

}  // namespace tolva
