// The List: its items, selection and counts, the 15 rows, its numbered
// lines with the selected band and the arrows, the List Editor from the
// popup menu writing items and links back, and its record with the form's
// related lists, written line by line, read strictly and applied.
#include <gtest/gtest.h>

#include "document/ObjectTypes.h"
#include "document/Words.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/list/ListEditing.h"
#include "objects/list/ctlKOMAList.h"
#include "objects/list/modList.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"
#include "support/NamedElement.h"
#include "support/OwnedObjectFixture.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;
constexpr double kP = 36.59;

class ListTest : public OwnedObjectFixture<ctlKOMAList> {
protected:
    // The editor's limit lives on between openings: put it back.
    void TearDown() override { ListEditing::EditorItemLimit() = ListEditing::kFirstItemLimit; }
    ctlKOMAList& list = object;
    int Shown(const DrawElementList& elements, const std::string& prefix) {
        int count = 0;
        for (const DrawElement& e : elements) count += e.name.rfind(prefix, 0) == 0 && e.visible;
        return count;
    }
};

TEST_F(ListTest, ANewListHasItsDefaults) {
    EXPECT_EQ(list.KOMAObjectTypeWord(), "LIST");
    EXPECT_EQ(list.KOMAWidth(), 24);
    EXPECT_EQ(list.KOMAHeight(), 12);
    EXPECT_EQ(list.KOMATotalNumItems(), 0);
    EXPECT_EQ(list.KOMANumItemsDisplayed(), 0);
    EXPECT_EQ(list.KOMASelectedItem(), -1);
    EXPECT_EQ(list.KOMAListStyleWord(), "LIST_STYLE_0");
    EXPECT_EQ(list.KOMASetScrollWord(), "FALSE");
    EXPECT_EQ(list.KOMASyncWord(), "FALSE");
    EXPECT_EQ(list.KOMAEnableWord(), "TRUE");
}

TEST_F(ListTest, SettersTakeTheirValuesOrRefuse) {
    list.KOMATotalNumItems(-1);
    list.KOMANumItemsDisplayed(-2);
    EXPECT_EQ(owner.host.MessageLines(),
              (Lines{"Tolva Resource Editor: Invalid value", "Tolva Resource Editor: Invalid value"}));
    list.KOMAListStyle(7);
    EXPECT_EQ(list.KOMAListStyleWord(), "LIST_STYLE_7");
    list.KOMAListStyle(8);
    EXPECT_EQ(list.KOMAListStyleWord(), "");
    list.KOMATextAlignment(2);
    list.KOMATextAlignment(5);
    EXPECT_EQ(list.KOMATextAlignmentWord(), "RIGHT");
    list.KOMASelectedItem(-7);
    EXPECT_EQ(list.KOMASelectedItem(), -7);
}

TEST_F(ListTest, SetListAndTheItemOperations) {
    list.SetList({"a", "b", "c"}, 1, 5, 2);
    EXPECT_EQ(list.KOMATotalNumItems(), 3);
    EXPECT_EQ(list.KOMANumItemsDisplayed(), 5);
    EXPECT_EQ(list.KOMATopItemNum(), 2);
    std::vector<std::string> items;
    int selected = 0, shown = 0, top = 0;
    list.GetList(items, selected, shown, top);
    EXPECT_EQ(items, (Lines{"a", "b", "c"}));
    EXPECT_EQ(selected, 1);
    list.AddListItem("d");
    list.RemoveListItem(0);
    EXPECT_EQ(list.Items(), (Lines{"b", "c", "d"}));
    EXPECT_EQ(list.KOMATotalNumItems(), 3);
}

// Lines every 10 device pixels below 120 screen units; each shows the
// number of its item.
TEST_F(ListTest, TheLinesShowTheItemNumbersFromTheTopItem) {
    list.SetCanvasSize(60 * kP, 120 + 35 * kP);
    list.SetList({"a", "b", "c", "d", "e"}, 2, 5, 1);
    EXPECT_EQ(list.LineCount(), 3);
    const DrawElementList e = list.GetDrawElements();
    EXPECT_EQ(Named(e, "lblItem(1)").text, "   2");
    EXPECT_EQ(Named(e, "lblItem(3)").text, "   4");
    EXPECT_DOUBLE_EQ(Named(e, "lblItem(2)").rect.top, 120 + 10 * kP);
    EXPECT_EQ(Named(e, "lblItem(1)").font.name, "TolvaSmall");
    // The selected item, 2 from 0, is the second line, on the band.
    EXPECT_TRUE(Named(e, "lblItem(2)").opaque);
    EXPECT_EQ(Named(e, "lblItem(2)").backColor, (DrawColor{0xFF, 0xE0, 0xC0}));
    EXPECT_FALSE(Named(e, "lblItem(1)").opaque);
    // Items above the top and below the last line: both arrows.
    EXPECT_EQ(Shown(e, "imgUpArrow"), 3);
    EXPECT_EQ(Shown(e, "imgDownArrow"), 3);
}

TEST_F(ListTest, LinesPastTheLastItemAreBlankAndTheArrowsGo) {
    list.SetCanvasSize(60 * kP, 120 + 35 * kP);
    list.SetList({"a", "b"}, -1, 5, 0);
    const DrawElementList e = list.GetDrawElements();
    EXPECT_EQ(Named(e, "lblItem(3)").text, "");
    EXPECT_EQ(Shown(e, "imgUpArrow"), 0);
    EXPECT_EQ(Shown(e, "imgDownArrow"), 0);
    list.SetCanvasSize(60 * kP, 110);
    EXPECT_EQ(list.LineCount(), 0);
}

TEST_F(ListTest, FifteenRowsAndTheirLists) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 15);
    const Lines labels = {"Name", "X Pos", "Y Pos", "Width", "Height", "Text Alignment", "List Style",
                          "Font Color", "Background Color", "Enabled", "Visible", "Active",
                          "Set Scroll", "Synchronous", "Edit List..."};
    for (int i = 1; i <= 15; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    ValueLists lists;
    FillListValueLists(lists);
    ASSERT_EQ(lists.size(), 15u);
    EXPECT_EQ(lists[6].size(), 8u);
    EXPECT_EQ(lists[6].back(), "LIST_STYLE_7");
    EXPECT_EQ(lists[7], ColorWordList());
}

TEST_F(ListTest, AStyleThatIsNoneOfTheEightWordsIsTold) {
    PropertyArray rows = Rows();
    rows.At(3, 7) = PropertyCell(std::string("list_style_3"));
    rows.At(3, 13) = PropertyCell(std::string("TRUE"));
    ASSERT_TRUE(list.SetPropertyList(rows));
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Tolva Resource Editor: Invalid list style"}));
    EXPECT_EQ(list.KOMAListStyleWord(), "LIST_STYLE_0");
    EXPECT_EQ(list.KOMASetScrollWord(), "TRUE");
    rows.At(3, 7) = PropertyCell(std::string("LIST_STYLE_3"));
    ASSERT_TRUE(list.SetPropertyList(rows));
    EXPECT_EQ(list.KOMAListStyleWord(), "LIST_STYLE_3");
    EXPECT_FALSE(list.SetPropertyList(PropertyArray(14)));
}

TEST_F(ListTest, ThePopupMenuOpensTheEditorAndOkWritesTheItemsBack) {
    owner.host.popupAnswers = {0};
    owner.host.dialogAnswers.push_back([](DialogModel& model) {
        auto& edit = dynamic_cast<ListEditing&>(model);
        edit.SetList({}, -1, 10, 0);
        edit.Add("One");
        edit.Add("Two");
        edit.Check(1, true);
        return edit.Accept("4");
    });
    list.MouseDown(kRightButton, 0, 3, 3);
    EXPECT_EQ(owner.host.popups[0].first, "Set Properties");
    EXPECT_EQ(owner.host.popups[0].second, (Lines{"Edit List..."}));
    EXPECT_EQ(owner.host.popupNames[0], (Lines{"mnuEditList"}));
    EXPECT_EQ(owner.host.dialogs, (Lines{"frmList"}));
    EXPECT_EQ(list.Items(), (Lines{"One", "Two"}));
    EXPECT_EQ(list.KOMASelectedItem(), 1);
    EXPECT_EQ(list.KOMANumItemsDisplayed(), 4);
    EXPECT_EQ(owner.events.back(), "PicChanged");
}

TEST_F(ListTest, CancelInTheEditorChangesNothing) {
    list.SetList({"kept"}, 0, 3, 0);
    owner.host.dialogAnswers.push_back([](DialogModel& model) {
        dynamic_cast<ListEditing&>(model).RemoveAll();
        return false;
    });
    list.EditList();
    EXPECT_EQ(list.Items(), (Lines{"kept"}));
    EXPECT_EQ(list.KOMASelectedItem(), 0);
}

// A list in a table cell lies on no form: it has no links to write.
TEST_F(ListTest, AListWithoutAFormWritesNoRelatedLists) {
    ASSERT_EQ(list.ParentForm(), nullptr);
    list.SetRelatedLists({"OTHER"}, {true});
    LineList lines;
    bool ok = false;
    list.ReturnResourceFileText(lines, ok);
    ASSERT_TRUE(ok);
    EXPECT_NE(std::find(lines.begin(), lines.end(), "(U)LIST_NUM_RELATED_LIST_OBJECT=0"), lines.end());
    EXPECT_EQ(list.NumRelatedLists(), 0);
}

// --- record ----------------------------------------------------------------------------------

class ListRecordTest : public ResourceFileTest {
protected:
    ctlKOMAList* At(int index) { return static_cast<ctlKOMAList*>(Obj(type::List, index)); }
    LineList RecordOf(ctlKOMAList& list) {
        LineList lines;
        bool ok = false;
        list.ReturnResourceFileText(lines, ok);
        EXPECT_TRUE(ok);
        return lines;
    }
};

TEST_F(ListRecordTest, AnEmptyListsRecordLineByLine) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::List, 10, 20, 60, 40));
    ctlKOMAList& list = *At(1);
    const Lines expected = {
        "//-----------------------------------------------------------------",
        "//----------- LIST_1 ------------------------------------------",
        "//-----------------------------------------------------------------",
        "#LIST", "NAME=LIST_1", "ID=" + std::to_string(list.KOMAObjectID()), "~F0", "(B)OBJECT.TYPE=LIST",
        "~F1", "//0 - 65534 (if within table), 65535 means not within table", "(U)RELATED_TABLE_ID=65535",
        "~F2", "//0 - 159", "(SH)BOUNDS.X=10", "(SH)BOUNDS.Y=20", "//0 - 160", "(SH)BOUNDS.WIDTH=60",
        "(SH)BOUNDS.HEIGHT=40", "~F3", "//ids of other lists that are linked to this one",
        "(U)LIST_NUM_RELATED_LIST_OBJECT=0", "~F4", "~F5", "(U)LIST_TOTAL_NUM_ITEMS=0", "~F6",
        "(U)LIST_NUM_ITEMS_ON_DISPLAY=0", "~F7", "(U)LIST_TOP_ITEM_NUM=0", "~F8", "//LEFT,CENTRE,RIGHT",
        "(B)LIST_TEXTMENT=LEFT", "~F9", "//NO_SELECTION or 0 - ??", "(SH)LIST_SELECTED_ITEM=-1", "~F10",
        "//LIST_STYLE_0,LIST_STYLE_1,LIST_STYLE_2,LIST_STYLE_3", "(B)LIST_STYLE=LIST_STYLE_0", "~F11",
        "//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK", "(B)LIST_TEXT_COLOR=COLOR_BLACK", "~F12",
        "(B)LIST_BACKGROUND_COLOR=COLOR_WHITE", "//any text", "~F13", "~F14", "//TRUE or FALSE",
        "(BO)LIST_ATTR.LIST_ENABLE=TRUE", "(BO)LIST_ATTR.LIST_VISIBLE=TRUE", "(BO)LIST_ATTR.LIST_ACTIVE=TRUE",
        "(BO)LIST_ATTR.LIST_SET_SCROLL=FALSE", "(BO)LIST_ATTR.LIST_SYNCHRONOUS=FALSE", "#END_LIST"};
    EXPECT_EQ(RecordOf(list), expected);
}

TEST_F(ListRecordTest, LinkedListsWriteTheirIdsAndComeBackUnlinked) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::List, 10, 20, 60, 40));
    ASSERT_TRUE(Draw(type::List, 80, 20, 60, 40));
    At(1)->SetList({"a", "b"}, 1, 6, 0);
    At(1)->SetRelatedLists({"LIST_2"}, {true});
    const LineList lines = RecordOf(*At(1));
    const std::string related = "(U)LIST_RELATED_OBJECT_1=" + std::to_string(At(2)->KOMAObjectID());
    EXPECT_NE(std::find(lines.begin(), lines.end(), "(U)LIST_NUM_RELATED_LIST_OBJECT=1"), lines.end());
    EXPECT_NE(std::find(lines.begin(), lines.end(), related), lines.end());
    EXPECT_NE(std::find(lines.begin(), lines.end(), "(S)LIST_ITEMS2=b"), lines.end());
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    ASSERT_TRUE(Reload(first));
    ASSERT_EQ(screen.Count(type::List), 2);
    EXPECT_EQ(At(1)->Items(), (Lines{"a", "b"}));
    EXPECT_EQ(At(1)->KOMASelectedItem(), 1);
    // Links are made by embedding alone: the file's IDs are read and left.
    const LineList again = RecordOf(*At(1));
    EXPECT_NE(std::find(again.begin(), again.end(), "(U)LIST_NUM_RELATED_LIST_OBJECT=0"), again.end());
}

TEST_F(ListRecordTest, NoSelectionAndTheOtherAlignmentKeyReadTheSame) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::List, 10, 20, 60, 40));
    At(1)->SetList({"x"}, -1, 3, 0);
    At(1)->KOMATextAlignment(1);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    ASSERT_TRUE(Reload(Replaced(Replaced(first, "(SH)LIST_SELECTED_ITEM=-1", "(SH)LIST_SELECTED_ITEM=NO_SELECTION"),
                                "(B)LIST_TEXTMENT=CENTRE", "(B)LIST_TEXT_ALIGNMENT=CENTRE")));
    EXPECT_EQ(At(1)->KOMASelectedItem(), -1);
    EXPECT_EQ(At(1)->KOMATextAlignmentWord(), "CENTRE");
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(ListRecordTest, ARelatedLineBeyondTheCountFailsTheRecordThere) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::List, 10, 20, 60, 40));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_FALSE(Reload(Replaced(ReadBytes(path), "~F4\r\n~F5", "~F4\r\n(U)LIST_RELATED_OBJECT_1=3\r\n~F5")));
    const auto messages = host.MessageLines();
    ASSERT_GE(messages.size(), 2u);
    EXPECT_NE(messages[0].find(":  (U)LIST_RELATED_OBJECT_1=3"), std::string::npos) << messages[0];
    EXPECT_EQ(messages[1], "Load Error: Could not load list object");
}

}  // namespace
}  // namespace tolva::testing
