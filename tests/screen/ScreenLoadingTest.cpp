// Loading and emptying the document.
#include "screen/ScreenFixture.h"

namespace tolva::testing {
namespace {

using ScreenLoading = ScreenTest;

TEST_F(ScreenLoading, LoadedObjectIsMadeButNotNamedNumberedOrEmbedded) {
    ASSERT_TRUE(DrawForm());
    screen.StartLoading();
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeLoading);
    ClearRecords();
    EXPECT_TRUE(screen.CreateObjectFromText(type::Button, {{"NAME"}}));
    EXPECT_TRUE(screen.CreateObjectFromText(type::Button, {}));
    ASSERT_EQ(screen.NumButtons(), 2);
    KomaObject* second = Obj(type::Button, 2);
    EXPECT_EQ(second->iIndex(), 2);
    EXPECT_EQ(second->KOMAName(), "BUTTON_");
    EXPECT_EQ(second->ParentForm(), nullptr);
    EXPECT_DOUBLE_EQ(second->PCTwipsToTolvaPixels(), kUnits);
    EXPECT_FALSE(second->Visible());
    EXPECT_EQ(Form(1)->KOMANumEmbeddedObjects(), 0);
    EXPECT_TRUE(events.lines.empty());
    EXPECT_FALSE(Logged("Object IDs distributed"));
}

TEST_F(ScreenLoading, MenusAndUnknownTypesAreNotLoaded) {
    EXPECT_FALSE(screen.CreateObjectFromText(type::Menu, {}));
    EXPECT_FALSE(screen.CreateObjectFromText(type::None, {}));
    EXPECT_FALSE(screen.CreateObjectFromText(-3, {}));
    EXPECT_EQ(screen.NumMenus(), 0);
}

class ScreenLoadedDesign : public ScreenTest {
protected:
    // What a load of two forms, a button on each and a menu does.
    void Load() {
        screen.StartLoading();
        ASSERT_TRUE(screen.CreateObjectFromText(type::Form, {}));
        ASSERT_TRUE(screen.CreateObjectFromText(type::Form, {}));
        Form(1)->KOMAName("FORM_MAIN");
        Form(2)->KOMAName("FORM_ABOUT");
        ASSERT_TRUE(screen.CreateObjectFromText(type::Button, {}));
        ASSERT_TRUE(screen.CreateObjectFromText(type::Button, {}));
        Obj(type::Button, 1)->KOMAName("BUTTON_OK");
        Obj(type::Button, 2)->KOMAName("BUTTON_CLOSE");
        ASSERT_TRUE(screen.EmbedObjectInForm("FORM_ABOUT", type::Button, "BUTTON_CLOSE"));
        ASSERT_TRUE(screen.EmbedObjectInForm("FORM_MAIN", type::Button, "BUTTON_OK"));
        screen.CreateNewMenuInForm({"Open"}, "MENU_FILE", "FORM_MAIN");
        screen.StopLoading();
    }
};

TEST_F(ScreenLoadedDesign, EndsWithTheFirstFormOnShowAndSelected) {
    Load();
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_EQ(screen.CurrentDesignForm(), "FORM_MAIN");
    EXPECT_EQ(screen.CurrentFormRef(), Form(1));
    EXPECT_EQ(screen.SelectedObjectType(), type::Form);
    EXPECT_EQ(screen.SelectedObjectName(), "FORM_MAIN");
    EXPECT_EQ(screen.SelectedObjectRef(), Form(1));
    EXPECT_TRUE(Form(1)->Visible());
    EXPECT_TRUE(Obj(type::Button, 1)->Visible());
    EXPECT_FALSE(Form(2)->Visible());
    EXPECT_FALSE(Obj(type::Button, 2)->Visible());
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Changed FORM_MAIN,1"}));
    EXPECT_EQ(screen.NumMenus(), 1);
}

TEST_F(ScreenLoadedDesign, KeepsTheIdsOfTheFileUntilTheNextDistribution) {
    screen.StartLoading();
    ASSERT_TRUE(screen.CreateObjectFromText(type::Form, {}));
    Form(1)->KOMAObjectID(1000);
    screen.StopLoading();
    EXPECT_EQ(Form(1)->KOMAObjectID(), 1000);
    screen.DistributeObjectIds();
    EXPECT_EQ(Form(1)->KOMAObjectID(), 0);
}

TEST_F(ScreenLoading, LoadWithoutFormsEndsQuietly) {
    screen.StartLoading();
    screen.StopLoading();
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_EQ(screen.CurrentDesignForm(), "");
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(ScreenLoadedDesign, UnloadAllEmptiesEveryArray) {
    Load();
    ASSERT_TRUE(Draw(type::List, 10, 10, 20, 20));
    screen.UnloadAll();
    for (int t = 0; t < type::Count; ++t) EXPECT_EQ(screen.Count(t), 0) << t;
    EXPECT_EQ(screen.NumMenus(), 0);
    EXPECT_TRUE(screen.VisibleObjectsInStackingOrder().empty());
}

TEST_F(ScreenLoadedDesign, ClearScreenStartsAfresh) {
    Load();
    ClearRecords();
    screen.ClearScreen();
    EXPECT_EQ(screen.NumForms(), 0);
    EXPECT_EQ(screen.NumButtons(), 0);
    EXPECT_EQ(screen.NumMenus(), 0);
    EXPECT_EQ(screen.SelectedObjectType(), type::None);
    EXPECT_EQ(screen.SelectedObjectName(), "");
    EXPECT_EQ(screen.SelectedObjectRef(), nullptr);
    EXPECT_EQ(screen.CurrentDesignForm(), "");
    EXPECT_EQ(screen.CurrentFormRef(), nullptr);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Editor cleared"}));
    EXPECT_TRUE(events.lines.empty());
    // And the next design starts with the first names again.
    ASSERT_TRUE(DrawForm());
    EXPECT_EQ(Form(1)->KOMAName(), "FORM_1");
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    EXPECT_EQ(Obj(type::Button, 1)->KOMAName(), "BUTTON_1");
}

TEST_F(ScreenLoading, ClearScreenOnAnEmptyDocument) {
    screen.ClearScreen();
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Editor cleared"}));
}

TEST_F(ScreenLoading, CreateAfterUnloadAllDoesNotReachTheFormThatWent) {
    ASSERT_TRUE(DrawForm());
    screen.UnloadAll();
    // The name of the form on show outlives the unload; only ClearScreen
    // empties it. No object may land in a form that is gone.
    EXPECT_EQ(screen.CurrentDesignForm(), "FORM_1");
    EXPECT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    EXPECT_EQ(Obj(type::Button, 1)->ParentForm(), nullptr);
}

}  // namespace
}  // namespace tolva::testing
