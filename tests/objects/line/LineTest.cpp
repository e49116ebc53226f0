// The Line: its end points and their refusals, the 160-to-164 rule of its
// size, the nine rows with the line-moved event, the slope, its look as a
// diagonal or a black bar, and its record with the start point in its
// bounds, written line by line, read strictly and applied.
#include <gtest/gtest.h>

#include "document/ObjectTypes.h"
#include "document/Words.h"
#include "objects/line/ctlKOMALine.h"
#include "objects/line/modLine.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"
#include "support/NamedElement.h"
#include "support/OwnedObjectFixture.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;

class LineTest : public OwnedObjectFixture<ctlKOMALine> {
protected:
    ctlKOMALine& line = object;
};

TEST_F(LineTest, ANewLineHasItsDefaults) {
    EXPECT_EQ(line.KOMAObjectTypeWord(), "LINE");
    EXPECT_EQ(line.KOMAWidth(), 46);
    EXPECT_EQ(line.KOMAHeight(), 30);
    EXPECT_EQ(line.KOMAStartX(), 0);
    EXPECT_EQ(line.KOMAStartY(), 0);
    EXPECT_EQ(line.KOMAEndX(), 24);
    EXPECT_EQ(line.KOMAEndY(), 0);
    EXPECT_EQ(line.KOMAColorWord(), "COLOR_BLACK");
    EXPECT_EQ(line.KOMALineStyleWord(), "LINE_STYLE_1");
    EXPECT_EQ(line.KOMAThick(), 1);
    EXPECT_EQ(line.KOMAVisibleWord(), "TRUE");
    EXPECT_FALSE(line.PositiveSlope());
}

TEST_F(LineTest, AnEndPointOf160IsRefusedThoughABoxWidthOf160IsLegal) {
    line.KOMAEndX(160);
    line.KOMAEndY(-1);
    EXPECT_EQ(line.KOMAEndX(), 24);
    EXPECT_EQ(line.KOMAEndY(), 0);
    EXPECT_EQ(owner.host.MessageLines(),
              (Lines{"Tolva Resource Editor: Invalid EndX value: 160", "Tolva Resource Editor: Invalid EndY value: -1"}));
    owner.host.ClearRecord();
    line.KOMAWidth(160);
    line.KOMAHeight(164);
    EXPECT_TRUE(owner.host.messages.empty());
    EXPECT_EQ(line.KOMAWidth(), 159);
    EXPECT_EQ(line.KOMAHeight(), 159);
    line.KOMAWidth(165);
    EXPECT_EQ(line.KOMAWidth(), 159);
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Tolva Resource Editor: Invalid value"}));
}

TEST_F(LineTest, TheStartTakes160To164As159) {
    line.KOMAStartX(164);
    line.KOMAStartY(160);
    EXPECT_EQ(line.KOMAStartX(), 159);
    EXPECT_EQ(line.KOMAStartY(), 159);
    EXPECT_TRUE(owner.host.messages.empty());
    line.KOMAStartX(165);
    line.KOMAStartY(-3);
    EXPECT_EQ(owner.host.MessageLines(),
              (Lines{"Tolva Resource Editor: Invalid StartX value: 165", "Tolva Resource Editor: Invalid StartY value: -3"}));
    EXPECT_EQ(line.KOMAStartX(), 159);
}

TEST_F(LineTest, ThicknessStyleAndColourTakeTheirValuesOrChangeNothing) {
    line.KOMAThick(0);
    EXPECT_EQ(line.KOMAThick(), 0);
    line.KOMAThick(-1);
    EXPECT_EQ(line.KOMAThick(), 0);
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"KOMAThick: Invalid value"}));
    line.KOMALineStyle(2);
    line.KOMALineStyle(3);
    EXPECT_EQ(line.KOMALineStyleWord(), "LINE_STYLE_2");
    line.KOMAColor(7);
    line.KOMAColor(8);
    EXPECT_EQ(line.KOMAColorWord(), "COLOR_GREY1");
    EXPECT_EQ(LineStyleWordToNumber("line_style_2"), 2);
    EXPECT_EQ(LineStyleWordToNumber("LINE_STYLE_3"), 0);
}

TEST_F(LineTest, ColourThicknessAndStyleChangeNothingOnTheScreen) {
    line.SetCanvasSize(1000, 800);
    const DrawElementList before = line.GetDrawElements();
    line.KOMAColor(0);
    line.KOMAThick(5);
    line.KOMALineStyle(0);
    const DrawElementList after = line.GetDrawElements();
    ASSERT_EQ(before.size(), after.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(before[i].lineColor, after[i].lineColor);
        EXPECT_EQ(before[i].lineWidth, after[i].lineWidth);
        EXPECT_EQ(before[i].fillColor, after[i].fillColor);
    }
}

TEST_F(LineTest, ADiagonalRunsAcrossItsBoxByItsSlope) {
    line.SetCanvasSize(1000, 800);
    DrawElementList e = line.GetDrawElements();
    const DrawElement back = Named(e, "shpBackground");
    EXPECT_EQ(back.fillColor, (DrawColor{0xE0, 0xE0, 0xE0}));
    EXPECT_FALSE(back.outline);
    DrawElement l = Named(e, "lnLine");
    EXPECT_TRUE(l.visible);
    EXPECT_EQ(l.lineWidth, 30);
    EXPECT_EQ((std::vector<double>{l.x1, l.y1, l.x2, l.y2}), (std::vector<double>{0, 0, 1000, 800}));
    line.PositiveSlope(true);
    l = Named(line.GetDrawElements(), "lnLine");
    EXPECT_EQ((std::vector<double>{l.x1, l.y1, l.x2, l.y2}), (std::vector<double>{0, 800, 1000, 0}));
}

TEST_F(LineTest, ALineOfWidthZeroOrOnePixelIsABlackBarAndUpright) {
    line.KOMAStartX(30);
    line.KOMAStartY(10);
    line.KOMAEndX(31);
    line.KOMAEndY(90);
    line.SetCanvasSize(36.59, 80 * 36.59);
    EXPECT_EQ(line.KOMAEndX(), 30);
    EXPECT_EQ(line.KOMAEndY(), 90);
    const DrawElementList e = line.GetDrawElements();
    EXPECT_EQ(Named(e, "shpBackground").fillColor, kBlack);
    EXPECT_TRUE(Named(e, "shpBackground").outline);
    EXPECT_FALSE(Named(e, "lnLine").visible);
    line.SetCanvasSize(0, 80 * 36.59);
    EXPECT_EQ(line.KOMAWidth(), 0);
    EXPECT_EQ(line.KOMAEndX(), 30);
    // A bar of no width is still one device pixel wide on the screen.
    EXPECT_EQ(Named(line.GetDrawElements(), "shpBackground").rect, (CanvasRect{0, 0, 36.59, 80 * 36.59}));
}

TEST_F(LineTest, ALowBoxMakesTheLineLevel) {
    line.KOMAStartY(40);
    line.KOMAEndY(41);
    line.SetCanvasSize(2000, 39);
    EXPECT_EQ(line.KOMAEndY(), 40);
    EXPECT_FALSE(line.IsDiagonal());
}

TEST_F(LineTest, TheSlopeFollowsTheEndPoints) {
    line.KOMAStartX(10);
    line.KOMAStartY(50);
    line.KOMAEndX(60);
    line.KOMAEndY(20);
    line.WorkOutSlope();
    EXPECT_TRUE(line.PositiveSlope());
    // The same line named from its other end.
    line.KOMAStartX(60);
    line.KOMAStartY(20);
    line.KOMAEndX(10);
    line.KOMAEndY(50);
    line.WorkOutSlope();
    EXPECT_TRUE(line.PositiveSlope());
    line.KOMAEndY(0);
    line.WorkOutSlope();
    EXPECT_FALSE(line.PositiveSlope());
    // With no X span the slope stays as it was.
    line.PositiveSlope(true);
    line.KOMAEndX(60);
    line.WorkOutSlope();
    EXPECT_TRUE(line.PositiveSlope());
}

TEST_F(LineTest, NineRowsByEndPointsAndTheirLists) {
    line.KOMAStartX(3);
    line.KOMAEndY(7);
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 9);
    const Lines labels = {"Name", "Start X", "Start Y", "End X", "End Y", "Line Color", "Line Style",
                          "Thickness", "Visible"};
    for (int i = 1; i <= 9; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    EXPECT_EQ(rows.Value(2).Text(), "3");
    EXPECT_EQ(rows.Value(5).Text(), "7");
    EXPECT_EQ(rows.Value(7).Text(), "LINE_STYLE_1");
    ValueLists lists;
    FillLineValueLists(lists);
    ASSERT_EQ(lists.size(), 9u);
    EXPECT_EQ(lists[5], ColorWordList());
    EXPECT_EQ(lists[6], (Lines{"LINE_STYLE_0", "LINE_STYLE_1", "LINE_STYLE_2"}));
    EXPECT_TRUE(lists[7].empty());
    EXPECT_EQ(lists[8], (Lines{"TRUE", "FALSE"}));
}

TEST_F(LineTest, RowsMoveTheEndPointsAndAskTheOwnerForTheBox) {
    PropertyArray rows = Rows();
    rows.At(3, 1) = PropertyCell(std::string("RULE"));
    rows.At(3, 2) = PropertyCell(std::string("10"));
    rows.At(3, 3) = PropertyCell(std::string("50"));
    rows.At(3, 4) = PropertyCell(std::string("70"));
    rows.At(3, 5) = PropertyCell(std::string("x"));
    rows.At(3, 6) = PropertyCell(std::string("COLOR_GREY2"));
    rows.At(3, 7) = PropertyCell(std::string("LINE_STYLE_0"));
    rows.At(3, 8) = PropertyCell(std::string("3"));
    rows.At(3, 9) = PropertyCell(std::string("FALSE"));
    ASSERT_TRUE(line.SetPropertyList(rows));
    EXPECT_EQ(line.KOMAName(), "RULE");
    EXPECT_EQ(line.KOMAEndY(), 0);
    EXPECT_TRUE(line.PositiveSlope());
    EXPECT_EQ(owner.events.back(), "LineResized 10,50,70,0");
    EXPECT_EQ(line.KOMAColorWord(), "COLOR_GREY2");
    EXPECT_EQ(line.KOMALineStyleWord(), "LINE_STYLE_0");
    EXPECT_EQ(line.KOMAThick(), 3);
    EXPECT_EQ(line.KOMAVisibleWord(), "FALSE");
    EXPECT_FALSE(line.SetPropertyList(PropertyArray(5)));
}

TEST_F(LineTest, ARefusedEndPointInTheRowsLeavesTheOthersApplied) {
    PropertyArray rows = Rows();
    rows.At(3, 4) = PropertyCell(std::string("160"));
    rows.At(3, 5) = PropertyCell(std::string("90"));
    ASSERT_TRUE(line.SetPropertyList(rows));
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Tolva Resource Editor: Invalid EndX value: 160"}));
    EXPECT_EQ(line.KOMAEndX(), 24);
    EXPECT_EQ(line.KOMAEndY(), 90);
}

// Moving the box alone is no change of the end points: only the owner, in
// its answer to the move, sets them anew.
TEST_F(LineTest, MovingTheBoxLeavesTheEndPointsToTheOwner) {
    line.KOMAStartX(5);
    line.KOMAEndX(40);
    line.KOMABoundsX(90);
    line.Left(3000);
    EXPECT_EQ(line.KOMAStartX(), 5);
    EXPECT_EQ(line.KOMAEndX(), 40);
}

// --- record ----------------------------------------------------------------------------------

class LineRecordTest : public ResourceFileTest {
protected:
    ctlKOMALine* First() { return static_cast<ctlKOMALine*>(Obj(type::Line, 1)); }
};

TEST_F(LineRecordTest, ANewLinesRecordLineByLine) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Line, 10, 20, 60, 30));
    ctlKOMALine* line = First();
    LineList lines;
    bool ok = false;
    line->ReturnResourceFileText(lines, ok);
    EXPECT_TRUE(ok);
    const Lines expected = {
        "//-----------------------------------------------------------------",
        "//----------- LINE_1 ------------------------------------------",
        "//-----------------------------------------------------------------",
        "#LINE", "NAME=LINE_1", "ID=" + std::to_string(line->KOMAObjectID()), "~F0",
        "(B)OBJECT.TYPE=LINE", "~F1", "//0 - 65534 (if within table), 65535 means not within table",
        "(U)RELATED_TABLE_ID=65535", "~F2", "//0 - 159",
        "(SH)BOUNDS.X=" + std::to_string(line->KOMAStartX()),
        "(SH)BOUNDS.Y=" + std::to_string(line->KOMAStartY()), "//0 - 160",
        "(SH)BOUNDS.WIDTH=" + std::to_string(line->KOMAWidth()),
        "(SH)BOUNDS.HEIGHT=" + std::to_string(line->KOMAHeight()), "~F3",
        "//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK", "(B)LINE_COLOR=COLOR_BLACK", "~F4",
        "//LINE_STYLE_0,LINE_STYLE_1,LINE_STYLE_2", "(B)LINE_STYLE=LINE_STYLE_1", "~F5",
        "(U)LINE_THICK=1", "~F6", "(SH)LINE_ENDPT_X=" + std::to_string(line->KOMAEndX()), "~F7",
        "(SH)LINE_ENDPT_Y=" + std::to_string(line->KOMAEndY()), "~F8", "//TRUE or FALSE",
        "(BO)LINE_ATTR.LINE_VISIBLE=TRUE", "#END_LINE"};
    EXPECT_EQ(lines, expected);
    // Drawn from the top left down to the right: the start is that corner.
    EXPECT_EQ(line->KOMAStartX(), 10);
    EXPECT_EQ(line->KOMAStartY(), 20);
    EXPECT_EQ(line->KOMAEndX(), 70);
    EXPECT_EQ(line->KOMAEndY(), 50);
}

TEST_F(LineRecordTest, EveryValueGoesThroughSaveAndLoad) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Line, 10, 20, 60, 30));
    ctlKOMALine* line = First();
    PropertyArray rows;
    line->GetPropertyList(rows);
    rows.At(3, 2) = PropertyCell(20);
    rows.At(3, 3) = PropertyCell(90);
    rows.At(3, 4) = PropertyCell(120);
    rows.At(3, 5) = PropertyCell(30);
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(type::Line, "LINE_1", rows));
    line->KOMAColor(11);
    line->KOMALineStyle(2);
    line->KOMAThick(4);
    line->KOMAVisible(false);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    EXPECT_NE(first.find("(SH)BOUNDS.X=20\r\n(SH)BOUNDS.Y=90\r\n//0 - 160\r\n(SH)BOUNDS.WIDTH=100\r\n"
                         "(SH)BOUNDS.HEIGHT=60\r\n"),
              std::string::npos);
    ASSERT_TRUE(Reload(first));
    ASSERT_EQ(screen.Count(type::Line), 1);
    line = First();
    EXPECT_EQ(line->KOMAStartX(), 20);
    EXPECT_EQ(line->KOMAStartY(), 90);
    EXPECT_EQ(line->KOMAEndX(), 120);
    EXPECT_EQ(line->KOMAEndY(), 30);
    EXPECT_TRUE(line->PositiveSlope());
    EXPECT_EQ(line->KOMABoundsX(), 20);
    EXPECT_EQ(line->KOMABoundsY(), 30);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(LineRecordTest, ALineOutOfPlaceIsReportedAndTheLoadEnds) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Line, 10, 20, 60, 30));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_FALSE(Reload(Replaced(ReadBytes(path), "~F7\r\n(SH)LINE_ENDPT_Y", "~F8\r\n(SH)LINE_ENDPT_Y")));
    const auto messages = host.MessageLines();
    ASSERT_GE(messages.size(), 3u);
    EXPECT_NE(messages[0].find(":  ~F8"), std::string::npos) << messages[0];
    EXPECT_EQ(messages[1], "Load Error: Could not load line object");
    EXPECT_EQ(messages[2], "Load Error: Invalid/unsupported resource object");
}

TEST_F(LineRecordTest, AppliedGroupsOfAnotherShapeChangeNothing) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Line, 10, 20, 60, 30));
    GroupList groups = {{"L", "1"}, {"1", "2", "30"}, {"COLOR_WHITE"}, {"LINE_STYLE_0"},
                        {"2"}, {"40"}, {"2"}, {"TRUE"}};
    bool ok = true;
    First()->SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    groups[1].push_back("12");
    groups[5][0] = "x";
    First()->SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(First()->KOMAName(), "LINE_1");
    groups[5][0] = "40";
    First()->SetFromResText(groups, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(First()->KOMAName(), "L");
    EXPECT_EQ(First()->KOMAColorWord(), "COLOR_WHITE");
    EXPECT_EQ(First()->KOMAThick(), 2);
    EXPECT_EQ(First()->KOMAStartX(), 1);
    EXPECT_EQ(First()->KOMAEndX(), 40);
}

}  // namespace
}  // namespace tolva::testing
