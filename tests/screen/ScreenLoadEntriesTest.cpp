// The loader's entries into the screen that answer true or false: a menu of
// a form and an object in a table's cell.
#include "resfile/ResourceFileFixture.h"

namespace tolva::testing {
namespace {

using ScreenLoadEntries = ResourceFileTest;

TEST_F(ScreenLoadEntries, CreateNewMenuInFormAnswersTrueAndAddsTheMenu) {
    AddForm("FORM_1");
    EXPECT_TRUE(screen.CreateNewMenuInForm({"Open"}, "MENU_FILE", "FORM_1"));
    EXPECT_EQ(Form(1)->GetNumMenus(), 1);
    EXPECT_EQ(screen.NumMenus(), 1);
}

TEST_F(ScreenLoadEntries, CreateNewMenuInFormAnswersFalseForAnUnknownForm) {
    AddForm("FORM_1");
    EXPECT_FALSE(screen.CreateNewMenuInForm({"Open"}, "MENU_FILE", "FORM_9"));
    EXPECT_EQ(Form(1)->GetNumMenus(), 0);
    EXPECT_EQ(screen.NumMenus(), 0);
    EXPECT_TRUE(Logged("Couldn't find requested object: FORM_9"));
}

TEST_F(ScreenLoadEntries, CreateObjectInTableAsksTheNamedTable) {
    class CellTable : public FakeRecordTable {
    public:
        using FakeRecordTable::FakeRecordTable;
        std::vector<std::string> calls;
        void CreateObjectInTable(int row, int column, int screenType, const GroupList& record,
                                 bool& ok) override {
            calls.push_back(IntToText(row) + "," + IntToText(column) + "," +
                            IntToText(screenType) + "," + record.at(0).at(0));
            ok = row == 1;
        }
    };
    auto* table = static_cast<CellTable*>(
        screen.Inject(type::Table, std::make_unique<CellTable>("TABLE_1")));
    EXPECT_TRUE(screen.CreateObjectInTable("TABLE_1", 1, 2, type::Button, {{"B"}}));
    EXPECT_FALSE(screen.CreateObjectInTable("TABLE_1", 2, 1, type::String, {{"S"}}));
    EXPECT_EQ(table->calls, (std::vector<std::string>{"1,2,0,B", "2,1,2,S"}));
}

TEST_F(ScreenLoadEntries, CreateObjectInTableAnswersFalseForAnUnknownTable) {
    EXPECT_FALSE(screen.CreateObjectInTable("TABLE_9", 1, 1, type::Button, {{"B"}}));
    EXPECT_TRUE(Logged("Couldn't find requested object: TABLE_9"));
}

TEST_F(ScreenLoadEntries, ALoadedObjectGoesIntoACellOfTheGridOnly) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Table, 10, 10, 20, 20));
    EXPECT_FALSE(screen.CreateObjectInTable("TABLE_1", 2, 1, type::Button, {{"B"}}));
    EXPECT_FALSE(screen.CreateObjectInTable("TABLE_9", 1, 1, type::Button, {{"B"}}));
    EXPECT_TRUE(screen.CreateObjectInTable("TABLE_1", 1, 1, type::Button, {{"B"}}));
    auto* table = static_cast<ctlKOMATable*>(screen.ObjectAt(type::Table, 1));
    EXPECT_EQ(table->CellObjectCount(), 1);
    // A kind that cannot stand in a cell leaves it empty.
    EXPECT_TRUE(screen.CreateObjectInTable("TABLE_1", 1, 1, type::Line, {{"L"}}));
    EXPECT_EQ(table->CellObjectCount(), 0);
    // Nothing of a cell object is in the screen's registry.
    EXPECT_EQ(screen.Count(type::Button), 0);
}

}  // namespace
}  // namespace tolva::testing
