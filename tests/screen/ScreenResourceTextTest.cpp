// The screen's part of the files: one object's record, the menu records, the
// records of a table's cells and the header's definitions.
#include "resfile/ResourceFileFixture.h"

namespace tolva::testing {
namespace {

using ScreenResourceText = ResourceFileTest;

TEST_F(ScreenResourceText, GetKOMAResourceTextGivesTheNamedObjectsRecord) {
    Add(type::Button, "BUTTON_1");
    Add(type::Button, "BUTTON_2")->KOMAObjectID(4);
    LineList lines = {"old"};
    EXPECT_TRUE(screen.GetKOMAResourceText(lines, "BUTTON_2", type::Button));
    EXPECT_EQ(lines, LineList{"#RECORD BUTTON_2 ID=4"});
}

TEST_F(ScreenResourceText, GetKOMAResourceTextLooksOnlyInTheArrayOfTheType) {
    Add(type::Button, "BUTTON_1");
    LineList lines;
    EXPECT_FALSE(screen.GetKOMAResourceText(lines, "BUTTON_1", type::String));
    EXPECT_TRUE(lines.empty());
    EXPECT_TRUE(Logged("Couldn't find requested object: BUTTON_1"));
}

TEST_F(ScreenResourceText, AnUnknownNameIsLoggedAndGivesNoLines) {
    LineList lines;
    EXPECT_FALSE(screen.GetKOMAResourceText(lines, "NOBODY", type::Button));
    EXPECT_TRUE(lines.empty());
    EXPECT_TRUE(Logged("Couldn't find requested object: NOBODY"));
}

TEST_F(ScreenResourceText, AMenuIsRefusedAtOnce) {
    AddForm("FORM_1")->SetMenus({{"Open"}}, {"MENU_1"});
    LineList lines;
    EXPECT_FALSE(screen.GetKOMAResourceText(lines, "MENU_1", type::Menu));
    EXPECT_TRUE(lines.empty());
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(ScreenResourceText, AnObjectThatAnswersFalseGivesFalse) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Scrollbar, 10, 10, 7, 40));
    LineList lines;
    // The kinds answer false until their record is written.
    bool ok = true;
    Obj(type::Scrollbar, 1)->ReturnResourceFileText(lines, ok);
    EXPECT_EQ(screen.GetKOMAResourceText(lines, "SCROLLBAR_1", type::Scrollbar), ok);
}

TEST_F(ScreenResourceText, TheMenuRecordHasFixedValuesAndNoCommentButTheBanner) {
    FakeRecordForm* form = AddForm("FORM_1");
    form->SetMenus({{"New", "Open", "Save As"}}, {"MENU_FILE"});
    form->SetMenuIDs(17);
    LineList lines = {"old"};
    EXPECT_TRUE(screen.GetMenuResourceText(lines));
    const LineList expected = {
        "//-----------------------------------------------------------------",
        "//----------- MENU_FILE ------------------------------------------",
        "//-----------------------------------------------------------------",
        "#MENU",
        "NAME=MENU_FILE",
        "ID=17",
        "~F0",
        "(B)OBJECT.TYPE=MENU",
        "~F1",
        "(SH)BOUNDS.X=0",
        "(SH)BOUNDS.Y=0",
        "(SH)BOUNDS.WIDTH=10",
        "(SH)BOUNDS.HEIGHT=10",
        "~F2",
        "(U)MENU_NUM_ITEMS=3",
        "~F3",
        "(SH)MENU_SELECTED_ITEM=-1",
        "~F4",
        "(S)MENU_ITEMS1=New",
        "(S)MENU_ITEMS2=Open",
        "(S)MENU_ITEMS3=Save As",
        "~F5",
        "(BO)MENU_VISIBLE=TRUE",
        "#END_MENU"};
    EXPECT_EQ(lines, expected);
}

TEST_F(ScreenResourceText, MenusGoOutFormByFormInTheFormsOrder) {
    AddForm("FORM_1")->SetMenus({{}, {}}, {"MENU_B", "MENU_A"});
    AddForm("FORM_2");
    AddForm("FORM_3")->SetMenus({{}}, {"MENU_C"});
    LineList lines;
    ASSERT_TRUE(screen.GetMenuResourceText(lines));
    LineList names;
    for (const auto& line : lines)
        if (line.rfind("NAME=", 0) == 0) names.push_back(line);
    EXPECT_EQ(names, (LineList{"NAME=MENU_B", "NAME=MENU_A", "NAME=MENU_C"}));
}

TEST_F(ScreenResourceText, NoMenusGiveNoLines) {
    AddForm("FORM_1");
    LineList lines = {"old"};
    EXPECT_TRUE(screen.GetMenuResourceText(lines));
    EXPECT_TRUE(lines.empty());
}

TEST_F(ScreenResourceText, GetTableObjectsAsksTheTable) {
    AddTable("TABLE_1")->cells = {{"A", "1"}, {"B", "2"}};
    std::vector<LineList> blocks = {{"old"}};
    EXPECT_TRUE(screen.GetTableObjects("TABLE_1", blocks));
    EXPECT_EQ(blocks, (std::vector<LineList>{{"#CELL A", "ID=1"}, {"#CELL B", "ID=2"}}));
}

TEST_F(ScreenResourceText, ATableWithNoCellObjectsGivesNoBlocks) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Table, 10, 10, 20, 20));
    std::vector<LineList> blocks = {{"old"}};
    EXPECT_TRUE(screen.GetTableObjects("TABLE_1", blocks));
    EXPECT_TRUE(blocks.empty());
}

TEST_F(ScreenResourceText, TheHeaderHasItsOwnOrderOfKinds) {
    const int kinds[] = {type::SchedulerLine, type::Line,         type::Scrollbar,
                         type::PopupTrigger,  type::Field,        type::List,
                         type::Textbox,       type::RepeatButton, type::PushButton,
                         type::Checkbox,      type::Bitmap,       type::String,
                         type::Button};
    for (int kind : kinds) Add(kind, ScreenTypeNamePrefix(kind) + "1");
    AddTable("TABLE_1")->cells = {{"CELL_1", "50"}};
    AddForm("FORM_1")->SetMenus({{}}, {"MENU_1"});
    AddForm("FORM_2")->SetMenus({{}}, {"MENU_2"});
    screen.DistributeObjectIds();
    LineList lines = {"old"};
    screen.GetHeaderFileText(lines);
    const LineList expected = {
        "#define FORM_1 0",         "#define MENU_1 3",        "#define FORM_2 1",
        "#define MENU_2 4",         "#define TABLE_1 2",       "#define CELL_1 50",
        "#define BUTTON_1 5",       "#define STRING_1 6",      "#define BITMAP_1 7",
        "#define CHECKBOX_1 8",     "#define TEXTBOX_1 11",    "#define PUSHBUTTON_1 9",
        "#define REPEATBUTTON_1 10", "#define FIELD_1 13",     "#define LIST_1 12",
        "#define POPUPTRIGGER_1 14", "#define SCROLLBAR_1 15", "#define LINE_1 16",
        "#define SCHEDULERLINE_1 17"};
    EXPECT_EQ(lines, expected);
}

TEST_F(ScreenResourceText, AnEmptyDesignHasNoDefinitions) {
    LineList lines = {"old"};
    screen.GetHeaderFileText(lines);
    EXPECT_TRUE(lines.empty());
}

}  // namespace
}  // namespace tolva::testing
