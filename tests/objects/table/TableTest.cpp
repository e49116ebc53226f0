// The table's model: its counts and sizes with their setters, the object
// grid apart from the cell store, the cell copy of the objects put in, the
// record written line by line, the rows and the cell bitmap.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "document/ObjectTypes.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/checkbox/ctlKOMACheckbox.h"
#include "objects/list/ctlKOMAList.h"
#include "objects/repeatbutton/ctlKOMARepeatButton.h"
#include "objects/string/ctlKOMAString.h"
#include "objects/table/CellKinds.h"
#include "objects/table/ctlKOMATable.h"
#include "objects/table/modTable.h"
#include "support/OwnedObjectFixture.h"
#include "support/ShortNamedDirectory.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;

class TableTest : public OwnedObjectFixture<ctlKOMATable> {
protected:
    ctlKOMATable& table = object;

    LineList Record() {
        LineList lines;
        bool ok = false;
        table.ReturnResourceFileText(lines, ok);
        EXPECT_TRUE(ok);
        return lines;
    }
    static bool Has(const LineList& lines, const std::string& line) {
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }
    KomaObject* At(int row, int column) {
        KomaObject* object = nullptr;
        bool ok = false;
        table.GetObject(row, column, object, ok);
        return object;
    }
    KomaObject* Put(int row, int column, KomaObject& incoming) {
        KomaObject* object = &incoming;
        bool ok = false;
        table.SetObject(row, column, object, ok);
        EXPECT_TRUE(ok);
        return object;
    }
};

TEST_F(TableTest, ANewTableHasOneDefaultCell) {
    EXPECT_EQ(table.KOMAObjectTypeWord(), "TABLE");
    EXPECT_EQ(table.KOMANumRows(), 1);
    EXPECT_EQ(table.KOMANumColumns(), 1);
    EXPECT_EQ(table.RowHeights(), (std::vector<int>{34}));
    EXPECT_EQ(table.ColumnWidths(), (std::vector<int>{48}));
    ASSERT_EQ(table.Cells().size(), 1u);
    const TableCell& cell = table.Cells()[0];
    EXPECT_EQ(cell.dataType, "TABLE_TEXT");
    EXPECT_EQ(cell.font, "SMALL_FONT");
    EXPECT_EQ(cell.value, 0);
    EXPECT_EQ(cell.alignment, "LEFT");
    EXPECT_EQ(cell.fontColor, "COLOR_BLACK");
    EXPECT_EQ(cell.backColor, "COLOR_WHITE");
    EXPECT_EQ(cell.highlight, "FALSE");
    EXPECT_EQ(cell.hasBitmap, "FALSE");
    EXPECT_EQ(cell.text, "Text");
    EXPECT_FALSE(table.ResizeOK());
    EXPECT_DOUBLE_EQ(table.Width(), 855);
    // The box's size never reaches the model's.
    EXPECT_EQ(table.KOMAWidth(), 0);
    EXPECT_EQ(table.KOMAHeight(), 0);
    EXPECT_EQ(At(1, 1), nullptr);
}

TEST_F(TableTest, OneRowOrOneColumnIsNotDeleted) {
    table.DeleteRow(1);
    table.DeleteColumn(1);
    EXPECT_EQ(table.KOMANumRows(), 1);
    EXPECT_EQ(table.KOMANumColumns(), 1);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(TableTest, InsertsAndDeletesMoveTheObjectsAndTheCountsOnly) {
    ctlKOMAButton button;
    button.KOMAControlText("OK");
    Put(1, 1, button);
    table.InsertRow(1);
    table.InsertColumn(1);
    EXPECT_EQ(table.KOMANumRows(), 2);
    EXPECT_EQ(table.KOMANumColumns(), 2);
    // The cell store is not touched.
    EXPECT_EQ(table.Cells().size(), 1u);
    EXPECT_EQ(At(1, 1), nullptr);
    ASSERT_NE(At(2, 2), nullptr);
    EXPECT_EQ(static_cast<ctlKOMAButton*>(At(2, 2))->KOMAControlText(), "OK");
    table.DeleteColumn(1);
    ASSERT_NE(At(2, 1), nullptr);
    table.DeleteRow(2);
    EXPECT_EQ(At(1, 1), nullptr);
    EXPECT_EQ(table.CellObjectCount(), 0);
}

TEST_F(TableTest, OutsideTheGridSetAndGetObjectFail) {
    ctlKOMAButton button;
    KomaObject* object = &button;
    bool ok = true;
    table.SetObject(2, 1, object, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(object, &button);
    table.GetObject(0, 1, object, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(object, nullptr);
    table.GetObject(1, 1, object, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(object, nullptr);
}

TEST_F(TableTest, SetObjectPointsTheCallerAtTheTablesOwnCopy) {
    ctlKOMAButton button;
    button.KOMAName("MINE");
    button.KOMAControlText("Go");
    button.KOMAWidth(40);
    button.KOMAHeight(14);
    KomaObject* placed = Put(1, 1, button);
    ASSERT_NE(placed, &button);
    EXPECT_EQ(placed, At(1, 1));
    EXPECT_EQ(static_cast<ctlKOMAButton*>(placed)->KOMAControlText(), "Go");
    // Name and id stay the cell object's own.
    EXPECT_NE(placed->KOMAName(), "MINE");
    EXPECT_DOUBLE_EQ(placed->Width(), 40 * 36.59);
    EXPECT_DOUBLE_EQ(placed->Height(), 14 * 36.59);
    EXPECT_FALSE(placed->Visible());
    // Of the same kind the object is reused; of another it goes.
    ctlKOMAButton second;
    second.KOMAControlText("Stop");
    EXPECT_EQ(Put(1, 1, second), placed);
    EXPECT_EQ(static_cast<ctlKOMAButton*>(placed)->KOMAControlText(), "Stop");
    ctlKOMAString string;
    KomaObject* now = Put(1, 1, string);
    EXPECT_EQ(now->ScreenType(), type::String);
    // No object empties the cell.
    KomaObject* none = nullptr;
    bool ok = false;
    table.SetObject(1, 1, none, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(At(1, 1), nullptr);
}

TEST_F(TableTest, AListInACellLosesWhatItsCellCopyLeavesOut) {
    ctlKOMAList list;
    list.SetList({"Apple", "Fig"}, 1, 5, 1);
    list.KOMAEnable(false);
    list.KOMAVisible(false);
    auto* placed = static_cast<ctlKOMAList*>(Put(1, 1, list));
    EXPECT_EQ(placed->Items(), (Lines{"Apple", "Fig"}));
    EXPECT_EQ(placed->KOMANumItemsDisplayed(), 5);
    EXPECT_FALSE(placed->KOMAVisible());
    EXPECT_TRUE(placed->KOMAEnable());
    EXPECT_EQ(placed->KOMASelectedItem(), -1);
    EXPECT_EQ(placed->KOMATopItemNum(), 0);
}

TEST_F(TableTest, ACheckboxKeepsItsValueAndGroupInACell) {
    ctlKOMACheckbox checkbox;
    checkbox.KOMAControlText("Agree");
    checkbox.KOMAControlValue(true);
    checkbox.KOMAGroupID(3);
    auto* placed = static_cast<ctlKOMACheckbox*>(Put(1, 1, checkbox));
    EXPECT_EQ(placed->KOMAControlText(), "Agree");
    EXPECT_TRUE(placed->KOMAControlValue());
    EXPECT_EQ(placed->KOMAGroupID(), 3);
}

TEST_F(TableTest, TheTablesIdBecomesTheRelatedIdOfItsCellObjects) {
    ctlKOMAButton button;
    KomaObject* placed = Put(1, 1, button);
    table.KOMAObjectID(7);
    EXPECT_EQ(placed->KOMARelatedTableID(), 7);
    int next = 8;
    table.DistributeEmbeddedObjectIDs(next);
    EXPECT_EQ(placed->KOMAObjectID(), 8);
    EXPECT_EQ(next, 9);
}

TEST_F(TableTest, CountsAndTheFirstRowAndColumnRefuseWithTheirMessage) {
    table.KOMANumRows(-1);
    table.KOMANumColumns(-1);
    table.KOMANumRows(3);
    // The first row shown must lie below the count.
    table.KOMATopRowNum(3);
    table.KOMATopRowNum(2);
    table.KOMALeftColumnNum(1);
    EXPECT_EQ(owner.host.MessageLines(),
              (Lines{"Tolva Resource Editor: Invalid value", "Tolva Resource Editor: Invalid value",
                     "Tolva Resource Editor: Invalid value", "Tolva Resource Editor: Invalid value"}));
    EXPECT_EQ(table.KOMANumRows(), 3);
    EXPECT_EQ(table.KOMATopRowNum(), 2);
    EXPECT_EQ(table.KOMALeftColumnNum(), 0);
}

TEST_F(TableTest, StyleBackColourAndDepthKeepTheirRules) {
    table.KOMATableStyle(2);
    EXPECT_EQ(table.KOMATableStyleWord(), "TABLE_STYLE_2");
    table.KOMATableStyle(3);
    EXPECT_EQ(table.KOMATableStyleWord(), "");
    table.KOMABackColor(11);
    table.KOMABackColor(5);
    EXPECT_EQ(table.KOMABackColorWord(), "COLOR_GREY2");
    table.KOMABitmapDepth(2);
    table.KOMABitmapDepth(8);
    EXPECT_EQ(table.KOMABitmapDepth(), 2);
    EXPECT_EQ(TableStyleWordToNumber("table_style_1"), 1);
    EXPECT_EQ(TableStyleWordToNumber("other"), 0);
    EXPECT_EQ(CellDataTypeWordToNumber("TABLE_UI_OBJECT"), 2);
    EXPECT_EQ(CellDataTypeNumberToWord(1), "TABLE_VALUE");
    EXPECT_EQ(CellDataTypeNumberToWord(3), "");
}

TEST_F(TableTest, SumsBeyond160AreTheSizeAsTheyAre) {
    TableProperties p;
    p.rows = 3;
    p.columns = 2;
    p.rowHeights = {100, 80, 2};
    p.columnWidths = {150, 48};
    p.cells.assign(6, TableCell{});
    table.SetTableProperties(p);
    EXPECT_EQ(table.KOMAHeight(), 182);
    EXPECT_EQ(table.KOMAWidth(), 198);
    const LineList lines = Record();
    EXPECT_TRUE(Has(lines, "(SH)BOUNDS.WIDTH=198"));
    EXPECT_TRUE(Has(lines, "(SH)BOUNDS.HEIGHT=182"));
    EXPECT_TRUE(owner.host.messages.empty());
    // A change of the box's size sets both to 0 again.
    table.SetCanvasSize(855, 855);
    EXPECT_EQ(table.KOMAWidth(), 0);
}

TEST_F(TableTest, TheRecordOfANewTableLineByLine) {
    table.KOMAName("TABLE_1");
    table.KOMAObjectID(4);
    const Lines expected = {
        "//-----------------------------------------------------------------",
        "//----------- TABLE_1 ------------------------------------------",
        "//-----------------------------------------------------------------",
        "#TABLE", "NAME=TABLE_1", "ID=4", "~F0", "(B)OBJECT.TYPE=TABLE", "~F1", "//0 - 159",
        "(SH)BOUNDS.X=0", "(SH)BOUNDS.Y=0", "//0 - 160", "(SH)BOUNDS.WIDTH=0", "(SH)BOUNDS.HEIGHT=0", "~F2",
        "(U)TABLE_NUM_COLUMN=1", "~F3", "(U)TABLE_NUM_ROW=1", "~F4", "(SH)TABLE_COLUMN_WIDTH=48", "~F5",
        "(SH)TABLE_ROW_HEIGHT=34", "~F6", "(U)TABLE_TOP_ROW_NUM=0", "~F7", "(U)TABLE_LEFT_COL_NUM=0", "~F8",
        "//TABLE_STYLE_0,TABLE_STYLE_1,TABLE_STYLE_2", "(B)TABLE_STYLE=TABLE_STYLE_0", "~F9",
        "//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK", "(B)TABLE_BACKGROUND_COLOR=COLOR_WHITE", "~F10",
        "//You did not specify a bitmap so this section has been left blank", "~F11",
        "//Row 1 -----------------------------------------------------------------",
        "//Cell (1,1) -------------------------------", "//TABLE_TEXT,TABLE_VALUE,TABLE_UI_OBJECT",
        "(B)TABLE_DATA_TYPE=TABLE_TEXT", "(U)TABLE_UI_OBJECT_ID=", "(B)TABLE_FONT=SMALL_FONT", "(W)TABLE_VALUE=0",
        "//LEFT,CENTRE,RIGHT", "(B)TABLE_TEXTMENT=LEFT", "//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK",
        "(B)TABLE_FONT_COLOR=COLOR_BLACK", "(B)TABLE_BACKGROUND_COLOR=COLOR_WHITE", "//TRUE or FALSE",
        "(BO)TABLE_CELL_HIGHLIGHT=FALSE", "(BO)TABLECELL_HAS_BITMAP=FALSE", "//any text", "(S)TABLE_TEXT=Text",
        "~F12", "//TRUE or FALSE", "(BO)TABLE_ATTR.TABLE_ENABLE=TRUE", "(BO)TABLE_ATTR.TABLE_SCROLLBAR=TRUE",
        "(BO)TABLE_ATTR.TABLE_ACTIVE=TRUE", "(BO)TABLE_ATTR.TABLE_HIGHLIGHT_ENABLE=TRUE",
        "(BO)TABLE_ATTR.TABLE_VISIBLE=TRUE", "#END_TABLE"};
    EXPECT_EQ(Lines(Record()), expected);
}

TEST_F(TableTest, TheObjectsIdIsWrittenWhateverTheDataType) {
    TableProperties p = table.GetTableProperties();
    p.rows = 1;
    p.columns = 2;
    p.columnWidths = {48, 48};
    p.cells = {TableCell{}, TableCell{}};
    p.cells[0].dataType = "TABLE_UI_OBJECT";
    table.SetTableProperties(p);
    ctlKOMAButton button;
    KomaObject* placed = Put(1, 2, button);
    placed->KOMAObjectID(12);
    const LineList lines = Record();
    const auto first = std::find(lines.begin(), lines.end(), "(B)TABLE_DATA_TYPE=TABLE_UI_OBJECT");
    ASSERT_NE(first, lines.end());
    EXPECT_EQ(*(first + 1), "(U)TABLE_UI_OBJECT_ID=");
    const auto second = std::find(first + 1, lines.end(), "(B)TABLE_DATA_TYPE=TABLE_TEXT");
    ASSERT_NE(second, lines.end());
    EXPECT_EQ(*(second + 1), "(U)TABLE_UI_OBJECT_ID=12");
}

TEST_F(TableTest, CountsAheadOfTheCellStoreFailTheRecord) {
    table.InsertRow(2);
    LineList lines;
    bool ok = true;
    table.ReturnResourceFileText(lines, ok);
    EXPECT_FALSE(ok);
    EXPECT_TRUE(lines.empty());
    EXPECT_EQ(owner.host.MessageLines(),
              (Lines{"Tolva Resource Editor: Error retrieving Table resource file text"}));
}

TEST_F(TableTest, ARepeatButtonIsSavedAsATableObjectAndEveryOtherKindByItsPrefix) {
    EXPECT_EQ(CellNamePrefix(type::RepeatButton), "TABLEOBJECT_");
    const std::vector<std::pair<int, std::string>> prefixes = {
        {type::Button, "BUTTON_"},   {type::String, "STRING_"},     {type::Textbox, "TEXTBOX_"},
        {type::Field, "FIELD_"},     {type::Checkbox, "CHECKBOX_"}, {type::Bitmap, "BITMAP_"},
        {type::List, "LIST_"},       {type::PopupTrigger, "POPUPTRIGGER_"},
        {type::PushButton, "PUSHBUTTON_"}, {type::Scrollbar, "SCROLLBAR_"}};
    for (const auto& [kind, prefix] : prefixes) EXPECT_EQ(CellNamePrefix(kind), prefix) << kind;
    table.KOMAName("TABLE_1");
    table.InsertRow(2);
    table.InsertColumn(2);
    table.InsertColumn(3);
    ctlKOMARepeatButton repeat;
    Put(2, 3, repeat);
    std::vector<LineList> blocks;
    table.GetTableObjectText(blocks);
    ASSERT_EQ(blocks.size(), 1u);
    EXPECT_TRUE(Has(blocks[0], "NAME=TABLEOBJECT_TABLE_1_CELL_2_3"));
    std::vector<std::pair<std::string, std::string>> pairs;
    table.GetTableObjectTypesAndIds(pairs);
    ASSERT_EQ(pairs.size(), 1u);
    EXPECT_EQ(pairs[0].second, "CONTROL");
    table.GetHeaderEmbeddedObjectHeaderInfo(pairs);
    ASSERT_EQ(pairs.size(), 1u);
    EXPECT_EQ(pairs[0].first, "TABLEOBJECT_TABLE_1_CELL_2_3");
}

TEST_F(TableTest, ElevenRowsWithTheirLabels) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 11);
    const Lines labels = {"Name",      "X Pos",  "Y Pos",          "Table Style", "Background Color", "Enabled",
                          "Scrollbar", "Active", "Show Highlight", "Visible",     "Edit Table..."};
    for (int i = 1; i <= 11; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    ValueLists lists;
    FillTableValueLists(lists);
    EXPECT_EQ(lists[3], (Lines{"TABLE_STYLE_0", "TABLE_STYLE_1", "TABLE_STYLE_2"}));
    EXPECT_EQ(lists[8], (Lines{"TRUE", "FALSE"}));
}

TEST_F(TableTest, RowsApplyAndANameTakenIsRefusedUnderTheTablesName) {
    table.KOMAName("TABLE_1");
    owner.takenNames.insert("BUTTON_1");
    PropertyArray rows = Rows();
    rows.At(3, 1) = PropertyCell(std::string("BUTTON_1"));
    rows.At(3, 2) = PropertyCell(std::string("12"));
    rows.At(3, 4) = PropertyCell(std::string("TABLE_STYLE_1"));
    rows.At(3, 5) = PropertyCell(std::string("COLOR_GREY1"));
    rows.At(3, 9) = PropertyCell(std::string("FALSE"));
    ASSERT_TRUE(table.SetPropertyList(rows));
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"TABLE_1: Object name must be unique"}));
    EXPECT_EQ(table.KOMAName(), "TABLE_1");
    EXPECT_EQ(table.KOMABoundsX(), 12);
    EXPECT_EQ(table.KOMATableStyleWord(), "TABLE_STYLE_1");
    EXPECT_EQ(table.KOMABackColorWord(), "COLOR_GREY1");
    EXPECT_FALSE(table.KOMAHighlightEnable());
    EXPECT_EQ(owner.events, (Lines{"Moved 12,0"}));
}

TEST_F(TableTest, ThePopupOffersSetBitmapAndEditTable) {
    owner.host.popupAnswers = {std::nullopt};
    table.MouseDown(kRightButton, 0, 5, 5);
    ASSERT_EQ(owner.host.popups.size(), 1u);
    EXPECT_EQ(owner.host.popups[0].first, "Set Properties");
    EXPECT_EQ(owner.host.popups[0].second, (Lines{"Set Bitmap...", "Edit Table..."}));
    EXPECT_EQ(owner.host.popupNames[0], (Lines{"mnuSetPropSetBitmap", "mnuEditTable"}));
}

TEST_F(TableTest, ACancelledBitmapChooserSaysUnknownError) {
    owner.host.popupAnswers = {0};
    table.MouseDown(kRightButton, 0, 5, 5);
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Tolva Resource Editor: Unknown Error"}));
}

TEST_F(TableTest, TheCellBitmapIsCheckedUnderTheTablesName) {
    ShortNamedDirectory here;
    ASSERT_TRUE(here.Made());
    table.KOMAName("TABLE_1");
    std::ofstream("BIG.BMP") << "picture";
    std::ofstream("CELL.BMP") << "picture";
    std::ofstream("LONGNAMED.BMP") << "picture";
    owner.host.pictures["BIG.BMP"] = PictureSize{161, 20};
    owner.host.pictures["CELL.BMP"] = PictureSize{16, 12};
    table.KOMABitmapFile("GONE.BMP");
    table.KOMABitmapFile("LONGNAMED.BMP");
    table.KOMABitmapFile("BIG.BMP");
    table.KOMABitmapX(5);
    table.KOMABitmapFile("CELL.BMP");
    EXPECT_EQ(owner.host.MessageLines(),
              (Lines{"TABLE_1: Bitmap not found",
                     "TABLE_1: This file path is not in 8.3 format.  Please make sure all directory names and "
                     "the filename don't have more than 8 chars each so that the resource compiler will be "
                     "able to find the file.",
                     "TABLE_1: This bitmap is larger than 160 in one of its dimensions.  The bitmap must be "
                     "less than 160 pixels in width and height."}));
    EXPECT_EQ(table.KOMABitmapFile(), "CELL.BMP");
    EXPECT_EQ(table.KOMABitmapX(), 0);
    EXPECT_EQ(table.KOMABitmapWidth(), 16);
    EXPECT_EQ(table.KOMABitmapHeight(), 12);
    // A depth of 2 is written as four bits; a file gone since is written
    // with its comment and an empty short form.
    table.KOMABitmapDepth(2);
    LineList lines = Record();
    EXPECT_TRUE(Has(lines, "(P)TABLE_CELL_BITMAP.FILE=Q_FOUR_BIT,CELL.BMP"));
    std::filesystem::remove("CELL.BMP");
    owner.host.pictures.erase("CELL.BMP");
    lines = Record();
    const auto file = std::find(lines.begin(), lines.end(), "(P)TABLE_CELL_BITMAP.FILE=Q_FOUR_BIT,");
    ASSERT_NE(file, lines.end());
    EXPECT_EQ(*(file - 1),
              "//Could not find this bitmap - make sure it is in the specified path before compiling");
    EXPECT_EQ(*(file - 2), "(SH)TABLE_CELL_BITMAP.HEIGHT=12");
}

TEST_F(TableTest, OnTheScreenATableIsABoxSayingTable) {
    const DrawElementList elements = table.GetDrawElements();
    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(elements[1].name, "Label1");
    EXPECT_EQ(elements[1].text, "Table");
    EXPECT_DOUBLE_EQ(elements[1].rect.left, 240);
    EXPECT_DOUBLE_EQ(elements[1].rect.top, 120);
    EXPECT_DOUBLE_EQ(elements[1].rect.width, 1095);
    EXPECT_DOUBLE_EQ(elements[1].rect.height, 495);
}

TEST_F(TableTest, ACellObjectAskingForASizeIsCutAtTheDevicesEdge) {
    ctlKOMAButton button;
    button.KOMABoundsX(150);
    button.KOMABoundsY(100);
    KomaObject* placed = Put(1, 1, button);
    PropertyArray rows;
    placed->GetPropertyList(rows);
    rows.At(3, 4) = PropertyCell(std::string("40"));
    rows.At(3, 5) = PropertyCell(std::string("90"));
    ASSERT_TRUE(placed->SetPropertyList(rows));
    EXPECT_EQ(placed->KOMAWidth(), 10);
    EXPECT_EQ(placed->KOMAHeight(), 60);
    EXPECT_DOUBLE_EQ(placed->Width(), 10 * 36.59);
}

TEST_F(TableTest, ARecordThatCannotBeAppliedSaysSo) {
    GroupList groups(21);
    groups[0] = {"TABLE_9", "1"};
    groups[1] = {"x", "0", "0", "0"};
    for (std::size_t i : {2u, 3u, 6u, 7u, 8u, 9u}) groups[i] = {"1"};
    groups[10] = {"0", "0", "0", "0", ""};
    groups[20] = {"TRUE", "TRUE", "TRUE", "TRUE", "TRUE"};
    bool ok = true;
    table.SetFromResText(groups, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Error: Table - SetFromResText"}));
    // The wrong number of groups changes nothing and says nothing.
    owner.host.ClearRecord();
    table.SetFromResText(GroupList(20), ok);
    EXPECT_FALSE(ok);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(TableTest, TheBitmapsPlaceSizeAndTheIdRefuseWithTheirMessages) {
    table.KOMABitmapX(160);
    table.KOMABitmapY(-1);
    table.KOMABitmapWidth(161);
    table.KOMABitmapHeight(-1);
    table.KOMAObjectID(-1);
    EXPECT_EQ(owner.host.MessageLines(),
              (Lines{"Tolva Resource Editor: Invalid value", "Tolva Resource Editor: Invalid value",
                     "Tolva Resource Editor: Invalid value", "Tolva Resource Editor: Invalid value",
                     "KOMAObjectID: Invalid value"}));
    table.KOMABitmapX(159);
    table.KOMABitmapWidth(160);
    EXPECT_EQ(table.KOMABitmapX(), 159);
    EXPECT_EQ(table.KOMABitmapWidth(), 160);
    EXPECT_EQ(table.KOMABitmapY(), 0);
    EXPECT_EQ(table.KOMAObjectID(), 0);
}

}  // namespace
}  // namespace tolva::testing
