// The Field: model and setters, its 25 rows (the full size's dropped), its
// layout in the device's fonts with the top line, base lines and frame, the
// Field Editor from the popup menu, and its record written line by line,
// read strictly and applied with "/r" kept.
#include <gtest/gtest.h>

#include "document/ObjectTypes.h"
#include "document/Words.h"
#include "objects/field/FieldEditorText.h"
#include "objects/field/ctlKOMAField.h"
#include "objects/field/modField.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"
#include "support/NamedElement.h"
#include "support/RealFontWidths.h"
#include "support/OwnedObjectFixture.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;
constexpr double kP = 36.59;

class FieldTest : public OwnedObjectFixture<ctlKOMAField> {
protected:
    void SetUp() override {
        OwnedObjectFixture::SetUp();
        LoadRealFontWidths();
    }
    // A field whose text may be `available` device pixels wide and
    // `heightPixels` high.
    void SizeFor(int available, int heightPixels) {
        field.SetCanvasSize(available * kP + 120, heightPixels * kP);
    }
    ctlKOMAField& field = object;
};

TEST_F(FieldTest, ANewFieldHasItsDefaults) {
    EXPECT_EQ(field.KOMAObjectTypeWord(), "FIELD");
    EXPECT_EQ(field.KOMAWidth(), 50);
    EXPECT_EQ(field.KOMAHeight(), 46);
    EXPECT_EQ(field.KOMAText(), "Field text");
    EXPECT_EQ(field.KOMAFieldStyleWord(), "FIELD_STYLE_0");
    EXPECT_EQ(field.KOMAFontWord(), "SMALL_FONT");
    EXPECT_EQ(field.KOMAFontColorWord(), "COLOR_BLACK");
    EXPECT_EQ(field.KOMABackColorWord(), "COLOR_WHITE");
    EXPECT_EQ(field.KOMABacklineWord(), "DOT_LINE");
    EXPECT_EQ(field.KOMATextAlignmentWord(), "LEFT");
    EXPECT_EQ(field.KOMATopLineNum(), 0);
    EXPECT_EQ(field.KOMAMaxNumChars(), 256);
    for (const std::string* word : {&field.KOMADirtyWord(), &field.KOMAHighlightWord(),
                                    &field.KOMAInsertPointVisibleWord(), &field.KOMAScrollbarWord(),
                                    &field.KOMAFullSizeWord()})
        EXPECT_EQ(*word, "FALSE");
    EXPECT_EQ(field.KOMAActiveWord(), "TRUE");
    EXPECT_EQ(field.KOMAEnableWord(), "TRUE");
    EXPECT_EQ(field.KOMAVisibleWord(), "TRUE");
    // 50 pixels less 120 units: 47 pixels for the text, which fits.
    EXPECT_EQ(field.AvailableWidth(), 47);
    EXPECT_EQ(field.WrappedLines(), (Lines{"Field text"}));
}

TEST_F(FieldTest, SettersTakeTheirWordsOrChangeNothing) {
    field.KOMAFieldStyle(1);
    field.KOMAFieldStyle(2);
    EXPECT_EQ(field.KOMAFieldStyleWord(), "FIELD_STYLE_1");
    field.KOMATextAlignment(2);
    field.KOMATextAlignment(3);
    EXPECT_EQ(field.KOMATextAlignmentWord(), "RIGHT");
    field.KOMABackline(0);
    field.KOMABackline(-1);
    EXPECT_EQ(field.KOMABacklineWord(), "NO_LINE");
    field.KOMABackColor(11);
    field.KOMABackColor(12);
    EXPECT_EQ(field.KOMABackColorWord(), "COLOR_GREY2");
    field.KOMAFont(1);
    field.KOMAFont(2);
    EXPECT_EQ(field.KOMAFontWord(), "MEDIUM_FONT");
    field.KOMAHighlightEndCharPos(-7);
    EXPECT_EQ(field.KOMAHighlightEndCharPos(), -7);
    EXPECT_TRUE(owner.host.messages.empty());
    field.KOMAMaxNumChars(-1);
    EXPECT_EQ(field.KOMAMaxNumChars(), 256);
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Tolva Resource Editor: Invalid value"}));
    EXPECT_EQ(FieldStyleWordToNumber("field_style_1"), 1);
    EXPECT_EQ(FieldStyleWordToNumber("FIELD_STYLE_2"), 0);
}

TEST_F(FieldTest, TheTextIsWrappedAgainstTheSmallFontsWidths) {
    SizeFor(45, 46);
    field.KOMAText("Hello world");
    EXPECT_EQ(field.AvailableWidth(), 45);
    EXPECT_EQ(field.WrappedLines(), (Lines{"Hello ", "world"}));
    SizeFor(46, 46);
    EXPECT_EQ(field.WrappedLines(), (Lines{"Hello world"}));
}

TEST_F(FieldTest, AWordWiderThanTheFieldBreaksInMidWord) {
    SizeFor(20, 46);
    field.KOMAText("Wonderful");
    // W 7, o 4, n 4: 8 + 5 + 5 = 18 pixels and the d's 4 are too many.
    EXPECT_EQ(field.WrappedLines().front(), "Won");
    EXPECT_GT(field.WrappedLines().size(), 2u);
}

TEST_F(FieldTest, SwitchingToTheMediumFontChangesWrapBoxHeightAndPitch) {
    SizeFor(50, 60);
    field.KOMAText("Hello world Hello world");
    EXPECT_EQ(field.WrappedLines(), (Lines{"Hello world ", "Hello world"}));
    DrawElementList e = field.GetDrawElements();
    EXPECT_EQ(Named(e, "lblText(0)").rect.top, 1 * kP);
    EXPECT_EQ(Named(e, "lblText(1)").rect.top, 10 * kP);
    EXPECT_EQ(Named(e, "lblText(1)").rect.height, 10 * kP);
    EXPECT_EQ(Named(e, "lblText(1)").font.name, "TolvaSmall");

    field.KOMAFont(1);
    EXPECT_EQ(field.WrappedLines(), (Lines{"Hello ", "world ", "Hello ", "world"}));
    e = field.GetDrawElements();
    EXPECT_EQ(Named(e, "lblText(1)").rect.top, 12 * kP);
    EXPECT_EQ(Named(e, "lblText(3)").rect.top, 34 * kP);
    EXPECT_EQ(Named(e, "lblText(1)").rect.height, 12 * kP);
    EXPECT_EQ(Named(e, "lblText(1)").font.name, "TolvaMedium");
}

TEST_F(FieldTest, EachShownLineIsABoxOfItsOwnInTheFieldsColours) {
    SizeFor(50, 40);
    field.KOMAText("Hello world Hello world");
    field.KOMAFontColor(7);
    field.KOMABackColor(11);
    field.KOMATextAlignment(1);
    const DrawElement line = Named(field.GetDrawElements(), "lblText(0)");
    EXPECT_EQ(line.text, "Hello world ");
    EXPECT_EQ(line.rect.left, kP);
    EXPECT_DOUBLE_EQ(line.rect.width, field.Width() - 40);
    EXPECT_EQ(line.devicePixel, kP);
    EXPECT_TRUE(line.opaque);
    EXPECT_EQ(line.foreColor, (DrawColor{0xC0, 0xC0, 0xC0}));
    EXPECT_EQ(line.backColor, (DrawColor{0x80, 0x80, 0x80}));
    EXPECT_EQ(line.alignment, TextAlignment::Center);
    field.SetCanvasSize(30, 400);
    EXPECT_EQ(Named(field.GetDrawElements(), "lblText(0)").rect.width, 30);
}

TEST_F(FieldTest, TheLinesFromTheTopLineOnAreShownAndBoxesFollowTheCount) {
    SizeFor(50, 60);
    field.KOMAText("Hello world Hello world");
    field.KOMATopLineNum(1);
    EXPECT_EQ(field.ShownLines(), (Lines{"Hello world"}));
    EXPECT_EQ(Named(field.GetDrawElements(), "lblText(0)").text, "Hello world");
    field.KOMAFont(1);
    EXPECT_EQ(field.ShownLines(), (Lines{"world ", "Hello ", "world"}));
    auto boxes = [&] {
        int count = 0;
        for (const DrawElement& e : field.GetDrawElements()) count += e.name.rfind("lblText(", 0) == 0;
        return count;
    };
    EXPECT_EQ(boxes(), 3);
    field.KOMAText("Hi");
    EXPECT_EQ(boxes(), 1);
}

// Every line from the top line on has its box; the canvas gets those that
// begin inside the field, as the rest would show nothing.
TEST_F(FieldTest, BoxesBelowTheFieldsBottomAreNotDrawn) {
    SizeFor(50, 20);
    field.KOMAText("one two three four five six seven eight nine ten eleven twelve");
    ASSERT_GT(field.ShownLines().size(), 3u);
    int boxes = 0;
    for (const DrawElement& e : field.GetDrawElements()) boxes += e.name.rfind("lblText(", 0) == 0;
    // Rows at pixels 1, 10 and 19 begin inside the 20 pixels; 28 does not.
    EXPECT_EQ(boxes, 3);
}

TEST_F(FieldTest, ATopLineBeyondTheLastLineFallsBackToTheLastAndIsWrittenSo) {
    SizeFor(45, 46);
    field.KOMAText("Hello world");
    field.KOMATopLineNum(7);
    EXPECT_EQ(field.KOMATopLineNum(), 1);
    EXPECT_EQ(field.ShownLines(), (Lines{"world"}));
    LineList lines;
    bool ok = false;
    field.ReturnResourceFileText(lines, ok);
    EXPECT_NE(std::find(lines.begin(), lines.end(), "(W)FIELD_TOP_LINE_NUM=1"), lines.end());
    // A shorter text pulls it back again.
    field.KOMAText("Hi");
    EXPECT_EQ(field.KOMATopLineNum(), 0);
}

TEST_F(FieldTest, ABaseLineRunsUnderEveryRowThatFitsWithOrWithoutText) {
    SizeFor(50, 46);
    auto baseLines = [&] {
        DrawElementList lines;
        for (const DrawElement& e : field.GetDrawElements())
            if (e.name.rfind("lnBase(", 0) == 0) lines.push_back(e);
        return lines;
    };
    // Rows of 9 pixels: lines on pixel rows 10, 19, 28 and 37; 46 is the
    // field's own bottom edge.
    DrawElementList lines = baseLines();
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0].kind, DrawElementKind::Line);
    EXPECT_EQ(lines[0].y1, 10 * kP);
    EXPECT_EQ(lines[3].y1, 37 * kP);
    EXPECT_EQ(lines[0].x1, 0);
    EXPECT_DOUBLE_EQ(lines[0].x2, field.Width() - 10);
    EXPECT_TRUE(lines[0].dotted);
    EXPECT_EQ(lines[0].lineColor, kBlack);
    EXPECT_EQ(lines[0].devicePixel, kP);
    field.KOMABackline(2);
    lines = baseLines();
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_FALSE(lines[0].dotted);
    EXPECT_EQ(lines[0].lineColor, (DrawColor{0xC0, 0xC0, 0xC0}));
    field.KOMAFont(1);
    lines = baseLines();
    ASSERT_EQ(lines.size(), 4u);  // rows 12, 23, 34 and 45 of 46
    EXPECT_EQ(lines[1].y1, 23 * kP);
    EXPECT_EQ(lines[3].y1, 45 * kP);
    field.KOMABackline(0);
    EXPECT_TRUE(baseLines().empty());
}

TEST_F(FieldTest, StyleOneShowsTheFrame) {
    field.SetCanvasSize(1000, 600);
    EXPECT_FALSE(Named(field.GetDrawElements(), "shpBorder").visible);
    field.KOMAFieldStyle(1);
    const DrawElement border = Named(field.GetDrawElements(), "shpBorder");
    EXPECT_TRUE(border.visible);
    EXPECT_EQ(border.rect, (CanvasRect{10, 10, 980, 580}));
    EXPECT_EQ(border.outlineWidth, 30);
    const DrawElement back = Named(field.GetDrawElements(), "shpBackground");
    EXPECT_EQ(back.fillColor, kWhite);
}

TEST_F(FieldTest, TwentyFiveRowsAndTheirLists) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 25);
    const Lines labels = {
        "Name", "X Pos", "Y Pos", "Width", "Height", "Field Style", "Text", "Baseline Type",
        "Font Color", "Background Color", "Font", "Text Alignment", "Max Num Chars Allowed",
        "Top Line Number", "Cursor Pos", "Highlight Start Pos", "Highlight End Pos", "Active",
        "Enabled", "Modified Flag", "Show Highlight", "Show Insert Point", "Scrollbar",
        "Full Size In Table Cell", "Visible"};
    for (int i = 1; i <= 25; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    EXPECT_EQ(rows.Value(7).Text(), "Field text");
    EXPECT_EQ(rows.Value(14).Text(), "0");
    ValueLists lists;
    FillFieldValueLists(lists);
    ASSERT_EQ(lists.size(), 25u);
    EXPECT_EQ(lists[5], (Lines{"FIELD_STYLE_0", "FIELD_STYLE_1"}));
    EXPECT_EQ(lists[7], (Lines{"NO_LINE", "DOT_LINE", "GREY_LINE"}));
    EXPECT_EQ(lists[8], ColorWordList());
    EXPECT_EQ(lists[9], ColorWordList());
    EXPECT_EQ(lists[10], (Lines{"SMALL_FONT", "MEDIUM_FONT"}));
    EXPECT_EQ(lists[11], (Lines{"LEFT", "CENTRE", "RIGHT"}));
    EXPECT_TRUE(lists[12].empty());
    EXPECT_EQ(lists[23], (Lines{"TRUE", "FALSE"}));
}

TEST_F(FieldTest, RowsApplyAndFullSizeInTableCellDoesNotStay) {
    PropertyArray rows = Rows();
    rows.At(3, 6) = PropertyCell(std::string("FIELD_STYLE_1"));
    rows.At(3, 7) = PropertyCell(std::string("Notes"));
    rows.At(3, 8) = PropertyCell(std::string("GREY_LINE"));
    rows.At(3, 11) = PropertyCell(std::string("MEDIUM_FONT"));
    rows.At(3, 12) = PropertyCell(std::string("CENTRE"));
    rows.At(3, 13) = PropertyCell(std::string("80"));
    rows.At(3, 15) = PropertyCell(std::string("abc"));
    rows.At(3, 16) = PropertyCell(std::string("3"));
    rows.At(3, 22) = PropertyCell(std::string("TRUE"));
    rows.At(3, 23) = PropertyCell(std::string("TRUE"));
    rows.At(3, 24) = PropertyCell(std::string("TRUE"));
    rows.At(3, 25) = PropertyCell(std::string("FALSE"));
    ASSERT_TRUE(field.SetPropertyList(rows));
    EXPECT_EQ(field.KOMAFieldStyleWord(), "FIELD_STYLE_1");
    EXPECT_EQ(field.KOMAText(), "Notes");
    EXPECT_EQ(field.KOMABacklineWord(), "GREY_LINE");
    EXPECT_EQ(field.KOMAFontWord(), "MEDIUM_FONT");
    EXPECT_EQ(field.KOMATextAlignmentWord(), "CENTRE");
    EXPECT_EQ(field.KOMAMaxNumChars(), 80);
    EXPECT_EQ(field.KOMAInsertPointCharPos(), 0);
    EXPECT_EQ(field.KOMAHighlightStartCharPos(), 3);
    EXPECT_TRUE(field.KOMAInsertPointVisible());
    EXPECT_TRUE(field.KOMAScrollbar());
    EXPECT_FALSE(field.KOMAVisible());
    // "Full Size In Table Cell" is not applied: read back, it is FALSE.
    EXPECT_EQ(Rows().Value(24).Text(), "FALSE");
    EXPECT_FALSE(field.SetPropertyList(PropertyArray(24)));
}

TEST_F(FieldTest, ARefusedMaximumInTheRowsLeavesTheOthersApplied) {
    PropertyArray rows = Rows();
    rows.At(3, 13) = PropertyCell(std::string("-2"));
    rows.At(3, 17) = PropertyCell(std::string("9"));
    ASSERT_TRUE(field.SetPropertyList(rows));
    EXPECT_EQ(field.KOMAMaxNumChars(), 256);
    EXPECT_EQ(field.KOMAHighlightEndCharPos(), 9);
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Tolva Resource Editor: Invalid value"}));
}

TEST_F(FieldTest, TheRightButtonOpensTheEditorAndOkSetsTheText) {
    SizeFor(150, 46);
    std::string seen;
    owner.host.popupAnswers = {0};
    owner.host.dialogAnswers.push_back([&](DialogModel& model) {
        auto& edit = dynamic_cast<FieldEditorText&>(model);
        seen = edit.text;
        edit.text = "Line one\r\nLine two";
        return true;
    });
    field.MouseDown(kRightButton, 0, 5, 5);
    ASSERT_EQ(owner.host.popups.size(), 1u);
    EXPECT_EQ(owner.host.popups[0].first, "Set Properties");
    EXPECT_EQ(owner.host.popups[0].second, (Lines{"Edit Field..."}));
    EXPECT_EQ(owner.host.popupNames[0], (Lines{"mnuSetPropEditField"}));
    EXPECT_EQ(owner.host.dialogs, (Lines{"frmField"}));
    EXPECT_EQ(seen, "Field text");
    EXPECT_EQ(field.KOMAText(), "Line one\r\nLine two");
    EXPECT_EQ(owner.events.back(), "PicChanged");
    // The break is no break on the screen.
    EXPECT_EQ(field.WrappedLines(), (Lines{"Line oneLine two"}));
}

TEST_F(FieldTest, CancelInTheEditorChangesNothing) {
    owner.host.popupAnswers = {0};
    owner.host.dialogAnswers.push_back([](DialogModel& model) {
        dynamic_cast<FieldEditorText&>(model).text = "changed";
        return false;
    });
    field.MouseDown(kRightButton, 0, 5, 5);
    EXPECT_EQ(owner.host.dialogs, (Lines{"frmField"}));
    EXPECT_EQ(field.KOMAText(), "Field text");
    EXPECT_TRUE(owner.events.empty() || owner.events.back() != "PicChanged");
    // A menu closed without a choice opens nothing.
    owner.host.popupAnswers = {std::nullopt};
    field.MouseDown(kRightButton, 0, 5, 5);
    EXPECT_EQ(owner.host.dialogs.size(), 1u);
}

TEST(FieldLineBreaks, CrLfBecomesSlashRAndLoneBreaksAreDropped) {
    EXPECT_EQ(EncodeFieldLineBreaks("one\r\ntwo"), "one/rtwo");
    EXPECT_EQ(EncodeFieldLineBreaks("a\rb\nc\r\n\r\n"), "abc/r/r");
    EXPECT_EQ(EncodeFieldLineBreaks("\n\r"), "");
    EXPECT_EQ(EncodeFieldLineBreaks("keeps /r as it is"), "keeps /r as it is");
}

// --- record ----------------------------------------------------------------------------------

class FieldRecordTest : public ResourceFileTest {
protected:
    void SetUp() override {
        ResourceFileTest::SetUp();
        LoadRealFontWidths();
    }
    ctlKOMAField* First() { return static_cast<ctlKOMAField*>(Obj(type::Field, 1)); }
};

TEST_F(FieldRecordTest, ANewFieldsRecordLineByLine) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Field, 10, 20, 60, 30));
    LineList lines;
    bool ok = false;
    First()->ReturnResourceFileText(lines, ok);
    EXPECT_TRUE(ok);
    const Lines expected = {
        "//-----------------------------------------------------------------",
        "//----------- FIELD_1 ------------------------------------------",
        "//-----------------------------------------------------------------",
        "#FIELD", "NAME=FIELD_1", "ID=" + std::to_string(First()->KOMAObjectID()), "~F0",
        "(B)OBJECT.TYPE=FIELD", "~F1",
        "//0 - 65534 (if within table), 65535 means not within table",
        "(U)RELATED_TABLE_ID=65535", "~F2", "//0 - 159", "(SH)BOUNDS.X=10", "(SH)BOUNDS.Y=20",
        "//0 - 160", "(SH)BOUNDS.WIDTH=60", "(SH)BOUNDS.HEIGHT=30", "~F3", "//any text",
        "(S)FIELD_TEXT=Field text", "~F4", "//FIELD_STYLE_0,FIELD_STYLE_1,FIELD_STYLE_2",
        "(B)FIELD_STYLE=FIELD_STYLE_0", "~F5", "//NO_LINE,DOT_LINE,GREY_LINE",
        "(B)FIELD_BACK_LINE=DOT_LINE", "~F6", "//SMALL_FONT,MEDIUM_FONT", "(B)FIELD_FONT=SMALL_FONT",
        "~F7", "//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK", "(B)FIELD_FONT_COLOR=COLOR_BLACK",
        "~F8", "//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK",
        "(B)FIELD_BACKGROUND_COLOR=COLOR_WHITE", "~F9", "//LEFT,CENTRE,RIGHT",
        "(B)FIELD_TEXTMENT=LEFT", "~F10", "(W)FIELD_MAX_NUM_CHARS=256", "~F11",
        "(W)FIELD_TOP_LINE_NUM=0", "~F12", "(W)FIELD_INSERT_PT_CHAR_POS=0", "~F13",
        "(W)FIELD_HIGHLIGHT_START=0", "~F14", "(W)FIELD_HIGHLIGHT_END=0", "~F15",
        "//TRUE or FALSE", "(BO)FIELD_ATTR.FIELD_ACTIVE=TRUE", "(BO)FIELD_ATTR.FIELD_ENABLE=TRUE",
        "(BO)FIELD_ATTR.FIELD_DIRTY=FALSE", "(BO)FIELD_ATTR.FIELD_HIGHLIGHT=FALSE",
        "(BO)FIELD_ATTR.FIELD_INSERT_PT_VISIBLE=FALSE", "(BO)FIELD_ATTR.FIELD_SCROLLBAR=FALSE",
        "(BO)FIELD_ATTR.FIELD_FULL_SIZE=FALSE", "(BO)FIELD_ATTR.FIELD_VISIBLE=TRUE", "#END_FIELD"};
    EXPECT_EQ(lines, expected);
}

TEST_F(FieldRecordTest, ATextWithCrLfIsWrittenWithSlashRAndReloadedWithIt) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Field, 10, 20, 60, 30));
    First()->KOMAText("Dear Sir,\r\nthank you");
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    EXPECT_NE(first.find("\r\n(S)FIELD_TEXT=Dear Sir,/rthank you\r\n"), std::string::npos);
    ASSERT_TRUE(Reload(first));
    EXPECT_EQ(First()->KOMAText(), "Dear Sir,/rthank you");
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(FieldRecordTest, EveryValueGoesThroughSaveAndLoad) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Field, 10, 20, 60, 30));
    ctlKOMAField* field = First();
    field->KOMAText("one two three four five six seven");
    field->KOMAFieldStyle(1);
    field->KOMABackline(2);
    field->KOMAFont(1);
    field->KOMAFontColor(11);
    field->KOMABackColor(7);
    field->KOMATextAlignment(2);
    field->KOMAMaxNumChars(99);
    field->KOMATopLineNum(1);
    field->KOMAInsertPointCharPos(5);
    field->KOMAHighlightStartCharPos(1);
    field->KOMAHighlightEndCharPos(2);
    field->KOMAActive(false);
    field->KOMAEnable(false);
    field->KOMADirty(true);
    field->KOMAHighlight(true);
    field->KOMAInsertPointVisible(true);
    field->KOMAScrollbar(true);
    field->KOMAFullSize(true);
    field->KOMAVisible(false);
    ASSERT_EQ(field->KOMATopLineNum(), 1);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    ASSERT_TRUE(Reload(first));
    ASSERT_EQ(screen.Count(type::Field), 1);
    EXPECT_EQ(First()->KOMAFullSizeWord(), "TRUE");
    EXPECT_EQ(First()->KOMATopLineNum(), 1);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(FieldRecordTest, ALineOutOfPlaceIsReportedAndTheLoadEnds) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Field, 10, 20, 60, 30));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_FALSE(Reload(Replaced(ReadBytes(path), "(B)FIELD_TEXTMENT=", "(B)TEXTMENT=")));
    const auto messages = host.MessageLines();
    ASSERT_GE(messages.size(), 3u);
    EXPECT_EQ(messages[0].rfind("Tolva Resource Editor: Error on line ", 0), 0u) << messages[0];
    EXPECT_NE(messages[0].find(":  (B)TEXTMENT=LEFT"), std::string::npos) << messages[0];
    EXPECT_EQ(messages[1], "Load Error: Could not load field object");
    EXPECT_EQ(messages[2], "Load Error: Invalid/unsupported resource object");
}

TEST_F(FieldRecordTest, AppliedGroupsOfAnotherShapeChangeNothing) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Field, 10, 20, 60, 30));
    GroupList groups = {{"F", "1"}, {"1", "2", "30", "12"}, {"x"}, {"FIELD_STYLE_1"},
                        {"NO_LINE"}, {"SMALL_FONT"}, {"COLOR_BLACK"}, {"COLOR_WHITE"},
                        {"RIGHT"}, {"1"}, {"0"}, {"3"}, {"4"}, {"5"},
                        {"TRUE", "TRUE", "TRUE", "TRUE", "TRUE", "TRUE", "TRUE"}};
    bool ok = true;
    First()->SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(First()->KOMAText(), "Field text");
    groups[14].push_back("FALSE");
    groups[10][0] = "x";
    First()->SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(First()->KOMAName(), "FIELD_1");
    groups[10][0] = "0";
    First()->SetFromResText(groups, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(First()->KOMAName(), "F");
    EXPECT_EQ(First()->KOMATextAlignmentWord(), "RIGHT");
    EXPECT_EQ(First()->KOMAHighlightEndCharPos(), 5);
    EXPECT_EQ(First()->KOMAFullSizeWord(), "TRUE");
    EXPECT_EQ(First()->KOMAVisibleWord(), "FALSE");
}

}  // namespace
}  // namespace tolva::testing
