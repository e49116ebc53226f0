// The Bitmap's "#BITMAP" record, and a loaded record applied.
#include "document/Host.h"
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "objects/PictureFiles.h"
#include "objects/RecordHeads.h"
#include "objects/bitmap/ctlKOMABitmap.h"
#include "objects/bitmap/modBitmap.h"
#include "resfile/Banners.h"

namespace tolva {

namespace {

// A picture's section: left blank while its file is empty.
void AppendPictureSection(LineList& lines, Host& host, int which, int x, int y, int width,
                          int height, const std::string& file, int depth) {
    if (TrimSpaces(file).empty()) {
        lines.push_back(kNoBitmapComment);
        return;
    }
    const std::string n = which == 1 ? "1" : "2";
    lines.push_back("//0 - 159");
    lines.push_back("(SH)BITMAP" + n + "_BITMAP.X=" + IntToText(x));
    lines.push_back("(SH)BITMAP" + n + "_BITMAP.Y=" + IntToText(y));
    lines.push_back("//0 - 160");
    lines.push_back("(SH)BITMAP" + n + "_BITMAP.WIDTH=" + IntToText(width));
    lines.push_back("(SH)BITMAP" + n + "_BITMAP.HEIGHT=" + IntToText(height));
    AppendPictureFileLine(lines, host, "(P)BITMAP" + n + "_BITMAP.FILE=", depth, file);
}

}  // namespace

void ctlKOMABitmap::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendRecordBanner(lines, KOMAName(), false);
    AppendHeadA(lines, *this, "#BITMAP");
    lines.push_back("//BITMAP_STYLE_0,BITMAP_STYLE_1,BITMAP_STYLE_2");
    lines.push_back("(B)BITMAP_STYLE=" + styleWord_);
    lines.push_back("~F4");
    AppendPictureSection(lines, host(), 1, bitmap1_.x, bitmap1_.y, bitmap1_.width,
                         bitmap1_.height, bitmap1_.file, bitmap1_.depth);
    lines.push_back("~F5");
    AppendPictureSection(lines, host(), 2, bitmap2_.x, bitmap2_.y, bitmap2_.width,
                         bitmap2_.height, bitmap2_.file, bitmap2_.depth);
    lines.push_back("~F6");
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)BITMAP_ATTR.BITMAP_ENABLE=" + enableWord_);
    lines.push_back("(BO)BITMAP_ATTR.BITMAP_ACTIVE=" + activeWord_);
    lines.push_back("(BO)BITMAP_ATTR.BITMAP_VISIBLE=" + visibleWord_);
    lines.push_back("#END_BITMAP");
    ok = true;
}

// Groups: 0 name, ID; 1 x, y, width, height; 2 style; 3 and 4 each picture's
// x, y, width, height and path; 5 enable, active, visible; 6 and 7 depths.
void ctlKOMABitmap::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 8 || groups[0].size() != 2 || groups[1].size() != 4 ||
        groups[3].size() != 5 || groups[4].size() != 5 || groups[2].empty() ||
        groups[5].size() != 3 || groups[6].empty() || groups[7].empty())
        return;
    try {
        const double scale = PCTwipsToTolvaPixels();
        KOMAName(groups[0][0]);
        KOMABoundsX(ToInt16(groups[1][0]));
        KOMABoundsY(ToInt16(groups[1][1]));
        SetCanvasSize(ToInt16(groups[1][2]) * scale, ToInt16(groups[1][3]) * scale);
        KOMABitmapStyle(BitmapStyleWordToNumber(groups[2][0]));
        KOMABitmap1X(ToInt16(groups[3][0]));
        KOMABitmap1Y(ToInt16(groups[3][1]));
        KOMABitmap1Width(ToInt16(groups[3][2]));
        KOMABitmap1Height(ToInt16(groups[3][3]));
        KOMABitmap1File(groups[3][4]);
        KOMABitmap2X(ToInt16(groups[4][0]));
        KOMABitmap2Y(ToInt16(groups[4][1]));
        KOMABitmap2Width(ToInt16(groups[4][2]));
        KOMABitmap2Height(ToInt16(groups[4][3]));
        KOMABitmap2File(groups[4][4]);
        KOMAEnable(BooleanFromWord(groups[5][0]) != 0);
        KOMAActive(BooleanFromWord(groups[5][1]) != 0);
        KOMAVisible(BooleanFromWord(groups[5][2]) != 0);
        KOMABitmap1Depth(ToInt16(groups[6][0]));
        KOMABitmap2Depth(ToInt16(groups[7][0]));
    } catch (const RuntimeFailure&) {
        // What was applied stays applied.
        return;
    }
    RaiseMoved();
    RaiseResized();
    ok = true;
}

}  // namespace tolva
