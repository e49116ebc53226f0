// The Scheduler line: its defaults and flags, the eight rows, the header of
// hours and the ruled lines at their fixed pitch, and its record written
// line by line, read strictly and applied.
#include <gtest/gtest.h>

#include "document/ObjectTypes.h"
#include "objects/schedulerline/ctlKOMASchedulerLine.h"
#include "objects/schedulerline/modSchline.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"
#include "support/NamedElement.h"
#include "support/OwnedObjectFixture.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;
constexpr double kP = 36.59;

class SchedulerLineTest : public OwnedObjectFixture<ctlKOMASchedulerLine> {
protected:
    ctlKOMASchedulerLine& line = object;
};

TEST_F(SchedulerLineTest, ANewOneWithoutADrawnRectangleIs40By40) {
    EXPECT_EQ(line.KOMAName(), "SCHEDULERLINE_");
    EXPECT_EQ(line.KOMAObjectTypeWord(), "SCHLINE");
    EXPECT_EQ(line.KOMAWidth(), 40);
    EXPECT_EQ(line.KOMAHeight(), 40);
    EXPECT_EQ(line.KOMAEnableWord(), "TRUE");
    EXPECT_EQ(line.KOMAActiveWord(), "TRUE");
    EXPECT_EQ(line.KOMAVisibleWord(), "TRUE");
}

TEST_F(SchedulerLineTest, EightRowsAndTheirLists) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 8);
    const Lines labels = {"Name", "X Pos", "Y Pos", "Width", "Height", "Enabled", "Active", "Visible"};
    for (int i = 1; i <= 8; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    ValueLists lists;
    FillSchlineValueLists(lists);
    ASSERT_EQ(lists.size(), 8u);
    EXPECT_TRUE(lists[4].empty());
    for (int row = 6; row <= 8; ++row) EXPECT_EQ(lists[static_cast<std::size_t>(row - 1)], (Lines{"TRUE", "FALSE"}));
}

TEST_F(SchedulerLineTest, RowsApplyWithTheSizeRefusalsOfEveryObject) {
    PropertyArray rows = Rows();
    rows.At(3, 4) = PropertyCell(std::string("161"));
    rows.At(3, 6) = PropertyCell(std::string("FALSE"));
    rows.At(3, 7) = PropertyCell(std::string("FALSE"));
    rows.At(3, 8) = PropertyCell(std::string("FALSE"));
    ASSERT_TRUE(line.SetPropertyList(rows));
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"KOMAWidth: Invalid width value"}));
    EXPECT_EQ(line.KOMAEnableWord(), "FALSE");
    EXPECT_EQ(line.KOMAActiveWord(), "FALSE");
    EXPECT_EQ(line.KOMAVisibleWord(), "FALSE");
    EXPECT_FALSE(line.SetPropertyList(PropertyArray(9)));
}

TEST_F(SchedulerLineTest, TheHeaderIsAStripOfSeventeenHoursWhateverTheWidth) {
    line.SetCanvasSize(60 * kP, 50 * kP);
    const DrawElementList e = line.GetDrawElements();
    EXPECT_EQ(Named(e, "imgHeader").rect, (CanvasRect{0, 0, 154 * kP, 12 * kP}));
    EXPECT_EQ(Named(e, "imgHeader.cell(0)").fillColor, (DrawColor{0xC0, 0xC0, 0xC0}));
    EXPECT_EQ(Named(e, "imgHeader.cell(1)").fillColor, kWhite);
    EXPECT_EQ(Named(e, "imgHeader.cell(16)").rect.left, 16 * 9 * kP);
    EXPECT_EQ(Named(e, "imgHeader.hour(0)").text, "7");
    EXPECT_EQ(Named(e, "imgHeader.hour(16)").text, "23");
    EXPECT_EQ(Named(e, "imgHeader.hour(3)").font.name, "TolvaSmall");
    EXPECT_EQ(Named(e, "imgHeader.hour(3)").devicePixel, kP);
}

TEST_F(SchedulerLineTest, EightLinesAtAPitchOfTwelvePixelsWhateverTheHeight) {
    line.SetCanvasSize(60 * kP, 20 * kP);
    const DrawElementList e = line.GetDrawElements();
    int lines = 0;
    for (const DrawElement& element : e) lines += element.kind == DrawElementKind::Line;
    EXPECT_EQ(lines, 8);
    const DrawElement first = Named(e, "lnLine(0)");
    EXPECT_EQ(first.y1, 12 * kP);
    EXPECT_EQ(first.x1, 0);
    EXPECT_EQ(first.x2, 60 * kP);
    EXPECT_EQ(first.devicePixel, kP);
    EXPECT_FALSE(first.dotted);
    EXPECT_EQ(Named(e, "lnLine(7)").y1, 96 * kP);
}

// --- record ----------------------------------------------------------------------------------

class SchedulerLineRecordTest : public ResourceFileTest {
protected:
    ctlKOMASchedulerLine* First() {
        return static_cast<ctlKOMASchedulerLine*>(Obj(type::SchedulerLine, 1));
    }
};

TEST_F(SchedulerLineRecordTest, ANewOnesRecordLineByLine) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::SchedulerLine, 3, 20, 154, 100));
    LineList lines;
    bool ok = false;
    First()->ReturnResourceFileText(lines, ok);
    EXPECT_TRUE(ok);
    const Lines expected = {
        "//-----------------------------------------------------------------",
        "//----------- SCHEDULERLINE_1 ------------------------------------------",
        "//-----------------------------------------------------------------",
        "#SCHLINE", "NAME=SCHEDULERLINE_1", "ID=" + std::to_string(First()->KOMAObjectID()), "~F0",
        "(B)OBJECT.TYPE=SCHLINE", "~F1", "//0 - 159", "(SH)BOUNDS.X=3", "(SH)BOUNDS.Y=20",
        "//0 - 160", "(SH)BOUNDS.WIDTH=154", "(SH)BOUNDS.HEIGHT=100", "~F2", "//TRUE or FALSE",
        "(BO)SCHLINE_ATTR.ENABLE=TRUE", "(BO)SCHLINE_ATTR.ACTIVE=TRUE",
        "(BO)SCHLINE_ATTR.VISIBLE=TRUE", "#END_SCHLINE"};
    EXPECT_EQ(lines, expected);
}

TEST_F(SchedulerLineRecordTest, FlagsGoThroughTheBooleanConversion) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::SchedulerLine, 3, 20, 154, 100));
    First()->KOMAActive(false);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    ASSERT_TRUE(Reload(first));
    EXPECT_EQ(First()->KOMAActiveWord(), "FALSE");
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
    // A word the conversion does not know is false; a small "true" is true.
    ASSERT_TRUE(Reload(Replaced(Replaced(first, "SCHLINE_ATTR.ENABLE=TRUE", "SCHLINE_ATTR.ENABLE=YES"),
                                "SCHLINE_ATTR.ACTIVE=FALSE", "SCHLINE_ATTR.ACTIVE=true")));
    EXPECT_EQ(First()->KOMAEnableWord(), "FALSE");
    EXPECT_EQ(First()->KOMAActiveWord(), "TRUE");
}

TEST_F(SchedulerLineRecordTest, ALineOutOfPlaceIsReportedAndTheLoadEnds) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::SchedulerLine, 3, 20, 154, 100));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_FALSE(Reload(Replaced(ReadBytes(path), "(BO)SCHLINE_ATTR.ACTIVE=", "(BO)SCHLINE_ATTR.ACTIV=")));
    const auto messages = host.MessageLines();
    ASSERT_GE(messages.size(), 3u);
    EXPECT_NE(messages[0].find(":  (BO)SCHLINE_ATTR.ACTIV=TRUE"), std::string::npos) << messages[0];
    EXPECT_EQ(messages[1], "Load Error: Could not load SchedulerLine object");
    EXPECT_EQ(messages[2], "Load Error: Invalid/unsupported resource object");
}

TEST_F(SchedulerLineRecordTest, AppliedGroupsOfAnotherShapeChangeNothing) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::SchedulerLine, 3, 20, 154, 100));
    GroupList groups = {{"S", "1"}, {"1", "2", "30", "40"}, {"TRUE", "FALSE"}};
    bool ok = true;
    First()->SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    groups[2].push_back("FALSE");
    groups[1][3] = "x";
    First()->SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(First()->KOMAName(), "SCHEDULERLINE_1");
    groups[1][3] = "40";
    First()->SetFromResText(groups, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(First()->KOMAName(), "S");
    EXPECT_EQ(First()->KOMAWidth(), 30);
    EXPECT_EQ(First()->KOMAActiveWord(), "FALSE");
}

}  // namespace
}  // namespace tolva::testing
