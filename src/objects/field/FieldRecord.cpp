// The Field's record, written and applied. The text goes out through the
// line-break encoder; what comes back keeps "/r" as it stands.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "objects/field/ctlKOMAField.h"
#include "objects/field/modField.h"
#include "resfile/Banners.h"

namespace tolva {

void ctlKOMAField::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendRecordBanner(lines, KOMAName(), false);
    AppendHeadA(lines, *this, "#FIELD");
    lines.push_back("//any text");
    lines.push_back("(S)FIELD_TEXT=" + EncodeFieldLineBreaks(text_));
    lines.push_back("~F4");
    lines.push_back("//FIELD_STYLE_0,FIELD_STYLE_1,FIELD_STYLE_2");
    lines.push_back("(B)FIELD_STYLE=" + styleWord_);
    lines.push_back("~F5");
    lines.push_back("//NO_LINE,DOT_LINE,GREY_LINE");
    lines.push_back("(B)FIELD_BACK_LINE=" + backlineWord_);
    lines.push_back("~F6");
    lines.push_back("//SMALL_FONT,MEDIUM_FONT");
    lines.push_back("(B)FIELD_FONT=" + fontWord_);
    lines.push_back("~F7");
    lines.push_back("//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK");
    lines.push_back("(B)FIELD_FONT_COLOR=" + fontColorWord_);
    lines.push_back("~F8");
    lines.push_back("//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK");
    lines.push_back("(B)FIELD_BACKGROUND_COLOR=" + backColorWord_);
    lines.push_back("~F9");
    lines.push_back("//LEFT,CENTRE,RIGHT");
    lines.push_back("(B)FIELD_TEXTMENT=" + alignmentWord_);
    lines.push_back("~F10");
    lines.push_back("(W)FIELD_MAX_NUM_CHARS=" + IntToText(maxNumChars_));
    lines.push_back("~F11");
    lines.push_back("(W)FIELD_TOP_LINE_NUM=" + IntToText(topLineNum_));
    lines.push_back("~F12");
    lines.push_back("(W)FIELD_INSERT_PT_CHAR_POS=" + IntToText(insertPointCharPos_));
    lines.push_back("~F13");
    lines.push_back("(W)FIELD_HIGHLIGHT_START=" + IntToText(highlightStart_));
    lines.push_back("~F14");
    lines.push_back("(W)FIELD_HIGHLIGHT_END=" + IntToText(highlightEnd_));
    lines.push_back("~F15");
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)FIELD_ATTR.FIELD_ACTIVE=" + activeWord_);
    lines.push_back("(BO)FIELD_ATTR.FIELD_ENABLE=" + enableWord_);
    lines.push_back("(BO)FIELD_ATTR.FIELD_DIRTY=" + dirtyWord_);
    lines.push_back("(BO)FIELD_ATTR.FIELD_HIGHLIGHT=" + highlightWord_);
    lines.push_back("(BO)FIELD_ATTR.FIELD_INSERT_PT_VISIBLE=" + insertPointVisibleWord_);
    lines.push_back("(BO)FIELD_ATTR.FIELD_SCROLLBAR=" + scrollbarWord_);
    lines.push_back("(BO)FIELD_ATTR.FIELD_FULL_SIZE=" + fullSizeWord_);
    lines.push_back("(BO)FIELD_ATTR.FIELD_VISIBLE=" + visibleWord_);
    lines.push_back("#END_FIELD");
    ok = true;
}

void ctlKOMAField::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 15 || groups[0].size() != 2 || groups[1].size() != 4 ||
        groups[14].size() != 8)
        return;
    for (std::size_t i = 2; i < 14; ++i)
        if (groups[i].empty()) return;
    int numbers[5] = {};
    try {
        // Every number is converted before anything is applied, so that a
        // failure changes nothing.
        for (int i = 0; i < 5; ++i) numbers[i] = ToInt32(groups[static_cast<std::size_t>(9 + i)][0]);
        ApplyHeadA(*this, groups);
    } catch (const RuntimeFailure&) {
        return;
    }
    KOMAText(groups[2][0]);
    KOMAFieldStyle(FieldStyleWordToNumber(groups[3][0]));
    KOMABackline(BaseLineFromWord(groups[4][0]));
    KOMAFont(FontFromWord(groups[5][0]));
    KOMAFontColor(ColorFromWord(groups[6][0]));
    KOMABackColor(ColorFromWord(groups[7][0]));
    KOMATextAlignment(AlignmentFromWord(groups[8][0]));
    KOMAMaxNumChars(numbers[0]);
    KOMATopLineNum(numbers[1]);
    KOMAInsertPointCharPos(numbers[2]);
    KOMAHighlightStartCharPos(numbers[3]);
    KOMAHighlightEndCharPos(numbers[4]);
    const auto& flags = groups[14];
    KOMAActive(BooleanFromWord(flags[0]) != 0);
    KOMAEnable(BooleanFromWord(flags[1]) != 0);
    KOMADirty(BooleanFromWord(flags[2]) != 0);
    KOMAHighlight(BooleanFromWord(flags[3]) != 0);
    KOMAInsertPointVisible(BooleanFromWord(flags[4]) != 0);
    KOMAScrollbar(BooleanFromWord(flags[5]) != 0);
    KOMAFullSize(BooleanFromWord(flags[6]) != 0);
    KOMAVisible(BooleanFromWord(flags[7]) != 0);
    RaiseMoved();
    RaiseResized();
    LayOut();
    ok = true;
}

}  // namespace tolva
