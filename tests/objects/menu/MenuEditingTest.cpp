// The Menu Editor's rules: the menus it is given, the menu shown and the
// items kept when another is chosen, the name test of New, Copy To New and
// Rename, Delete, the item limit of twelve, and the preview.
#include <gtest/gtest.h>

#include "objects/menu/MenuEditing.h"
#include "support/ScriptedHost.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;

const char* const kIllegal =
    "Invalid Name: The name you have entered contains illegal characters or starts with a "
    "number.  Names must start with a letter or underscore, and contain only letters, numbers "
    "and underscores";
const char* const kTaken = "Invalid Name: This name is being used by another object.  Please choose another";

class MenuEditingTest : public ::testing::Test {
protected:
    ScriptedHost host;
    Lines screenNames{"BUTTON_1", "FORM_1"};
    MenuEditing edit{host, [this](const std::string& name) {
                         return std::find(screenNames.begin(), screenNames.end(), name) != screenNames.end();
                     }};

    void TwoMenus() {
        edit.AddMenu("MENU_FILE", {"Open", "Save"});
        edit.AddMenu("MENU_EDIT", {"Cut"});
        edit.SetMenuSelected(0);
    }
};

TEST_F(MenuEditingTest, TheCaptionNamesTheForm) {
    EXPECT_EQ(edit.Caption(), "Menu Editor");
    edit.Caption("FORM_MAIN");
    EXPECT_EQ(edit.Caption(), "Menu Editor - FORM_MAIN");
    EXPECT_STREQ(edit.DialogName().c_str(), "frmMenu");
}

TEST_F(MenuEditingTest, AFormWithNoMenuShowsNone) {
    edit.SetMenuSelected(0);
    EXPECT_FALSE(edit.HasSelectedMenu());
    EXPECT_EQ(edit.SelectedMenu(), -1);
    EXPECT_TRUE(edit.Items().empty());
    // With no menu shown, items, copies and renames do nothing.
    EXPECT_FALSE(edit.Add("Open"));
    EXPECT_FALSE(edit.CopyToNew("MENU_2"));
    EXPECT_FALSE(edit.Rename("MENU_2"));
    edit.Delete();
    EXPECT_TRUE(edit.Names().empty());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(MenuEditingTest, ChoosingAMenuKeepsTheItemsOfTheOneShown) {
    TwoMenus();
    EXPECT_EQ(edit.Items(), (Lines{"Open", "Save"}));
    EXPECT_TRUE(edit.Add("Close"));
    edit.ChooseMenu(1);
    EXPECT_EQ(edit.Items(), (Lines{"Cut"}));
    edit.ChooseMenu(0);
    EXPECT_EQ(edit.Items(), (Lines{"Open", "Save", "Close"}));
    EXPECT_EQ(edit.ItemLists(), (std::vector<Lines>{{"Open", "Save", "Close"}, {"Cut"}}));
}

TEST_F(MenuEditingTest, TheItemListsHoldTheShownMenuAsItStands) {
    TwoMenus();
    edit.ChooseMenu(1);
    edit.RemoveAll();
    EXPECT_EQ(edit.ItemLists(), (std::vector<Lines>{{"Open", "Save"}, {}}));
}

TEST_F(MenuEditingTest, NewMakesAnEmptyMenuAndShowsIt) {
    TwoMenus();
    EXPECT_TRUE(edit.Add("Close"));
    EXPECT_TRUE(edit.New("MENU_HELP"));
    EXPECT_EQ(edit.Names(), (Lines{"MENU_FILE", "MENU_EDIT", "MENU_HELP"}));
    EXPECT_EQ(edit.SelectedMenu(), 2);
    EXPECT_TRUE(edit.Items().empty());
    // The items of the menu shown before are kept.
    EXPECT_EQ(edit.ItemLists()[0], (Lines{"Open", "Save", "Close"}));
}

TEST_F(MenuEditingTest, MenuAloneIsALegalNameRefusedOnlyWhenUsed) {
    EXPECT_TRUE(edit.New("MENU_"));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_FALSE(edit.New("MENU_"));
    EXPECT_EQ(host.MessageLines(), (Lines{kTaken}));
    EXPECT_EQ(edit.Names(), (Lines{"MENU_"}));
}

TEST_F(MenuEditingTest, AnEmptyNameDoesNothing) {
    TwoMenus();
    EXPECT_FALSE(edit.New(""));
    EXPECT_FALSE(edit.CopyToNew(""));
    EXPECT_FALSE(edit.Rename(""));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(edit.Names(), (Lines{"MENU_FILE", "MENU_EDIT"}));
}

TEST_F(MenuEditingTest, NamesBreakingTheRuleAreRefused) {
    TwoMenus();
    for (const char* name : {"1MENU", "MENU 2", "MENU-2", "M\xe9NU"}) {
        host.ClearRecord();
        EXPECT_FALSE(edit.New(name)) << name;
        EXPECT_FALSE(edit.CopyToNew(name)) << name;
        EXPECT_FALSE(edit.Rename(name)) << name;
        EXPECT_EQ(host.MessageLines(), (Lines{kIllegal, kIllegal, kIllegal})) << name;
    }
    EXPECT_EQ(edit.Names(), (Lines{"MENU_FILE", "MENU_EDIT"}));
}

TEST_F(MenuEditingTest, ANameOfAnObjectAnywhereOnTheScreenIsTaken) {
    // The button lies on another form: the test asks the whole screen.
    TwoMenus();
    EXPECT_FALSE(edit.New("BUTTON_1"));
    EXPECT_FALSE(edit.CopyToNew("FORM_1"));
    EXPECT_FALSE(edit.Rename("BUTTON_1"));
    EXPECT_EQ(host.MessageLines(), (Lines{kTaken, kTaken, kTaken}));
    EXPECT_EQ(edit.Names(), (Lines{"MENU_FILE", "MENU_EDIT"}));
}

TEST_F(MenuEditingTest, ANameOfAMenuInTheEditorIsTakenEvenItsOwn) {
    TwoMenus();
    EXPECT_FALSE(edit.Rename("MENU_EDIT"));
    EXPECT_FALSE(edit.Rename("MENU_FILE"));
    EXPECT_EQ(host.MessageLines(), (Lines{kTaken, kTaken}));
}

TEST_F(MenuEditingTest, ANameFreedInTheEditorCanBeUsedAgain) {
    TwoMenus();
    EXPECT_TRUE(edit.Rename("MENU_MAIN"));
    EXPECT_TRUE(edit.New("MENU_FILE"));
    EXPECT_EQ(edit.Names(), (Lines{"MENU_MAIN", "MENU_EDIT", "MENU_FILE"}));
}

TEST_F(MenuEditingTest, CopyToNewCopiesTheItemsAndShowsTheCopy) {
    TwoMenus();
    EXPECT_TRUE(edit.Add("Close"));
    EXPECT_TRUE(edit.CopyToNew("MENU_FILE2"));
    EXPECT_EQ(edit.SelectedMenu(), 2);
    EXPECT_EQ(edit.Items(), (Lines{"Open", "Save", "Close"}));
    // The copy is its own.
    edit.RemoveAll();
    EXPECT_EQ(edit.ItemLists(), (std::vector<Lines>{{"Open", "Save", "Close"}, {"Cut"}, {}}));
}

TEST_F(MenuEditingTest, RenameReplacesTheShownMenusName) {
    TwoMenus();
    edit.ChooseMenu(1);
    EXPECT_TRUE(edit.Rename("MENU_CLIP"));
    EXPECT_EQ(edit.Names(), (Lines{"MENU_FILE", "MENU_CLIP"}));
    EXPECT_EQ(edit.SelectedMenu(), 1);
    EXPECT_EQ(edit.Items(), (Lines{"Cut"}));
}

TEST_F(MenuEditingTest, DeleteShowsTheMenuBeforeOrNone) {
    TwoMenus();
    edit.AddMenu("MENU_HELP", {"About"});
    edit.ChooseMenu(2);
    edit.Delete();
    EXPECT_EQ(edit.Names(), (Lines{"MENU_FILE", "MENU_EDIT"}));
    EXPECT_EQ(edit.SelectedMenu(), 1);
    EXPECT_EQ(edit.Items(), (Lines{"Cut"}));
    // The first menu has none before it.
    edit.ChooseMenu(0);
    edit.Delete();
    EXPECT_EQ(edit.Names(), (Lines{"MENU_EDIT"}));
    EXPECT_FALSE(edit.HasSelectedMenu());
    EXPECT_TRUE(edit.Items().empty());
    EXPECT_EQ(edit.ItemLists(), (std::vector<Lines>{{"Cut"}}));
}

TEST_F(MenuEditingTest, TheThirteenthItemIsRefused) {
    ASSERT_TRUE(edit.New("MENU_"));
    for (int i = 1; i <= 12; ++i) EXPECT_TRUE(edit.Add("Item " + std::to_string(i))) << i;
    EXPECT_FALSE(edit.Add("Item 13"));
    EXPECT_EQ(edit.Items().size(), 12u);
    EXPECT_EQ(host.MessageLines(), (Lines{"Limit reached: Maximum number of items reached"}));
}

TEST_F(MenuEditingTest, ItemsFollowTheListEditorsRules) {
    ASSERT_TRUE(edit.New("MENU_"));
    EXPECT_TRUE(edit.Add("  Open "));
    EXPECT_FALSE(edit.Add("Open"));
    EXPECT_FALSE(edit.Add("   "));
    EXPECT_EQ(edit.Items(), (Lines{"Open"}));
    EXPECT_EQ(host.MessageLines(), (Lines{"List Editor: Duplicate items not allowed"}));
    EXPECT_TRUE(edit.Add("Close"));
    EXPECT_TRUE(edit.Add("About"));
    edit.Sort();
    EXPECT_EQ(edit.Items(), (Lines{"About", "Close", "Open"}));
    EXPECT_EQ(edit.MoveDown(0), 1);
    EXPECT_EQ(edit.Items(), (Lines{"Close", "About", "Open"}));
    edit.Remove(2);
    EXPECT_EQ(edit.Items(), (Lines{"Close", "About"}));
}

TEST_F(MenuEditingTest, ThePreviewFollowsTheShownItems) {
    TwoMenus();
    EXPECT_EQ(edit.Sample().Items(), (Lines{"Open", "Save"}));
    const double twoLines = edit.Sample().Height();
    EXPECT_TRUE(edit.Add("Close"));
    EXPECT_EQ(edit.Sample().Items(), (Lines{"Open", "Save", "Close"}));
    EXPECT_GT(edit.Sample().Height(), twoLines);
    edit.ChooseMenu(1);
    EXPECT_EQ(edit.Sample().Items(), (Lines{"Cut"}));
    EXPECT_EQ(edit.Sample().KOMASelectedItem(), -1);
}

}  // namespace
}  // namespace tolva::testing
