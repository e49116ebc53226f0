// The Push button: its model and setters with their messages, the 16 rows
// and how they are applied, the look of each style in both states worked
// out at each redraw, its record written, read and applied.
#include <gtest/gtest.h>

#include <algorithm>

#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/pushbutton/ctlKOMAPushButton.h"
#include "objects/pushbutton/modPushbutton.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"
#include "resfile/ResourceFileFixture.h"
#include "resfile/ResourceReader.h"
#include "screen/ScreenFiles.h"
#include "support/RecordingOwner.h"

namespace tolva::testing {
namespace {

class PushButtonTest : public ::testing::Test {
protected:
    void SetUp() override {
        EnsureStringsLoaded();
        button.SetOwner(&owner);
        button.KOMAName("PUSHBUTTON_1");
        // The size a band of 40 by 36 device pixels gives it.
        Size(40, 36);
        owner.events.clear();
    }
    void Size(int width, int height) {
        const double s = button.PCTwipsToTolvaPixels();
        button.SetCanvasSize(width * s, height * s);
    }
    PropertyArray Rows() {
        PropertyArray rows;
        button.GetPropertyList(rows);
        return rows;
    }
    // The rows with one value changed, applied.
    bool Apply(int row, const std::string& value) {
        PropertyArray rows = Rows();
        rows.At(3, row) = PropertyCell(value);
        return button.SetPropertyList(rows);
    }
    DrawElement Element(const std::string& name) {
        for (const DrawElement& e : button.GetDrawElements())
            if (e.name == name) return e;
        ADD_FAILURE() << name;
        return {};
    }
    std::vector<std::string> Messages() const { return owner.host.MessageLines(); }

    RecordingOwner owner;
    ctlKOMAPushButton button;
};

constexpr DrawColor kGrey1{0xC0, 0xC0, 0xC0};
constexpr DrawColor kGrey2{0x80, 0x80, 0x80};

// --- model and setters ----------------------------------------------------------------------

TEST_F(PushButtonTest, ANewPushButtonHasItsDefaults) {
    ctlKOMAPushButton fresh;
    EXPECT_EQ(fresh.KOMAObjectTypeWord(), "CONTROL");
    EXPECT_EQ(fresh.KOMAObjectType(), 1);
    EXPECT_EQ(fresh.KOMAControlStyleWord(), "PUSH_BUTTON");
    EXPECT_EQ(fresh.KOMAControlStyle(), 2);
    EXPECT_EQ(fresh.KOMAControlText(), "PushButton Text");
    EXPECT_EQ(fresh.KOMAWidth(), 40);
    EXPECT_EQ(fresh.KOMAHeight(), 36);
    EXPECT_EQ(fresh.KOMATextAlignmentWord(), "CENTRE");
    EXPECT_EQ(fresh.KOMAControlSubTypeWord(), "PUSHBUTTON_STYLE_0");
    EXPECT_EQ(fresh.KOMAEnableWord(), "TRUE");
    EXPECT_EQ(fresh.KOMAActiveWord(), "TRUE");
    EXPECT_EQ(fresh.KOMAVisibleWord(), "TRUE");
    EXPECT_EQ(fresh.KOMARadius(), 2);
    EXPECT_EQ(fresh.KOMAOnColorWord(), "COLOR_BLACK");
    EXPECT_EQ(fresh.KOMAOnColor(), 15);
    EXPECT_EQ(fresh.KOMAOffColorWord(), "COLOR_WHITE");
    EXPECT_EQ(fresh.KOMAOffColor(), 0);
    EXPECT_EQ(fresh.KOMAGroupID(), 0);
    EXPECT_EQ(fresh.KOMAControlValueWord(), "FALSE");
    EXPECT_EQ(fresh.KOMARelatedTableID(), 65535);
    EXPECT_TRUE(fresh.ResizeOK());
    EXPECT_TRUE(fresh.VertResizeOK());
    EXPECT_TRUE(fresh.HorizResizeOK());
}

TEST_F(PushButtonTest, SettersRefuseWithTheirMessages) {
    button.KOMARadius(0);
    button.KOMARadius(-1);
    button.KOMAGroupID(7);
    button.KOMAGroupID(-1);
    EXPECT_EQ(button.KOMARadius(), 0);
    EXPECT_EQ(button.KOMAGroupID(), 7);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMARadius: Invalid button radius",
                                                    "KOMAGroupID: Invalid checkbox group ID"}));
}

TEST_F(PushButtonTest, ColoursTakeTheFourDeviceColoursOnly) {
    button.KOMAOnColor(7);
    button.KOMAOffColor(11);
    EXPECT_EQ(button.KOMAOnColorWord(), "COLOR_GREY1");
    EXPECT_EQ(button.KOMAOffColorWord(), "COLOR_GREY2");
    button.KOMAOnColor(3);
    button.KOMAOffColor(16);
    EXPECT_EQ(button.KOMAOnColorWord(), "COLOR_GREY1");
    EXPECT_EQ(button.KOMAOffColorWord(), "COLOR_GREY2");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(PushButtonTest, FourStylesAndAnyOtherNumberIsTheEmptyWord) {
    for (int style = 0; style <= 3; ++style) {
        button.KOMAControlSubType(style);
        EXPECT_EQ(button.KOMAControlSubTypeWord(), "PUSHBUTTON_STYLE_" + std::to_string(style));
    }
    button.KOMAControlSubType(4);
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "");
    EXPECT_EQ(button.KOMAControlSubType(), 0);
    EXPECT_EQ(PushButtonStyleWordToNumber("pushbutton_style_3"), 3);
    EXPECT_EQ(PushButtonStyleWordToNumber("PUSHBUTTON_STYLE_4"), 0);
    EXPECT_EQ(PushButtonStyleNumberToWord(2), "PUSHBUTTON_STYLE_2");
    EXPECT_EQ(PushButtonStyleNumberToWord(-1), "");
}

TEST_F(PushButtonTest, TheControlStyleSetterKnowsTwo) {
    button.KOMAControlStyle(2);
    EXPECT_EQ(button.KOMAControlStyleWord(), "PUSH_BUTTON");
    button.KOMAControlStyle(0);
    EXPECT_EQ(button.KOMAControlStyleWord(), "PUSH_BUTTON");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMAControlStyle: Unknown control style"}));
}

// --- rows -----------------------------------------------------------------------------------

TEST_F(PushButtonTest, SixteenRowsInTheirOrder) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 16);
    const std::vector<std::string> labels = {
        "Name",    "X Pos",  "Y Pos",        "Width",         "Height",
        "Push Button Style", "Text", "Text Alignment", "Enabled", "Active",
        "Visible", "Pushed Color", "Popped Color", "Initial Value", "Radius",
        "CONTROL_ADD.GROUP_ID"};
    for (int i = 1; i <= 16; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    EXPECT_EQ(rows.Value(6).Text(), "PUSHBUTTON_STYLE_0");
    EXPECT_EQ(rows.Value(7).Text(), "PushButton Text");
    EXPECT_EQ(rows.Value(12).Text(), "COLOR_BLACK");
    EXPECT_EQ(rows.Value(13).Text(), "COLOR_WHITE");
    EXPECT_EQ(rows.Value(14).Text(), "FALSE");
    EXPECT_EQ(rows.Value(15).Text(), "2");
    EXPECT_EQ(rows.Value(16).Text(), "0");
    EXPECT_EQ(rows.Kind(14), rowkind::Choice);
    EXPECT_EQ(rows.Kind(16), rowkind::Text);
    ValueLists lists;
    FillPushButtonValueLists(lists);
    ASSERT_EQ(lists.size(), 16u);
    EXPECT_EQ(lists[5], (std::vector<std::string>{"PUSHBUTTON_STYLE_0", "PUSHBUTTON_STYLE_1",
                                                  "PUSHBUTTON_STYLE_2", "PUSHBUTTON_STYLE_3"}));
    EXPECT_EQ(lists[7], (std::vector<std::string>{"LEFT", "CENTRE", "RIGHT"}));
    EXPECT_EQ(lists[11], ColorWordList());
    EXPECT_EQ(lists[12], lists[11]);
    EXPECT_EQ(lists[13], (std::vector<std::string>{"TRUE", "FALSE"}));
    EXPECT_TRUE(lists[14].empty());
    EXPECT_TRUE(lists[15].empty());
}

TEST_F(PushButtonTest, TheRowsAreAppliedEachByItsRule) {
    PropertyArray rows = Rows();
    rows.At(3, 1) = PropertyCell(std::string("FASTER"));
    rows.At(3, 2) = PropertyCell(std::string("20"));
    rows.At(3, 3) = PropertyCell(std::string("30"));
    rows.At(3, 6) = PropertyCell(std::string("PUSHBUTTON_STYLE_2"));
    rows.At(3, 7) = PropertyCell(std::string("Faster"));
    rows.At(3, 8) = PropertyCell(std::string("RIGHT"));
    rows.At(3, 9) = PropertyCell(std::string("FALSE"));
    rows.At(3, 10) = PropertyCell(std::string("FALSE"));
    rows.At(3, 11) = PropertyCell(std::string("FALSE"));
    rows.At(3, 12) = PropertyCell(std::string("COLOR_GREY2"));
    rows.At(3, 13) = PropertyCell(std::string("COLOR_GREY1"));
    rows.At(3, 14) = PropertyCell(std::string("TRUE"));
    rows.At(3, 15) = PropertyCell(std::string("5"));
    rows.At(3, 16) = PropertyCell(std::string("3"));
    ASSERT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMAName(), "FASTER");
    EXPECT_EQ(button.KOMABoundsX(), 20);
    EXPECT_EQ(button.KOMABoundsY(), 30);
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "PUSHBUTTON_STYLE_2");
    EXPECT_EQ(button.KOMAControlText(), "Faster");
    EXPECT_EQ(button.KOMATextAlignmentWord(), "RIGHT");
    EXPECT_EQ(button.KOMAEnableWord(), "FALSE");
    EXPECT_EQ(button.KOMAActiveWord(), "FALSE");
    EXPECT_EQ(button.KOMAVisibleWord(), "FALSE");
    EXPECT_EQ(button.KOMAOnColorWord(), "COLOR_GREY2");
    EXPECT_EQ(button.KOMAOffColorWord(), "COLOR_GREY1");
    EXPECT_EQ(button.KOMAControlValueWord(), "TRUE");
    EXPECT_EQ(button.KOMARadius(), 5);
    EXPECT_EQ(button.KOMAGroupID(), 3);
    EXPECT_TRUE(owner.host.messages.empty());
    EXPECT_FALSE(button.SetPropertyList(PropertyArray(15)));
}

TEST_F(PushButtonTest, TheRadiusRowRefusesZeroAndTheLaterRowsStillApply) {
    PropertyArray rows = Rows();
    rows.At(3, 15) = PropertyCell(std::string("0"));
    rows.At(3, 13) = PropertyCell(std::string("COLOR_GREY2"));
    rows.At(3, 16) = PropertyCell(std::string("4"));
    ASSERT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMARadius(), 2);
    EXPECT_EQ(button.KOMAOffColorWord(), "COLOR_GREY2");
    EXPECT_EQ(button.KOMAGroupID(), 4);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMARadius: Invalid button radius"}));
}

TEST_F(PushButtonTest, AGroupThatIsNoNumberOrNegativeIsRefused) {
    for (const char* bad : {"two", "-1", "40000"}) {
        owner.host.ClearRecord();
        ASSERT_TRUE(Apply(16, bad));
        EXPECT_EQ(button.KOMAGroupID(), 0) << bad;
        EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMAGroupID: Invalid checkbox group ID"}))
            << bad;
    }
}

// --- the look -------------------------------------------------------------------------------

TEST_F(PushButtonTest, StyleZeroIsALinedBoxWithTheTextOnThePoppedColour) {
    const DrawElementList elements = button.GetDrawElements();
    ASSERT_EQ(elements.size(), 4u);
    EXPECT_EQ(elements[0].name, "shpBackground");
    EXPECT_TRUE(elements[0].outline);
    EXPECT_EQ(elements[0].fillColor, kWhite);
    EXPECT_EQ(elements[1].name, "shpBorder");
    EXPECT_FALSE(elements[1].visible);
    EXPECT_EQ(elements[2].name, "shpBottom");
    EXPECT_FALSE(elements[2].visible);
    const DrawElement& text = elements[3];
    EXPECT_EQ(text.name, "lblText");
    EXPECT_EQ(text.text, "PushButton Text");
    EXPECT_EQ(text.font.name, "TolvaSmall");
    EXPECT_DOUBLE_EQ(text.font.size, 14.25);
    EXPECT_DOUBLE_EQ(text.rect.width, 2265);
    EXPECT_DOUBLE_EQ(text.rect.height, 285);
    EXPECT_DOUBLE_EQ(text.rect.top, button.Height() / 2 - 142.5);
    // Centred, but a box as wide as the object or wider stands at 40.
    EXPECT_DOUBLE_EQ(text.rect.left, 40);
    EXPECT_EQ(text.backColor, kWhite);
    EXPECT_EQ(text.foreColor, kBlack);
}

TEST_F(PushButtonTest, TheTextIsPlacedByTheAlignment) {
    Size(100, 36);
    const double w = button.Width();
    EXPECT_DOUBLE_EQ(Element("lblText").rect.left, w / 2 - 2265 / 2.0);
    button.KOMATextAlignment(0);
    EXPECT_DOUBLE_EQ(Element("lblText").rect.left, 40);
    button.KOMATextAlignment(2);
    EXPECT_DOUBLE_EQ(Element("lblText").rect.left, w - 2265 - 40);
}

TEST_F(PushButtonTest, AWidthBelow40UnitsWithRightPutsTheTextAt0) {
    button.KOMATextAlignment(2);
    button.SetCanvasSize(39, 500);
    EXPECT_DOUBLE_EQ(Element("lblText").rect.left, 0);
}

TEST_F(PushButtonTest, ANewInitialValueShowsAtTheNextRedraw) {
    button.KOMAControlSubType(1);
    ASSERT_TRUE(Apply(14, "TRUE"));
    // The rows redraw before the value is taken: the look is still popped.
    EXPECT_EQ(Element("lblText").backColor, kWhite);
    EXPECT_EQ(Element("shpBorder").fillColor, kWhite);
    // Any later commit of the rows redraws, now pushed.
    ASSERT_TRUE(Apply(7, "Go"));
    EXPECT_EQ(Element("lblText").backColor, kBlack);
    EXPECT_EQ(Element("lblText").foreColor, kWhite);
    EXPECT_TRUE(Element("shpBorder").filled);
    EXPECT_EQ(Element("shpBorder").fillColor, kBlack);
    // In style 2 as well, the frame rounded and no line around the object.
    button.KOMAControlSubType(2);
    EXPECT_EQ(Element("shpBorder").fillColor, kBlack);
    EXPECT_TRUE(Element("shpBorder").rounded);
    EXPECT_FALSE(Element("shpBackground").outline);
}

TEST_F(PushButtonTest, TheFrameStands20InAndTakesTheWholeLengthWhenShort) {
    button.KOMAControlSubType(1);
    const DrawElement border = Element("shpBorder");
    EXPECT_TRUE(border.visible);
    EXPECT_FALSE(border.rounded);
    EXPECT_DOUBLE_EQ(border.outlineWidth, 30);
    EXPECT_DOUBLE_EQ(border.rect.left, 20);
    EXPECT_DOUBLE_EQ(border.rect.top, 20);
    EXPECT_DOUBLE_EQ(border.rect.width, button.Width() - 20);
    EXPECT_DOUBLE_EQ(border.rect.height, button.Height() - 20);
    button.SetCanvasSize(20, 15);
    EXPECT_DOUBLE_EQ(Element("shpBorder").rect.width, 20);
    EXPECT_DOUBLE_EQ(Element("shpBorder").rect.height, 15);
}

TEST_F(PushButtonTest, GreyColoursGiveTheirTextColours) {
    button.KOMAControlSubType(1);
    button.KOMAOffColor(11);
    EXPECT_EQ(Element("lblText").backColor, kGrey2);
    EXPECT_EQ(Element("lblText").foreColor, kWhite);
    button.KOMAOffColor(7);
    EXPECT_EQ(Element("lblText").backColor, kGrey1);
    EXPECT_EQ(Element("lblText").foreColor, kBlack);
}

TEST_F(PushButtonTest, StyleThreeShowsTheStateOnlyInTheOutlineOfItsBottom) {
    button.KOMAControlSubType(3);
    button.KOMAOffColor(15);
    button.KOMAOnColor(11);
    DrawElement text = Element("lblText");
    EXPECT_EQ(text.backColor, kWhite);
    EXPECT_EQ(text.foreColor, kBlack);
    DrawElement bottom = Element("shpBottom");
    EXPECT_TRUE(bottom.visible);
    EXPECT_FALSE(bottom.outline);
    EXPECT_DOUBLE_EQ(bottom.rect.left, 30);
    EXPECT_DOUBLE_EQ(bottom.rect.top, button.Height() - 30);
    EXPECT_DOUBLE_EQ(bottom.rect.height, 30);
    EXPECT_DOUBLE_EQ(bottom.rect.width, button.Width() - 60);
    // Pushed: the tab's outline shows; the text stays black on white.
    button.KOMAControlValue(true);
    button.KOMAControlText("Go");
    EXPECT_TRUE(Element("shpBottom").outline);
    EXPECT_EQ(Element("lblText").backColor, kWhite);
    EXPECT_EQ(Element("lblText").foreColor, kBlack);
    // The frame's lower corners fall off the object.
    const DrawElement border = Element("shpBorder");
    EXPECT_TRUE(border.rounded);
    EXPECT_DOUBLE_EQ(border.rect.height, button.Height() - 20 + 1000);
    // A narrow object: the tab is as wide as the object.
    button.SetCanvasSize(39, 500);
    EXPECT_DOUBLE_EQ(Element("shpBottom").rect.width, 39);
}

TEST_F(PushButtonTest, StyleThreeKeepsTheFillTheFrameHadBefore) {
    // White on a new object: unfilled, over the white background.
    button.KOMAControlSubType(3);
    EXPECT_FALSE(Element("shpBorder").filled);
    EXPECT_EQ(Element("shpBackground").fillColor, kWhite);
    // After a pushed style 1 the frame keeps its black.
    button.KOMAControlValue(true);
    button.KOMAControlSubType(1);
    button.KOMAControlSubType(3);
    EXPECT_EQ(Element("shpBorder").fillColor, kBlack);
    // Style 0 takes the fill away, and style 3 keeps that too.
    button.KOMAControlSubType(0);
    button.KOMAControlSubType(3);
    EXPECT_FALSE(Element("shpBorder").filled);
}

// --- record ---------------------------------------------------------------------------------

LineList RecordOf(ctlKOMAPushButton& b) {
    LineList lines;
    bool ok = false;
    b.ReturnResourceFileText(lines, ok);
    EXPECT_TRUE(ok);
    return lines;
}

TEST_F(PushButtonTest, ANewPushButtonsRecordLineByLine) {
    ctlKOMAPushButton fresh;
    fresh.SetOwner(&owner);
    fresh.KOMAName("PUSHBUTTON_1");
    const LineList lines = RecordOf(fresh);
    const LineList expected = {
        "//-----------------------------------------------------------------",
        "//----------- PUSHBUTTON_1 ---------------------",
        "//-----------------------------------------------------------------",
        "#CONTROL",
        "NAME=PUSHBUTTON_1",
        "ID=0",
        "~F0",
        "(B)OBJECT.TYPE=CONTROL",
        "~F1",
        "//0 - 65534 (if within table), 65535 means not within table",
        "(U)RELATED_TABLE_ID=65535",
        "~F2",
        "//0 - 159",
        "(SH)BOUNDS.X=0",
        "(SH)BOUNDS.Y=0",
        "//0 - 160",
        "(SH)BOUNDS.WIDTH=40",
        "(SH)BOUNDS.HEIGHT=36",
        "~F3",
        "(B)CONTROL_STYLE=PUSH_BUTTON",
        "~F4",
        "//PUSHBUTTON_STYLE_0,PUSHBUTTON_STYLE_1,PUSHBUTTON_STYLE_2, ...",
        "(B)CONTROL_SUBTYPE=PUSHBUTTON_STYLE_0",
        "~F5",
        "//any text",
        "(S)CONTROL_TEXT=PushButton Text",
        "~F6",
        "//LEFT,CENTRE,RIGHT",
        "(B)TEXTMENT=CENTRE",
        "~F7",
        "(BO)CONTROL_ATTR.ENABLE=TRUE",
        "(BO)CONTROL_ATTR.ACTIVE=TRUE",
        "(BO)CONTROL_ATTR.VISIBLE=TRUE",
        "~F8",
        "//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK",
        "(B)CONTROL_ADD.COLOR_ON=COLOR_BLACK",
        "(B)CONTROL_ADD.COLOR_OFF=COLOR_WHITE",
        "(U)CONTROL_ADD.GROUP_ID=0",
        "//TRUE or FALSE",
        "(BO)CONTROL_ADD.CONTROL_VALUE=FALSE",
        "(SH)CONTROL_ADD.RADIUS=2",
        "#END_CONTROL",
    };
    ASSERT_EQ(lines.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(lines[i], expected[i]) << i;
}

bool ParseTail(const std::string& text, LoadedRecord& record, ScriptedHost& host) {
    ResourceReader reader = ResourceReader::FromText(text);
    RecordReader in(reader, host);
    return ParsePushButtonRecordTail(in, record);
}

std::string Tail(const LineList& lines) {
    const auto at = std::find(lines.begin(), lines.end(), "~F8");
    std::string text;
    for (auto it = at; it != lines.end(); ++it) text += *it + "\r\n";
    return text;
}

TEST_F(PushButtonTest, TheTailIsReadIntoGroupsSixToEightAndTheGroupIsDropped) {
    button.KOMARadius(7);
    button.KOMAGroupID(3);
    button.KOMAOnColor(7);
    button.KOMAControlValue(true);
    LoadedRecord record;
    ASSERT_TRUE(ParseTail(Tail(RecordOf(button)), record, owner.host));
    ASSERT_EQ(record.groups.size(), 9u);
    EXPECT_EQ(record.groups[6], (ValueGroup{"7"}));
    EXPECT_EQ(record.groups[7], (ValueGroup{"COLOR_GREY1", "COLOR_WHITE"}));
    EXPECT_EQ(record.groups[8], (ValueGroup{"TRUE"}));
}

TEST_F(PushButtonTest, EachTailLineOutOfPlaceIsReported) {
    const std::string good = Tail(RecordOf(button));
    for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
             {"~F8", "~F9"},
             {"(B)CONTROL_ADD.COLOR_ON=", "(B)CONTROL_ADD.COLOR_IN="},
             {"(B)CONTROL_ADD.COLOR_OFF=", "(B)CONTROL_ADD.COLOUR_OFF="},
             {"(U)CONTROL_ADD.GROUP_ID=", "(U)CONTROL_ADD.GROUP="},
             {"(BO)CONTROL_ADD.CONTROL_VALUE=", "(BO)CONTROL_ADD.VALUE="},
             {"(SH)CONTROL_ADD.RADIUS=", "(SH)CONTROL_ADD.RADII="},
             {"#END_CONTROL", "#END_PUSHBUTTON"}}) {
        std::string text = good;
        text.replace(text.find(from), from.size(), to);
        owner.host.ClearRecord();
        LoadedRecord record;
        EXPECT_FALSE(ParseTail(text, record, owner.host)) << to;
        ASSERT_EQ(owner.host.messages.size(), 1u) << to;
        EXPECT_EQ(owner.host.messages[0].text.rfind("Error on line ", 0), 0u) << to;
    }
}

TEST_F(PushButtonTest, AGroupOrRadiusAbove32767EndsTheLoad) {
    const std::string good = Tail(RecordOf(button));
    for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
             {"(U)CONTROL_ADD.GROUP_ID=0", "(U)CONTROL_ADD.GROUP_ID=32768"},
             {"(SH)CONTROL_ADD.RADIUS=2", "(SH)CONTROL_ADD.RADIUS=40000"},
             {"(SH)CONTROL_ADD.RADIUS=2", "(SH)CONTROL_ADD.RADIUS=round"}}) {
        std::string text = good;
        text.replace(text.find(from), from.size(), to);
        LoadedRecord record;
        EXPECT_THROW(ParseTail(text, record, owner.host), RuntimeFailure) << to;
    }
}

TEST_F(PushButtonTest, AppliedGroupsNeedTheirShapeAndRedrawWithTheValue) {
    GroupList groups = {
        {"FASTER", "4"}, {"20", "30", "60", "20"}, {"PUSHBUTTON_STYLE_1"}, {"Go"}, {"LEFT"},
        {"TRUE", "FALSE", "TRUE"}, {"6"}, {"COLOR_GREY2", "COLOR_WHITE"}, {"TRUE"},
    };
    bool ok = true;
    button.SetFromResText(GroupList(8), ok);
    EXPECT_FALSE(ok);
    GroupList shortColours = groups;
    shortColours[7].pop_back();
    button.SetFromResText(shortColours, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(button.KOMAName(), "PUSHBUTTON_1");
    button.SetFromResText(groups, ok);
    ASSERT_TRUE(ok);
    EXPECT_EQ(button.KOMAName(), "FASTER");
    EXPECT_EQ(button.KOMAWidth(), 60);
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "PUSHBUTTON_STYLE_1");
    EXPECT_EQ(button.KOMAActiveWord(), "FALSE");
    EXPECT_EQ(button.KOMARadius(), 6);
    EXPECT_EQ(button.KOMAOnColorWord(), "COLOR_GREY2");
    EXPECT_EQ(button.KOMAControlValueWord(), "TRUE");
    EXPECT_EQ(button.KOMAGroupID(), 0);
    // Drawn pushed at once.
    EXPECT_EQ(Element("lblText").backColor, kGrey2);
    EXPECT_EQ(Element("shpBorder").fillColor, kGrey2);
}

TEST_F(PushButtonTest, CopyTakesTheWholeModel) {
    button.KOMAControlSubType(2);
    button.KOMAGroupID(5);
    button.KOMAControlValue(true);
    button.KOMAOnColor(7);
    button.KOMARadius(9);
    ctlKOMAPushButton copy;
    ASSERT_TRUE(copy.CopyModelFrom(button));
    EXPECT_EQ(copy.KOMAControlSubTypeWord(), "PUSHBUTTON_STYLE_2");
    EXPECT_EQ(copy.KOMAGroupID(), 5);
    EXPECT_EQ(copy.KOMAControlValueWord(), "TRUE");
    EXPECT_EQ(copy.KOMAOnColorWord(), "COLOR_GREY1");
    EXPECT_EQ(copy.KOMARadius(), 9);
}

// --- a whole file ---------------------------------------------------------------------------

using PushButtonFile = ResourceFileTest;

TEST_F(PushButtonFile, AGroupOfThreeLoadsAsZeroAndIsSavedAsZero) {
    const std::string full = Golden("pushbutton_full.txt");
    ASSERT_TRUE(Reload(Replaced(full, "(U)CONTROL_ADD.GROUP_ID=0", "(U)CONTROL_ADD.GROUP_ID=3")));
    auto* button = static_cast<ctlKOMAPushButton*>(Obj(type::PushButton, 1));
    ASSERT_NE(button, nullptr);
    PropertyArray rows;
    button->GetPropertyList(rows);
    EXPECT_EQ(rows.Value(16).Text(), "0");
    const std::string out = path + ".out";
    ASSERT_TRUE(SaveResourceFile(screen, out));
    const std::string saved = ReadBytes(out);
    std::remove(out.c_str());
    EXPECT_NE(saved.find("(U)CONTROL_ADD.GROUP_ID=0\r\n"), std::string::npos);
    EXPECT_EQ(saved.find("(U)CONTROL_ADD.GROUP_ID=3"), std::string::npos);
}

TEST_F(PushButtonFile, ABrokenTailIsToldAndTheLoadEnds) {
    EXPECT_FALSE(Reload(Replaced(Golden("pushbutton_full.txt"), "(SH)CONTROL_ADD.RADIUS=5",
                               "(SH)CONTROL_ADD.RADIUS_5")));
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{
                  "Tolva Resource Editor: Error on line 82:  (SH)CONTROL_ADD.RADIUS_5",
                  "Load Error: Could not load pushbutton object",
                  "Load Error: Invalid/unsupported resource object"}));
}

}  // namespace
}  // namespace tolva::testing
