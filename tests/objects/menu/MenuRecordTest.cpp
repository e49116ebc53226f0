// Menus in the resource file: written from their form's data, read back by
// their parser (exactly as many item lines as counted, NO_SELECTION as -1)
// and made again in the forms that list them.
#include <gtest/gtest.h>

#include "document/ObjectTypes.h"
#include "objects/form/ctlKOMAForm.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;

class MenuRecordTest : public ResourceFileTest {
protected:
    void MakeTwoMenus() {
        ASSERT_TRUE(DrawForm());
        screen.UpdateMenus({{"Open", "Save", "Quit"}, {}}, {"MENU_FILE", "MENU_EDIT"});
    }
    Lines MenuNames(int form) {
        std::vector<std::vector<std::string>> items;
        std::vector<std::string> names;
        std::vector<int> ids;
        ctlKOMAForm* shown = Form(form);
        EXPECT_NE(shown, nullptr) << form;
        if (shown) shown->GetMenus(items, names, ids);
        return names;
    }
};

TEST_F(MenuRecordTest, MenusGoThroughSaveAndLoadWithTheirItems) {
    MakeTwoMenus();
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    EXPECT_NE(first.find("#MENU\r\nNAME=MENU_FILE\r\n"), std::string::npos);
    EXPECT_NE(first.find("(U)MENU_NUM_ITEMS=3\r\n~F3\r\n(SH)MENU_SELECTED_ITEM=-1\r\n~F4\r\n"
                         "(S)MENU_ITEMS1=Open\r\n(S)MENU_ITEMS2=Save\r\n(S)MENU_ITEMS3=Quit\r\n~F5\r\n"),
              std::string::npos);
    ASSERT_TRUE(Reload(first));
    EXPECT_EQ(MenuNames(1), (Lines{"MENU_FILE", "MENU_EDIT"}));
    std::vector<std::vector<std::string>> items;
    std::vector<std::string> names;
    std::vector<int> ids;
    Form(1)->GetMenus(items, names, ids);
    EXPECT_EQ(items[0], (Lines{"Open", "Save", "Quit"}));
    EXPECT_TRUE(items[1].empty());
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(MenuRecordTest, NoSelectionAsAWordIsRead) {
    MakeTwoMenus();
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    ASSERT_TRUE(Reload(Replaced(first, "(SH)MENU_SELECTED_ITEM=-1", "(SH)MENU_SELECTED_ITEM=NO_SELECTION")));
    EXPECT_EQ(MenuNames(1), (Lines{"MENU_FILE", "MENU_EDIT"}));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(MenuRecordTest, MoreItemsCountedThanWrittenFailTheRecord) {
    MakeTwoMenus();
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_FALSE(Reload(Replaced(ReadBytes(path), "(U)MENU_NUM_ITEMS=3", "(U)MENU_NUM_ITEMS=4")));
    const auto messages = host.MessageLines();
    ASSERT_GE(messages.size(), 2u);
    EXPECT_NE(messages[0].find(":  ~F5"), std::string::npos) << messages[0];
    EXPECT_EQ(messages[1], "Load Error: Could not load menu object");
}

// A menu the second form lists as well is made in both; a menu no form
// lists is dropped.
TEST_F(MenuRecordTest, AMenuTwoFormsListIsCopiedToBothAndOneNoFormListsIsDropped) {
    MakeTwoMenus();
    ASSERT_TRUE(Draw(type::Form, 0, 0, 160, 160));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    std::string text = ReadBytes(path);
    const auto fileId = text.substr(text.find("NAME=MENU_FILE\r\nID=") + 19);
    const std::string id = fileId.substr(0, fileId.find('\r'));
    // The second form lists MENU_FILE too; the first no longer lists
    // MENU_EDIT.
    const auto second = text.find("NAME=FORM_2");
    ASSERT_NE(second, std::string::npos);
    const std::string none = "(U)NO_OF_OBJECTS=0\r\n~F7\r\n";
    const auto count = text.find(none, second);
    ASSERT_NE(count, std::string::npos);
    text.replace(count, none.size(), "(U)NO_OF_OBJECTS=1\r\n~F7\r\n(U)OBJECT_ID=" + id + "\r\n(B)OBJECT_TYPE=MENU\r\n");
    const auto edit = text.find("NAME=MENU_EDIT\r\nID=");
    const std::string editId = text.substr(edit + 19, text.find('\r', edit + 19) - edit - 19);
    text = Replaced(text, "(U)OBJECT_ID=" + editId + "\r\n(B)OBJECT_TYPE=MENU\r\n", "");
    text = Replaced(text, "(U)NO_OF_OBJECTS=2", "(U)NO_OF_OBJECTS=1");
    ASSERT_TRUE(Reload(text));
    ASSERT_EQ(screen.NumForms(), 2) << ::testing::PrintToString(host.MessageLines());
    EXPECT_EQ(MenuNames(1), (Lines{"MENU_FILE"}));
    EXPECT_EQ(MenuNames(2), (Lines{"MENU_FILE"}));
}

}  // namespace
}  // namespace tolva::testing
