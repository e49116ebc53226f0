// Names and ids across the design: uniqueness, the lookups by name, the
// name lists and the distribution of ids.
#include "screen/ScreenFixture.h"

namespace tolva::testing {
namespace {

using ScreenNames = ScreenTest;

TEST_F(ScreenNames, OwnNameAsOldAndNewIsFree) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    EXPECT_TRUE(screen.IsNewNameUnique("BUTTON_1", "BUTTON_1"));
    EXPECT_TRUE(screen.IsNewNameUnique("FORM_1", "FORM_1"));
}

TEST_F(ScreenNames, OwnNameIsTakenWhenAMenuBearsIt) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    Form(1)->SetMenus({{"Open"}}, {"BUTTON_1"});
    EXPECT_FALSE(screen.IsNewNameUnique("BUTTON_1", "BUTTON_1"));
}

TEST_F(ScreenNames, MenuNameTakesTheNameFromObjects) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    Form(1)->SetMenus({{"Open"}, {"Cut"}}, {"MENU_FILE", "MENU_EDIT"});
    EXPECT_FALSE(screen.IsNewNameUnique("BUTTON_1", "MENU_EDIT"));
    EXPECT_FALSE(screen.IsNewNameUnique("", "MENU_FILE"));
    EXPECT_TRUE(screen.IsNewNameUnique("BUTTON_1", "MENU_VIEW"));
}

TEST_F(ScreenNames, ObjectNameTakesTheNameFromMenus) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    // What the menu editor asks for a new menu name.
    EXPECT_FALSE(screen.IsNewNameUnique("", "BUTTON_1"));
    EXPECT_FALSE(screen.IsNewNameUnique("MENU_1", "FORM_1"));
}

TEST_F(ScreenNames, MenusOfEveryFormCount) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(DrawForm());
    Form(1)->SetMenus({{}}, {"MENU_A"});
    EXPECT_FALSE(screen.IsNewNameUnique("FORM_2", "MENU_A"));
}

TEST_F(ScreenNames, NamesAreComparedWithCase) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    EXPECT_TRUE(screen.IsNewNameUnique("", "button_1"));
    EXPECT_TRUE(screen.IsNewNameUnique("", "Form_1"));
    EXPECT_FALSE(screen.IsNewNameUnique("", "BUTTON_1"));
}

TEST_F(ScreenNames, AnotherObjectsNameIsTakenAcrossKinds) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::Scrollbar, 10, 40, 10, 40));
    EXPECT_FALSE(screen.IsNewNameUnique("SCROLLBAR_1", "BUTTON_1"));
    EXPECT_FALSE(screen.IsNewNameUnique("SCROLLBAR_1", "FORM_1"));
    EXPECT_TRUE(screen.IsNewNameUnique("SCROLLBAR_1", "OK_BUTTON"));
}

TEST_F(ScreenNames, RenameThroughTheInspectorAsksTheScreen) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::Button, 10, 40, 46, 20));
    PropertyArray rows;
    ASSERT_TRUE(screen.GetObjectPropertiesList(rows, type::Button, "BUTTON_2"));
    rows.At(3, 1) = PropertyCell("BUTTON_1");
    host.ClearRecord();
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(type::Button, "BUTTON_2", rows));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Object name must be unique");
    EXPECT_EQ(Obj(type::Button, 2)->KOMAName(), "BUTTON_2");
}

TEST_F(ScreenNames, FirstFormHasIdZeroAndFirstButtonOne) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    EXPECT_EQ(Form(1)->KOMAObjectID(), 0);
    EXPECT_EQ(Obj(type::Button, 1)->KOMAObjectID(), 1);
}

TEST_F(ScreenNames, FirstButtonComesAfterTablesAndMenus) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Table, 10, 10, 20, 20));
    screen.UpdateMenus({{"Open", "Close"}, {"Cut"}}, {"MENU_FILE", "MENU_EDIT"});
    ASSERT_TRUE(Draw(type::Button, 10, 60, 46, 20));
    EXPECT_EQ(Form(1)->KOMAObjectID(), 0);
    EXPECT_EQ(Obj(type::Table, 1)->KOMAObjectID(), 1);
    EXPECT_EQ(Form(1)->Menus()[0].id, 2);
    EXPECT_EQ(Form(1)->Menus()[1].id, 3);
    EXPECT_EQ(Obj(type::Button, 1)->KOMAObjectID(), 4);
}

TEST_F(ScreenNames, IdsFollowTheFixedOrderOfKinds) {
    ASSERT_TRUE(DrawForm());
    Form(1)->SetMenus({{"a"}, {"b"}}, {"MENU_A", "MENU_B"});
    ASSERT_TRUE(DrawForm());
    Form(2)->SetMenus({{"c"}}, {"MENU_C"});
    // Drawn in the reverse of the numbering order.
    const int drawn[] = {type::SchedulerLine, type::Line,     type::Scrollbar, type::PopupTrigger,
                         type::Field,         type::List,     type::Textbox,   type::RepeatButton,
                         type::PushButton,    type::Checkbox, type::Bitmap,    type::String,
                         type::Button,        type::Table};
    for (int t : drawn) ASSERT_TRUE(Draw(t, 10, 10, 20, 20)) << t;
    ClearRecords();
    screen.DistributeObjectIds();
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Object IDs distributed"}));
    EXPECT_EQ(Form(1)->KOMAObjectID(), 0);
    EXPECT_EQ(Form(2)->KOMAObjectID(), 1);
    EXPECT_EQ(Obj(type::Table, 1)->KOMAObjectID(), 2);
    EXPECT_EQ(Form(1)->Menus()[0].id, 3);
    EXPECT_EQ(Form(1)->Menus()[1].id, 4);
    EXPECT_EQ(Form(2)->Menus()[0].id, 5);
    const int order[] = {type::Button,       type::String,    type::Bitmap,   type::Checkbox,
                         type::PushButton,   type::RepeatButton, type::Textbox, type::List,
                         type::Field,        type::PopupTrigger, type::Scrollbar, type::Line,
                         type::SchedulerLine};
    int expected = 6;
    for (int t : order) EXPECT_EQ(Obj(t, 1)->KOMAObjectID(), expected++) << t;
}

TEST_F(ScreenNames, IdsHaveNoMemory) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    Obj(type::Button, 1)->KOMAObjectID(500);
    Form(1)->KOMAObjectID(77);
    screen.DistributeObjectIds();
    EXPECT_EQ(Form(1)->KOMAObjectID(), 0);
    EXPECT_EQ(Obj(type::Button, 1)->KOMAObjectID(), 1);
}

TEST_F(ScreenNames, GetObjectIdAndTypeOfAName) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::Field, 10, 40, 46, 20));
    int id = -1;
    int t = -1;
    EXPECT_TRUE(screen.GetObjectID("FIELD_1", id));
    EXPECT_EQ(id, 2);
    EXPECT_TRUE(screen.GetObjectType("FIELD_1", t));
    EXPECT_EQ(t, type::Field);
    EXPECT_TRUE(screen.GetObjectType("FORM_1", t));
    EXPECT_EQ(t, type::Form);
}

TEST_F(ScreenNames, NameNotFoundLeavesIdAndTypeAsTheyWere) {
    ASSERT_TRUE(DrawForm());
    int id = 42;
    int t = 7;
    EXPECT_TRUE(screen.GetObjectID("NOTHING", id));
    EXPECT_TRUE(screen.GetObjectType("NOTHING", t));
    EXPECT_EQ(id, 42);
    EXPECT_EQ(t, 7);
}

TEST_F(ScreenNames, MenusAreNotFoundByTheLookups) {
    ASSERT_TRUE(DrawForm());
    screen.UpdateMenus({{"Open"}}, {"MENU_FILE"});
    int id = -1;
    int t = -1;
    screen.GetObjectID("MENU_FILE", id);
    screen.GetObjectType("MENU_FILE", t);
    EXPECT_EQ(id, -1);
    EXPECT_EQ(t, -1);
}

TEST_F(ScreenNames, TheTwoLookupsWalkInTheirOwnOrders) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Textbox, 10, 10, 20, 20));
    ASSERT_TRUE(Draw(type::Field, 10, 40, 20, 20));
    ASSERT_TRUE(Draw(type::RepeatButton, 10, 70, 20, 20));
    ASSERT_TRUE(Draw(type::Line, 10, 100, 20, 20));
    Obj(type::Textbox, 1)->KOMAName("TWIN");
    Obj(type::Field, 1)->KOMAName("TWIN");
    Obj(type::RepeatButton, 1)->KOMAName("PAIR");
    Obj(type::Line, 1)->KOMAName("PAIR");
    int id = -1;
    int t = -1;
    // The id lookup walks fields before textboxes and lines before repeat
    // buttons; the type lookup the other way round.
    screen.GetObjectID("TWIN", id);
    EXPECT_EQ(id, Obj(type::Field, 1)->KOMAObjectID());
    screen.GetObjectType("TWIN", t);
    EXPECT_EQ(t, type::Textbox);
    screen.GetObjectID("PAIR", id);
    EXPECT_EQ(id, Obj(type::Line, 1)->KOMAObjectID());
    screen.GetObjectType("PAIR", t);
    EXPECT_EQ(t, type::RepeatButton);
}

TEST_F(ScreenNames, NameListsInArrayOrder) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::String, 10, 10, 20, 20));
    ASSERT_TRUE(Draw(type::String, 10, 40, 20, 20));
    ASSERT_TRUE(Draw(type::List, 10, 70, 20, 20));
    std::vector<std::string> out{"stale"};
    screen.GetStringNameList(out);
    EXPECT_EQ(out, (std::vector<std::string>{"STRING_1", "STRING_2"}));
    screen.GetListNameList(out);
    EXPECT_EQ(out, (std::vector<std::string>{"LIST_1"}));
    screen.GetFormNameList(out);
    EXPECT_EQ(out, (std::vector<std::string>{"FORM_1"}));
    screen.GetButtonNameList(out);
    EXPECT_TRUE(out.empty());
    screen.GetScrollbarNameList(out);
    EXPECT_TRUE(out.empty());
}

TEST_F(ScreenNames, MenuNamesComeFromTheForms) {
    ASSERT_TRUE(DrawForm());
    Form(1)->SetMenus({{}, {}}, {"MENU_A", "MENU_B"});
    ASSERT_TRUE(DrawForm());
    Form(2)->SetMenus({{}}, {"MENU_C"});
    std::vector<std::string> out;
    screen.GetMenuNameList(out);
    EXPECT_EQ(out, (std::vector<std::string>{"MENU_A", "MENU_B", "MENU_C"}));
}

TEST_F(ScreenNames, EmbeddedNamesOfAForm) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::Field, 10, 40, 46, 20));
    std::vector<std::string> out;
    EXPECT_TRUE(screen.GetEmbeddedObjectNamesFromForm("FORM_1", out));
    EXPECT_EQ(out, (std::vector<std::string>{"BUTTON_1", "FIELD_1"}));
    log.lines.clear();
    EXPECT_FALSE(screen.GetEmbeddedObjectNamesFromForm("FORM_9", out));
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Couldn't find requested object: FORM_9"}));
}

}  // namespace
}  // namespace tolva::testing
