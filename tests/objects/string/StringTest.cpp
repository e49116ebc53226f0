// The String: model and setters, its 12 rows, its layout kept between
// resizes, and its record written, read in both spellings and applied.
#include <gtest/gtest.h>

#include <algorithm>

#include "document/ObjectTypes.h"
#include "document/RuntimeFailure.h"
#include "document/Words.h"
#include "objects/string/ctlKOMAString.h"
#include "objects/string/modString.h"
#include "resfile/LoadFixture.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"
#include "support/NamedElement.h"
#include "support/RecordingOwner.h"

namespace tolva::testing {
namespace {

class StringTest : public ::testing::Test {
protected:
    void SetUp() override {
        EnsureStringsLoaded();
        text.SetOwner(&owner);
    }
    PropertyArray Rows() {
        PropertyArray rows;
        text.GetPropertyList(rows);
        return rows;
    }
    RecordingOwner owner;
    ctlKOMAString text;
};

TEST_F(StringTest, ANewStringHasItsDefaults) {
    EXPECT_EQ(text.KOMAObjectTypeWord(), "STRING");
    EXPECT_EQ(text.KOMAWidth(), 53);
    EXPECT_EQ(text.KOMAHeight(), 10);
    EXPECT_EQ(text.KOMAStringStyleWord(), "STRING_STYLE_0");
    EXPECT_EQ(text.KOMAText(), "String Text");
    EXPECT_EQ(text.KOMAFontColorWord(), "COLOR_BLACK");
    EXPECT_EQ(text.KOMABackColorWord(), "COLOR_WHITE");
    EXPECT_EQ(text.KOMAFontWord(), "SMALL_FONT");
    EXPECT_EQ(text.KOMATextAlignmentWord(), "LEFT");
    EXPECT_EQ(text.KOMAVisibleWord(), "TRUE");
}

TEST_F(StringTest, SettersStoreTheirWordsOrChangeNothing) {
    text.KOMAStringStyle(4);
    EXPECT_EQ(text.KOMAStringStyleWord(), "STRING_STYLE_4");
    text.KOMAStringStyle(6);
    EXPECT_EQ(text.KOMAStringStyleWord(), "");
    text.KOMAFontColor(5);
    EXPECT_EQ(text.KOMAFontColorWord(), "COLOR_BLACK");
    text.KOMABackColor(11);
    EXPECT_EQ(text.KOMABackColorWord(), "COLOR_GREY2");
    text.KOMAFont(2);
    EXPECT_EQ(text.KOMAFontWord(), "SMALL_FONT");
    text.KOMAFont(1);
    EXPECT_EQ(text.KOMAFontWord(), "MEDIUM_FONT");
    text.KOMATextAlignment(-1);
    EXPECT_EQ(text.KOMATextAlignmentWord(), "LEFT");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(StringTest, ObjectTypeZeroIsReportedAndStringStoredAllTheSame) {
    text.KOMAObjectType(0);
    EXPECT_EQ(text.KOMAObjectTypeWord(), "STRING");
    EXPECT_EQ(text.KOMAObjectType(), 8);
    text.KOMAObjectType(8);
    EXPECT_EQ(owner.host.MessageLines(),
              std::vector<std::string>{"KOMAObjectType: Invalid object type"});
}

TEST_F(StringTest, StyleWordsUpperCaseAndKnowSix) {
    EXPECT_EQ(StringStyleWordToNumber("string_style_5"), 5);
    EXPECT_EQ(StringStyleWordToNumber("STRING_STYLE_6"), 0);
    EXPECT_EQ(StringStyleNumberToWord(3), "STRING_STYLE_3");
    EXPECT_EQ(StringStyleNumberToWord(-1), "");
}

TEST_F(StringTest, TwelveRowsAndTheirLists) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 12);
    const char* labels[] = {"Name",       "X Pos",       "Y Pos",  "Width",
                            "Height",     "String Style", "Text",   "Font Color",
                            "Background Color", "Font", "Text Alignment", "Visible"};
    for (int row = 1; row <= 12; ++row) EXPECT_EQ(rows.Label(row), labels[row - 1]) << row;
    ValueLists lists;
    FillStringValueLists(lists);
    ASSERT_EQ(lists.size(), 12u);
    EXPECT_EQ(lists[5], (std::vector<std::string>{"STRING_STYLE_0", "STRING_STYLE_1"}));
    EXPECT_EQ(lists[9], (std::vector<std::string>{"SMALL_FONT", "MEDIUM_FONT"}));
    EXPECT_EQ(lists[7], ColorWordList());
}

TEST_F(StringTest, TheRowsAreAppliedThroughTheirWords) {
    PropertyArray rows = Rows();
    rows.At(3, 7) = PropertyCell(std::string("Hello"));
    rows.At(3, 8) = PropertyCell(std::string("COLOR_GREY1"));
    rows.At(3, 10) = PropertyCell(std::string("MEDIUM_FONT"));
    rows.At(3, 11) = PropertyCell(std::string("RIGHT"));
    rows.At(3, 12) = PropertyCell(std::string("FALSE"));
    EXPECT_TRUE(text.SetPropertyList(rows));
    EXPECT_EQ(text.KOMAText(), "Hello");
    EXPECT_EQ(text.KOMAFontColorWord(), "COLOR_GREY1");
    EXPECT_EQ(text.KOMAFontWord(), "MEDIUM_FONT");
    EXPECT_EQ(text.KOMATextAlignmentWord(), "RIGHT");
    EXPECT_EQ(text.KOMAVisibleWord(), "FALSE");
    EXPECT_FALSE(text.SetPropertyList(PropertyArray(11)));
}

TEST_F(StringTest, AStyleChangeShowsOnlyWithTheNextResize) {
    text.SetCanvasSize(2000, 600);
    EXPECT_FALSE(Named(text.GetDrawElements(), "shpBorder").visible);
    PropertyArray rows = Rows();
    rows.At(3, 6) = PropertyCell(std::string("STRING_STYLE_1"));
    EXPECT_TRUE(text.SetPropertyList(rows));
    EXPECT_FALSE(Named(text.GetDrawElements(), "shpBorder").visible);
    text.SetCanvasSize(2000, 700);
    const auto elements = text.GetDrawElements();
    EXPECT_TRUE(Named(elements, "shpBorder").visible);
    EXPECT_EQ(Named(elements, "shpBorder").rect, (CanvasRect{10, 10, 1980, 680}));
    EXPECT_EQ(Named(elements, "lblString").rect, (CanvasRect{40, 350 - 175, 1920, 350}));
}

TEST_F(StringTest, AFontChangeRedoesTheLayoutAtOnce) {
    text.KOMAStringStyle(1);
    text.SetCanvasSize(2000, 700);
    EXPECT_EQ(Named(text.GetDrawElements(), "lblString").rect.height, 350);
    text.KOMAFont(1);
    const DrawElement& label = Named(text.GetDrawElements(), "lblString");
    EXPECT_EQ(label.rect.height, 25 * 19);
    EXPECT_EQ(label.font.name, "TolvaMedium");
    EXPECT_EQ(label.font.size, 19);
}

TEST_F(StringTest, StylesTwoToFiveKeepTheLayoutOfTheStyleBefore) {
    text.KOMAStringStyle(1);
    text.SetCanvasSize(2000, 700);
    text.KOMAStringStyle(3);
    text.SetCanvasSize(1000, 400);
    const auto elements = text.GetDrawElements();
    EXPECT_TRUE(Named(elements, "shpBorder").visible);
    EXPECT_EQ(Named(elements, "shpBorder").rect, (CanvasRect{10, 10, 1980, 680}));
}

TEST_F(StringTest, AStringTwoPixelsWideInStyleOneHasAFullWidthTextBoxFrom40) {
    text.KOMAStringStyle(1);
    text.SetCanvasSize(73, 400);
    const auto elements = text.GetDrawElements();
    EXPECT_EQ(Named(elements, "lblString").rect.left, 40);
    EXPECT_EQ(Named(elements, "lblString").rect.width, 73);
    // The frame of negative size below 20 units is not drawn, and nothing ends.
    text.SetCanvasSize(0, 0);
    EXPECT_FALSE(Named(text.GetDrawElements(), "shpBorder").visible);
}

TEST_F(StringTest, ColoursOfTextAndBackgroundAndTheLabelsOwnGrey) {
    text.KOMAFontColor(0);
    text.KOMABackColor(15);
    const auto elements = text.GetDrawElements();
    EXPECT_EQ(Named(elements, "lblString").foreColor, kWhite);
    EXPECT_EQ(Named(elements, "shpBackground").fillColor, kBlack);
    EXPECT_EQ(Named(elements, "lblString").backColor, (DrawColor{0xE0, 0xE0, 0xE0}));
    EXPECT_EQ(Named(elements, "lblString").font.name, "TolvaSmall");
}

// --- record ----------------------------------------------------------------------------------

class StringRecordTest : public ResourceFileTest {
protected:
    ctlKOMAString* First() { return static_cast<ctlKOMAString*>(Obj(type::String, 1)); }
};

TEST_F(StringRecordTest, TheRecordIsWrittenLineByLine) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::String, 10, 20, 60, 12));
    First()->KOMAText("Hi // there");
    LineList lines;
    bool ok = false;
    First()->ReturnResourceFileText(lines, ok);
    EXPECT_TRUE(ok);
    const std::vector<std::string> expected = {
        "//-----------------------------------------------------------------",
        "//----------- STRING_1 ------------------------------------------",
        "//-----------------------------------------------------------------",
        "#STRING", "NAME=STRING_1", "ID=" + std::to_string(First()->KOMAObjectID()), "~F0", "(B)OBJECT.TYPE=STRING", "~F1",
        "//0 - 65534 (if within table), 65535 means not within table",
        "(U)RELATED_TABLE_ID=65535", "~F2", "//0 - 159", "(SH)BOUNDS.X=10", "(SH)BOUNDS.Y=20",
        "//0 - 160", "(SH)BOUNDS.WIDTH=60", "(SH)BOUNDS.HEIGHT=12", "~F3",
        "//STRING_STYLE_0,STRING_STYLE_1,STRING_STYLE_2", "(B)STRING_STYLE=STRING_STYLE_0",
        "~F4", "//any text", "(S)STRING_TEXT=Hi // there", "~F5",
        "//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK",
        "(B)STRING_FONT_COLOR=COLOR_BLACK", "~F6", "(B)STRING_BACKGROUND_COLOR=COLOR_WHITE",
        "~F7", "//SMALL_FONT,MEDIUM_FONT", "(B)STRING_FONT=SMALL_FONT", "~F8",
        "//LEFT,CENTRE,RIGHT", "(B)STRING_TEXTMENT=LEFT", "~F9", "//TRUE or FALSE",
        "(BO)STRING_ATTR.STRING_VISIBLE=TRUE", "#END_STRING"};
    EXPECT_EQ(lines, expected);
}

TEST_F(StringRecordTest, AStringGoesThroughSaveAndLoadUnchanged) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::String, 10, 20, 60, 12));
    First()->KOMAFont(1);
    First()->KOMABackColor(7);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    ASSERT_TRUE(Reload(first));
    // The form names FORM.BMP, which does not stand in the working directory.
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Tolva Resource Editor: Bitmap not found"});
    ASSERT_EQ(screen.Count(type::String), 1);
    EXPECT_EQ(First()->KOMAFontWord(), "MEDIUM_FONT");
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(StringRecordTest, StyleFourIsKeptShownAndSavedUnchanged) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::String, 10, 20, 60, 12));
    First()->KOMAStringStyle(4);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    ASSERT_NE(first.find("(B)STRING_STYLE=STRING_STYLE_4\r\n"), std::string::npos);
    ASSERT_TRUE(Reload(first));
    EXPECT_EQ(First()->KOMAStringStyleWord(), "STRING_STYLE_4");
    PropertyArray rows;
    First()->GetPropertyList(rows);
    EXPECT_EQ(rows.Value(6).Text(), "STRING_STYLE_4");
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(StringRecordTest, TheOlderVisibleSpellingLoadsAndComesOutWithTheUnderscore) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::String, 10, 20, 60, 12));
    First()->KOMAVisible(false);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    std::string bytes = ReadBytes(path);
    const std::string written = "(BO)STRING_ATTR.STRING_VISIBLE=FALSE";
    const std::string older = "(BO)STRING_ATTR.STRING.VISIBLE=FALSE";
    const std::string saved = bytes;
    bytes.replace(bytes.find(written), written.size(), older);
    ASSERT_TRUE(Reload(bytes));
    EXPECT_EQ(First()->KOMAVisibleWord(), "FALSE");
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), saved);
}

TEST_F(StringRecordTest, AnotherVisibleKeyFailsAtItsLine) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::String, 10, 20, 60, 12));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    std::string bytes = ReadBytes(path);
    const std::string written = "(BO)STRING_ATTR.STRING_VISIBLE=";
    bytes.replace(bytes.find(written), written.size(), "(BO)STRING_VISIBLE=");
    Reload(bytes);
    const auto messages = host.MessageLines();
    ASSERT_GE(messages.size(), 2u);
    EXPECT_EQ(messages[0], "Tolva Resource Editor: Error on line 80:  (BO)STRING_VISIBLE=TRUE");
    EXPECT_EQ(messages[1], "Load Error: Could not load string object");
}

TEST_F(StringRecordTest, AppliedGroupsOfAnotherShapeChangeNothing) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::String, 10, 20, 60, 12));
    bool ok = true;
    First()->SetFromResText({{"S", "1"}, {"1", "2", "3"}, {"STRING_STYLE_1"}, {"x"},
                             {"COLOR_BLACK"}, {"COLOR_WHITE"}, {"SMALL_FONT"}, {"LEFT"},
                             {"TRUE"}},
                            ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(First()->KOMAText(), "String Text");
}

}  // namespace
}  // namespace tolva::testing
