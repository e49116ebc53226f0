// The selection, the form on show, embedding by the loader and the menus.
#include "screen/ScreenFixture.h"

#include "objects/menu/MenuEditing.h"

namespace tolva::testing {
namespace {

using ScreenForms = ScreenTest;

TEST_F(ScreenForms, SelectingAnObject) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::Button, 10, 40, 46, 20));
    ClearRecords();
    EXPECT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    EXPECT_EQ(screen.SelectedObjectType(), type::Button);
    EXPECT_EQ(screen.SelectedObjectName(), "BUTTON_1");
    EXPECT_EQ(screen.SelectedObjectRef(), Obj(type::Button, 1));
    EXPECT_TRUE(Obj(type::Button, 1)->HasFocus());
    EXPECT_FALSE(Obj(type::Button, 2)->HasFocus());
    EXPECT_EQ(screen.VisibleObjectsInStackingOrder().back(), Obj(type::Button, 1));
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Object selected: BUTTON_1"}));
    // Selecting raises no event of its own.
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(ScreenForms, SelectingWithAReferenceSkipsTheLookup) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ClearRecords();
    EXPECT_TRUE(screen.SelectObject(type::Button, "BUTTON_1", Obj(type::Button, 1)));
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Object selected: BUTTON_1"}));
}

TEST_F(ScreenForms, SelectingAnUnknownNameFails) {
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    EXPECT_FALSE(screen.SelectObject(type::Button, "BUTTON_7"));
    EXPECT_EQ(screen.SelectedObjectType(), type::None);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Couldn't find requested object: BUTTON_7"}));
}

TEST_F(ScreenForms, SelectingAFormShowsIt) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.HideForm("FORM_1"));
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(screen.SelectObject(type::Form, "FORM_1"));
    EXPECT_EQ(screen.CurrentDesignForm(), "FORM_1");
    EXPECT_EQ(screen.CurrentFormRef(), Form(1));
    EXPECT_TRUE(Form(1)->Visible());
    EXPECT_TRUE(Obj(type::Button, 1)->Visible());
    // The form shown before stays: the caller hides it.
    EXPECT_TRUE(Form(2)->Visible());
}

TEST_F(ScreenForms, TypeNoneClearsTheSelectionAndTwiceDoesNothing) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    ClearRecords();
    EXPECT_FALSE(screen.SelectObject(type::None, ""));
    EXPECT_EQ(screen.SelectedObjectType(), type::None);
    EXPECT_EQ(screen.SelectedObjectName(), "");
    EXPECT_EQ(screen.SelectedObjectRef(), nullptr);
    EXPECT_FALSE(screen.SelectObject(type::None, "BUTTON_1"));
    EXPECT_EQ(screen.SelectedObjectName(), "");
    EXPECT_TRUE(log.lines.empty());
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(ScreenForms, HidingAFormHidesItsObjects) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ClearRecords();
    EXPECT_TRUE(screen.HideForm("FORM_1"));
    EXPECT_FALSE(Form(1)->Visible());
    EXPECT_FALSE(Obj(type::Button, 1)->Visible());
    EXPECT_EQ(screen.CurrentDesignForm(), "");
    EXPECT_EQ(screen.CurrentFormRef(), nullptr);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Form hidden: FORM_1"}));
    EXPECT_TRUE(screen.VisibleObjectsInStackingOrder().empty());
}

TEST_F(ScreenForms, HidingTheFormOnShowByItsOwnField) {
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    EXPECT_TRUE(screen.HideForm(screen.CurrentDesignForm()));
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Form hidden: FORM_1"}));
}

TEST_F(ScreenForms, ShowingAFormPutsItBehindItsObjects) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.HideForm("FORM_1"));
    ClearRecords();
    EXPECT_TRUE(screen.ShowForm("FORM_1"));
    EXPECT_EQ(screen.CurrentDesignForm(), "FORM_1");
    EXPECT_EQ(screen.CurrentFormRef(), Form(1));
    const auto order = screen.VisibleObjectsInStackingOrder();
    ASSERT_EQ(order.size(), 2u);
    EXPECT_EQ(order[0], Form(1));
    EXPECT_EQ(order[1], Obj(type::Button, 1));
    // Showing writes no log line.
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(ScreenForms, HideAndShowOfAnUnknownForm) {
    EXPECT_FALSE(screen.HideForm("FORM_1"));
    EXPECT_FALSE(screen.ShowForm("FORM_1"));
    EXPECT_EQ(log.CountStartingWith("Couldn't find requested object: FORM_1"), 2);
}

TEST_F(ScreenForms, EmbeddingALoadedObject) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(screen.CreateObjectFromText(type::String, {}));
    KomaObject* text = Obj(type::String, 1);
    text->KOMAName("STRING_TITLE");
    ClearRecords();
    EXPECT_TRUE(screen.EmbedObjectInForm("FORM_1", type::String, "STRING_TITLE"));
    EXPECT_EQ(text->ParentForm(), Form(1));
    ASSERT_EQ(Form(1)->KOMANumEmbeddedObjects(), 1);
    EXPECT_EQ(Form(1)->GetEmbeddedObjectList()[0].name, "STRING_TITLE");
    EXPECT_EQ(Form(1)->GetEmbeddedObjectList()[0].typeWord, "STRING");
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Object embedded in form: FORM_1"}));
}

TEST_F(ScreenForms, EmbeddingTwiceIsRefusedUnderTheObjectsName) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    host.ClearRecord();
    EXPECT_FALSE(screen.EmbedObjectInForm("FORM_1", type::Button, "BUTTON_1"));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Object already embedded in a form.");
    EXPECT_EQ(host.messages[0].title, "BUTTON_1");
    EXPECT_EQ(Form(1)->KOMANumEmbeddedObjects(), 1);
}

TEST_F(ScreenForms, EmbeddingAFormOrUnknownNamesFails) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    EXPECT_FALSE(screen.EmbedObjectInForm("FORM_1", type::Form, "FORM_2"));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_TRUE(log.lines.empty());
    ASSERT_TRUE(screen.CreateObjectFromText(type::Button, {}));
    EXPECT_FALSE(screen.EmbedObjectInForm("FORM_9", type::Button, "BUTTON_"));
    EXPECT_FALSE(screen.EmbedObjectInForm("FORM_1", type::Button, "BUTTON_9"));
    EXPECT_EQ(Obj(type::Button, 1)->ParentForm(), nullptr);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScreenForms, MenuEditorNeedsAForm) {
    screen.ShowMenuEditor();
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "You must draw a form before you can edit its menus");
    EXPECT_EQ(host.messages[0].title, "Couldn't Edit Menus");
    EXPECT_TRUE(host.dialogs.empty());
}

TEST_F(ScreenForms, MenuEditorOpensOnTheFormOnShow) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(DrawForm());
    Form(2)->SetMenus({{"Open", "Save"}, {"Cut"}}, {"MENU_FILE", "MENU_EDIT"});
    std::string caption;
    std::vector<std::string> names, shown;
    std::size_t pictured = 0;
    host.dialogAnswers.push_back([&](DialogModel& model) {
        auto& edit = dynamic_cast<MenuEditing&>(model);
        caption = edit.Caption();
        names = edit.Names();
        shown = edit.Items();
        pictured = edit.Picture().objects.size();
        return false;
    });
    screen.ShowMenuEditor();
    EXPECT_EQ(host.dialogs, (std::vector<std::string>{"frmMenu"}));
    EXPECT_EQ(caption, "Menu Editor - FORM_2");
    EXPECT_EQ(names, (std::vector<std::string>{"MENU_FILE", "MENU_EDIT"}));
    // The first menu is shown.
    EXPECT_EQ(shown, (std::vector<std::string>{"Open", "Save"}));
    // The picture behind the preview is the form on show, with its objects.
    EXPECT_EQ(pictured, screen.VisibleObjectsInStackingOrder().size());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScreenForms, MenuEditorOkGivesTheFormItsMenusNumbered) {
    ASSERT_TRUE(DrawForm());
    Form(1)->SetMenus({{"Open"}}, {"MENU_FILE"});
    host.dialogAnswers.push_back([](DialogModel& model) {
        auto& edit = dynamic_cast<MenuEditing&>(model);
        EXPECT_TRUE(edit.Rename("MENU_MAIN"));
        EXPECT_TRUE(edit.Add("Close"));
        EXPECT_TRUE(edit.New("MENU_EDIT"));
        EXPECT_TRUE(edit.Add("Cut"));
        return true;
    });
    screen.ShowMenuEditor();
    std::vector<std::vector<std::string>> items;
    std::vector<std::string> names;
    std::vector<int> ids;
    Form(1)->GetMenus(items, names, ids);
    EXPECT_EQ(names, (std::vector<std::string>{"MENU_MAIN", "MENU_EDIT"}));
    EXPECT_EQ(items, (std::vector<std::vector<std::string>>{{"Open", "Close"}, {"Cut"}}));
    ASSERT_EQ(ids.size(), 2u);
    EXPECT_GT(ids[0], 0);
    EXPECT_GT(ids[1], ids[0]);
    // The new names are taken now, the old one is free.
    EXPECT_FALSE(screen.IsNewNameUnique("", "MENU_EDIT"));
    EXPECT_TRUE(screen.IsNewNameUnique("", "MENU_FILE"));
}

TEST_F(ScreenForms, MenuEditorCancelKeepsTheMenus) {
    ASSERT_TRUE(DrawForm());
    Form(1)->SetMenus({{"Open"}, {"Cut"}}, {"MENU_FILE", "MENU_EDIT"});
    host.dialogAnswers.push_back([](DialogModel& model) {
        auto& edit = dynamic_cast<MenuEditing&>(model);
        edit.Delete();
        edit.ChooseMenu(0);
        edit.Delete();
        EXPECT_TRUE(edit.Names().empty());
        return false;
    });
    screen.ShowMenuEditor();
    EXPECT_EQ(Form(1)->GetNumMenus(), 2);
}

TEST_F(ScreenForms, MenuEditorDeletingAllMenusLeavesNone) {
    ASSERT_TRUE(DrawForm());
    Form(1)->SetMenus({{"Open"}, {"Cut"}}, {"MENU_FILE", "MENU_EDIT"});
    host.dialogAnswers.push_back([](DialogModel& model) {
        auto& edit = dynamic_cast<MenuEditing&>(model);
        edit.Delete();
        edit.ChooseMenu(0);
        edit.Delete();
        return true;
    });
    screen.ShowMenuEditor();
    EXPECT_EQ(Form(1)->GetNumMenus(), 0);
    EXPECT_TRUE(screen.IsNewNameUnique("", "MENU_FILE"));
}

TEST_F(ScreenForms, AMenuNameIsTakenByAnyObjectAndOtherFormsMenus) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(DrawForm());
    Form(1)->SetMenus({{"Open"}}, {"MENU_FIRST"});
    Form(2)->SetMenus({{"Cut"}}, {"MENU_OWN"});
    // A button on the other form, a form, a menu of the other form.
    EXPECT_TRUE(screen.IsNameTakenForMenu(*Form(2), "BUTTON_1"));
    EXPECT_TRUE(screen.IsNameTakenForMenu(*Form(2), "FORM_1"));
    EXPECT_TRUE(screen.IsNameTakenForMenu(*Form(2), "MENU_FIRST"));
    // The form's own menus are the editor's to judge.
    EXPECT_FALSE(screen.IsNameTakenForMenu(*Form(2), "MENU_OWN"));
    EXPECT_FALSE(screen.IsNameTakenForMenu(*Form(2), "MENU_"));
}

TEST_F(ScreenForms, UpdateMenusReplacesTheMenusAndNumbersThem) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    Form(1)->SetMenus({{"old"}}, {"MENU_OLD"});
    ClearRecords();
    screen.UpdateMenus({{"Open", "Save"}, {"Cut"}}, {"MENU_FILE", "MENU_EDIT"});
    std::vector<std::vector<std::string>> items;
    std::vector<std::string> names;
    std::vector<int> ids;
    Form(1)->GetMenus(items, names, ids);
    EXPECT_EQ(names, (std::vector<std::string>{"MENU_FILE", "MENU_EDIT"}));
    EXPECT_EQ(items[0], (std::vector<std::string>{"Open", "Save"}));
    EXPECT_EQ(ids, (std::vector<int>{1, 2}));
    EXPECT_EQ(Obj(type::Button, 1)->KOMAObjectID(), 3);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Object IDs distributed"}));
    // The editor's menus are not counted in NumMenus.
    EXPECT_EQ(screen.NumMenus(), 0);
}

TEST_F(ScreenForms, LoadedMenusAreAddedAndCounted) {
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    screen.CreateNewMenuInForm({"Open", "Close"}, "MENU_FILE", "FORM_1");
    screen.CreateNewMenuInForm({"Cut"}, "MENU_EDIT", "FORM_1");
    EXPECT_EQ(screen.NumMenus(), 2);
    EXPECT_EQ(Form(1)->GetNumMenus(), 2);
    EXPECT_EQ(Form(1)->Menus()[0].name, "MENU_FILE");
    EXPECT_EQ(Form(1)->Menus()[1].items, (std::vector<std::string>{"Cut"}));
    EXPECT_EQ(log.lines, (std::vector<std::string>{"New menu added to form: FORM_1",
                                                   "New menu added to form: FORM_1"}));
}

TEST_F(ScreenForms, MenuForAnUnknownFormIsDropped) {
    screen.CreateNewMenuInForm({"Open"}, "MENU_FILE", "FORM_1");
    EXPECT_EQ(screen.NumMenus(), 0);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Couldn't find requested object: FORM_1"}));
}

}  // namespace
}  // namespace tolva::testing
