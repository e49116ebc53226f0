// The List's record, written and applied. The related lists' IDs come from
// the form's link table at each writing; a list in a table cell has no
// form and no links.
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/list/ctlKOMAList.h"
#include "objects/list/modList.h"
#include "resfile/Banners.h"

namespace tolva {

void ctlKOMAList::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendRecordBanner(lines, KOMAName(), false);
    AppendHeadA(lines, *this, "#LIST");
    std::vector<int> related;
    numRelatedLists_ = 0;
    if (ParentForm()) ParentForm()->GetRelatedListIDs(KOMAName(), related);
    numRelatedLists_ = static_cast<int>(related.size());
    lines.push_back("//ids of other lists that are linked to this one");
    lines.push_back("(U)LIST_NUM_RELATED_LIST_OBJECT=" + IntToText(numRelatedLists_));
    lines.push_back("~F4");
    for (std::size_t i = 0; i < related.size(); ++i)
        lines.push_back("(U)LIST_RELATED_OBJECT_" + std::to_string(i + 1) + "=" + IntToText(related[i]));
    lines.push_back("~F5");
    lines.push_back("(U)LIST_TOTAL_NUM_ITEMS=" + IntToText(totalNumItems_));
    lines.push_back("~F6");
    lines.push_back("(U)LIST_NUM_ITEMS_ON_DISPLAY=" + IntToText(numDisplayed_));
    lines.push_back("~F7");
    lines.push_back("(U)LIST_TOP_ITEM_NUM=" + IntToText(topItem_));
    lines.push_back("~F8");
    lines.push_back("//LEFT,CENTRE,RIGHT");
    lines.push_back("(B)LIST_TEXTMENT=" + alignmentWord_);
    lines.push_back("~F9");
    lines.push_back("//NO_SELECTION or 0 - ??");
    lines.push_back("(SH)LIST_SELECTED_ITEM=" + IntToText(selected_));
    lines.push_back("~F10");
    lines.push_back("//LIST_STYLE_0,LIST_STYLE_1,LIST_STYLE_2,LIST_STYLE_3");
    lines.push_back("(B)LIST_STYLE=" + styleWord_);
    lines.push_back("~F11");
    lines.push_back("//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK");
    lines.push_back("(B)LIST_TEXT_COLOR=" + fontColorWord_);
    lines.push_back("~F12");
    lines.push_back("(B)LIST_BACKGROUND_COLOR=" + backColorWord_);
    // The comment stands before the marker, as it always has.
    lines.push_back("//any text");
    lines.push_back("~F13");
    for (std::size_t i = 0; i < items_.size() && static_cast<int>(i) < totalNumItems_; ++i)
        lines.push_back("(S)LIST_ITEMS" + std::to_string(i + 1) + "=" + items_[i]);
    lines.push_back("~F14");
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)LIST_ATTR.LIST_ENABLE=" + enableWord_);
    lines.push_back("(BO)LIST_ATTR.LIST_VISIBLE=" + visibleWord_);
    lines.push_back("(BO)LIST_ATTR.LIST_ACTIVE=" + activeWord_);
    lines.push_back("(BO)LIST_ATTR.LIST_SET_SCROLL=" + setScrollWord_);
    lines.push_back("(BO)LIST_ATTR.LIST_SYNCHRONOUS=" + syncWord_);
    lines.push_back("#END_LIST");
    ok = true;
}

void ctlKOMAList::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 13 || groups[0].size() != 2 || groups[1].size() != 4 || groups[12].size() != 5)
        return;
    for (std::size_t i : {3u, 4u, 5u, 6u, 7u, 8u, 9u, 10u})
        if (groups[i].empty()) return;
    int bounds[4] = {};
    int shown = 0, top = 0, selected = 0;
    try {
        for (int i = 0; i < 4; ++i) bounds[i] = ToInt16(groups[1][static_cast<std::size_t>(i)]);
        shown = ToInt32(groups[4][0]);
        top = ToInt32(groups[5][0]);
        selected = ToInt32(groups[7][0]);
    } catch (const RuntimeFailure&) {
        return;
    }
    KOMAName(groups[0][0]);
    KOMABoundsX(bounds[0]);
    KOMABoundsY(bounds[1]);
    KOMAListStyle(ListStyleWordToNumber(groups[8][0]));
    SetList(groups[11], selected, shown, top);
    KOMAFontColor(ColorFromWord(groups[9][0]));
    KOMABackColor(ColorFromWord(groups[10][0]));
    KOMATextAlignment(AlignmentFromWord(groups[6][0]));
    const auto& flags = groups[12];
    KOMAEnable(BooleanFromWord(flags[0]) != 0);
    KOMAVisible(BooleanFromWord(flags[1]) != 0);
    KOMAActive(BooleanFromWord(flags[2]) != 0);
    KOMASetScroll(BooleanFromWord(flags[3]) != 0);
    KOMASync(BooleanFromWord(flags[4]) != 0);
    RaiseMoved();
    RaiseResized(bounds[2], bounds[3]);
    OnCanvasResize();
    ok = true;
}

}  // namespace tolva
