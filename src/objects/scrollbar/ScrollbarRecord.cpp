// The Scrollbar's record, written and applied. Mind the swapped keys: the
// orientation goes under "(B)SCROLLBAR_STYLE=" and the style under
// "(B)SCROLLBAR_TYPE=", as the resource compiler reads them.
#include "document/Host.h"
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "objects/PictureFiles.h"
#include "objects/RecordHeads.h"
#include "objects/scrollbar/ctlKOMAScrollbar.h"
#include "objects/scrollbar/modScrollbar.h"
#include "resfile/Banners.h"

namespace tolva {

namespace {

// The file named for an arrow without a picture; the down arrow's own
// "ScrollDn.bmp" is never used, so both arrows name this one.
constexpr const char* kDefaultArrowFile = "ScrollUp.bmp";

void AppendArrow(LineList& lines, Host& host, const std::string& arrow, const ObjectPicture& picture) {
    const std::string key = "(SH)SCROLLBAR_" + arrow + "_BITMAP.";
    lines.push_back(key + "X=" + IntToText(picture.x));
    lines.push_back(key + "Y=" + IntToText(picture.y));
    lines.push_back(key + "WIDTH=" + IntToText(picture.width));
    lines.push_back(key + "HEIGHT=" + IntToText(picture.height));
    const std::string fileKey = "(P)SCROLLBAR_" + arrow + "_BITMAP.FILE=";
    if (TrimSpaces(picture.file).empty()) {
        lines.push_back(kNoBitmapComment);
        lines.push_back(fileKey + (picture.depth == 2 ? "Q_TWO_BIT," : "Q_FOUR_BIT,") + kDefaultArrowFile);
    } else {
        AppendPictureFileLine(lines, host, fileKey, picture.depth, picture.file);
    }
}

}  // namespace

void ctlKOMAScrollbar::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendRecordBanner(lines, KOMAName(), false);
    AppendHeadA(lines, *this, "#SCROLLBAR");
    lines.push_back("(W)SCROLLBAR_MAX=" + IntToText(max_));
    lines.push_back("~F4");
    lines.push_back("(W)SCROLLBAR_MIN=" + IntToText(min_));
    lines.push_back("~F5");
    lines.push_back("(W)SCROLLBAR_CURRENT_VALUE=" + IntToText(current_));
    lines.push_back("~F6");
    lines.push_back("(W)SCROLLBAR_PAGESIZE=" + IntToText(pageSize_));
    lines.push_back("~F7");
    lines.push_back("(W)SCROLLBAR_TOTAL_NUM_LINES=" + IntToText(numLines_));
    lines.push_back("~F8");
    lines.push_back("//HORIZONTAL,VERTICAL");
    lines.push_back("(B)SCROLLBAR_STYLE=" + orientationWord_);
    lines.push_back("~F9");
    lines.push_back("//SCROLLBAR_STYLE_0,SCROLLBAR_STYLE_1,..");
    lines.push_back("(B)SCROLLBAR_TYPE=" + styleWord_);
    lines.push_back("~F10");
    AppendArrow(lines, host(), "ARROW1", arrow1_);
    lines.push_back("~F11");
    AppendArrow(lines, host(), "ARROW2", arrow2_);
    lines.push_back("~F12");
    lines.push_back("//any text");
    lines.push_back("(S)SCROLLBAR_TEXT=" + text_);
    lines.push_back("~F13");
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)SCROLLBAR_ATTR.SCROLLBAR_ACTIVE=" + activeWord_);
    lines.push_back("(BO)SCROLLBAR_ATTR.SCROLLBAR_ENABLE=" + enableWord_);
    lines.push_back("(BO)SCROLLBAR_ATTR.SCROLLBAR_VISIBLE=" + visibleWord_);
    lines.push_back("#END_SCROLLBAR");
    ok = true;
}

void ctlKOMAScrollbar::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 15 || groups[0].size() != 2 || groups[1].size() != 4 ||
        groups[9].size() != 5 || groups[10].size() != 5 || groups[12].size() != 3)
        return;
    for (std::size_t i : {2u, 3u, 4u, 5u, 6u, 7u, 8u, 11u, 13u, 14u})
        if (groups[i].empty()) return;
    int bounds[4] = {};
    int arrows[2][4] = {};
    int range[5] = {};
    int depths[2] = {};
    try {
        for (int i = 0; i < 4; ++i) bounds[i] = ToInt16(groups[1][static_cast<std::size_t>(i)]);
        for (int a = 0; a < 2; ++a)
            for (int i = 0; i < 4; ++i) arrows[a][i] = ToInt16(groups[9 + a][static_cast<std::size_t>(i)]);
        // The range goes in as it stands, unchecked, but in 16 bits.
        for (int i = 0; i < 5; ++i) range[i] = ToInt16(groups[static_cast<std::size_t>(2 + i)][0]);
        for (int a = 0; a < 2; ++a) depths[a] = ToInt16(groups[13 + a][0]);
    } catch (const RuntimeFailure&) {
        Message("Scrollbar - SetFromResText", "Error");
        return;
    }
    KOMAName(groups[0][0]);
    KOMABoundsX(bounds[0]);
    KOMABoundsY(bounds[1]);
    KOMAScrollbarStyle(ScrollbarStyleWordToNumber(groups[8][0]));
    KOMAScrollbarType(OrientationWordToNumber(groups[7][0]));
    for (int which = 1; which <= 2; ++which) {
        const int* place = arrows[which - 1];
        KOMABitmapX(which, place[0]);
        KOMABitmapY(which, place[1]);
        KOMABitmapWidth(which, place[2]);
        KOMABitmapHeight(which, place[3]);
        KOMABitmapFile(which, groups[static_cast<std::size_t>(8 + which)][4]);
    }
    KOMAText(groups[11][0]);
    KOMAActive(BooleanFromWord(groups[12][0]) != 0);
    KOMAEnable(BooleanFromWord(groups[12][1]) != 0);
    KOMAVisible(BooleanFromWord(groups[12][2]) != 0);
    KOMABitmapDepth(1, depths[0]);
    KOMABitmapDepth(2, depths[1]);
    max_ = range[0];
    min_ = range[1];
    current_ = range[2];
    pageSize_ = range[3];
    numLines_ = range[4];
    RaiseMoved();
    RaiseResized(bounds[2], bounds[3]);
    OnCanvasResize();
    ok = true;
}

}  // namespace tolva
