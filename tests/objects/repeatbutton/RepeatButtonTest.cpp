// The Repeat button: its model and setters with their messages, its picture
// and the size it gives, the 9 rows, the popup menu, its record written,
// read and applied, and its drawing.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>

#include "document/RuntimeFailure.h"
#include "objects/repeatbutton/ctlKOMARepeatButton.h"
#include "objects/repeatbutton/modRepeatbutton.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"
#include "resfile/ResourceReader.h"
#include "support/PictureObjectFixture.h"

namespace tolva::testing {
namespace {

namespace fs = std::filesystem;

class RepeatButtonTest : public PictureObjectFixture<ctlKOMARepeatButton> {
protected:
    RepeatButtonTest() : PictureObjectFixture("REPEATBUTTON_1", "r") {}
    ctlKOMARepeatButton& button = object;

    // What the screen does in answer to the resized event: the object's
    // size on the canvas.
    void SizeLikeTheScreen(int width, int height) {
        const double s = button.PCTwipsToTolvaPixels();
        button.SetCanvasSize(width * s, height * s);
    }
};

// --- model and setters ----------------------------------------------------------------------

TEST_F(RepeatButtonTest, ANewRepeatButtonHasItsDefaults) {
    EXPECT_EQ(button.KOMAObjectTypeWord(), "CONTROL");
    EXPECT_EQ(button.KOMAObjectType(), 1);
    EXPECT_EQ(button.KOMAControlStyleWord(), "REPEAT_BUTTON");
    EXPECT_EQ(button.KOMAControlStyle(), 1);
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "REPEATBUTTON_STYLE_0");
    EXPECT_EQ(button.KOMAControlText(), "Button Text");
    EXPECT_EQ(button.KOMATextAlignmentWord(), "LEFT");
    EXPECT_EQ(button.KOMAWidth(), 33);
    EXPECT_EQ(button.KOMAHeight(), 33);
    EXPECT_EQ(button.KOMARelatedTableID(), 65535);
    EXPECT_EQ(button.KOMABitmapX(), 0);
    EXPECT_EQ(button.KOMABitmapY(), 0);
    EXPECT_EQ(button.KOMABitmapWidth(), 10);
    EXPECT_EQ(button.KOMABitmapHeight(), 10);
    EXPECT_EQ(button.KOMABitmapFile(), "");
    EXPECT_EQ(button.KOMABitmapDepth(), 4);
    EXPECT_EQ(button.KOMAEnableWord(), "TRUE");
    EXPECT_EQ(button.KOMAActiveWord(), "TRUE");
    EXPECT_EQ(button.KOMAVisibleWord(), "TRUE");
    EXPECT_FALSE(button.ResizeOK());
    EXPECT_FALSE(button.VertResizeOK());
    EXPECT_FALSE(button.HorizResizeOK());
}

TEST_F(RepeatButtonTest, PlaceSettersRefuseUnderTheirOwnNames) {
    button.KOMABitmapX(159);
    button.KOMABitmapY(159);
    button.KOMABitmapX(160);
    button.KOMABitmapY(-1);
    EXPECT_EQ(button.KOMABitmapX(), 159);
    EXPECT_EQ(button.KOMABitmapY(), 159);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"KOMABitmapX: Invalid value",
                                                    "KOMABitmapY: Invalid value"}));
}

TEST_F(RepeatButtonTest, SizeSettersRefuseUnderTheApplicationsTitle) {
    button.KOMABitmapWidth(160);
    button.KOMABitmapHeight(0);
    button.KOMABitmapWidth(161);
    button.KOMABitmapHeight(-1);
    EXPECT_EQ(button.KOMABitmapWidth(), 160);
    EXPECT_EQ(button.KOMABitmapHeight(), 0);
    ASSERT_EQ(owner.host.messages.size(), 2u);
    for (const auto& message : owner.host.messages) {
        EXPECT_EQ(message.text, "Invalid value");
        EXPECT_EQ(message.title, "");
    }
}

TEST_F(RepeatButtonTest, DepthTakesTwoAndFourOnlyAndSaysNothing) {
    button.KOMABitmapDepth(2);
    EXPECT_EQ(button.KOMABitmapDepth(), 2);
    button.KOMABitmapDepth(8);
    button.KOMABitmapDepth(0);
    EXPECT_EQ(button.KOMABitmapDepth(), 2);
    button.KOMABitmapDepth(4);
    EXPECT_EQ(button.KOMABitmapDepth(), 4);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(RepeatButtonTest, TheOneStyleAndAnyOtherNumberIsTheEmptyWord) {
    EXPECT_EQ(RepeatButtonStyleWordToNumber("REPEATBUTTON_STYLE_0"), 0);
    EXPECT_EQ(RepeatButtonStyleWordToNumber("repeatbutton_style_0"), 0);
    EXPECT_EQ(RepeatButtonStyleWordToNumber("REPEATBUTTON_STYLE_1"), 0);
    EXPECT_EQ(RepeatButtonStyleWordToNumber(""), 0);
    button.KOMAControlSubType(1);
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "");
    button.KOMAControlSubType(0);
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "REPEATBUTTON_STYLE_0");
}

TEST_F(RepeatButtonTest, TheControlStyleSetterKnowsOneAndRefusesTheButtonsZero) {
    button.KOMAControlStyle(1);
    EXPECT_EQ(button.KOMAControlStyleWord(), "REPEAT_BUTTON");
    EXPECT_TRUE(owner.host.messages.empty());
    button.KOMAControlStyle(0);
    EXPECT_EQ(button.KOMAControlStyleWord(), "REPEAT_BUTTON");
    ASSERT_EQ(owner.host.messages.size(), 1u);
    EXPECT_EQ(owner.host.messages[0].text, "Unknown control style");
    EXPECT_EQ(owner.host.messages[0].title, "KOMAControlStyle");
    button.KOMAControlStyle(3);
    EXPECT_EQ(button.KOMAControlStyleWord(), "REPEAT_BUTTON");
    EXPECT_EQ(owner.host.messages.size(), 1u);
}

// --- the picture ----------------------------------------------------------------------------

TEST_F(RepeatButtonTest, APictureSizesTheObjectAndTheRecordsPlaceFollowsIt) {
    button.KOMABoundsX(12);
    button.KOMABoundsY(30);
    MakePicture("ARROW.BMP", 16, 12);
    // The owner answers the resized event as the screen does.
    owner.events.clear();
    button.KOMABitmapFile("ARROW.BMP");
    EXPECT_EQ(button.KOMABitmapFile(), "ARROW.BMP");
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Resized 16,12"}));
    EXPECT_EQ(button.KOMABitmapX(), 12);
    EXPECT_EQ(button.KOMABitmapY(), 30);
    // The owner has not resized the object: the record's size is the
    // object's as it stands.
    EXPECT_EQ(button.KOMABitmapWidth(), 33);
    EXPECT_EQ(button.KOMABitmapHeight(), 33);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(RepeatButtonTest, ThePicturesSizeReachesTheRecordThroughTheObjectsSize) {
    MakePicture("ARROW.BMP", 16, 12);
    SizeLikeTheScreen(16, 12);
    button.KOMABitmapFile("ARROW.BMP");
    EXPECT_EQ(button.KOMABitmapWidth(), 16);
    EXPECT_EQ(button.KOMABitmapHeight(), 12);
}

TEST_F(RepeatButtonTest, APictureOf200IsAcceptedThoughTheWidthsRangeThenFails) {
    MakePicture("HUGE.BMP", 200, 200);
    button.KOMABitmapFile("HUGE.BMP");
    EXPECT_EQ(button.KOMABitmapFile(), "HUGE.BMP");
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Resized 200,200"}));
    EXPECT_TRUE(owner.host.messages.empty());
    // An owner that sizes the object to it meets the width's and height's
    // range.
    SizeLikeTheScreen(200, 200);
    EXPECT_EQ(button.KOMAWidth(), 33);
    EXPECT_EQ(Messages(), (std::vector<std::string>{"Tolva Resource Editor: Invalid value",
                                                    "Tolva Resource Editor: Invalid value"}));
}

TEST_F(RepeatButtonTest, AMissingFileIsBitmapNotFoundUnderTheApplicationsTitle) {
    MakePicture("ARROW.BMP", 16, 12);
    button.KOMABitmapFile("ARROW.BMP");
    Clear();
    button.KOMABitmapFile("GONE.BMP");
    EXPECT_EQ(button.KOMABitmapFile(), "ARROW.BMP");
    ASSERT_EQ(owner.host.messages.size(), 1u);
    EXPECT_EQ(owner.host.messages[0].text, "Bitmap not found");
    EXPECT_EQ(owner.host.messages[0].title, "");
    EXPECT_TRUE(owner.events.empty());
}

TEST_F(RepeatButtonTest, AFileThatIsNoPictureAndALongPathAreRefused) {
    std::ofstream("NOTE.BMP") << "not a picture";
    button.KOMABitmapFile("NOTE.BMP");
    MakePicture("LongPictureName.bmp", 12, 9);
    button.KOMABitmapFile("LongPictureName.bmp");
    EXPECT_EQ(button.KOMABitmapFile(), "");
    ASSERT_EQ(owner.host.messages.size(), 2u);
    EXPECT_EQ(owner.host.messages[0].text, "Bitmap not found");
    EXPECT_EQ(owner.host.messages[1].title, "Couldn't set bitmap");
    EXPECT_EQ(owner.host.messages[1].text.rfind("This file path is not in 8.3 format.", 0), 0u);
}

TEST_F(RepeatButtonTest, TheEmptyPathTakesThePictureAwayAndKeepsTheSize) {
    MakePicture("ARROW.BMP", 16, 12);
    SizeLikeTheScreen(16, 12);
    button.KOMABitmapFile("ARROW.BMP");
    Clear();
    button.KOMABitmapFile("");
    EXPECT_EQ(button.KOMABitmapFile(), "");
    EXPECT_EQ(button.KOMAWidth(), 16);
    EXPECT_EQ(button.KOMAHeight(), 12);
    EXPECT_TRUE(owner.events.empty());
    EXPECT_FALSE(button.GetDrawElements()[1].visible);
}

TEST_F(RepeatButtonTest, ThePopupMenuChoosesAndRemovesThePicture) {
    MakePicture("ARROW.BMP", 16, 12);
    owner.host.popupAnswers.push_back(0);
    owner.host.fileAnswers.push_back(std::string("ARROW.BMP"));
    button.MouseDown(2, 0, 10, 10);
    ASSERT_EQ(owner.host.popups.size(), 1u);
    EXPECT_EQ(owner.host.popups[0].first, "Set Properties");
    EXPECT_EQ(owner.host.popups[0].second,
              (std::vector<std::string>{"Set Repeat-Button Bitmap", "Remove Repeat-Button Bitmap"}));
    EXPECT_EQ(owner.host.popupNames[0],
              (std::vector<std::string>{"mnuSetRepeatButtonBitmap", "mnuRemoveRepeatButtonBitmap"}));
    ASSERT_EQ(owner.host.openRequests.size(), 1u);
    EXPECT_EQ(owner.host.openRequests[0].title, "Select Repeat-Button Bitmap");
    EXPECT_EQ(owner.host.openRequests[0].initialName, "*.bmp");
    EXPECT_EQ(owner.host.openRequests[0].filter, "Bitmaps (*.bmp)|*.bmp");
    EXPECT_EQ(button.KOMABitmapFile(), "ARROW.BMP");
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Resized 16,12", "PicChanged"}));

    owner.events.clear();
    owner.host.popupAnswers.push_back(1);
    button.MouseDown(2, 0, 10, 10);
    EXPECT_EQ(button.KOMABitmapFile(), "");
    EXPECT_EQ(owner.events, (std::vector<std::string>{"PicChanged"}));

    // A cancelled chooser changes nothing, and raises nothing.
    owner.events.clear();
    owner.host.popupAnswers.push_back(0);
    button.MouseDown(2, 0, 10, 10);
    EXPECT_EQ(button.KOMABitmapFile(), "");
    EXPECT_TRUE(owner.events.empty());
    // A closed menu does nothing; a left press is the mouse-down event.
    button.MouseDown(2, 0, 10, 10);
    EXPECT_TRUE(owner.events.empty());
    button.MouseDown(1, 0, 10, 10);
    EXPECT_EQ(owner.events, (std::vector<std::string>{"MouseDown 1,0,10,10"}));
}

// --- rows -----------------------------------------------------------------------------------

TEST_F(RepeatButtonTest, NineRowsInTheirOrder) {
    button.KOMABitmapDepth(2);
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 9);
    ASSERT_EQ(rows.Columns(), 3);
    const std::vector<std::string> labels = {"Name",    "X Pos",   "Y Pos",
                                             "Repeat Button Style", "Enabled", "Active",
                                             "Visible", "Bitmap File", "Bitmap Color Depth 1"};
    for (int i = 1; i <= 9; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    EXPECT_EQ(rows.Value(1).Text(), "REPEATBUTTON_1");
    EXPECT_EQ(rows.Value(4).Text(), "REPEATBUTTON_STYLE_0");
    EXPECT_EQ(rows.Kind(4), rowkind::Choice);
    EXPECT_EQ(rows.Kind(8), rowkind::Button);
    EXPECT_FALSE(rows.Value(8).Bool());
    EXPECT_EQ(rows.Value(9).Text(), "2 Bit");
    button.KOMABitmapDepth(4);
    EXPECT_EQ(Rows().Value(9).Text(), "4 Bit");
    ValueLists lists;
    FillRepeatButtonValueLists(lists);
    ASSERT_EQ(lists.size(), 9u);
    EXPECT_EQ(lists[3], (std::vector<std::string>{"REPEATBUTTON_STYLE_0"}));
    EXPECT_EQ(lists[4], (std::vector<std::string>{"TRUE", "FALSE"}));
    EXPECT_EQ(lists[6], (std::vector<std::string>{"TRUE", "FALSE"}));
    EXPECT_TRUE(lists[7].empty());
    EXPECT_EQ(lists[8], (std::vector<std::string>{"2 Bit", "4 Bit"}));
}

TEST_F(RepeatButtonTest, RowsApplyNamePlaceWithThePicturesPlaceAttributesAndDepth) {
    EXPECT_FALSE(button.SetPropertyList(PropertyArray(10)));
    PropertyArray rows = Rows();
    rows.At(3, 1) = PropertyCell(std::string("FASTER"));
    rows.At(3, 2) = PropertyCell(std::string("20"));
    rows.At(3, 3) = PropertyCell(std::string("30"));
    rows.At(3, 5) = PropertyCell(std::string("FALSE"));
    rows.At(3, 6) = PropertyCell(std::string("FALSE"));
    rows.At(3, 7) = PropertyCell(std::string("TRUE"));
    rows.At(3, 9) = PropertyCell(std::string("2 Bit"));
    ASSERT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMAName(), "FASTER");
    EXPECT_EQ(button.KOMABoundsX(), 20);
    EXPECT_EQ(button.KOMABoundsY(), 30);
    EXPECT_EQ(button.KOMABitmapX(), 20);
    EXPECT_EQ(button.KOMABitmapY(), 30);
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Moved 20,0", "Moved 20,30"}));
    EXPECT_EQ(button.KOMAEnableWord(), "FALSE");
    EXPECT_EQ(button.KOMAActiveWord(), "FALSE");
    EXPECT_EQ(button.KOMAVisibleWord(), "TRUE");
    EXPECT_EQ(button.KOMABitmapDepth(), 2);
    // Any other text of the depth row is 4.
    rows = Rows();
    rows.At(3, 9) = PropertyCell(std::string("8 Bit"));
    ASSERT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMABitmapDepth(), 4);
}

TEST_F(RepeatButtonTest, ARefusedPlaceLeavesThePicturesPlaceWithTheObjects) {
    button.KOMABoundsX(12);
    button.KOMABitmapX(12);
    PropertyArray rows = Rows();
    rows.At(3, 2) = PropertyCell(std::string("170"));
    rows.At(3, 3) = PropertyCell(std::string("ten"));
    ASSERT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMABoundsX(), 12);
    EXPECT_EQ(button.KOMABitmapX(), 12);
    EXPECT_EQ(button.KOMABoundsY(), 0);
    // One message, the position's own; the picture's place says nothing.
    EXPECT_EQ(owner.host.messages.size(), 1u);
}

TEST_F(RepeatButtonTest, TheBitmapFileRowChoosesAPictureAndDoesNothingElse) {
    MakePicture("ARROW.BMP", 16, 12);
    owner.host.fileAnswers.push_back(std::string("ARROW.BMP"));
    PropertyArray rows = Rows();
    rows.At(3, 1) = PropertyCell(std::string("OTHER"));
    rows.At(3, 9) = PropertyCell(std::string("2 Bit"));
    rows.At(3, 8) = PropertyCell(true);
    ASSERT_TRUE(button.SetPropertyList(rows));
    EXPECT_EQ(button.KOMABitmapFile(), "ARROW.BMP");
    EXPECT_EQ(button.KOMAName(), "REPEATBUTTON_1");
    EXPECT_EQ(button.KOMABitmapDepth(), 4);
    EXPECT_EQ(owner.host.openRequests.at(0).title, "Select Repeat-Button Bitmap");
}

// --- drawing --------------------------------------------------------------------------------

TEST_F(RepeatButtonTest, WithoutAPictureItIsALightBlueBlock) {
    SizeLikeTheScreen(33, 33);
    const DrawElementList elements = button.GetDrawElements();
    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(elements[0].kind, DrawElementKind::Shape);
    EXPECT_TRUE(elements[0].visible);
    EXPECT_TRUE(elements[0].filled);
    EXPECT_FALSE(elements[0].outline);
    EXPECT_EQ(elements[0].fillColor, (DrawColor{0x80, 0x80, 0xFF}));
    EXPECT_DOUBLE_EQ(elements[0].rect.width, button.Width());
    EXPECT_DOUBLE_EQ(elements[0].rect.height, button.Height());
    EXPECT_EQ(elements[1].name, "imgBitmap");
    EXPECT_FALSE(elements[1].visible);
}

TEST_F(RepeatButtonTest, ThePictureStandsOneDesktopPixelInInTheGreysOfItsDepth) {
    MakePicture("ARROW.BMP", 16, 12);
    button.KOMABitmapDepth(2);
    button.KOMABitmapFile("ARROW.BMP");
    const DrawElementList elements = button.GetDrawElements();
    ASSERT_EQ(elements.size(), 2u);
    const DrawElement& image = elements[1];
    EXPECT_EQ(image.kind, DrawElementKind::Image);
    EXPECT_TRUE(image.visible);
    EXPECT_EQ(image.imagePath, "ARROW.BMP");
    EXPECT_EQ(image.imageDepth, 2);
    const double s = button.PCTwipsToTolvaPixels();
    EXPECT_DOUBLE_EQ(image.rect.left, 15);
    EXPECT_DOUBLE_EQ(image.rect.top, 15);
    EXPECT_DOUBLE_EQ(image.rect.width, 16 * s);
    EXPECT_DOUBLE_EQ(image.rect.height, 12 * s);
}

// --- record ---------------------------------------------------------------------------------

TEST_F(RepeatButtonTest, ANewRepeatButtonsRecordLineByLine) {
    const LineList lines = RecordOf(button);
    const LineList expected = {
        "//-----------------------------------------------------------------",
        "//----------- REPEATBUTTON_1 ---------------------",
        "//-----------------------------------------------------------------",
        "#CONTROL",
        "NAME=REPEATBUTTON_1",
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
        "(SH)BOUNDS.WIDTH=33",
        "(SH)BOUNDS.HEIGHT=33",
        "~F3",
        "(B)CONTROL_STYLE=REPEAT_BUTTON",
        "~F4",
        "//REPEATBUTTON_STYLE_0,REPEATBUTTON_STYLE_1,REPEATBUTTON_STYLE_2, ...",
        "(B)CONTROL_SUBTYPE=REPEATBUTTON_STYLE_0",
        "~F5",
        "//any text",
        "(S)CONTROL_TEXT=Button Text",
        "~F6",
        "//LEFT,CENTRE,RIGHT",
        "(B)TEXTMENT=LEFT",
        "~F7",
        "//TRUE or FALSE",
        "(BO)CONTROL_ATTR.ENABLE=TRUE",
        "(BO)CONTROL_ATTR.ACTIVE=TRUE",
        "(BO)CONTROL_ATTR.VISIBLE=TRUE",
        "~F8",
        "//0 - 159",
        "(SH)CONTROL_BITMAP.X=0",
        "(SH)CONTROL_BITMAP.Y=0",
        "//0 - 160",
        "(SH)CONTROL_BITMAP.WIDTH=10",
        "(SH)CONTROL_BITMAP.HEIGHT=10",
        "//You did not specify a bitmap so this section has been left blank",
        "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,form.bmp",
        "#END_CONTROL",
    };
    ASSERT_EQ(lines.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(lines[i], expected[i]) << i;
}

TEST_F(RepeatButtonTest, ABlankPictureAtDepthTwoStillNamesFormBmp) {
    button.KOMABitmapDepth(2);
    const LineList lines = RecordOf(button);
    EXPECT_EQ(lines[lines.size() - 3],
              "//You did not specify a bitmap so this section has been left blank");
    EXPECT_EQ(lines[lines.size() - 2], "(P)CONTROL_BITMAP.FILE=Q_TWO_BIT,form.bmp");
}

TEST_F(RepeatButtonTest, APictureLineAndTheCommentOfAFileGoneSince) {
    MakePicture("ARROW.BMP", 16, 12);
    button.KOMABitmapFile("ARROW.BMP");
    LineList lines = RecordOf(button);
    EXPECT_EQ(lines[lines.size() - 3], "(SH)CONTROL_BITMAP.HEIGHT=33");
    EXPECT_EQ(lines[lines.size() - 2], "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,ARROW.BMP");
    fs::remove("ARROW.BMP");
    owner.host.pictures.erase("ARROW.BMP");
    lines = RecordOf(button);
    EXPECT_EQ(lines[lines.size() - 3],
              "//Could not find this bitmap - make sure it is in the specified path before compiling");
    EXPECT_EQ(lines[lines.size() - 2], "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,ARROW.BMP");
}

bool Parse(const std::string& text, LoadedRecord& record, ScriptedHost& host) {
    ResourceReader reader = ResourceReader::FromText(text);
    RecordReader in(reader, host);
    return ParseRepeatButtonRecordTail(in, record);
}

// The tail of a record as the loader hands it to the kind's parser: the line
// after "(BO)CONTROL_ATTR.VISIBLE=" on.
std::string Tail(const LineList& lines) {
    const auto at = std::find(lines.begin(), lines.end(), "(BO)CONTROL_ATTR.VISIBLE=TRUE");
    std::string text;
    for (auto it = at + 1; it != lines.end(); ++it) text += *it + "\r\n";
    return text;
}

TEST_F(RepeatButtonTest, TheTailIsReadIntoGroupSix) {
    MakePicture("ARROW.BMP", 16, 12);
    button.KOMABitmapFile("ARROW.BMP");
    button.KOMABitmapX(7);
    button.KOMABitmapHeight(150);
    LoadedRecord record;
    ASSERT_TRUE(Parse(Tail(RecordOf(button)), record, owner.host));
    ASSERT_EQ(record.groups.size(), 7u);
    EXPECT_EQ(record.groups[6], (ValueGroup{"7", "0", "33", "150", "ARROW.BMP"}));
}

TEST_F(RepeatButtonTest, ADepthOfTwoInTheRecordDoesNotSurviveTheLoad) {
    // The record names Q_TWO_BIT; the applied groups carry no depth.
    MakePicture("ARROW.BMP", 16, 12);
    button.KOMABitmapFile("ARROW.BMP");
    button.KOMABitmapDepth(2);
    const LineList written = RecordOf(button);
    ASSERT_EQ(written[written.size() - 2], "(P)CONTROL_BITMAP.FILE=Q_TWO_BIT,ARROW.BMP");
    LoadedRecord record;
    ASSERT_TRUE(Parse(Tail(written), record, owner.host));

    ctlKOMARepeatButton loaded;
    loaded.SetOwner(&owner);
    GroupList groups = record.groups;
    groups[0] = {"REPEATBUTTON_1", "3"};
    groups[1] = {"0", "0", "16", "12"};
    groups[2] = {"REPEATBUTTON_STYLE_0"};
    groups[3] = {"Button Text"};
    groups[4] = {"LEFT"};
    groups[5] = {"TRUE", "TRUE", "TRUE"};
    bool ok = false;
    loaded.SetFromResText(groups, ok);
    ASSERT_TRUE(ok);
    EXPECT_EQ(loaded.KOMABitmapDepth(), 4);
    PropertyArray rows;
    loaded.GetPropertyList(rows);
    EXPECT_EQ(rows.Value(9).Text(), "4 Bit");
    const LineList again = RecordOf(loaded);
    EXPECT_EQ(again[again.size() - 2], "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,ARROW.BMP");
}

TEST_F(RepeatButtonTest, AppliedGroupsSetEverythingAndThePictureBringsItsPlace) {
    MakePicture("ARROW.BMP", 16, 12);
    const GroupList groups = {
        {"FASTER", "4"},
        {"30", "40", "16", "12"},
        {"repeatbutton_style_0"},
        {"Hold me"},
        {"RIGHT"},
        {"FALSE", "TRUE", "FALSE"},
        {"1", "2", "16", "12", "ARROW.BMP"},
    };
    bool ok = false;
    button.SetFromResText(groups, ok);
    ASSERT_TRUE(ok);
    EXPECT_EQ(button.KOMAName(), "FASTER");
    EXPECT_EQ(button.KOMABoundsX(), 30);
    EXPECT_EQ(button.KOMABoundsY(), 40);
    EXPECT_EQ(button.KOMAWidth(), 16);
    EXPECT_EQ(button.KOMAHeight(), 12);
    EXPECT_EQ(button.KOMAControlSubTypeWord(), "REPEATBUTTON_STYLE_0");
    EXPECT_EQ(button.KOMAControlText(), "Hold me");
    EXPECT_EQ(button.KOMATextAlignmentWord(), "RIGHT");
    EXPECT_EQ(button.KOMAEnableWord(), "FALSE");
    EXPECT_EQ(button.KOMAActiveWord(), "TRUE");
    EXPECT_EQ(button.KOMAVisibleWord(), "FALSE");
    EXPECT_EQ(button.KOMABitmapFile(), "ARROW.BMP");
    // The picture that loads puts its place where the object stands.
    EXPECT_EQ(button.KOMABitmapX(), 30);
    EXPECT_EQ(button.KOMABitmapY(), 40);
    EXPECT_EQ(button.KOMABitmapWidth(), 16);
    EXPECT_EQ(button.KOMABitmapHeight(), 12);
    EXPECT_EQ(owner.events.back(), "Resized 16,12");
    EXPECT_TRUE(std::find(owner.events.begin(), owner.events.end(), "Moved 30,40") !=
                owner.events.end());
}

TEST_F(RepeatButtonTest, AMissingFileOnLoadIsReportedAndWrittenBackAsLeftBlank) {
    const GroupList groups = {
        {"REPEATBUTTON_1", "4"},
        {"30", "40", "16", "12"},
        {"REPEATBUTTON_STYLE_0"},
        {"Button Text"},
        {"LEFT"},
        {"TRUE", "TRUE", "TRUE"},
        {"1", "2", "16", "12", "form.bmp"},
    };
    bool ok = false;
    button.SetFromResText(groups, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(button.KOMABitmapFile(), "");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"Tolva Resource Editor: Bitmap not found"}));
    // The record's size stays, the object shows blue, and the record's own
    // place of the picture stays as it was read.
    EXPECT_EQ(button.KOMAWidth(), 16);
    EXPECT_EQ(button.KOMABitmapX(), 1);
    EXPECT_FALSE(button.GetDrawElements()[1].visible);
    const LineList again = RecordOf(button);
    EXPECT_EQ(again[again.size() - 4], "(SH)CONTROL_BITMAP.HEIGHT=12");
    EXPECT_EQ(again[again.size() - 3],
              "//You did not specify a bitmap so this section has been left blank");
    EXPECT_EQ(again[again.size() - 2], "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,form.bmp");
}

TEST_F(RepeatButtonTest, AppliedGroupsNeedTheirShape) {
    GroupList groups = {
        {"REPEATBUTTON_1", "4"}, {"30", "40", "16", "12"}, {"REPEATBUTTON_STYLE_0"},
        {"Button Text"},         {"LEFT"},                 {"TRUE", "TRUE", "TRUE"},
        {"1", "2", "16", "12", ""},
    };
    bool ok = true;
    button.SetFromResText(GroupList(8), ok);
    EXPECT_FALSE(ok);
    groups[6].pop_back();
    ok = true;
    button.SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(button.KOMABoundsX(), 0);
    groups[6].push_back("");
    groups[5].pop_back();
    button.SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    groups[5].push_back("TRUE");
    button.SetFromResText(groups, ok);
    EXPECT_TRUE(ok);
}

TEST_F(RepeatButtonTest, EachLineOutOfPlaceIsReportedAndTheParseFails) {
    const std::string good = Tail(RecordOf(button));
    struct Case {
        std::string from, to;
    };
    const std::vector<Case> cases = {
        {"~F8\r\n", "~F9\r\n"},
        {"(SH)CONTROL_BITMAP.Y=", "(SH)CONTROL_BITMAP.Z="},
        {"(SH)CONTROL_BITMAP.WIDTH=", "(SH)CONTROL_BITMAP.W="},
        {"FILE=Q_FOUR_BIT,", "FILE=Q_EIGHT_BIT,"},
        {"#END_CONTROL", "#END_BUTTON"},
    };
    for (const Case& c : cases) {
        std::string text = good;
        text.replace(text.find(c.from), c.from.size(), c.to);
        owner.host.ClearRecord();
        LoadedRecord record;
        EXPECT_FALSE(Parse(text, record, owner.host)) << c.to;
        ASSERT_EQ(owner.host.messages.size(), 1u) << c.to;
        EXPECT_EQ(owner.host.messages[0].text.rfind("Error on line ", 0), 0u);
    }
}

TEST_F(RepeatButtonTest, APlaceThatIsNoNumberOrTooLargeEndsTheLoad) {
    const std::string good = Tail(RecordOf(button));
    for (const std::string& bad : {std::string("(SH)CONTROL_BITMAP.X=left"),
                                   std::string("(SH)CONTROL_BITMAP.X=40000")}) {
        std::string text = good;
        const std::string x = "(SH)CONTROL_BITMAP.X=0";
        text.replace(text.find(x), x.size(), bad);
        LoadedRecord record;
        EXPECT_THROW(Parse(text, record, owner.host), RuntimeFailure) << bad;
    }
}

TEST_F(RepeatButtonTest, CopyTakesTheWholeModel) {
    MakePicture("ARROW.BMP", 16, 12);
    button.KOMABitmapFile("ARROW.BMP");
    button.KOMABitmapDepth(2);
    button.KOMABitmapX(9);
    button.KOMAControlText("Hold");
    ctlKOMARepeatButton copy;
    ASSERT_TRUE(copy.CopyModelFrom(button));
    EXPECT_EQ(copy.KOMABitmapFile(), "ARROW.BMP");
    EXPECT_EQ(copy.KOMABitmapDepth(), 2);
    EXPECT_EQ(copy.KOMABitmapX(), 9);
    EXPECT_EQ(copy.KOMAControlText(), "Hold");
    EXPECT_TRUE(copy.GetDrawElements()[1].visible);
}

}  // namespace
}  // namespace tolva::testing
