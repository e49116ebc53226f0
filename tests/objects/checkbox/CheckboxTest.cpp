// The Checkbox: its model and setters, its two pictures and their size
// rules (each told in a box here), the 14 rows, the popup menu, its record
// written, read and applied, and the picture of its state.
#include <gtest/gtest.h>

#include <algorithm>

#include "document/RuntimeFailure.h"
#include "objects/checkbox/ctlKOMACheckbox.h"
#include "objects/checkbox/modCheckbox.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"
#include "resfile/ResourceReader.h"
#include "support/PictureObjectFixture.h"

namespace tolva::testing {
namespace {

class CheckboxTest : public PictureObjectFixture<ctlKOMACheckbox> {
protected:
    CheckboxTest() : PictureObjectFixture("CHECKBOX_1", "c") {}
    ctlKOMACheckbox& box = object;
};

TEST_F(CheckboxTest, ANewCheckboxHasItsDefaults) {
    EXPECT_EQ(box.KOMAControlStyleWord(), "CHECKBOX");
    EXPECT_EQ(box.KOMAControlStyle(), 3);
    EXPECT_EQ(box.KOMAControlText(), "Checkbox Text");
    EXPECT_EQ(box.KOMATextAlignmentWord(), "LEFT");
    EXPECT_EQ(box.KOMAControlSubTypeWord(), "CHECKBOX_STYLE_0");
    EXPECT_EQ(box.KOMAWidth(), 14);
    EXPECT_EQ(box.KOMAHeight(), 14);
    EXPECT_EQ(box.KOMAGroupID(), 0);
    EXPECT_EQ(box.KOMAControlValueWord(), "FALSE");
    EXPECT_EQ(box.KOMABitmap1Width(), 10);
    EXPECT_EQ(box.KOMABitmap2Height(), 10);
    EXPECT_EQ(box.KOMABitmap1Depth(), 4);
    EXPECT_EQ(box.KOMABitmap2Depth(), 4);
    EXPECT_FALSE(box.ResizeOK());
}

TEST_F(CheckboxTest, SettersRefuseWithTheirMessages) {
    box.KOMAGroupID(-1);
    box.KOMABitmap1X(160);
    box.KOMABitmap2Height(161);
    box.KOMAControlStyle(0);
    EXPECT_EQ(Messages(), (std::vector<std::string>{
                              "KOMAGroupID: Invalid checkbox group ID",
                              "CHECKBOX_1: Invalid Bitmap1X value: 160",
                              "Tolva Resource Editor: Invalid value",
                              "KOMAControlStyle: Unknown control style"}));
    box.KOMAControlValue(7);
    EXPECT_EQ(box.KOMAControlValueWord(), "TRUE");
    box.KOMAControlValue(0);
    EXPECT_EQ(box.KOMAControlValueWord(), "FALSE");
}

TEST_F(CheckboxTest, APictureLargerThan160IsToldHere) {
    MakePicture("BIG.BMP", 161, 12);
    box.KOMABitmap1File("BIG.BMP");
    EXPECT_EQ(box.KOMABitmap1File(), "");
    EXPECT_EQ(Messages(), (std::vector<std::string>{
                              "CHECKBOX_1: This bitmap is larger than 160 in one of its dimensions.  "
                              "The bitmap must be less than 160 pixels in width and height."}));
}

TEST_F(CheckboxTest, BothPicturesMustBeOfTheObjectsSize) {
    MakePicture("ON.BMP", 12, 12);
    MakePicture("OFF.BMP", 14, 12);
    box.KOMABitmap1File("ON.BMP");
    EXPECT_EQ(owner.events, (std::vector<std::string>{"Resized 12,12"}));
    box.KOMAWidth(12);
    box.KOMAHeight(12);
    box.KOMABitmap2File("OFF.BMP");
    EXPECT_EQ(box.KOMABitmap2File(), "");
    EXPECT_EQ(Messages(), (std::vector<std::string>{"CHECKBOX_1: Both bitmaps must be the same size."}));
    box.KOMABitmap2File("NONE.BMP");
    EXPECT_EQ(Messages().back(), "CHECKBOX_1: Bitmap not found");
}

TEST_F(CheckboxTest, ThePictureOfTheStateIsShown) {
    MakePicture("ON.BMP", 12, 12);
    MakePicture("OFF.BMP", 12, 12);
    box.KOMABitmap1File("ON.BMP");
    box.KOMAWidth(12);
    box.KOMAHeight(12);
    box.KOMABitmap2File("OFF.BMP");
    auto shown = [&] {
        std::vector<std::string> names;
        for (const DrawElement& e : box.GetDrawElements())
            if (e.visible && e.kind == DrawElementKind::Image) names.push_back(e.name);
        return names;
    };
    EXPECT_EQ(shown(), (std::vector<std::string>{"imgUncheckedBitmap"}));
    box.KOMAControlValue(1);
    EXPECT_EQ(shown(), (std::vector<std::string>{"imgCheckedBitmap"}));
}

TEST_F(CheckboxTest, ThePopupMenuSetsBothPicturesAndItsRemoveItemsDoNothing) {
    MakePicture("ON.BMP", 12, 12);
    owner.host.popupAnswers = {0};
    owner.host.fileAnswers.push_back(std::string("ON.BMP"));
    box.MouseDown(2, 0, 5, 5);
    EXPECT_EQ(box.KOMABitmap1File(), "ON.BMP");
    EXPECT_EQ(owner.host.popups.at(0).second,
              (std::vector<std::string>{"Set On Bitmap", "Set Off Bitmap", "Remove On Bitmap",
                                        "Remove Off bitmap", "Set Related Checkboxes..."}));
    EXPECT_EQ(owner.host.popupNames.at(0),
              (std::vector<std::string>{"mnuSetPropSetOnBitmap", "mnuSetPropSetOffBitmap",
                                        "mnuSetPropRemoveOnBitmap", "mnuSetPropRemoveOffBitmap",
                                        "mnuRelatedCheckboxes"}));
    owner.events.clear();
    owner.host.popupAnswers = {2};
    box.MouseDown(2, 0, 5, 5);
    owner.host.popupAnswers = {3};
    box.MouseDown(2, 0, 5, 5);
    EXPECT_EQ(box.KOMABitmap1File(), "ON.BMP");
    EXPECT_TRUE(owner.events.empty());
}

TEST_F(CheckboxTest, FourteenRowsWithTheDepthListsFourFirst) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 14);
    const std::vector<std::string> labels = {
        "Name", "X Pos", "Y Pos", "Width", "Height", "Checkbox Style", "Enabled", "Active",
        "Visible", "Initial Value", "Checked Bitmap File", "Unchecked Bitmap File",
        "Bitmap Color Depth 1", "Bitmap Color Depth 2"};
    for (int i = 1; i <= 14; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    EXPECT_EQ(rows.Kind(11), rowkind::Button);
    ValueLists lists;
    FillCheckboxValueLists(lists);
    EXPECT_EQ(lists[12], (std::vector<std::string>{"4 Bit", "2 Bit"}));
    EXPECT_EQ(lists[5], (std::vector<std::string>{"CHECKBOX_STYLE_0"}));
}

TEST_F(CheckboxTest, RowsApplyAndTheBitmapRowsOnlyChoose) {
    PropertyArray rows = Rows();
    rows.At(3, 1) = PropertyCell(std::string("AGREE"));
    rows.At(3, 10) = PropertyCell(std::string("TRUE"));
    rows.At(3, 13) = PropertyCell(std::string("2 Bit"));
    ASSERT_TRUE(box.SetPropertyList(rows));
    EXPECT_EQ(box.KOMAName(), "AGREE");
    EXPECT_EQ(box.KOMAControlValueWord(), "TRUE");
    EXPECT_EQ(box.KOMABitmap1Depth(), 2);
    MakePicture("OFF.BMP", 12, 12);
    owner.host.fileAnswers.push_back(std::string("OFF.BMP"));
    rows = Rows();
    rows.At(3, 1) = PropertyCell(std::string("OTHER"));
    rows.At(3, 12) = PropertyCell(true);
    ASSERT_TRUE(box.SetPropertyList(rows));
    EXPECT_EQ(box.KOMABitmap2File(), "OFF.BMP");
    EXPECT_EQ(box.KOMAName(), "AGREE");
    EXPECT_FALSE(box.SetPropertyList(PropertyArray(13)));
}

TEST_F(CheckboxTest, ANewCheckboxsRecordLineByLine) {
    const LineList lines = RecordOf(box);
    const LineList expected = {
        "#CONTROL", "NAME=CHECKBOX_1", "ID=0", "~F0", "(B)OBJECT.TYPE=CONTROL", "~F1",
        "//0 - 65534 (if within table), 65535 means not within table", "(U)RELATED_TABLE_ID=65535",
        "~F2", "//0 - 159", "(SH)BOUNDS.X=0", "(SH)BOUNDS.Y=0", "//0 - 160", "(SH)BOUNDS.WIDTH=14",
        "(SH)BOUNDS.HEIGHT=14", "~F3", "(B)CONTROL_STYLE=CHECKBOX", "~F4",
        "//CHECKBOX_STYLE_0,CHECKBOX_STYLE_1,CHECKBOX_STYLE_2, ...",
        "(B)CONTROL_SUBTYPE=CHECKBOX_STYLE_0", "~F5", "//any text", "(S)CONTROL_TEXT=Checkbox Text",
        "~F6", "//LEFT,CENTRE,RIGHT", "(B)TEXTMENT=LEFT", "~F7", "//TRUE or FALSE",
        "(BO)CONTROL_ATTR.ENABLE=TRUE", "(BO)CONTROL_ATTR.ACTIVE=TRUE",
        "(BO)CONTROL_ATTR.VISIBLE=TRUE", "~F8", "//Checkbox specific properties",
        "(U)CONTROL_ADD.GROUP_ID=0", "// ON or OFF", "(BO)CONTROL_ADD.CONTROL_VALUE=FALSE",
        "//0 - 159", "(SH)CONTROL_BITMAP.X=0", "(SH)CONTROL_BITMAP.Y=0", "//0 - 160",
        "(SH)CONTROL_BITMAP.WIDTH=10", "(SH)CONTROL_BITMAP.HEIGHT=10",
        "//You did not specify a bitmap so this section has been left blank",
        "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,form.bmp", "~F9", "//0 - 159", "(SH)CONTROL_BITMAP.X=0",
        "(SH)CONTROL_BITMAP.Y=0", "//0 - 160", "(SH)CONTROL_BITMAP.WIDTH=10",
        "(SH)CONTROL_BITMAP.HEIGHT=10",
        "//You did not specify a bitmap so this section has been left blank",
        "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,form.bmp", "#END_CONTROL"};
    ASSERT_EQ(lines.size(), expected.size() + 3);  // the banner first
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(lines[i + 3], expected[i]) << i;
}

bool ParseTail(const std::string& text, LoadedRecord& record, ScriptedHost& host) {
    ResourceReader reader = ResourceReader::FromText(text);
    RecordReader in(reader, host);
    return ParseCheckboxRecordTail(in, record);
}

std::string Tail(const LineList& lines) {
    const auto at = std::find(lines.begin(), lines.end(), "~F8");
    std::string text;
    for (auto it = at; it != lines.end(); ++it) text += *it + "\r\n";
    return text;
}

TEST_F(CheckboxTest, AGroupOfFiveAndThePicturesPlacesAreReadButNotApplied) {
    MakePicture("ON.BMP", 12, 12);
    box.KOMABitmap1File("ON.BMP");
    box.KOMABitmap2Depth(2);
    std::string text = Tail(RecordOf(box));
    const std::string group = "(U)CONTROL_ADD.GROUP_ID=0";
    text.replace(text.find(group), group.size(), "(U)CONTROL_ADD.GROUP_ID=5");
    const std::string x = "(SH)CONTROL_BITMAP.X=0";
    text.replace(text.find(x), x.size(), "(SH)CONTROL_BITMAP.X=9");
    LoadedRecord record;
    ASSERT_TRUE(ParseTail(text, record, owner.host));
    ASSERT_EQ(record.groups.size(), 11u);
    EXPECT_EQ(record.groups[7], (ValueGroup{"9", "0", "10", "10", "ON.BMP"}));
    EXPECT_EQ(record.groups[8], (ValueGroup{"0", "0", "10", "10", "form.bmp"}));
    EXPECT_EQ(record.groups[9], (ValueGroup{"4"}));
    EXPECT_EQ(record.groups[10], (ValueGroup{"2"}));
    GroupList groups = record.groups;
    groups[0] = {"CHECKBOX_2", "4"};
    groups[1] = {"5", "6", "12", "12"};
    groups[2] = {"CHECKBOX_STYLE_0"};
    groups[3] = {"Agree"};
    groups[4] = {"LEFT"};
    groups[5] = {"TRUE", "TRUE", "TRUE"};
    ctlKOMACheckbox loaded;
    loaded.SetOwner(&owner);
    bool ok = false;
    loaded.SetFromResText(groups, ok);
    ASSERT_TRUE(ok);
    EXPECT_EQ(loaded.KOMAGroupID(), 0);
    EXPECT_EQ(loaded.KOMABitmap1X(), 0);
    EXPECT_EQ(loaded.KOMABitmap1File(), "ON.BMP");
    EXPECT_EQ(loaded.KOMABitmap2Depth(), 2);
    const LineList again = RecordOf(loaded);
    EXPECT_NE(std::find(again.begin(), again.end(), "(U)CONTROL_ADD.GROUP_ID=0"), again.end());
    // form.bmp is not here: its message, and the section is written blank.
    EXPECT_EQ(Messages().back(), "CHECKBOX_2: Bitmap not found");
}

TEST_F(CheckboxTest, EachTailLineOutOfPlaceIsReported) {
    const std::string good = Tail(RecordOf(box));
    for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
             {"~F8", "~F7"},
             {"(U)CONTROL_ADD.GROUP_ID=", "(U)CONTROL_ADD.GROUP="},
             {"(BO)CONTROL_ADD.CONTROL_VALUE=", "(BO)CONTROL_ADD.VALUE="},
             {"~F9", "~F10"},
             {"Q_FOUR_BIT,form.bmp\r\n#END", "Q_ONE_BIT,form.bmp\r\n#END"},
             {"#END_CONTROL", "#END_CHECKBOX"}}) {
        std::string text = good;
        text.replace(text.find(from), from.size(), to);
        owner.host.ClearRecord();
        LoadedRecord record;
        EXPECT_FALSE(ParseTail(text, record, owner.host)) << to;
        EXPECT_EQ(owner.host.messages.size(), 1u) << to;
    }
    std::string text = good;
    const std::string y = "(SH)CONTROL_BITMAP.Y=0";
    text.replace(text.find(y), y.size(), "(SH)CONTROL_BITMAP.Y=99999");
    LoadedRecord record;
    EXPECT_THROW(ParseTail(text, record, owner.host), RuntimeFailure);
}

TEST_F(CheckboxTest, AppliedGroupsNeedTheirShape) {
    bool ok = true;
    box.SetFromResText(GroupList(10), ok);
    EXPECT_FALSE(ok);
}

}  // namespace
}  // namespace tolva::testing
