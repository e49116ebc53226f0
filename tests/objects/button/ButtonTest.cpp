// The Button: its model and setters, the 14 inspector rows and how they are
// applied, its record written and read, and its drawing in both styles.
#include <gtest/gtest.h>

#include <algorithm>

#include "document/ObjectTypes.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/ControlRecord.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/button/modButton.h"
#include "resfile/LoadFixture.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"
#include "resfile/ResourceReader.h"
#include "support/NamedElement.h"
#include "support/RecordingOwner.h"

namespace tolva::testing {
namespace {

class ButtonTest : public ::testing::Test {
protected:
    void SetUp() override {
        EnsureStringsLoaded();
        button.SetOwner(&owner);
    }
    PropertyArray Rows() {
        PropertyArray rows;
        button.GetPropertyList(rows);
        return rows;
    }
    std::vector<std::string> Messages() const { return owner.host.MessageLines(); }

    RecordingOwner owner;
    ctlKOMAButton button;
};

// --- model ----------------------------------------------------------------------------------

TEST_F(ButtonTest, ANewButtonHasItsDefaults) {
    EXPECT_EQ(button.KOMAObjectTypeWord(), "CONTROL");
    EXPECT_EQ(button.KOMAControlStyleWord(), "BUTTON");
    EXPECT_EQ(button.KOMAControlText(), "Button Text");
    EXPECT_EQ(button.KOMAWidth(), 46);
    EXPECT_EQ(button.KOMAHeight(), 20);
    EXPECT_EQ(button.KOMATextAlignmentWord(), "CENTRE");
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "BUTTON_STYLE_1");
    EXPECT_EQ(button.KOMAEnableWord(), "TRUE");
    EXPECT_EQ(button.KOMAActiveWord(), "TRUE");
    EXPECT_EQ(button.KOMAVisibleWord(), "TRUE");
    EXPECT_EQ(button.KOMARadius(), 2);
    EXPECT_EQ(button.KOMAOnColorWord(), "COLOR_BLACK");
    EXPECT_EQ(button.KOMAOffColorWord(), "COLOR_WHITE");
    EXPECT_EQ(button.KOMARelatedTableID(), 65535);
}

TEST_F(ButtonTest, SettersKeepTheirWordsAndRefuseWithTheirMessages) {
    button.KOMARadius(-1);
    EXPECT_EQ(button.KOMARadius(), 2);
    button.KOMARadius(0);
    EXPECT_EQ(button.KOMARadius(), 0);
    button.KOMAOnColor(3);
    EXPECT_EQ(button.KOMAOnColorWord(), "COLOR_BLACK");
    button.KOMAOnColor(7);
    EXPECT_EQ(button.KOMAOnColorWord(), "COLOR_GREY1");
    button.KOMAOffColor(11);
    EXPECT_EQ(button.KOMAOffColorWord(), "COLOR_GREY2");
    button.KOMATextAlignment(3);
    EXPECT_EQ(button.KOMATextAlignmentWord(), "CENTRE");
    button.KOMATextAlignment(2);
    EXPECT_EQ(button.KOMATextAlignmentWord(), "RIGHT");
    button.KOMAControlSubType(5);
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "");
    button.KOMAControlSubType(0);
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "BUTTON_STYLE_0");
    button.KOMAEnable(false);
    EXPECT_EQ(button.KOMAEnableWord(), "FALSE");
    EXPECT_EQ(Messages(), std::vector<std::string>{"KOMARadius: Invalid button radius"});
}

TEST_F(ButtonTest, AWidthOf160IsTakenAndAnXOf160Refused) {
    button.KOMAWidth(160);
    EXPECT_EQ(button.KOMAWidth(), 160);
    button.KOMABoundsX(160);
    EXPECT_EQ(button.KOMABoundsX(), 0);
    button.KOMAWidth(161);
    EXPECT_EQ(button.KOMAWidth(), 160);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMABoundsX: Invalid value",
                                                    "Tolva Resource Editor: Invalid value"}));
}

TEST_F(ButtonTest, ObjectTypeZeroIsReportedAndControlStoredAllTheSame) {
    button.KOMAObjectType(0);
    EXPECT_EQ(button.KOMAObjectTypeWord(), "CONTROL");
    EXPECT_EQ(button.KOMAObjectType(), 1);
    button.KOMAObjectType(1);
    EXPECT_EQ(Messages(), std::vector<std::string>{"KOMAObjectType: Invalid object type"});
}

TEST_F(ButtonTest, StyleWordsUpperCaseFirstAndKnowTwoStyles) {
    EXPECT_EQ(ButtonStyleWordToNumber("button_style_1"), 1);
    EXPECT_EQ(ButtonStyleWordToNumber("BUTTON_STYLE_0"), 0);
    EXPECT_EQ(ButtonStyleWordToNumber("BUTTON_STYLE_2"), 0);
    EXPECT_EQ(ButtonStyleNumberToWord(1), "BUTTON_STYLE_1");
    EXPECT_EQ(ButtonStyleNumberToWord(2), "");
}

// --- rows ----------------------------------------------------------------------------------

TEST_F(ButtonTest, FourteenRowsWithTheirLabelsAndValues) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 14);
    const char* labels[] = {"Name",         "X Pos",   "Y Pos",  "Width",         "Height",
                            "Button Style", "Text",    "Text Alignment", "Enabled", "Active",
                            "Visible",      "Radius",  "Clicked Color",  "Unclicked Color"};
    for (int row = 1; row <= 14; ++row) EXPECT_EQ(rows.Label(row), labels[row - 1]) << row;
    EXPECT_EQ(rows.Value(6).Text(), "BUTTON_STYLE_1");
    EXPECT_EQ(rows.Value(7).Text(), "Button Text");
    EXPECT_EQ(rows.Value(12).Text(), "2");
    EXPECT_EQ(rows.Value(14).Text(), "COLOR_WHITE");
}

TEST_F(ButtonTest, TheValueLists) {
    ValueLists lists;
    FillButtonValueLists(lists);
    ASSERT_EQ(lists.size(), 14u);
    EXPECT_EQ(lists[5], (std::vector<std::string>{"BUTTON_STYLE_0", "BUTTON_STYLE_1"}));
    EXPECT_EQ(lists[7], (std::vector<std::string>{"LEFT", "CENTRE", "RIGHT"}));
    EXPECT_EQ(lists[8], (std::vector<std::string>{"TRUE", "FALSE"}));
    EXPECT_EQ(lists[12], ColorWordList());
    EXPECT_TRUE(lists[6].empty());
    EXPECT_TRUE(lists[11].empty());
}

TEST_F(ButtonTest, TheRowsAreAppliedEachByItsRule) {
    PropertyArray rows = Rows();
    rows.At(3, 6) = PropertyCell(std::string("BUTTON_STYLE_0"));
    rows.At(3, 7) = PropertyCell(std::string("OK"));
    rows.At(3, 8) = PropertyCell(std::string("LEFT"));
    rows.At(3, 10) = PropertyCell(std::string("FALSE"));
    rows.At(3, 12) = PropertyCell(std::string("3"));
    rows.At(3, 13) = PropertyCell(std::string("COLOR_GREY2"));
    rows.At(3, 14) = PropertyCell(std::string("COLOR_BLACK"));
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "BUTTON_STYLE_0");
    EXPECT_EQ(button.KOMAControlText(), "OK");
    EXPECT_EQ(button.KOMATextAlignmentWord(), "LEFT");
    EXPECT_EQ(button.KOMAActiveWord(), "FALSE");
    EXPECT_EQ(button.KOMARadius(), 3);
    EXPECT_EQ(button.KOMAOnColorWord(), "COLOR_GREY2");
    EXPECT_EQ(button.KOMAOffColorWord(), "COLOR_BLACK");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(ButtonTest, TheRadiusRowRefusesZeroAndTheLaterRowsStillApply) {
    PropertyArray rows = Rows();
    rows.At(3, 12) = PropertyCell(std::string("0"));
    rows.At(3, 14) = PropertyCell(std::string("COLOR_GREY1"));
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMARadius(), 2);
    EXPECT_EQ(button.KOMAOffColorWord(), "COLOR_GREY1");
    EXPECT_EQ(Messages(), std::vector<std::string>{"KOMARadius: Invalid button radius"});
}

TEST_F(ButtonTest, AWidthOf161InTheInspectorIsAnInvalidWidthValue) {
    PropertyArray rows = Rows();
    rows.At(3, 4) = PropertyCell(std::string("161"));
    EXPECT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(Messages(), std::vector<std::string>{"KOMAWidth: Invalid width value"});
}

TEST_F(ButtonTest, ASizeThatIsNoNumberEndsTheCallBeforeTheLaterRows) {
    PropertyArray rows = Rows();
    rows.At(3, 5) = PropertyCell(std::string("tall"));
    rows.At(3, 7) = PropertyCell(std::string("never"));
    EXPECT_THROW(button.SetPropertyList(rows), RuntimeFailure);
    EXPECT_EQ(button.KOMAControlText(), "Button Text");
}

TEST_F(ButtonTest, RowsOfAnotherShapeChangeNothing) {
    PropertyArray rows(13);
    EXPECT_FALSE(button.SetPropertyList(rows));
}

// --- drawing -------------------------------------------------------------------------------

TEST_F(ButtonTest, StyleZeroIsAPlainFilledBoxWithTheTextInsetBy50) {
    button.KOMAControlSubType(0);
    button.SetCanvasSize(1500, 600);
    const auto elements = button.GetDrawElements();
    const DrawElement& box = Named(elements, "shpButton");
    EXPECT_FALSE(box.rounded);
    EXPECT_FALSE(box.outline);
    EXPECT_EQ(box.rect, (CanvasRect{0, 0, 1500, 600}));
    const DrawElement& text = Named(elements, "lblText");
    EXPECT_EQ(text.rect, (CanvasRect{50, 300 - 187.5, 1400, 375}));
    EXPECT_EQ(text.font.name, "TolvaSmall");
    EXPECT_EQ(text.alignment, TextAlignment::Center);
    EXPECT_EQ(text.backColor, box.fillColor);
}

TEST_F(ButtonTest, StyleOneIsARoundedOutlinedBoxInsetBy10) {
    button.SetCanvasSize(1500, 600);
    const auto elements = button.GetDrawElements();
    const DrawElement& box = Named(elements, "shpButton");
    EXPECT_TRUE(box.rounded);
    EXPECT_TRUE(box.outline);
    EXPECT_EQ(box.outlineWidth, 30);
    EXPECT_EQ(box.rect, (CanvasRect{10, 10, 1480, 580}));
    EXPECT_EQ(Named(elements, "lblText").rect.left, 60);
    EXPECT_EQ(Named(elements, "lblText").rect.width, 1380);
}

TEST_F(ButtonTest, StyleOneAtAWidthOf20OrLessKeepsTheFullWidthShiftedRightBy10) {
    button.SetCanvasSize(20, 600);
    const DrawElement& box = Named(button.GetDrawElements(), "shpButton");
    EXPECT_EQ(box.rect.left, 10);
    EXPECT_EQ(box.rect.width, 20);
}

TEST_F(ButtonTest, StyleOneNarrowerThan120UnitsShowsNoText) {
    button.SetCanvasSize(119, 600);
    const DrawElement& text = Named(button.GetDrawElements(), "lblText");
    EXPECT_EQ(text.rect.width, 0);
    EXPECT_FALSE(text.visible);
}

TEST_F(ButtonTest, TheUnclickedColourAloneDecidesTheLook) {
    const DrawColor value15{15, 0, 0};
    EXPECT_EQ(Named(button.GetDrawElements(), "lblText").foreColor, value15);
    button.KOMAOnColor(11);  // changes nothing on the screen
    EXPECT_EQ(Named(button.GetDrawElements(), "shpButton").fillColor, kWhite);
    button.KOMAOffColor(11);
    auto elements = button.GetDrawElements();
    EXPECT_EQ(Named(elements, "shpButton").fillColor, (DrawColor{0x80, 0x80, 0x80}));
    EXPECT_EQ(Named(elements, "lblText").foreColor, kWhite);
    button.KOMAOffColor(7);
    elements = button.GetDrawElements();
    EXPECT_EQ(Named(elements, "shpButton").fillColor, (DrawColor{0xC0, 0xC0, 0xC0}));
    EXPECT_EQ(Named(elements, "lblText").foreColor, value15);
    button.KOMAOffColor(15);
    elements = button.GetDrawElements();
    EXPECT_EQ(Named(elements, "shpButton").fillColor, kBlack);
    EXPECT_EQ(Named(elements, "lblText").foreColor, kWhite);
}

// --- the record, on a screen ------------------------------------------------------------------

class ButtonRecordTest : public ResourceFileTest {
protected:
    // The worked example drawn by hand: a form over the whole device, a
    // button at 20, 40 of 40 by 14 with the text "OK", radius 3, style 0.
    ctlKOMAButton* DrawWorkedExample() {
        EXPECT_TRUE(DrawForm());
        EXPECT_TRUE(Draw(type::Button, 20, 40, 40, 14));
        auto* button = static_cast<ctlKOMAButton*>(Obj(type::Button, 1));
        PropertyArray rows;
        button->GetPropertyList(rows);
        rows.At(3, 6) = PropertyCell(std::string("BUTTON_STYLE_0"));
        rows.At(3, 7) = PropertyCell(std::string("OK"));
        rows.At(3, 12) = PropertyCell(std::string("3"));
        screen.NotifyObjectOfPropertyChange(type::Button, button->KOMAName(), rows);
        return button;
    }
};

TEST_F(ButtonRecordTest, TheWorkedExampleDrawnByHandIsSavedByteForByte) {
    ctlKOMAButton* button = DrawWorkedExample();
    EXPECT_EQ(button->KOMABoundsX(), 20);
    EXPECT_EQ(button->KOMAWidth(), 40);
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), Golden("worked_example.txt"));
    ASSERT_TRUE(SaveHeaderFile(screen, path));
    EXPECT_EQ(ReadBytes(path), Golden("worked_example.h"));
}

TEST_F(ButtonRecordTest, TheWorkedExampleLoadsAndSavesAgainUnchanged) {
    ASSERT_TRUE(Reload(Golden("worked_example.txt")));
    // No FORM.BMP stands in the working directory.
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Tolva Resource Editor: Bitmap not found"});
    ASSERT_EQ(screen.Count(type::Button), 1);
    auto* button = static_cast<ctlKOMAButton*>(Obj(type::Button, 1));
    EXPECT_EQ(button->KOMAControlText(), "OK");
    EXPECT_EQ(button->KOMARadius(), 3);
    EXPECT_EQ(button->ParentForm(), Form(1));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), Golden("worked_example.txt"));
}

TEST_F(ButtonRecordTest, ALowerCaseStyleWordGivesStyleOneAndAnUnknownOneStyleZero) {
    ASSERT_TRUE(Reload(Replaced(Golden("worked_example.txt"), "BUTTON_STYLE_0\r\n",
                                "button_style_1\r\n")));
    auto* button = static_cast<ctlKOMAButton*>(Obj(type::Button, 1));
    EXPECT_EQ(button->KOMAControlSubTypeWord(), "BUTTON_STYLE_1");
    ASSERT_TRUE(Reload(Replaced(Golden("worked_example.txt"), "BUTTON_STYLE_0\r\n",
                                "ROUND\r\n")));
    button = static_cast<ctlKOMAButton*>(Obj(type::Button, 1));
    EXPECT_EQ(button->KOMAControlSubTypeWord(), "BUTTON_STYLE_0");
}

TEST_F(ButtonRecordTest, ARadiusOfZeroInARecordLoadsAndSavesUnchanged) {
    const std::string text =
        Replaced(Golden("worked_example.txt"), "RADIUS=3\r\n", "RADIUS=0\r\n");
    ASSERT_TRUE(Reload(text));
    EXPECT_EQ(static_cast<ctlKOMAButton*>(Obj(type::Button, 1))->KOMARadius(), 0);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), text);
}

TEST_F(ButtonRecordTest, AWidthOf161InARecordGoesThroughTheWidthsTest) {
    ASSERT_TRUE(Reload(Replaced(Golden("worked_example.txt"), "(SH)BOUNDS.WIDTH=40\r\n",
                                "(SH)BOUNDS.WIDTH=161\r\n")));
    const auto messages = host.MessageLines();
    EXPECT_NE(std::find(messages.begin(), messages.end(), "Tolva Resource Editor: Invalid value"),
              messages.end());
}

TEST_F(ButtonRecordTest, TheHeadAndTailFailAtTheLineThatDoesNotFit) {
    Reload(Replaced(Golden("worked_example.txt"), "~F8\r\n", "~F9\r\n"));
    const auto messages = host.MessageLines();
    EXPECT_NE(std::find(messages.begin(), messages.end(),
                        "Tolva Resource Editor: Error on line 78:  ~F9"),
              messages.end());
    EXPECT_NE(std::find(messages.begin(), messages.end(),
                        "Load Error: Could not load button object"),
              messages.end());
}

TEST_F(ButtonRecordTest, AppliedGroupsOfAnotherShapeChangeNothing) {
    ctlKOMAButton* button = DrawWorkedExample();
    bool ok = true;
    button->SetFromResText({{"B", "1"}, {"1", "2", "3", "4"}, {"BUTTON_STYLE_1"}, {"x"},
                            {"LEFT"}, {"TRUE", "TRUE"}, {"2"}, {"COLOR_BLACK", "COLOR_WHITE"}},
                           ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(button->KOMAControlText(), "OK");
}

TEST_F(ButtonRecordTest, ARadiusThatIsNoNumberFailsWithWhatWasAppliedStaying) {
    ctlKOMAButton* button = DrawWorkedExample();
    bool ok = true;
    button->SetFromResText({{"B", "1"}, {"1", "2", "30", "12"}, {"BUTTON_STYLE_1"}, {"new"},
                            {"LEFT"}, {"TRUE", "TRUE", "FALSE"}, {"wide"},
                            {"COLOR_BLACK", "COLOR_GREY1"}},
                           ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(button->KOMAControlText(), "new");
    EXPECT_EQ(button->KOMAOffColorWord(), "COLOR_WHITE");
}

}  // namespace
}  // namespace tolva::testing
