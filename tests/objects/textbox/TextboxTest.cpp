// The Textbox: model and setters, its 23 rows (the insert point's dropped),
// its layout by style, and its record written line by line, read strictly
// and applied.
#include <gtest/gtest.h>

#include <algorithm>

#include "document/ObjectTypes.h"
#include "objects/textbox/ctlKOMATextbox.h"
#include "objects/textbox/modTextbox.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"
#include "support/NamedElement.h"
#include "support/OwnedObjectFixture.h"

namespace tolva::testing {
namespace {

class TextboxTest : public OwnedObjectFixture<ctlKOMATextbox> {
protected:
    ctlKOMATextbox& box = object;
};

TEST_F(TextboxTest, ANewTextboxHasItsDefaults) {
    EXPECT_EQ(box.KOMAObjectTypeWord(), "TEXTBOX");
    EXPECT_EQ(box.KOMAWidth(), 43);
    EXPECT_EQ(box.KOMAHeight(), 36);
    EXPECT_EQ(box.KOMAText(), "Textbox Text");
    EXPECT_EQ(box.KOMATextboxStyleWord(), "TEXTBOX_STYLE_0");
    EXPECT_EQ(box.KOMABacklineWord(), "DOT_LINE");
    EXPECT_EQ(box.KOMAFontWord(), "SMALL_FONT");
    EXPECT_EQ(box.KOMAFontColorWord(), "COLOR_BLACK");
    EXPECT_EQ(box.KOMABackColorWord(), "COLOR_WHITE");
    EXPECT_EQ(box.KOMAMaxNumChars(), 256);
    EXPECT_EQ(box.KOMARightCharPos(), -1);
    EXPECT_EQ(box.KOMADirtyWord(), "FALSE");
    EXPECT_EQ(box.KOMAInsertPointVisibleWord(), "FALSE");
    EXPECT_EQ(box.KOMAVisibleWord(), "TRUE");
    EXPECT_TRUE(box.ResizeOK());
}

TEST_F(TextboxTest, SettersStoreTheirWordsOrChangeNothing) {
    box.KOMATextboxStyle(2);
    box.KOMATextboxStyle(3);
    EXPECT_EQ(box.KOMATextboxStyleWord(), "TEXTBOX_STYLE_2");
    box.KOMABackline(2);
    box.KOMABackline(5);
    EXPECT_EQ(box.KOMABacklineWord(), "GREY_LINE");
    box.KOMAFontColor(7);
    box.KOMAFontColor(8);
    EXPECT_EQ(box.KOMAFontColorWord(), "COLOR_GREY1");
    box.KOMALeftCharPos(900);
    EXPECT_EQ(box.KOMALeftCharPos(), 900);
    EXPECT_TRUE(owner.host.messages.empty());
    box.KOMAMaxNumChars(-1);
    EXPECT_EQ(box.KOMAMaxNumChars(), 256);
    EXPECT_EQ(owner.host.MessageLines(), (std::vector<std::string>{"Tolva Resource Editor: Invalid value"}));
}

TEST_F(TextboxTest, ANewTextboxShowsItsTextAndARowOfFullStops) {
    const DrawElement text = Named(box.GetDrawElements(), "lblText");
    EXPECT_EQ(text.text, "Textbox Text" + std::string(100, '.'));
    EXPECT_EQ(text.font.name, "TolvaSmall");
    // Far wider than the object: the stops run out at its right edge.
    EXPECT_EQ(text.rect.width, 65255);
    EXPECT_GT(text.rect.width, box.Width());
}

TEST_F(TextboxTest, EachStyleLaysOutItsParts) {
    box.SetCanvasSize(1000, 500);
    auto layout = [&](int style) {
        box.KOMATextboxStyle(style);
        box.SetCanvasSize(1000, 500);
        return box.GetDrawElements();
    };
    DrawElementList e = layout(0);
    EXPECT_FALSE(Named(e, "shpShadow").visible);
    EXPECT_FALSE(Named(e, "shpBorder").visible);
    EXPECT_EQ(Named(e, "lblText").rect.left, 30);
    EXPECT_EQ(Named(e, "lblText").rect.top, 10);
    EXPECT_EQ(Named(e, "lblText").rect.height, 25 * 14);
    e = layout(1);
    EXPECT_FALSE(Named(e, "shpShadow").visible);
    EXPECT_TRUE(Named(e, "shpBorder").visible);
    EXPECT_EQ(Named(e, "shpBorder").rect, (CanvasRect{10, 10, 980, 480}));
    EXPECT_EQ(Named(e, "lblText").rect.left, 50);
    EXPECT_EQ(Named(e, "lblText").rect.top, 100);
    e = layout(2);
    EXPECT_TRUE(Named(e, "shpShadow").visible);
    EXPECT_EQ(Named(e, "shpShadow").rect, (CanvasRect{0, 0, 900, 400}));
    EXPECT_EQ(Named(e, "shpBorder").rect, (CanvasRect{50, 50, 930, 430}));
    EXPECT_EQ(Named(e, "lblText").rect.left, 70);
    box.KOMAFont(1);
    e = box.GetDrawElements();
    EXPECT_EQ(Named(e, "lblText").font.name, "TolvaMedium");
    EXPECT_EQ(Named(e, "lblText").rect.height, 25 * 19);
}

TEST_F(TextboxTest, SmallBoxesKeepTheirOwnSizeForFrameAndShadow) {
    box.KOMATextboxStyle(1);
    box.SetCanvasSize(40, 30);
    EXPECT_EQ(Named(box.GetDrawElements(), "shpBorder").rect, (CanvasRect{10, 10, 40, 30}));
    box.KOMATextboxStyle(2);
    box.SetCanvasSize(70, 100);
    EXPECT_EQ(Named(box.GetDrawElements(), "shpBorder").rect, (CanvasRect{50, 50, 70, 30}));
    EXPECT_EQ(Named(box.GetDrawElements(), "shpShadow").rect, (CanvasRect{0, 0, 70, 100}));
}

TEST_F(TextboxTest, SettingTheFontColourChangesNothingOnTheScreen) {
    const DrawElementList before = box.GetDrawElements();
    box.KOMAFontColor(15 - 15);  // white
    box.KOMABackColor(15);
    box.KOMABackline(0);
    const DrawElementList after = box.GetDrawElements();
    ASSERT_EQ(before.size(), after.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(before[i].foreColor, after[i].foreColor) << before[i].name;
        EXPECT_EQ(before[i].fillColor, after[i].fillColor) << before[i].name;
    }
    EXPECT_EQ(box.KOMAFontColorWord(), "COLOR_WHITE");
}

TEST_F(TextboxTest, TwentyThreeRowsAndTheirLists) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 23);
    const std::vector<std::string> labels = {
        "Name", "X Pos", "Y Pos", "Width", "Height", "Text", "Textbox Style", "Baseline Type",
        "Font", "Font Color", "Background Color", "Max Num Chars Allowed", "Left Char Pos",
        "Right Char Pos", "Insert Point Char Pos", "Highlight Start Pos", "Highlight End Pos",
        "Active", "Enabled", "Modified Flag", "Show Highlight", "Show Insert Point", "Visible"};
    for (int i = 1; i <= 23; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    EXPECT_EQ(rows.Value(14).Text(), "-1");
    ValueLists lists;
    FillTextboxValueLists(lists);
    EXPECT_EQ(lists[6], (std::vector<std::string>{"TEXTBOX_STYLE_0", "TEXTBOX_STYLE_1", "TEXTBOX_STYLE_2"}));
    EXPECT_EQ(lists[7], (std::vector<std::string>{"NO_LINE", "DOT_LINE", "GREY_LINE"}));
    EXPECT_EQ(lists[8], (std::vector<std::string>{"SMALL_FONT", "MEDIUM_FONT"}));
    EXPECT_EQ(lists[21], (std::vector<std::string>{"TRUE", "FALSE"}));
}

TEST_F(TextboxTest, RowsApplyAndShowInsertPointVanishes) {
    PropertyArray rows = Rows();
    rows.At(3, 6) = PropertyCell(std::string("Name:"));
    rows.At(3, 7) = PropertyCell(std::string("TEXTBOX_STYLE_1"));
    rows.At(3, 9) = PropertyCell(std::string("MEDIUM_FONT"));
    rows.At(3, 12) = PropertyCell(std::string("20"));
    rows.At(3, 13) = PropertyCell(std::string("abc"));
    rows.At(3, 17) = PropertyCell(std::string("4"));
    rows.At(3, 20) = PropertyCell(std::string("TRUE"));
    rows.At(3, 22) = PropertyCell(std::string("TRUE"));
    rows.At(3, 23) = PropertyCell(std::string("FALSE"));
    ASSERT_TRUE(box.SetPropertyList(rows));
    EXPECT_EQ(box.KOMAText(), "Name:");
    EXPECT_EQ(box.KOMATextboxStyleWord(), "TEXTBOX_STYLE_1");
    EXPECT_EQ(box.KOMAFontWord(), "MEDIUM_FONT");
    EXPECT_EQ(box.KOMAMaxNumChars(), 20);
    EXPECT_EQ(box.KOMALeftCharPos(), 0);
    EXPECT_EQ(box.KOMAHighlightEndCharPos(), 4);
    EXPECT_EQ(box.KOMADirtyWord(), "TRUE");
    EXPECT_EQ(box.KOMAVisibleWord(), "FALSE");
    // "Show Insert Point" is not applied: read back, it is FALSE again.
    EXPECT_EQ(Rows().Value(22).Text(), "FALSE");
    EXPECT_FALSE(box.SetPropertyList(PropertyArray(22)));
}

TEST_F(TextboxTest, ANegativeMaximumInTheInspectorIsRefused) {
    PropertyArray rows = Rows();
    rows.At(3, 12) = PropertyCell(std::string("-5"));
    ASSERT_TRUE(box.SetPropertyList(rows));
    EXPECT_EQ(box.KOMAMaxNumChars(), 256);
    EXPECT_EQ(owner.host.MessageLines(), (std::vector<std::string>{"Tolva Resource Editor: Invalid value"}));
}

// --- record ----------------------------------------------------------------------------------

class TextboxRecordTest : public ResourceFileTest {
protected:
    ctlKOMATextbox* First() { return static_cast<ctlKOMATextbox*>(Obj(type::Textbox, 1)); }
};

TEST_F(TextboxRecordTest, ANewTextboxsRecordLineByLine) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Textbox, 10, 20, 60, 12));
    LineList lines;
    bool ok = false;
    First()->ReturnResourceFileText(lines, ok);
    EXPECT_TRUE(ok);
    const std::vector<std::string> expected = {
        "//-----------------------------------------------------------------",
        "//----------- TEXTBOX_1 ------------------------------------------",
        "//-----------------------------------------------------------------",
        "#TEXTBOX", "NAME=TEXTBOX_1", "ID=" + std::to_string(First()->KOMAObjectID()), "~F0",
        "(B)OBJECT.TYPE=TEXTBOX", "~F1",
        "//0 - 65534 (if within table), 65535 means not within table",
        "(U)RELATED_TABLE_ID=65535", "~F2", "//0 - 159", "(SH)BOUNDS.X=10", "(SH)BOUNDS.Y=20",
        "//0 - 160", "(SH)BOUNDS.WIDTH=60", "(SH)BOUNDS.HEIGHT=12", "~F3", "//any text",
        "(S)TEXTBOX_TEXT=Textbox Text", "~F4", "//TEXTBOX_STYLE_0,TEXTBOX_STYLE_1,TEXTBOX_STYLE_2",
        "(B)TEXTBOX_STYLE=TEXTBOX_STYLE_0", "~F5", "//NO_LINE,DOT_LINE,GREY_LINE",
        "(B)TEXTBOX_BACK_LINE=DOT_LINE", "~F6", "//SMALL_FONT,MEDIUM_FONT",
        "(B)TEXTBOX_FONT=SMALL_FONT", "~F7", "//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK",
        "(B)TEXTBOX_FONT_COLOR=COLOR_BLACK", "~F8", "(B)TEXTBOX_BACKGROUND_COLOR=COLOR_WHITE",
        "~F9", "(W)TEXTBOX_MAX_NUM_CHARS=256", "~F10", "(W)TEXTBOX_LEFT_CHAR_POS=0", "~F11",
        "(W)TEXTBOX_RIGHT_CHAR_POS=-1", "~F12", "(W)TEXTBOX_INSERT_PT_CHAR_POS=0", "~F13",
        "(W)TEXTBOX_HIGHLIGHT_START_CHAR_POS=0", "~F14", "(W)TEXTBOX_HIGHLIGHT_END_CHAR_POS=0",
        "~F15", "//TRUE or FALSE", "(BO)TEXTBOX_ATTR.TEXTBOX_ACTIVE=TRUE",
        "(BO)TEXTBOX_ATTR.TEXTBOX_ENABLE=TRUE", "(BO)TEXTBOX_ATTR.TEXTBOX_DIRTY=FALSE",
        "(BO)TEXTBOX_ATTR.TEXTBOX_HIGHLIGHT=FALSE",
        "(BO)TEXTBOX_ATTR.TEXTBOX_INSERT_PT_VISIBLE=FALSE",
        "(BO)TEXTBOX_ATTR.TEXTBOX_VISIBLE=TRUE", "#END_TEXTBOX"};
    EXPECT_EQ(lines, expected);
}

TEST_F(TextboxRecordTest, EveryValueGoesThroughSaveAndLoad) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Textbox, 10, 20, 60, 12));
    ctlKOMATextbox* box = First();
    box->KOMAText("Name:");
    box->KOMATextboxStyle(2);
    box->KOMABackline(2);
    box->KOMAFont(1);
    box->KOMAFontColor(11);
    box->KOMABackColor(7);
    box->KOMAMaxNumChars(40);
    box->KOMALeftCharPos(3);
    box->KOMARightCharPos(90);
    box->KOMAInsertPointCharPos(5);
    box->KOMAHighlightStartCharPos(1);
    box->KOMAHighlightEndCharPos(2);
    box->KOMAActive(false);
    box->KOMAEnable(false);
    box->KOMADirty(true);
    box->KOMAHighlight(true);
    box->KOMAInsertPointVisible(true);
    box->KOMAVisible(false);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    ASSERT_TRUE(Reload(first));
    ASSERT_EQ(screen.Count(type::Textbox), 1);
    EXPECT_EQ(First()->KOMAInsertPointVisibleWord(), "TRUE");
    EXPECT_EQ(First()->KOMARightCharPos(), 90);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(TextboxRecordTest, ALineOutOfPlaceIsReportedAndTheLoadEnds) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Textbox, 10, 20, 60, 12));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_FALSE(Reload(Replaced(ReadBytes(path), "~F12\r\n", "~F13\r\n")));
    const auto messages = host.MessageLines();
    ASSERT_GE(messages.size(), 3u);
    EXPECT_EQ(messages[0].rfind("Tolva Resource Editor: Error on line ", 0), 0u) << messages[0];
    EXPECT_NE(messages[0].find(":  ~F13"), std::string::npos) << messages[0];
    EXPECT_EQ(messages[1], "Load Error: Could not load textbox object");
    EXPECT_EQ(messages[2], "Load Error: Invalid/unsupported resource object");
}

TEST_F(TextboxRecordTest, AppliedGroupsOfAnotherShapeChangeNothing) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Textbox, 10, 20, 60, 12));
    GroupList groups = {{"T", "1"}, {"1", "2", "30", "12"}, {"x"}, {"TEXTBOX_STYLE_1"},
                        {"NO_LINE"}, {"SMALL_FONT"}, {"COLOR_BLACK"}, {"COLOR_WHITE"},
                        {"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"},
                        {"TRUE", "TRUE", "TRUE", "TRUE", "TRUE"}};
    bool ok = true;
    First()->SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(First()->KOMAText(), "Textbox Text");
    groups[14].push_back("TRUE");
    groups[8][0] = "x";
    First()->SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(First()->KOMAName(), "TEXTBOX_1");
    groups[8][0] = "1";
    First()->SetFromResText(groups, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(First()->KOMAText(), "x");
    EXPECT_EQ(First()->KOMAHighlightEndCharPos(), 6);
}

}  // namespace
}  // namespace tolva::testing
