// The Bitmap: its model and setters with their messages, its two pictures
// and their size rules, the 11 rows, the popup menu, its record written,
// read and applied, and its drawing.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

#include "document/RuntimeFailure.h"
#include "objects/bitmap/ctlKOMABitmap.h"
#include "objects/bitmap/modBitmap.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"
#include "resfile/ResourceReader.h"
#include "support/PictureObjectFixture.h"

namespace tolva::testing {
namespace {

namespace fs = std::filesystem;

class BitmapTest : public PictureObjectFixture<ctlKOMABitmap> {
protected:
    BitmapTest() : PictureObjectFixture("BITMAP_1", "b") {}
    ctlKOMABitmap& bitmap = object;
};

// --- model and setters ----------------------------------------------------------------------

TEST_F(BitmapTest, ANewBitmapHasItsDefaults) {
    EXPECT_EQ(bitmap.KOMAObjectTypeWord(), "BITMAP");
    EXPECT_EQ(bitmap.KOMAObjectType(), 2);
    EXPECT_EQ(bitmap.KOMAWidth(), 33);
    EXPECT_EQ(bitmap.KOMAHeight(), 33);
    EXPECT_EQ(bitmap.KOMARelatedTableID(), 65535);
    EXPECT_EQ(bitmap.KOMABitmapStyleWord(), "BITMAP_STYLE_0");
    EXPECT_EQ(bitmap.KOMABitmap1Width(), 10);
    EXPECT_EQ(bitmap.KOMABitmap1Height(), 10);
    EXPECT_EQ(bitmap.KOMABitmap2Width(), 10);
    EXPECT_EQ(bitmap.KOMABitmap2Height(), 10);
    EXPECT_EQ(bitmap.KOMABitmap1X(), 0);
    EXPECT_EQ(bitmap.KOMABitmap2Y(), 0);
    EXPECT_EQ(bitmap.KOMABitmap1File(), "");
    EXPECT_EQ(bitmap.KOMABitmap1Depth(), 4);
    EXPECT_EQ(bitmap.KOMABitmap2Depth(), 4);
    EXPECT_EQ(bitmap.KOMAEnableWord(), "TRUE");
    EXPECT_EQ(bitmap.KOMAActiveWord(), "TRUE");
    EXPECT_EQ(bitmap.KOMAVisibleWord(), "TRUE");
    EXPECT_FALSE(bitmap.ResizeOK());
    EXPECT_FALSE(bitmap.VertResizeOK());
    EXPECT_FALSE(bitmap.HorizResizeOK());
}

TEST_F(BitmapTest, PlaceSettersRefuseWithTheirMessagesUnderTheObjectsName) {
    bitmap.KOMABitmap1X(159);
    bitmap.KOMABitmap1X(160);
    bitmap.KOMABitmap1Y(-1);
    bitmap.KOMABitmap2X(200);
    bitmap.KOMABitmap2Y(160);
    bitmap.KOMABitmap1Width(161);
    bitmap.KOMABitmap1Height(-5);
    bitmap.KOMABitmap2Width(161);
    EXPECT_EQ(bitmap.KOMABitmap1X(), 159);
    EXPECT_EQ(bitmap.KOMABitmap1Y(), 0);
    EXPECT_EQ(bitmap.KOMABitmap1Width(), 10);
    EXPECT_EQ(Messages(), (std::vector<std::string>{
                              "BITMAP_1: Invalid Bitmap1X value: 160",
                              "BITMAP_1: Invalid Bitmap1Y value: -1",
                              "BITMAP_1: Invalid Bitmap2X value: 200",
                              "BITMAP_1: Invalid Bitmap2Y value: 160",
                              "BITMAP_1: Invalid Bitmap1Width value: 161",
                              "BITMAP_1: Invalid Bitmap1Height value: -5",
                              "BITMAP_1: Invalid Bitmap2Width value: 161",
                          }));
}

TEST_F(BitmapTest, TheSecondHeightIsTheOddOneOut) {
    bitmap.KOMABitmap2Height(160);
    EXPECT_EQ(bitmap.KOMABitmap2Height(), 160);
    bitmap.KOMABitmap2Height(161);
    EXPECT_EQ(bitmap.KOMABitmap2Height(), 160);
    ASSERT_EQ(owner.host.messages.size(), 1u);
    EXPECT_EQ(owner.host.messages[0].text, "Invalid value");
    EXPECT_EQ(owner.host.messages[0].title, "");
}

TEST_F(BitmapTest, DepthsTakeTwoAndFourOnlyAndSaySoNothing) {
    bitmap.KOMABitmap1Depth(2);
    bitmap.KOMABitmap2Depth(2);
    EXPECT_EQ(bitmap.KOMABitmap1Depth(), 2);
    bitmap.KOMABitmap1Depth(0);
    bitmap.KOMABitmap2Depth(8);
    EXPECT_EQ(bitmap.KOMABitmap1Depth(), 2);
    EXPECT_EQ(bitmap.KOMABitmap2Depth(), 2);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(BitmapTest, StyleWordsAreReadUpperCasedAndAnythingElseIsZero) {
    EXPECT_EQ(BitmapStyleWordToNumber("bitmap_style_1"), 1);
    EXPECT_EQ(BitmapStyleWordToNumber("BITMAP_STYLE_2"), 0);
    EXPECT_EQ(BitmapStyleWordToNumber(""), 0);
    bitmap.KOMABitmapStyle(1);
    EXPECT_EQ(bitmap.KOMABitmapStyleWord(), "BITMAP_STYLE_1");
}

// --- pictures -------------------------------------------------------------------------------

TEST_F(BitmapTest, APictureSetsTheSizeAndShowsAsBitmapOne) {
    MakePicture("ICON.BMP", 16, 12);
    bitmap.KOMABitmap1File("ICON.BMP");
    EXPECT_EQ(bitmap.KOMABitmap1File(), "ICON.BMP");
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Resized 16,12", "PicChanged"}));
    // The record's numbers are not touched by a picture.
    EXPECT_EQ(bitmap.KOMABitmap1Width(), 10);
    const DrawElementList elements = bitmap.GetDrawElements();
    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(elements[0].name, "imgBitmap1");
    EXPECT_TRUE(elements[0].visible);
    EXPECT_EQ(elements[0].imagePath, "ICON.BMP");
    EXPECT_EQ(elements[0].imageDepth, 4);
    const double s = bitmap.PCTwipsToTolvaPixels();
    EXPECT_DOUBLE_EQ(elements[0].rect.width, 16 * s);
    EXPECT_DOUBLE_EQ(elements[0].rect.height, 12 * s);
    EXPECT_EQ(elements[1].name, "imgBitmap2");
    EXPECT_FALSE(elements[1].visible);
}

TEST_F(BitmapTest, APictureOf160Fits161DoesNotAndSaysNothing) {
    MakePicture("BIG.BMP", 160, 160);
    bitmap.KOMABitmap1File("BIG.BMP");
    EXPECT_EQ(bitmap.KOMABitmap1File(), "BIG.BMP");
    bitmap.KOMABitmap1File("");
    Clear();
    MakePicture("WIDE.BMP", 161, 20);
    MakePicture("TALL.BMP", 20, 161);
    bitmap.KOMABitmap1File("WIDE.BMP");
    bitmap.KOMABitmap2File("TALL.BMP");
    EXPECT_EQ(bitmap.KOMABitmap1File(), "");
    EXPECT_EQ(bitmap.KOMABitmap2File(), "");
    EXPECT_TRUE(owner.host.messages.empty());
    EXPECT_TRUE(owner.events.empty());
}

TEST_F(BitmapTest, BothBitmapsMustBeTheSameSize) {
    // The owner sizes the object after the first picture, as the screen does.
    MakePicture("SMALL.BMP", 16, 16);
    MakePicture("LARGE.BMP", 20, 20);
    bitmap.KOMABitmap1File("SMALL.BMP");
    bitmap.KOMAWidth(16);
    bitmap.KOMAHeight(16);
    Clear();
    bitmap.KOMABitmap2File("LARGE.BMP");
    EXPECT_EQ(bitmap.KOMABitmap2File(), "");
    EXPECT_EQ(bitmap.KOMAWidth(), 16);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"BITMAP_1: Both bitmaps must be the same size."}));
    EXPECT_TRUE(owner.events.empty());
}

TEST_F(BitmapTest, WithBitmapOneRemovedAnySizeGoesForBitmapTwo) {
    MakePicture("SMALL.BMP", 16, 16);
    MakePicture("LARGE.BMP", 20, 20);
    bitmap.KOMABitmap1File("SMALL.BMP");
    bitmap.KOMAWidth(16);
    bitmap.KOMAHeight(16);
    bitmap.RemoveBitmap(1);
    EXPECT_EQ(bitmap.KOMABitmap1File(), "");
    Clear();
    bitmap.KOMABitmap2File("LARGE.BMP");
    EXPECT_EQ(bitmap.KOMABitmap2File(), "LARGE.BMP");
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Resized 20,20", "PicChanged"}));
    // Nothing of it is shown.
    for (const DrawElement& e : bitmap.GetDrawElements()) EXPECT_FALSE(e.visible) << e.name;
}

TEST_F(BitmapTest, AMissingFileIsBitmapNotFoundUnderTheName) {
    bitmap.KOMABitmap1File("NONE.BMP");
    EXPECT_EQ(bitmap.KOMABitmap1File(), "");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"BITMAP_1: Bitmap not found"}));
}

TEST_F(BitmapTest, AFileThatIsNoPictureIsNotFoundAndALongPathIsRefused) {
    std::ofstream("NOTE.BMP") << "not a picture";
    bitmap.KOMABitmap1File("NOTE.BMP");
    MakePicture("LongPictureName.bmp", 12, 9);
    bitmap.KOMABitmap1File("LongPictureName.bmp");
    EXPECT_EQ(bitmap.KOMABitmap1File(), "");
    ASSERT_EQ(owner.host.messages.size(), 2u);
    EXPECT_EQ(Messages()[0], "BITMAP_1: Bitmap not found");
    EXPECT_EQ(owner.host.messages[1].title, "Couldn't set bitmap");
    EXPECT_EQ(owner.host.messages[1].text.rfind("This file path is not in 8.3 format.", 0), 0u);
}

TEST_F(BitmapTest, ThePopupMenuChoosesAndRemovesEachPicture) {
    MakePicture("ICON.BMP", 16, 12);
    owner.host.popupAnswers.push_back(0);
    owner.host.fileAnswers.push_back(std::string("ICON.BMP"));
    bitmap.MouseDown(2, 0, 10, 10);
    ASSERT_EQ(owner.host.popups.size(), 1u);
    EXPECT_EQ(owner.host.popups[0].first, "Set Properties");
    EXPECT_EQ(owner.host.popups[0].second,
              (std::vector<std::string>{"Set Bitmap 1", "Set Bitmap 2", "Remove Bitmap 1",
                                        "Remove Bitmap 2"}));
    EXPECT_EQ(owner.host.popupNames.at(0),
              (std::vector<std::string>{"mnuSetPropBitmap1", "mnuSetPropBitmap2",
                                        "mnuSetPropRemove1", "mnuSetPropRemove2"}));
    EXPECT_EQ(owner.host.openRequests.at(0).filter, "Bitmaps (*.bmp)|*.bmp");
    EXPECT_EQ(bitmap.KOMABitmap1File(), "ICON.BMP");
    // The screen would size the object after the picture.
    bitmap.KOMAWidth(16);
    bitmap.KOMAHeight(12);
    // A right press raises no mouse-down event.
    for (const std::string& e : owner.events) EXPECT_EQ(e.find("MouseDown"), std::string::npos);

    owner.host.popupAnswers.push_back(1);
    owner.host.fileAnswers.push_back(std::string("ICON.BMP"));
    bitmap.MouseDown(2, 0, 10, 10);
    EXPECT_EQ(bitmap.KOMABitmap2File(), "ICON.BMP");
    owner.host.popupAnswers.push_back(3);
    bitmap.MouseDown(2, 0, 10, 10);
    EXPECT_EQ(bitmap.KOMABitmap2File(), "");
    owner.host.popupAnswers.push_back(2);
    bitmap.MouseDown(2, 0, 10, 10);
    EXPECT_EQ(bitmap.KOMABitmap1File(), "");
    // A cancelled chooser changes nothing.
    owner.host.popupAnswers.push_back(0);
    bitmap.MouseDown(2, 0, 10, 10);
    EXPECT_EQ(bitmap.KOMABitmap1File(), "");
}

// --- rows -----------------------------------------------------------------------------------

TEST_F(BitmapTest, ElevenRowsInTheirOrder) {
    bitmap.KOMABitmap2Depth(2);
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 11);
    const std::vector<std::string> labels = {
        "Name", "X Pos", "Y Pos", "Bitmap Style", "Enabled", "Visible", "Active",
        "Bitmap 2 (Unclicked)", "Bitmap 1 (Clicked)", "Bitmap Color Depth 1",
        "Bitmap Color Depth 2"};
    for (int i = 1; i <= 11; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    EXPECT_EQ(rows.Kind(8), rowkind::Button);
    EXPECT_EQ(rows.Kind(9), rowkind::Button);
    EXPECT_FALSE(rows.Value(8).Bool());
    EXPECT_EQ(rows.Value(10).Text(), "4 Bit");
    EXPECT_EQ(rows.Value(11).Text(), "2 Bit");
    ValueLists lists;
    FillBitmapValueLists(lists);
    ASSERT_EQ(lists.size(), 11u);
    EXPECT_EQ(lists[3], (std::vector<std::string>{"BITMAP_STYLE_0", "BITMAP_STYLE_1"}));
    EXPECT_EQ(lists[9], (std::vector<std::string>{"2 Bit", "4 Bit"}));
}

TEST_F(BitmapTest, RowsApplyNamePlaceStyleAttributesAndDepths) {
    PropertyArray rows = Rows();
    EXPECT_FALSE(bitmap.SetPropertyList(PropertyArray(10)));
    rows.At(3, 1) = PropertyCell(std::string("LOGO"));
    rows.At(3, 2) = PropertyCell(std::string("20"));
    rows.At(3, 3) = PropertyCell(std::string("30"));
    rows.At(3, 4) = PropertyCell(std::string("BITMAP_STYLE_1"));
    rows.At(3, 5) = PropertyCell(std::string("FALSE"));
    rows.At(3, 6) = PropertyCell(std::string("FALSE"));
    rows.At(3, 7) = PropertyCell(std::string("TRUE"));
    rows.At(3, 10) = PropertyCell(std::string("2 Bit"));
    rows.At(3, 11) = PropertyCell(std::string("anything"));
    ASSERT_TRUE(bitmap.SetPropertyList(rows));
    EXPECT_EQ(bitmap.KOMAName(), "LOGO");
    EXPECT_EQ(bitmap.KOMABoundsX(), 20);
    EXPECT_EQ(bitmap.KOMABoundsY(), 30);
    EXPECT_EQ(bitmap.KOMABitmapStyleWord(), "BITMAP_STYLE_1");
    EXPECT_EQ(bitmap.KOMAEnableWord(), "FALSE");
    EXPECT_EQ(bitmap.KOMAVisibleWord(), "FALSE");
    EXPECT_EQ(bitmap.KOMAActiveWord(), "TRUE");
    EXPECT_EQ(bitmap.KOMABitmap1Depth(), 2);
    EXPECT_EQ(bitmap.KOMABitmap2Depth(), 4);
}

TEST_F(BitmapTest, TheRowLabelledBitmapTwoSetsBitmapOneAndNothingElse) {
    MakePicture("ICON.BMP", 16, 12);
    owner.host.fileAnswers.push_back(std::string("ICON.BMP"));
    PropertyArray rows = Rows();
    rows.At(3, 1) = PropertyCell(std::string("OTHER"));
    rows.At(3, 8) = PropertyCell(true);
    ASSERT_TRUE(bitmap.SetPropertyList(rows));
    EXPECT_EQ(bitmap.KOMABitmap1File(), "ICON.BMP");
    EXPECT_EQ(bitmap.KOMABitmap2File(), "");
    EXPECT_EQ(bitmap.KOMAName(), "BITMAP_1");
    bitmap.KOMAWidth(16);
    bitmap.KOMAHeight(12);

    owner.host.fileAnswers.push_back(std::string("ICON.BMP"));
    rows = Rows();
    rows.At(3, 9) = PropertyCell(true);
    ASSERT_TRUE(bitmap.SetPropertyList(rows));
    EXPECT_EQ(bitmap.KOMABitmap2File(), "ICON.BMP");
}

// --- record ---------------------------------------------------------------------------------

TEST_F(BitmapTest, ANewBitmapsRecordLeavesBothSectionsBlank) {
    const LineList lines = RecordOf(bitmap);
    const LineList expected = {
        "#BITMAP",
        "NAME=BITMAP_1",
        "ID=0",
        "~F0",
        "(B)OBJECT.TYPE=BITMAP",
        "~F1",
        "//0 - 65534 (if within table), 65535 means not within table",
        "(U)RELATED_TABLE_ID=65535",
        "~F2",
        "//0 - 159",
        "(SH)BOUNDS.X=0",
        "(SH)BOUNDS.Y=0",
        "//0 - 160",
        "(SH)BOUNDS.WIDTH=33",
        "(SH)BOUNDS.HEIGHT=33",
        "~F3",
        "//BITMAP_STYLE_0,BITMAP_STYLE_1,BITMAP_STYLE_2",
        "(B)BITMAP_STYLE=BITMAP_STYLE_0",
        "~F4",
        "//You did not specify a bitmap so this section has been left blank",
        "~F5",
        "//You did not specify a bitmap so this section has been left blank",
        "~F6",
        "//TRUE or FALSE",
        "(BO)BITMAP_ATTR.BITMAP_ENABLE=TRUE",
        "(BO)BITMAP_ATTR.BITMAP_ACTIVE=TRUE",
        "(BO)BITMAP_ATTR.BITMAP_VISIBLE=TRUE",
        "#END_BITMAP",
    };
    ASSERT_EQ(lines.size(), expected.size() + 3);  // the banner first
    EXPECT_EQ(lines[1], "//----------- BITMAP_1 ------------------------------------------");
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(lines[i + 3], expected[i]) << i;
}

TEST_F(BitmapTest, APictureSectionWithItsDepthAndAMissingFileComment) {
    MakePicture("ICON.BMP", 16, 12);
    bitmap.KOMABitmap1File("ICON.BMP");
    bitmap.KOMABitmap1Depth(2);
    bitmap.KOMABitmap1X(3);
    bitmap.KOMABitmap1Y(4);
    bitmap.KOMABitmap1Width(16);
    bitmap.KOMABitmap1Height(12);
    LineList lines = RecordOf(bitmap);
    auto at = std::find(lines.begin(), lines.end(), "~F4");
    ASSERT_NE(at, lines.end());
    EXPECT_EQ(LineList(at + 1, at + 9), (LineList{
                                              "//0 - 159",
                                              "(SH)BITMAP1_BITMAP.X=3",
                                              "(SH)BITMAP1_BITMAP.Y=4",
                                              "//0 - 160",
                                              "(SH)BITMAP1_BITMAP.WIDTH=16",
                                              "(SH)BITMAP1_BITMAP.HEIGHT=12",
                                              "(P)BITMAP1_BITMAP.FILE=Q_TWO_BIT,ICON.BMP",
                                              "~F5",
                                          }));
    // A file gone after it was set stays, with the comment before it.
    fs::remove("ICON.BMP");
    owner.host.pictures.erase("ICON.BMP");
    lines = RecordOf(bitmap);
    at = std::find(lines.begin(), lines.end(), "(SH)BITMAP1_BITMAP.HEIGHT=12");
    ASSERT_NE(at, lines.end());
    EXPECT_EQ(*(at + 1),
              "//Could not find this bitmap - make sure it is in the specified path before compiling");
    EXPECT_EQ(*(at + 2), "(P)BITMAP1_BITMAP.FILE=Q_TWO_BIT,ICON.BMP");
}

bool Parse(const std::string& text, LoadedRecord& record, ScriptedHost& host) {
    ResourceReader reader = ResourceReader::FromText(text);
    RecordReader in(reader, host);
    return ParseBitmapRecord(in, record);
}

std::string Joined(const LineList& lines, std::size_t from) {
    std::string text;
    for (std::size_t i = from; i < lines.size(); ++i) text += lines[i] + "\r\n";
    return text;
}

TEST_F(BitmapTest, TheRecordIsReadBackGroupByGroup) {
    MakePicture("ICON.BMP", 16, 12);
    MakePicture("ICON2.BMP", 16, 12);
    bitmap.KOMABitmap1File("ICON.BMP");
    bitmap.KOMAWidth(16);
    bitmap.KOMAHeight(12);
    bitmap.KOMABitmap2File("ICON2.BMP");
    bitmap.KOMABitmap2Depth(2);
    bitmap.KOMAActive(false);
    const LineList lines = RecordOf(bitmap);
    LoadedRecord record;
    // From the line after "#BITMAP", as the loader hands it over.
    ASSERT_TRUE(Parse(Joined(lines, 4), record, owner.host));
    ASSERT_EQ(record.groups.size(), 8u);
    EXPECT_EQ(record.name, "BITMAP_1");
    EXPECT_EQ(record.kindWord, "BITMAP");
    EXPECT_EQ(record.groups[2], (ValueGroup{"BITMAP_STYLE_0"}));
    EXPECT_EQ(record.groups[3], (ValueGroup{"0", "0", "10", "10", "ICON.BMP"}));
    EXPECT_EQ(record.groups[4], (ValueGroup{"0", "0", "10", "10", "ICON2.BMP"}));
    EXPECT_EQ(record.groups[5], (ValueGroup{"TRUE", "FALSE", "TRUE"}));
    EXPECT_EQ(record.groups[6], (ValueGroup{"4"}));
    EXPECT_EQ(record.groups[7], (ValueGroup{"2"}));
}

TEST_F(BitmapTest, ALeftOutSectionReadsAsZerosAndADepthOfZeroThatIsIgnored) {
    const LineList lines = RecordOf(bitmap);
    LoadedRecord record;
    ASSERT_TRUE(Parse(Joined(lines, 4), record, owner.host));
    EXPECT_EQ(record.groups[3], (ValueGroup{"0", "0", "0", "0", ""}));
    EXPECT_EQ(record.groups[6], (ValueGroup{"0"}));
    ctlKOMABitmap loaded;
    loaded.SetOwner(&owner);
    loaded.KOMABitmap1Depth(2);
    bool ok = false;
    loaded.SetFromResText(record.groups, ok);
    ASSERT_TRUE(ok);
    // The depth of 0 is passed over: the old depth stays.
    EXPECT_EQ(loaded.KOMABitmap1Depth(), 2);
    EXPECT_EQ(loaded.KOMABitmap2Depth(), 4);
}

TEST_F(BitmapTest, ALineOutOfPlaceIsReportedAndTheParseFails) {
    std::string text = Joined(RecordOf(bitmap), 4);
    const std::string marker = "~F5\r\n";
    text.replace(text.find(marker), marker.size(), "~F9\r\n");
    LoadedRecord record;
    EXPECT_FALSE(Parse(text, record, owner.host));
    ASSERT_EQ(owner.host.messages.size(), 1u);
    EXPECT_EQ(owner.host.messages[0].text.rfind("Error on line ", 0), 0u);
    EXPECT_NE(owner.host.messages[0].text.find("~F9"), std::string::npos);
    // A picture section whose file line has no depth word.
    owner.host.ClearRecord();
    MakePicture("ICON.BMP", 16, 12);
    bitmap.KOMABitmap1File("ICON.BMP");
    text = Joined(RecordOf(bitmap), 4);
    const std::string fileLine = "(P)BITMAP1_BITMAP.FILE=Q_FOUR_BIT,";
    text.replace(text.find(fileLine), fileLine.size(), "(P)BITMAP1_BITMAP.FILE=Q_EIGHT_BIT,");
    EXPECT_FALSE(Parse(text, record, owner.host));
    EXPECT_EQ(owner.host.messages.size(), 1u);
    // A place that is no number ends the load.
    text = Joined(RecordOf(bitmap), 4);
    const std::string x = "(SH)BITMAP1_BITMAP.X=0";
    text.replace(text.find(x), x.size(), "(SH)BITMAP1_BITMAP.X=zero");
    EXPECT_THROW(Parse(text, record, owner.host), RuntimeFailure);
}

TEST_F(BitmapTest, AppliedGroupsNeedTheirShape) {
    bool ok = true;
    bitmap.SetFromResText(GroupList(7), ok);
    EXPECT_FALSE(ok);
    const LineList lines = RecordOf(bitmap);
    LoadedRecord record;
    ASSERT_TRUE(Parse(Joined(lines, 4), record, owner.host));
    GroupList groups = record.groups;
    groups[3].pop_back();
    ok = true;
    bitmap.SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
}

TEST_F(BitmapTest, AMissingFileOnLoadIsReportedAndTheSectionIsWrittenBlank) {
    MakePicture("ICON.BMP", 16, 12);
    bitmap.KOMABitmap1File("ICON.BMP");
    const LineList lines = RecordOf(bitmap);
    LoadedRecord record;
    ASSERT_TRUE(Parse(Joined(lines, 4), record, owner.host));
    fs::remove("ICON.BMP");
    owner.host.pictures.erase("ICON.BMP");
    Clear();
    ctlKOMABitmap loaded;
    loaded.SetOwner(&owner);
    bool ok = false;
    loaded.SetFromResText(record.groups, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(loaded.KOMABitmap1File(), "");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"BITMAP_1: Bitmap not found"}));
    const LineList again = RecordOf(loaded);
    const auto at = std::find(again.begin(), again.end(), "~F4");
    ASSERT_NE(at, again.end());
    EXPECT_EQ(*(at + 1), "//You did not specify a bitmap so this section has been left blank");
}

TEST_F(BitmapTest, CopyTakesTheWholeModel) {
    MakePicture("ICON.BMP", 16, 12);
    bitmap.KOMABitmap1File("ICON.BMP");
    bitmap.KOMABitmap2Depth(2);
    bitmap.KOMABitmapStyle(1);
    ctlKOMABitmap copy;
    ASSERT_TRUE(copy.CopyModelFrom(bitmap));
    EXPECT_EQ(copy.KOMABitmap1File(), "ICON.BMP");
    EXPECT_EQ(copy.KOMABitmap2Depth(), 2);
    EXPECT_EQ(copy.KOMABitmapStyleWord(), "BITMAP_STYLE_1");
    EXPECT_TRUE(copy.GetDrawElements()[0].visible);
}

}  // namespace
}  // namespace tolva::testing
