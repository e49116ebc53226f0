// The Textbox's record, written and applied.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "objects/textbox/ctlKOMATextbox.h"
#include "objects/textbox/modTextbox.h"
#include "resfile/Banners.h"

namespace tolva {

void ctlKOMATextbox::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendRecordBanner(lines, KOMAName(), false);
    AppendHeadA(lines, *this, "#TEXTBOX");
    lines.push_back("//any text");
    lines.push_back("(S)TEXTBOX_TEXT=" + text_);
    lines.push_back("~F4");
    lines.push_back("//TEXTBOX_STYLE_0,TEXTBOX_STYLE_1,TEXTBOX_STYLE_2");
    lines.push_back("(B)TEXTBOX_STYLE=" + styleWord_);
    lines.push_back("~F5");
    lines.push_back("//NO_LINE,DOT_LINE,GREY_LINE");
    lines.push_back("(B)TEXTBOX_BACK_LINE=" + backlineWord_);
    lines.push_back("~F6");
    lines.push_back("//SMALL_FONT,MEDIUM_FONT");
    lines.push_back("(B)TEXTBOX_FONT=" + fontWord_);
    lines.push_back("~F7");
    lines.push_back("//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK");
    lines.push_back("(B)TEXTBOX_FONT_COLOR=" + fontColorWord_);
    lines.push_back("~F8");
    lines.push_back("(B)TEXTBOX_BACKGROUND_COLOR=" + backColorWord_);
    lines.push_back("~F9");
    lines.push_back("(W)TEXTBOX_MAX_NUM_CHARS=" + IntToText(maxNumChars_));
    lines.push_back("~F10");
    lines.push_back("(W)TEXTBOX_LEFT_CHAR_POS=" + IntToText(leftCharPos_));
    lines.push_back("~F11");
    lines.push_back("(W)TEXTBOX_RIGHT_CHAR_POS=" + IntToText(rightCharPos_));
    lines.push_back("~F12");
    lines.push_back("(W)TEXTBOX_INSERT_PT_CHAR_POS=" + IntToText(insertPointCharPos_));
    lines.push_back("~F13");
    lines.push_back("(W)TEXTBOX_HIGHLIGHT_START_CHAR_POS=" + IntToText(highlightStart_));
    lines.push_back("~F14");
    lines.push_back("(W)TEXTBOX_HIGHLIGHT_END_CHAR_POS=" + IntToText(highlightEnd_));
    lines.push_back("~F15");
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)TEXTBOX_ATTR.TEXTBOX_ACTIVE=" + activeWord_);
    lines.push_back("(BO)TEXTBOX_ATTR.TEXTBOX_ENABLE=" + enableWord_);
    lines.push_back("(BO)TEXTBOX_ATTR.TEXTBOX_DIRTY=" + dirtyWord_);
    lines.push_back("(BO)TEXTBOX_ATTR.TEXTBOX_HIGHLIGHT=" + highlightWord_);
    lines.push_back("(BO)TEXTBOX_ATTR.TEXTBOX_INSERT_PT_VISIBLE=" + insertPointVisibleWord_);
    lines.push_back("(BO)TEXTBOX_ATTR.TEXTBOX_VISIBLE=" + visibleWord_);
    lines.push_back("#END_TEXTBOX");
    ok = true;
}

void ctlKOMATextbox::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 15 || groups[0].size() != 2 || groups[1].size() != 4 ||
        groups[14].size() != 6)
        return;
    for (std::size_t i = 2; i < 14; ++i)
        if (groups[i].empty()) return;
    int numbers[6] = {};
    try {
        // Every number is converted before anything is applied, so that a
        // failure changes nothing.
        for (int i = 0; i < 6; ++i) numbers[i] = ToInt32(groups[static_cast<std::size_t>(8 + i)][0]);
        ApplyHeadA(*this, groups);
    } catch (const RuntimeFailure&) {
        return;
    }
    KOMAText(groups[2][0]);
    KOMATextboxStyle(TextboxStyleWordToNumber(groups[3][0]));
    KOMABackline(BaseLineFromWord(groups[4][0]));
    KOMAFont(FontFromWord(groups[5][0]));
    KOMAFontColor(ColorFromWord(groups[6][0]));
    KOMABackColor(ColorFromWord(groups[7][0]));
    KOMAMaxNumChars(numbers[0]);
    KOMALeftCharPos(numbers[1]);
    KOMARightCharPos(numbers[2]);
    KOMAInsertPointCharPos(numbers[3]);
    KOMAHighlightStartCharPos(numbers[4]);
    KOMAHighlightEndCharPos(numbers[5]);
    const auto& flags = groups[14];
    KOMAActive(BooleanFromWord(flags[0]) != 0);
    KOMAEnable(BooleanFromWord(flags[1]) != 0);
    KOMADirty(BooleanFromWord(flags[2]) != 0);
    KOMAHighlight(BooleanFromWord(flags[3]) != 0);
    KOMAInsertPointVisible(BooleanFromWord(flags[4]) != 0);
    KOMAVisible(BooleanFromWord(flags[5]) != 0);
    RaiseMoved();
    RaiseResized();
    LayOut();
    ok = true;
}

}  // namespace tolva
