// The Scrollbar: its range and the three refusals, the one orientation each
// style allows with its log line, the arrows, the 18 rows, the layout of
// each style, and its record with the swapped keys written line by line,
// read with either page-size key and applied.
#include <gtest/gtest.h>

#include "document/ObjectTypes.h"
#include "objects/scrollbar/ctlKOMAScrollbar.h"
#include "objects/scrollbar/modScrollbar.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"
#include "support/NamedElement.h"
#include "support/PictureObjectFixture.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;
constexpr double kP = 36.59;
const char* const kMaxRefused =
    "Tolva Resource Editor: Invalid scrollbar max value.  Make sure the min value is greater than "
    "the min value";
const char* const kMinRefused =
    "Tolva Resource Editor: Invalid scrollbar min value.  Make sure the min value is between 0 and "
    "the max value\"";
const char* const kValueRefused =
    "Tolva Resource Editor: Invalid scrollbar value.  Make sure the current value is between the "
    "min and max values";

class ScrollbarTest : public PictureObjectFixture<ctlKOMAScrollbar> {
protected:
    ScrollbarTest() : PictureObjectFixture("SCROLLBAR_1", "s") {}
    ctlKOMAScrollbar& bar = object;
};

TEST_F(ScrollbarTest, ANewScrollbarHasItsDefaults) {
    EXPECT_EQ(bar.KOMAObjectTypeWord(), "SCROLLBAR");
    EXPECT_EQ(bar.KOMAWidth(), 24);
    EXPECT_EQ(bar.KOMAHeight(), 12);
    EXPECT_EQ(bar.KOMAScrollbarMax(), 10);
    EXPECT_EQ(bar.KOMAScrollbarMin(), 0);
    EXPECT_EQ(bar.KOMACurrentValue(), 0);
    EXPECT_EQ(bar.KOMAPageSize(), 1);
    EXPECT_EQ(bar.KOMANumLines(), 11);
    EXPECT_EQ(bar.KOMAScrollbarTypeWord(), "VERTICAL");
    EXPECT_EQ(bar.KOMAScrollbarStyleWord(), "SCROLLBAR_STYLE_0");
    EXPECT_EQ(bar.KOMAText(), "Scrollbar Text");
    EXPECT_EQ(bar.KOMAActiveWord(), "TRUE");
    EXPECT_EQ(bar.Arrow(1).width, 0);
    EXPECT_EQ(bar.Arrow(2).depth, 4);
    EXPECT_TRUE(IsOrientationSupported(bar.KOMAScrollbarStyle(), bar.KOMAScrollbarType()));
}

TEST_F(ScrollbarTest, TheMaximumMayNotGoBelowTheMinimum) {
    bar.KOMAScrollbarMin(3);
    bar.KOMAScrollbarMax(2);
    EXPECT_EQ(bar.KOMAScrollbarMax(), 10);
    EXPECT_EQ(owner.host.MessageLines(), (Lines{kMaxRefused}));
    // Equal is allowed, and gives one line.
    bar.KOMAScrollbarMax(3);
    EXPECT_EQ(bar.KOMAScrollbarMax(), 3);
    EXPECT_EQ(bar.KOMANumLines(), 1);
}

TEST_F(ScrollbarTest, TheMinimumMayNotGoAboveTheMaximumAndItsMessageKeepsItsQuote) {
    bar.KOMAScrollbarMin(11);
    EXPECT_EQ(bar.KOMAScrollbarMin(), 0);
    EXPECT_EQ(owner.host.MessageLines(), (Lines{kMinRefused}));
    bar.KOMACurrentValue(1);
    bar.KOMAScrollbarMin(4);
    EXPECT_EQ(bar.KOMACurrentValue(), 4);
    EXPECT_EQ(bar.KOMANumLines(), 7);
}

TEST_F(ScrollbarTest, TheCurrentValueFollowsALoweredMaximumAndStaysWhenItRisesAgain) {
    bar.KOMACurrentValue(8);
    bar.KOMAScrollbarMax(5);
    EXPECT_EQ(bar.KOMACurrentValue(), 5);
    bar.KOMAScrollbarMax(10);
    EXPECT_EQ(bar.KOMACurrentValue(), 5);
    bar.KOMACurrentValue(11);
    bar.KOMACurrentValue(-1);
    EXPECT_EQ(bar.KOMACurrentValue(), 5);
    EXPECT_EQ(owner.host.MessageLines(), (Lines{kValueRefused, kValueRefused}));
}

// The style's word is stored as chosen; reading the style, as the
// inspector does once the rows are applied, repairs the pair.
TEST_F(ScrollbarTest, ChoosingStyleZeroForAHorizontalBarTurnsItUprightAndLogsIt) {
    bar.KOMAScrollbarStyle(1);
    EXPECT_EQ(bar.KOMAScrollbarTypeWord(), "VERTICAL");
    EXPECT_EQ(bar.KOMAScrollbarStyle(), 1);
    EXPECT_EQ(bar.KOMAScrollbarTypeWord(), "HORIZONTAL");
    owner.log.lines.clear();
    PropertyArray rows = Rows();
    rows.At(3, 10) = PropertyCell(std::string("SCROLLBAR_STYLE_0"));
    ASSERT_TRUE(bar.SetPropertyList(rows));
    EXPECT_EQ(Rows().Value(9).Text(), "VERTICAL");
    EXPECT_EQ(owner.log.lines,
              (Lines{"SCROLLBAR_1: Changed scrollbar orientation to VERTICAL.  Since other "
                     "orientation not supported"}));
    // Asking for the other orientation turns it back at once.
    owner.log.lines.clear();
    bar.KOMAScrollbarType(0);
    EXPECT_EQ(bar.KOMAScrollbarTypeWord(), "VERTICAL");
    EXPECT_EQ(owner.log.lines.size(), 1u);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(ScrollbarTest, WithoutANameTheTurnIsNotLogged) {
    ctlKOMAScrollbar nameless;
    nameless.SetOwner(&owner);
    nameless.KOMAName("");
    nameless.KOMAScrollbarType(0);
    EXPECT_EQ(nameless.KOMAScrollbarTypeWord(), "VERTICAL");
    EXPECT_TRUE(owner.log.lines.empty());
}

TEST_F(ScrollbarTest, WordConversions) {
    EXPECT_EQ(OrientationWordToNumber("VERTICAL"), 1);
    EXPECT_EQ(OrientationWordToNumber("vertical"), 0);
    EXPECT_EQ(OrientationNumberToWord(0), "HORIZONTAL");
    EXPECT_EQ(ScrollbarStyleWordToNumber("scrollbar_style_3"), 3);
    EXPECT_EQ(ScrollbarStyleWordToNumber("SCROLLBAR_STYLE_4"), 0);
    EXPECT_EQ(ScrollbarStyleNumberToWord(2), "SCROLLBAR_STYLE_2");
    EXPECT_TRUE(IsOrientationSupported(7, 0));
    EXPECT_FALSE(IsOrientationSupported(3, 1));
}

TEST_F(ScrollbarTest, ArrowPlacesAndSizesAreRefusedOutOfTheScreen) {
    bar.KOMABitmapX(1, 160);
    bar.KOMABitmapHeight(2, 161);
    bar.KOMABitmapWidth(2, 160);
    bar.KOMABitmapDepth(1, 3);
    bar.KOMABitmapDepth(2, 2);
    EXPECT_EQ(owner.host.MessageLines(),
              (Lines{"Tolva Resource Editor: Invalid value", "Tolva Resource Editor: Invalid value"}));
    EXPECT_EQ(bar.Arrow(1).x, 0);
    EXPECT_EQ(bar.Arrow(2).width, 160);
    EXPECT_EQ(bar.Arrow(1).depth, 4);
    EXPECT_EQ(bar.Arrow(2).depth, 2);
}

TEST_F(ScrollbarTest, AnArrowPictureSizesItsArrowAndGrowsAnUprightBar) {
    MakePicture("UP.BMP", 14, 8);
    MakePicture("DOWN.BMP", 12, 8);
    bar.KOMABitmapFile(1, "UP.BMP");
    bar.KOMABitmapFile(2, "DOWN.BMP");
    EXPECT_EQ(bar.Arrow(1).file, "UP.BMP");
    EXPECT_EQ(bar.Arrow(1).width, 14);
    EXPECT_EQ(bar.Arrow(2).height, 8);
    EXPECT_EQ(owner.events, (Lines{"Resized 14,12", "PicChanged", "Resized 14,12", "PicChanged"}));
    bar.KOMABitmapFile(1, "GONE.BMP");
    EXPECT_EQ(bar.Arrow(1).file, "UP.BMP");
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Tolva Resource Editor: Bitmap not found"}));
}

TEST_F(ScrollbarTest, APictureLargerThanTheScreenIsRefused) {
    MakePicture("HUGE.BMP", 10, 170);
    bar.KOMABitmapFile(2, "HUGE.BMP");
    EXPECT_EQ(bar.Arrow(2).file, "");
    ASSERT_EQ(owner.host.messages.size(), 1u);
    EXPECT_EQ(owner.host.messages[0].text,
              "This bitmap is larger than 160 in one of its dimensions.  The bitmap must be less than "
              "160 pixels in width and height.");
}

TEST_F(ScrollbarTest, StyleZeroPutsTheBarBetweenTheArrows) {
    MakePicture("UP.BMP", 10, 8);
    bar.KOMABitmapFile(1, "UP.BMP");
    bar.KOMABitmapFile(2, "UP.BMP");
    bar.SetCanvasSize(10 * kP, 60 * kP);
    bar.KOMAScrollbarMax(3);  // four lines on 44 free pixels
    bar.KOMACurrentValue(2);
    const DrawElementList e = bar.GetDrawElements();
    EXPECT_TRUE(Named(e, "imgBitmap1").visible);
    EXPECT_EQ(Named(e, "imgBitmap1").rect, (CanvasRect{0, 0, 10 * kP, 8 * kP}));
    const CanvasRect down = Named(e, "imgBitmap2").rect;
    EXPECT_EQ(down.left, 0);
    EXPECT_NEAR(down.top, 52 * kP, 1e-6);
    EXPECT_EQ(down.height, 8 * kP);
    const DrawElement pos = Named(e, "shpPos");
    EXPECT_TRUE(pos.visible);
    EXPECT_DOUBLE_EQ(pos.rect.height, 11 * kP);
    EXPECT_DOUBLE_EQ(pos.rect.top, 8 * kP + 22 * kP);
    EXPECT_DOUBLE_EQ(pos.rect.width, 10);
    EXPECT_FALSE(Named(e, "shpBorder").visible);
    EXPECT_FALSE(Named(e, "lblText").visible);
}

TEST_F(ScrollbarTest, StylesOneAndTwoFrameTheBar) {
    bar.KOMAScrollbarStyle(2);
    ASSERT_EQ(bar.KOMAScrollbarStyle(), 2);  // and the bar lies down
    bar.SetCanvasSize(100 * kP, 10 * kP);
    bar.KOMAScrollbarMax(4);
    bar.KOMACurrentValue(1);
    const DrawElementList e = bar.GetDrawElements();
    EXPECT_TRUE(Named(e, "shpBorder").visible);
    EXPECT_FALSE(Named(e, "imgBitmap1").visible);
    const DrawElement pos = Named(e, "shpPos");
    EXPECT_DOUBLE_EQ(pos.rect.left, 20 * kP);
    EXPECT_DOUBLE_EQ(pos.rect.width, 20 * kP);
    EXPECT_DOUBLE_EQ(pos.rect.height, 10);
}

TEST_F(ScrollbarTest, StyleThreeShowsTheTextWithAMark) {
    bar.KOMAScrollbarStyle(3);
    ASSERT_EQ(bar.KOMAScrollbarStyle(), 3);
    bar.SetCanvasSize(100 * kP, 20 * kP);
    bar.KOMAScrollbarMax(4);
    bar.KOMACurrentValue(1);
    DrawElementList e = bar.GetDrawElements();
    EXPECT_TRUE(Named(e, "lblText").visible);
    EXPECT_EQ(Named(e, "lblText").text, "Scrollbar Text");
    EXPECT_EQ(Named(e, "lblText").font.name, "TolvaSmall");
    EXPECT_DOUBLE_EQ(Named(e, "shpPos").rect.left, 25 * kP);
    bar.KOMAScrollbarMax(0);
    e = bar.GetDrawElements();
    EXPECT_EQ(Named(e, "shpPos").rect.left, 0);
}

TEST_F(ScrollbarTest, EighteenRowsAndTheirLists) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 18);
    const Lines labels = {"Name", "X Pos", "Y Pos", "Width", "Height", "Max Value", "Current Value",
                          "Page Size", "Orientation", "Scrollbar Style", "Text", "Active", "Enabled",
                          "Visible", "Up/Left Bitmap File", "Down/Right Bitmap File",
                          "Bitmap Color Depth 1", "Bitmap Color Depth 2"};
    for (int i = 1; i <= 18; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    EXPECT_EQ(rows.Value(17).Text(), "4 Bit");
    ValueLists lists;
    FillScrollbarValueLists(lists);
    ASSERT_EQ(lists.size(), 18u);
    EXPECT_EQ(lists[8], (Lines{"HORIZONTAL", "VERTICAL"}));
    EXPECT_EQ(lists[9], (Lines{"SCROLLBAR_STYLE_0", "SCROLLBAR_STYLE_1", "SCROLLBAR_STYLE_2",
                               "SCROLLBAR_STYLE_3"}));
    EXPECT_EQ(lists[17], (Lines{"2 Bit", "4 Bit"}));
}

TEST_F(ScrollbarTest, RowsApplyStyleBeforeOrientation) {
    PropertyArray rows = Rows();
    rows.At(3, 6) = PropertyCell(std::string("20"));
    rows.At(3, 7) = PropertyCell(std::string("15"));
    rows.At(3, 8) = PropertyCell(std::string("5"));
    rows.At(3, 9) = PropertyCell(std::string("HORIZONTAL"));
    rows.At(3, 10) = PropertyCell(std::string("SCROLLBAR_STYLE_3"));
    rows.At(3, 11) = PropertyCell(std::string("Volume"));
    rows.At(3, 13) = PropertyCell(std::string("FALSE"));
    rows.At(3, 18) = PropertyCell(std::string("2 Bit"));
    ASSERT_TRUE(bar.SetPropertyList(rows));
    EXPECT_EQ(bar.KOMAScrollbarStyleWord(), "SCROLLBAR_STYLE_3");
    EXPECT_EQ(bar.KOMAScrollbarTypeWord(), "HORIZONTAL");
    EXPECT_EQ(bar.KOMAScrollbarMax(), 20);
    EXPECT_EQ(bar.KOMACurrentValue(), 15);
    EXPECT_EQ(bar.KOMAPageSize(), 5);
    EXPECT_EQ(bar.KOMAText(), "Volume");
    EXPECT_EQ(bar.KOMAEnableWord(), "FALSE");
    EXPECT_EQ(bar.Arrow(2).depth, 2);
    EXPECT_FALSE(bar.SetPropertyList(PropertyArray(17)));
}

TEST_F(ScrollbarTest, AnArrowRowOpensTheChooserAndNothingElseApplies) {
    MakePicture("UP.BMP", 10, 8);
    owner.host.fileAnswers = {"UP.BMP"};
    PropertyArray rows = Rows();
    rows.At(3, 15) = PropertyCell(true);
    rows.At(3, 11) = PropertyCell(std::string("not applied"));
    ASSERT_TRUE(bar.SetPropertyList(rows));
    EXPECT_EQ(bar.Arrow(1).file, "UP.BMP");
    EXPECT_EQ(bar.KOMAText(), "Scrollbar Text");
    ASSERT_EQ(owner.host.openRequests.size(), 1u);
    EXPECT_EQ(owner.host.openRequests[0].filter, "Bitmaps (*.bmp)|*.bmp");
}

TEST_F(ScrollbarTest, ThePopupMenuSetsEitherArrow) {
    MakePicture("DOWN.BMP", 10, 8);
    owner.host.popupAnswers = {1};
    owner.host.fileAnswers = {"DOWN.BMP"};
    bar.MouseDown(kRightButton, 0, 3, 3);
    ASSERT_EQ(owner.host.popups.size(), 1u);
    EXPECT_EQ(owner.host.popups[0].first, "Set Properties");
    EXPECT_EQ(owner.host.popups[0].second, (Lines{"Set Up/Left Bitmap", "Set Down/Right Bitmap"}));
    EXPECT_EQ(owner.host.popupNames[0], (Lines{"mnuSetPropSetBitmap1", "mnuSetPropSetBitmap2"}));
    EXPECT_EQ(bar.Arrow(2).file, "DOWN.BMP");
}

// --- record ----------------------------------------------------------------------------------

class ScrollbarRecordTest : public ResourceFileTest {
protected:
    ctlKOMAScrollbar* First() { return static_cast<ctlKOMAScrollbar*>(Obj(type::Scrollbar, 1)); }
};

TEST_F(ScrollbarRecordTest, ANewScrollbarsRecordLineByLine) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Scrollbar, 10, 20, 8, 60));
    First()->KOMABitmapDepth(2, 2);
    LineList lines;
    bool ok = false;
    First()->ReturnResourceFileText(lines, ok);
    EXPECT_TRUE(ok);
    const Lines expected = {
        "//-----------------------------------------------------------------",
        "//----------- SCROLLBAR_1 ------------------------------------------",
        "//-----------------------------------------------------------------",
        "#SCROLLBAR", "NAME=SCROLLBAR_1", "ID=" + std::to_string(First()->KOMAObjectID()), "~F0",
        "(B)OBJECT.TYPE=SCROLLBAR", "~F1", "//0 - 65534 (if within table), 65535 means not within table",
        "(U)RELATED_TABLE_ID=65535", "~F2", "//0 - 159", "(SH)BOUNDS.X=10", "(SH)BOUNDS.Y=20",
        "//0 - 160", "(SH)BOUNDS.WIDTH=8", "(SH)BOUNDS.HEIGHT=60", "~F3", "(W)SCROLLBAR_MAX=10",
        "~F4", "(W)SCROLLBAR_MIN=0", "~F5", "(W)SCROLLBAR_CURRENT_VALUE=0", "~F6",
        "(W)SCROLLBAR_PAGESIZE=1", "~F7", "(W)SCROLLBAR_TOTAL_NUM_LINES=11", "~F8",
        "//HORIZONTAL,VERTICAL", "(B)SCROLLBAR_STYLE=VERTICAL", "~F9",
        "//SCROLLBAR_STYLE_0,SCROLLBAR_STYLE_1,..", "(B)SCROLLBAR_TYPE=SCROLLBAR_STYLE_0", "~F10",
        "(SH)SCROLLBAR_ARROW1_BITMAP.X=0", "(SH)SCROLLBAR_ARROW1_BITMAP.Y=0",
        "(SH)SCROLLBAR_ARROW1_BITMAP.WIDTH=0", "(SH)SCROLLBAR_ARROW1_BITMAP.HEIGHT=0",
        "//You did not specify a bitmap so this section has been left blank",
        "(P)SCROLLBAR_ARROW1_BITMAP.FILE=Q_FOUR_BIT,ScrollUp.bmp", "~F11",
        "(SH)SCROLLBAR_ARROW2_BITMAP.X=0", "(SH)SCROLLBAR_ARROW2_BITMAP.Y=0",
        "(SH)SCROLLBAR_ARROW2_BITMAP.WIDTH=0", "(SH)SCROLLBAR_ARROW2_BITMAP.HEIGHT=0",
        "//You did not specify a bitmap so this section has been left blank",
        "(P)SCROLLBAR_ARROW2_BITMAP.FILE=Q_TWO_BIT,ScrollUp.bmp", "~F12", "//any text",
        "(S)SCROLLBAR_TEXT=Scrollbar Text", "~F13", "//TRUE or FALSE",
        "(BO)SCROLLBAR_ATTR.SCROLLBAR_ACTIVE=TRUE", "(BO)SCROLLBAR_ATTR.SCROLLBAR_ENABLE=TRUE",
        "(BO)SCROLLBAR_ATTR.SCROLLBAR_VISIBLE=TRUE", "#END_SCROLLBAR"};
    EXPECT_EQ(lines, expected);
}

TEST_F(ScrollbarRecordTest, APageSizeUnderItsOtherKeyLoadsAndSavesBackUnderTheFirst) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Scrollbar, 10, 20, 8, 60));
    First()->KOMAPageSize(3);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    ASSERT_TRUE(Reload(Replaced(first, "(W)SCROLLBAR_PAGESIZE=3", "(W)SCROLLBAR_PAGE_SIZE=3")));
    EXPECT_EQ(First()->KOMAPageSize(), 3);
    // Without ScrollUp.bmp beside the design, each arrow says so, after
    // the form's own picture.
    EXPECT_EQ(host.MessageLines(), (Lines{"Tolva Resource Editor: Bitmap not found",
                                          "Tolva Resource Editor: Bitmap not found",
                                          "Tolva Resource Editor: Bitmap not found"}));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(ScrollbarRecordTest, ARecordMayHoldACurrentValueOutsideTheRange) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Scrollbar, 10, 20, 8, 60));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    ASSERT_TRUE(Reload(Replaced(ReadBytes(path), "(W)SCROLLBAR_CURRENT_VALUE=0", "(W)SCROLLBAR_CURRENT_VALUE=40")));
    EXPECT_EQ(First()->KOMACurrentValue(), 40);
    EXPECT_EQ(First()->KOMAScrollbarMax(), 10);
}

TEST_F(ScrollbarRecordTest, AFileLineWithAnotherDepthIsReportedAndTheLoadEnds) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Scrollbar, 10, 20, 8, 60));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_FALSE(Reload(Replaced(ReadBytes(path), "ARROW2_BITMAP.FILE=Q_FOUR_BIT", "ARROW2_BITMAP.FILE=Q_ONE_BIT")));
    const auto messages = host.MessageLines();
    ASSERT_GE(messages.size(), 3u);
    EXPECT_NE(messages[0].find(":  (P)SCROLLBAR_ARROW2_BITMAP.FILE=Q_ONE_BIT,ScrollUp.bmp"), std::string::npos)
        << messages[0];
    EXPECT_EQ(messages[1], "Load Error: Could not load scrollbar object");
}

TEST_F(ScrollbarRecordTest, AppliedGroupsOfAnotherShapeChangeNothingAndABadNumberIsTold) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Scrollbar, 10, 20, 8, 60));
    GroupList groups = {{"S", "1"}, {"1", "2", "8", "60"}, {"10"}, {"0"}, {"3"}, {"1"}, {"11"},
                        {"VERTICAL"}, {"SCROLLBAR_STYLE_0"}, {"0", "0", "0", "0", ""},
                        {"0", "0", "0", "0"}, {"t"}, {"TRUE", "TRUE", "TRUE"}, {"4"}, {"4"}};
    bool ok = true;
    First()->SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(First()->KOMAName(), "SCROLLBAR_1");
    groups[10].push_back("");
    groups[2][0] = "70000";
    host.ClearRecord();
    First()->SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(host.MessageLines(), (Lines{"Error: Scrollbar - SetFromResText"}));
    EXPECT_EQ(First()->KOMAName(), "SCROLLBAR_1");
}

}  // namespace
}  // namespace tolva::testing

namespace tolva::testing {
namespace {

TEST(ScrollbarSize, TheScreenSizeIsSetBackToWholeDevicePixels) {
    EnsureStringsLoaded();
    ctlKOMAScrollbar bar;
    bar.SetCanvasSize(10.4 * 36.59, 60.6 * 36.59);
    EXPECT_EQ(bar.KOMAWidth(), 10);
    EXPECT_EQ(bar.KOMAHeight(), 61);
    EXPECT_DOUBLE_EQ(bar.Width(), 10 * 36.59);
    EXPECT_DOUBLE_EQ(bar.Height(), 61 * 36.59);
}

}  // namespace
}  // namespace tolva::testing
