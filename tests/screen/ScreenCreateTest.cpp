// Creating drawn objects: names, sizes, embedding, events and log.
#include "screen/ScreenFixture.h"

namespace tolva::testing {
namespace {

using ScreenCreate = ScreenTest;

TEST_F(ScreenCreate, CanvasSizeGivesTheScaleToEveryObject) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 20, 46, 20));
    screen.SetCanvasSize(2000, 2000);
    EXPECT_DOUBLE_EQ(screen.PCTwipsToTolvaPixels(), 10.0);
    EXPECT_DOUBLE_EQ(Obj(type::Button, 1)->PCTwipsToTolvaPixels(), 10.0);
    EXPECT_DOUBLE_EQ(Form(1)->PCTwipsToTolvaPixels(), 10.0);
    EXPECT_EQ(log.lines.back(), "Pixel scaling changed");
}

TEST_F(ScreenCreate, MainWindowCanvasGivesItsScale) {
    EXPECT_DOUBLE_EQ(screen.PCTwipsToTolvaPixels(), 36.59375);
}

TEST_F(ScreenCreate, NothingButAFormWithoutAForm) {
    EXPECT_FALSE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "You must draw a form before you can draw other controls");
    EXPECT_EQ(host.messages[0].title, "Couldn't Create Object");
    EXPECT_EQ(screen.NumButtons(), 0);
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(ScreenCreate, FirstFormBecomesTheFormOnShow) {
    ASSERT_TRUE(DrawForm());
    EXPECT_EQ(screen.NumForms(), 1);
    EXPECT_EQ(screen.CurrentDesignForm(), "FORM_1");
    EXPECT_EQ(screen.CurrentFormRef(), Form(1));
    EXPECT_EQ(Form(1)->iIndex(), 1);
    EXPECT_EQ(Form(1)->ParentForm(), nullptr);
    EXPECT_EQ(Form(1)->KOMAWidth(), 160);
    EXPECT_EQ(Form(1)->KOMAHeight(), 160);
    EXPECT_TRUE(Form(1)->Visible());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScreenCreate, AMenuIsNeverCreatedHere) {
    ASSERT_TRUE(DrawForm());
    host.ClearRecord();
    EXPECT_FALSE(Draw(type::Menu, 10, 10, 20, 20));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Menu object created - shouldn't have happened");
    EXPECT_EQ(host.messages[0].title, "CreateObject");
    EXPECT_EQ(screen.NumMenus(), 0);
}

TEST_F(ScreenCreate, TypeNoneCreatesNothing) {
    ASSERT_TRUE(DrawForm());
    EXPECT_FALSE(Draw(type::None, 10, 10, 20, 20));
    EXPECT_FALSE(Draw(17, 10, 10, 20, 20));
}

TEST_F(ScreenCreate, NewButtonIsNamedPlacedAndEmbedded) {
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    ASSERT_TRUE(Draw(type::Button, 10, 20, 46, 20));
    KomaObject* button = Obj(type::Button, 1);
    EXPECT_EQ(button->KOMAName(), "BUTTON_1");
    EXPECT_EQ(button->iIndex(), 1);
    EXPECT_EQ(button->ParentForm(), Form(1));
    EXPECT_DOUBLE_EQ(button->PCTwipsToTolvaPixels(), kUnits);
    EXPECT_EQ(button->KOMABoundsX(), 10);
    EXPECT_EQ(button->KOMABoundsY(), 20);
    EXPECT_EQ(button->KOMAWidth(), 46);
    EXPECT_EQ(button->KOMAHeight(), 20);
    EXPECT_DOUBLE_EQ(button->Left(), At(10));
    EXPECT_DOUBLE_EQ(button->Top(), At(20));
    EXPECT_DOUBLE_EQ(button->Width(), At(56) - At(10));
    EXPECT_TRUE(button->Visible());
    EXPECT_TRUE(button->HasFocus());

    ASSERT_EQ(Form(1)->KOMANumEmbeddedObjects(), 1);
    EXPECT_EQ(Form(1)->GetEmbeddedObjectList()[0].name, "BUTTON_1");
    EXPECT_EQ(Form(1)->GetEmbeddedObjectList()[0].typeWord, "CONTROL");
    EXPECT_EQ(Form(1)->GetFirstEmbeddedObjectReference(), button);

    EXPECT_EQ(events.lines, (std::vector<std::string>{"Created BUTTON_1,0"}));
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Resized: BUTTON_1", "Object IDs distributed",
                                                   "Object created: BUTTON_1"}));
}

TEST_F(ScreenCreate, TheObjectIsCompleteWhenTheEventArrives) {
    ASSERT_TRUE(DrawForm());
    int embeddedSeen = -1;
    int idSeen = -1;
    events.onEvent = [&](const std::string& line) {
        if (line != "Created BUTTON_1,0") return;
        embeddedSeen = Form(1)->KOMANumEmbeddedObjects();
        screen.GetObjectID("BUTTON_1", idSeen);
    };
    ASSERT_TRUE(Draw(type::Button, 10, 20, 46, 20));
    EXPECT_EQ(embeddedSeen, 1);
    EXPECT_EQ(idSeen, 1);
}

TEST_F(ScreenCreate, BandDrawnBackwardsGivesTheSameBox) {
    ASSERT_TRUE(DrawForm());
    screen.SetRubberBand({At(56), At(40), At(10), At(20)});
    ASSERT_TRUE(screen.CreateObject(type::Button));
    KomaObject* button = Obj(type::Button, 1);
    EXPECT_EQ(button->KOMABoundsX(), 10);
    EXPECT_EQ(button->KOMABoundsY(), 20);
    EXPECT_EQ(button->KOMAWidth(), 46);
    EXPECT_EQ(button->KOMAHeight(), 20);
}

TEST_F(ScreenCreate, BandWithoutAreaStillGivesOnePixel) {
    ASSERT_TRUE(DrawForm());
    screen.SetRubberBand({At(30), At(30), At(30), At(30)});
    ASSERT_TRUE(screen.CreateObject(type::Button));
    EXPECT_EQ(Obj(type::Button, 1)->KOMAWidth(), 1);
    EXPECT_EQ(Obj(type::Button, 1)->KOMAHeight(), 1);
}

TEST_F(ScreenCreate, LineArmedMayHaveNoSize) {
    ASSERT_TRUE(DrawForm());
    screen.CreateObjectType(type::Line);
    screen.SetRubberBand({At(30), At(30), At(30), At(60)});
    ASSERT_TRUE(screen.CreateObject(type::Line));
    EXPECT_EQ(Obj(type::Line, 1)->KOMAWidth(), 0);
    EXPECT_EQ(Obj(type::Line, 1)->KOMAHeight(), 30);
}

TEST_F(ScreenCreate, BandOnTheRightEdgeGivesPixel159) {
    ASSERT_TRUE(DrawForm());
    // 6055 is device pixel 160, held to 159.
    screen.SetRubberBand({At(100), At(100), 6055, 6055});
    ASSERT_TRUE(screen.CreateObject(type::Button));
    EXPECT_EQ(Obj(type::Button, 1)->KOMABoundsX(), 100);
    EXPECT_EQ(Obj(type::Button, 1)->KOMAWidth(), 60);
}

TEST_F(ScreenCreate, FixedSizeObjectKeepsItsSizeAtTheSmallerCorner) {
    ASSERT_TRUE(DrawForm());
    screen.SetRubberBand({At(70), At(50), At(20), At(10)});
    ASSERT_TRUE(screen.CreateObject(type::Bitmap));
    KomaObject* bitmap = Obj(type::Bitmap, 1);
    EXPECT_EQ(bitmap->KOMABoundsX(), 20);
    EXPECT_EQ(bitmap->KOMABoundsY(), 10);
    EXPECT_EQ(bitmap->KOMAWidth(), 33);
    EXPECT_EQ(bitmap->KOMAHeight(), 33);
    EXPECT_DOUBLE_EQ(bitmap->Left(), At(20));
    EXPECT_DOUBLE_EQ(bitmap->Top(), At(10));
    // No resize runs for it.
    EXPECT_FALSE(Logged("Resized: BITMAP_1"));
    EXPECT_TRUE(Logged("Object created: BITMAP_1"));
}

TEST_F(ScreenCreate, FixedSizeObjectIsPulledBackFromTheRightAndBottom) {
    ASSERT_TRUE(DrawForm());
    // 6000 is 158.497... device pixels, 158 by the rounding.
    screen.SetRubberBand({6000, 5900, 6055, 6055});
    ASSERT_TRUE(screen.CreateObject(type::Bitmap));
    KomaObject* bitmap = Obj(type::Bitmap, 1);
    EXPECT_EQ(bitmap->KOMABoundsX(), 127);
    EXPECT_EQ(bitmap->KOMABoundsY(), 127);
    EXPECT_DOUBLE_EQ(bitmap->Left(), 6255 - 200 - kUnits * 33);
    EXPECT_DOUBLE_EQ(bitmap->Top(), 6255 - 200 - kUnits * 33);
}

TEST_F(ScreenCreate, FixedSizeObjectPositionIsClampedTo159) {
    ASSERT_TRUE(DrawForm());
    screen.SetRubberBand({6055, 6055, 6055, 6055});
    ASSERT_TRUE(screen.CreateObject(type::Table));
    KomaObject* table = Obj(type::Table, 1);
    // A table keeps its device size of 0, so nothing pulls it back.
    EXPECT_EQ(table->KOMAWidth(), 0);
    EXPECT_EQ(table->KOMABoundsX(), 159);
    EXPECT_EQ(table->KOMABoundsY(), 159);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScreenCreate, NameIsTheLowestFreeNumberNotTheCounter) {
    ASSERT_TRUE(DrawForm());
    for (int i = 0; i < 3; ++i) ASSERT_TRUE(Draw(type::Button, 10, 10 + 25 * i, 46, 20));
    EXPECT_EQ(Names(type::Button),
              (std::vector<std::string>{"BUTTON_1", "BUTTON_2", "BUTTON_3"}));
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_2"));
    ASSERT_TRUE(Draw(type::Button, 10, 100, 46, 20));
    EXPECT_EQ(Names(type::Button),
              (std::vector<std::string>{"BUTTON_1", "BUTTON_3", "BUTTON_2"}));
}

TEST_F(ScreenCreate, NameSkipsNamesOfOtherKindsAndMenus) {
    ASSERT_TRUE(DrawForm());
    Form(1)->SetMenus({{"Item"}}, {"BUTTON_1"});
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    EXPECT_EQ(Obj(type::Button, 1)->KOMAName(), "BUTTON_2");
}

TEST_F(ScreenCreate, EveryKindTakesItsPrefix) {
    ASSERT_TRUE(DrawForm());
    const std::vector<std::pair<int, std::string>> kinds = {
        {type::Button, "BUTTON_1"},           {type::String, "STRING_1"},
        {type::Textbox, "TEXTBOX_1"},         {type::Field, "FIELD_1"},
        {type::Checkbox, "CHECKBOX_1"},       {type::Table, "TABLE_1"},
        {type::Bitmap, "BITMAP_1"},           {type::Line, "LINE_1"},
        {type::List, "LIST_1"},               {type::PopupTrigger, "POPUPTRIGGER_1"},
        {type::PushButton, "PUSHBUTTON_1"},   {type::RepeatButton, "REPEATBUTTON_1"},
        {type::SchedulerLine, "SCHEDULERLINE_1"}, {type::Scrollbar, "SCROLLBAR_1"}};
    for (const auto& [t, name] : kinds) {
        ASSERT_TRUE(Draw(t, 10, 10, 20, 20)) << t;
        EXPECT_EQ(Obj(t, 1)->KOMAName(), name);
        EXPECT_EQ(Obj(t, 1)->ParentForm(), Form(1));
        EXPECT_EQ(screen.Count(t), 1);
    }
    EXPECT_EQ(Form(1)->KOMANumEmbeddedObjects(), 14);
}

TEST_F(ScreenCreate, SecondFormTakesOverTheShowWithoutHidingTheFirst) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(DrawForm());
    EXPECT_EQ(Form(2)->KOMAName(), "FORM_2");
    EXPECT_EQ(screen.CurrentDesignForm(), "FORM_2");
    EXPECT_TRUE(Form(1)->Visible());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    EXPECT_EQ(Obj(type::Button, 1)->ParentForm(), Form(2));
    EXPECT_EQ(Form(1)->KOMANumEmbeddedObjects(), 0);
}

TEST_F(ScreenCreate, FocusGoesToTheNewObjectOnly) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::Button, 10, 40, 46, 20));
    EXPECT_FALSE(Obj(type::Button, 1)->HasFocus());
    EXPECT_TRUE(Obj(type::Button, 2)->HasFocus());
    EXPECT_FALSE(Form(1)->HasFocus());
}

TEST_F(ScreenCreate, NewObjectsStandOnTopAndTheFormBehind) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::String, 10, 40, 46, 20));
    auto order = screen.VisibleObjectsInStackingOrder();
    ASSERT_EQ(order.size(), 3u);
    EXPECT_EQ(order[1], Obj(type::Button, 1));
    EXPECT_EQ(order[2], Obj(type::String, 1));
    ASSERT_TRUE(screen.SelectObject(type::Form, "FORM_1"));
    order = screen.VisibleObjectsInStackingOrder();
    EXPECT_EQ(order[0], Form(1));
}

TEST_F(ScreenCreate, WhileLoadingNoEventAndNoFocus) {
    ASSERT_TRUE(DrawForm());
    screen.StartLoading();
    ClearRecords();
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    EXPECT_TRUE(events.lines.empty());
    EXPECT_FALSE(Obj(type::Button, 1)->HasFocus());
    EXPECT_TRUE(Logged("Object created: BUTTON_1"));
}

}  // namespace
}  // namespace tolva::testing
