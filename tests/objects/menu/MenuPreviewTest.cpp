// The menu preview: its items sizing the box with the small font's widths,
// its lines, its six rows named by the record's keys with the menu's own
// name refusal, and its fuller record.
#include <gtest/gtest.h>

#include "objects/list/ListEditing.h"
#include "objects/menu/ctlKOMAMenu.h"
#include "objects/menu/modMenu.h"
#include "support/NamedElement.h"
#include "support/OwnedObjectFixture.h"
#include "support/RealFontWidths.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;
constexpr double kP = 36.59;

class MenuPreviewTest : public OwnedObjectFixture<ctlKOMAMenu> {
protected:
    void SetUp() override {
        OwnedObjectFixture::SetUp();
        LoadRealFontWidths();
    }
    ctlKOMAMenu& menu = object;
};

TEST_F(MenuPreviewTest, ANewPreviewIsNamedByThePrefixAlone) {
    EXPECT_EQ(menu.KOMAName(), "MENU_");
    EXPECT_EQ(menu.KOMAObjectTypeWord(), "MENU");
    EXPECT_EQ(menu.KOMASelectedItem(), -1);
    EXPECT_EQ(menu.KOMAVisibleWord(), "TRUE");
}

// In the small font, each character and its gap: "Open" 21 pixels, "Save"
// (S 5, a 4, v 5, e 4) 22, the widest.
TEST_F(MenuPreviewTest, TheBoxTakesItsSizeFromTheItems) {
    menu.SetList({"Open", "Save"}, -1);
    EXPECT_DOUBLE_EQ(menu.Width(), 22 * kP + 360);
    EXPECT_DOUBLE_EQ(menu.Height(), 10 * 2 * kP + 160);
    const DrawElementList e = menu.GetDrawElements();
    EXPECT_EQ(Named(e, "lblItem(2)").text, "Save");
    EXPECT_DOUBLE_EQ(Named(e, "lblItem(2)").rect.top, 120 + 10 * kP);
    EXPECT_EQ(Named(e, "lblItem(1)").rect.left, 80);
    EXPECT_EQ(Named(e, "shpBorder").rect.left, 10);
    EXPECT_DOUBLE_EQ(Named(e, "shpBorder").rect.width, menu.Width() - 20);
    menu.AddListItem("Quit");
    EXPECT_DOUBLE_EQ(menu.Height(), 10 * 3 * kP + 160);
    menu.RemoveListItem(0);
    EXPECT_EQ(menu.Items(), (Lines{"Save", "Quit"}));
}

TEST_F(MenuPreviewTest, SixRowsNamedByTheRecordsKeys) {
    const PropertyArray rows = Rows();
    ASSERT_EQ(rows.Rows(), 6);
    const Lines labels = {"NAME", "BOUNDS.X", "BOUNDS.Y", "BOUNDS.WIDTH", "BOUNDS.HEIGHT",
                          "LIST_ATTR.LIST_VISIBLE"};
    for (int i = 1; i <= 6; ++i) EXPECT_EQ(rows.Label(i), labels[static_cast<std::size_t>(i - 1)]) << i;
    ValueLists lists;
    FillMenuValueLists(lists);
    EXPECT_EQ(lists[5], (Lines{"TRUE", "FALSE"}));
}

TEST_F(MenuPreviewTest, ATakenNameIsRefusedAsAMenuName) {
    owner.takenNames.insert("BUTTON_1");
    PropertyArray rows = Rows();
    rows.At(3, 1) = PropertyCell(std::string("BUTTON_1"));
    ASSERT_TRUE(menu.SetPropertyList(rows));
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Tolva Resource Editor: Menu name must be unique"}));
    EXPECT_EQ(menu.KOMAName(), "MENU_");
}

TEST_F(MenuPreviewTest, SizesBeyond160AreRefusedWithTheirMessages) {
    PropertyArray rows = Rows();
    rows.At(3, 4) = PropertyCell(std::string("161"));
    rows.At(3, 5) = PropertyCell(std::string("170"));
    rows.At(3, 6) = PropertyCell(std::string("FALSE"));
    ASSERT_TRUE(menu.SetPropertyList(rows));
    EXPECT_EQ(owner.host.MessageLines(),
              (Lines{"KOMAHeight: Invalid height value", "KOMAWidth: Invalid width value"}));
    EXPECT_FALSE(menu.KOMAVisible());
    EXPECT_EQ(menu.KOMAVisibleWord(), "FALSE");
}

TEST_F(MenuPreviewTest, TheFullerRecordHasItsComments) {
    menu.SetList({"Open"}, 0);
    LineList lines;
    bool ok = false;
    menu.ReturnResourceFileText(lines, ok);
    ASSERT_TRUE(ok);
    EXPECT_EQ(Lines(lines.end() - 11, lines.end()),
              (Lines{"(U)MENU_NUM_ITEMS=1", "~F3", "//NO_SELECTION or 0 - ??", "(SH)MENU_SELECTED_ITEM=0", "~F4",
                     "//any text", "(S)MENU_ITEMS1=Open", "~F5", "//TRUE or FALSE", "(BO)MENU_VISIBLE=TRUE",
                     "#END_MENU"}));
}

TEST_F(MenuPreviewTest, ARightClickOffersEditMenuAndClearMenu) {
    owner.host.popupAnswers = {std::nullopt};
    menu.MouseDown(kRightButton, 0, 5, 5);
    ASSERT_EQ(owner.host.popups.size(), 1u);
    EXPECT_EQ(owner.host.popups[0].first, "Set Properties");
    EXPECT_EQ(owner.host.popups[0].second, (Lines{"Edit Menu...", "Clear Menu"}));
    EXPECT_EQ(owner.host.popupNames[0], (Lines{"mnuEditMenu", "mnuClearMenu"}));
    EXPECT_TRUE(owner.host.dialogs.empty());
}

TEST_F(MenuPreviewTest, EditMenuRunsTheListEditorOnTheItems) {
    menu.SetList({"Open"}, 0);
    std::vector<std::string> given;
    owner.host.popupAnswers = {0};
    owner.host.dialogAnswers.push_back([&](DialogModel& model) {
        auto& edit = dynamic_cast<ListEditing&>(model);
        given = edit.Items();
        EXPECT_TRUE(edit.Add("Close"));
        return true;
    });
    owner.events.clear();
    menu.MouseDown(kRightButton, 0, 5, 5);
    EXPECT_EQ(owner.host.dialogs, (Lines{"frmList"}));
    EXPECT_EQ(given, (Lines{"Open"}));
    EXPECT_EQ(menu.Items(), (Lines{"Open", "Close"}));
    EXPECT_EQ(menu.KOMASelectedItem(), 0);
    EXPECT_DOUBLE_EQ(menu.Height(), 10 * 2 * kP + 160);
    EXPECT_EQ(owner.events, (Lines{"PicChanged"}));
}

TEST_F(MenuPreviewTest, ACancelledEditKeepsTheItems) {
    menu.SetList({"Open"}, 0);
    owner.host.popupAnswers = {0};
    owner.host.dialogAnswers.push_back([](DialogModel& model) {
        dynamic_cast<ListEditing&>(model).RemoveAll();
        return false;
    });
    menu.MouseDown(kRightButton, 0, 5, 5);
    EXPECT_EQ(menu.Items(), (Lines{"Open"}));
}

TEST_F(MenuPreviewTest, ClearMenuEmptiesIt) {
    menu.SetList({"Open", "Save"}, 1);
    owner.host.popupAnswers = {1};
    menu.MouseDown(kRightButton, 0, 5, 5);
    EXPECT_TRUE(menu.Items().empty());
    EXPECT_EQ(menu.KOMASelectedItem(), -1);
    EXPECT_DOUBLE_EQ(menu.Height(), 160);
}

}  // namespace
}  // namespace tolva::testing
