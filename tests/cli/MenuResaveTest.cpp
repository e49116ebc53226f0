// Menus through tolva-res: two forms with two menus each, one of them with
// its twelve items, go through resave byte for byte with their header; the
// record's failures end it or the load as a menu's record must.
#include <gtest/gtest.h>

#include "cli/ResProgramFixture.h"

namespace tolva::testing {
namespace {

class MenuResave : public FullRecordResave {
protected:
    MenuResave() : FullRecordResave("menus_full") {}
};

TEST_F(MenuResave, TwoFormsWithTheirMenusGoThroughByteForByte) { ExpectResavedUnchanged(); }

TEST_F(MenuResave, TheHeaderListsEachMenuBehindItsForm) {
    const std::string header = Golden("menus_full.h");
    EXPECT_NE(header.find("#define FORM_1 0\r\n#define MENU_FILE 2\r\n#define MENU_EDIT 3\r\n"
                          "#define FORM_2 1\r\n#define MENU_VIEW 4\r\n#define MENU_HELP 5\r\n"),
              std::string::npos);
}

// An item more counted than written: the marker stands where the last item
// was wanted, and the menu's record fails the load.
TEST_F(MenuResave, MoreItemsCountedThanWrittenFailAtTheMarker) {
    WriteFile(dir / "in.txt", FullWith("(U)MENU_NUM_ITEMS=12", "(U)MENU_NUM_ITEMS=13"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err, FailedRecord(138, "~F5", "menu"));
}

TEST_F(MenuResave, AnItemMoreThanCountedFailsAtThatItem) {
    WriteFile(dir / "in.txt", FullWith("(U)MENU_NUM_ITEMS=12", "(U)MENU_NUM_ITEMS=11"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err, FailedRecord(137, "(S)MENU_ITEMS12=Last of 12", "menu"));
}

TEST_F(MenuResave, AWordWhereTheCountBelongsEndsTheLoad) {
    WriteFile(dir / "in.txt", FullWith("(U)MENU_NUM_ITEMS=12", "(U)MENU_NUM_ITEMS=x"));
    EXPECT_EQ(Run("check in.txt"), 2);
    EXPECT_EQ(err, "load ended: Type mismatch: \"x\" is no number\n");
}

TEST_F(MenuResave, NoSelectionAsAWordIsRead) {
    WriteFile(dir / "in.txt", FullWith("(SH)MENU_SELECTED_ITEM=-1", "(SH)MENU_SELECTED_ITEM=NO_SELECTION"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Full());
}

// The first form lists MENU_EDIT no more: its record is read, and no menu
// is made of it.
TEST_F(MenuResave, AMenuNoFormListsIsDropped) {
    std::string text = FullWith("(U)NO_OF_OBJECTS=2\r\n~F7\r\n(U)OBJECT_ID=2\r\n(B)OBJECT_TYPE=MENU\r\n"
                                "(U)OBJECT_ID=3\r\n(B)OBJECT_TYPE=MENU\r\n",
                                "(U)NO_OF_OBJECTS=1\r\n~F7\r\n(U)OBJECT_ID=2\r\n(B)OBJECT_TYPE=MENU\r\n");
    WriteFile(dir / "in.txt", text);
    EXPECT_EQ(Run("resave in.txt out.txt out.h"), 0);
    EXPECT_EQ(err, "");
    const std::string saved = ReadFile(dir / "out.txt");
    EXPECT_EQ(saved.find("MENU_EDIT"), std::string::npos);
    EXPECT_NE(saved.find("NAME=MENU_HELP\r\nID=4\r\n"), std::string::npos);
    EXPECT_EQ(ReadFile(dir / "out.h").find("MENU_EDIT"), std::string::npos);
}

}  // namespace
}  // namespace tolva::testing
