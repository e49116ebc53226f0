// What the screen does with its objects' events, and the changes that come
// from the inspector.
#include "document/ObjectOwner.h"
#include "screen/ScreenFixture.h"

namespace tolva::testing {
namespace {

using ScreenObjectEvents = ScreenTest;

// The rows of an object as the inspector holds them, with one value changed.
PropertyArray RowsWith(ctlTolvaScreen& screen, int screenType, const std::string& name, int row,
                       const PropertyCell& value) {
    PropertyArray rows;
    EXPECT_TRUE(screen.GetObjectPropertiesList(rows, screenType, name));
    rows.At(3, row) = value;
    return rows;
}

TEST_F(ScreenObjectEvents, TheFourEventsOfACreateChangeDelete) {
    ASSERT_TRUE(DrawForm());
    events.lines.clear();
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Button, "BUTTON_1", RowsWith(screen, type::Button, "BUTTON_1", 2, PropertyCell(20))));
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_1"));
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Created BUTTON_1,0", "Changed BUTTON_1,0",
                                                      "Deleted BUTTON_1,0", "Selected ,16"}));
}

TEST_F(ScreenObjectEvents, DeleteKeyOnAFormAsksFirst) {
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    host.messageAnswers.push_back(MessageAnswer::No);
    Form(1)->KeyDown(46, 0);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text,
              "Are you sure you want to delete this form and all embedded objects?");
    EXPECT_EQ(host.messages[0].title, "Confirm Form Delete");
    EXPECT_EQ(host.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(screen.NumForms(), 1);
    EXPECT_TRUE(events.lines.empty());

    host.messageAnswers.push_back(MessageAnswer::Yes);
    Form(1)->KeyDown(46, 0);
    EXPECT_EQ(host.messages.size(), 2u);
    EXPECT_EQ(screen.NumForms(), 0);
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Deleted FORM_1,1", "Selected ,16"}));
}

TEST_F(ScreenObjectEvents, DeleteKeyOnAnObjectDeletesWithoutAQuestion) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Field, 10, 10, 46, 20));
    ClearRecords();
    Obj(type::Field, 1)->KeyDown(46, 0);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(screen.NumFields(), 0);
    EXPECT_EQ(Form(1)->KOMANumEmbeddedObjects(), 0);
}

TEST_F(ScreenObjectEvents, OtherKeysDeleteNothing) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Field, 10, 10, 46, 20));
    Obj(type::Field, 1)->KeyDown(45, 0);
    EXPECT_EQ(screen.NumFields(), 1);
}

TEST_F(ScreenObjectEvents, SelectedFromAFormTellsTheMainWindow) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ClearRecords();
    screen.ObjectSelected(*Form(1));
    EXPECT_EQ(screen.SelectedObjectType(), type::Form);
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Selected FORM_1,1"}));
    events.lines.clear();
    screen.ObjectSelected(*Obj(type::Button, 1));
    EXPECT_EQ(screen.SelectedObjectName(), "BUTTON_1");
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(ScreenObjectEvents, SelectedFromAFormDuringALoadIsQuiet) {
    ASSERT_TRUE(DrawForm());
    screen.StartLoading();
    ClearRecords();
    screen.ObjectSelected(*Form(1));
    EXPECT_EQ(screen.SelectedObjectName(), "FORM_1");
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(ScreenObjectEvents, ChangedPictureIsAChangeOutsideALoad) {
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    Form(1)->RemoveFormBitmap();
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Changed FORM_1,1"}));
    events.lines.clear();
    screen.StartLoading();
    Form(1)->RemoveFormBitmap();
    EXPECT_TRUE(events.lines.empty());
}

// --- changes from the inspector ------------------------------------------------------

TEST_F(ScreenObjectEvents, SizeRowThatIsNoNumberIsRefusedAndEarlierRowsStay) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ClearRecords();
    PropertyArray rows = RowsWith(screen, type::Button, "BUTTON_1", 2, PropertyCell(30));
    rows.At(3, 5) = PropertyCell("tall");
    // The screen survives the conversion failure and says the change failed.
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(type::Button, "BUTTON_1", rows));
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{
                  "NotifyObjectOfPropertyChange: Could not change object properties"}));
    EXPECT_EQ(Obj(type::Button, 1)->KOMABoundsX(), 30);
    EXPECT_EQ(Obj(type::Button, 1)->KOMAHeight(), 20);
}

TEST_F(ScreenObjectEvents, MovedInsideTheScreenStaysWhereItWasPut) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ClearRecords();
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Button, "BUTTON_1", RowsWith(screen, type::Button, "BUTTON_1", 2, PropertyCell(20))));
    KomaObject* button = Obj(type::Button, 1);
    EXPECT_EQ(button->KOMABoundsX(), 20);
    EXPECT_DOUBLE_EQ(button->Left(), At(20));
    EXPECT_TRUE(Logged("Object moved: BUTTON_1"));
}

TEST_F(ScreenObjectEvents, MovedPastTheRightEdgeIsPulledBack) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Button, "BUTTON_1",
        RowsWith(screen, type::Button, "BUTTON_1", 2, PropertyCell(150))));
    KomaObject* button = Obj(type::Button, 1);
    EXPECT_EQ(button->KOMABoundsX(), 114);
    // 36.59375 * 114 + 200 = 4371.6875, rounded.
    EXPECT_DOUBLE_EQ(button->Left(), 4372);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScreenObjectEvents, MovedPastTheBottomIsPulledBack) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Button, "BUTTON_1",
        RowsWith(screen, type::Button, "BUTTON_1", 3, PropertyCell(141))));
    EXPECT_EQ(Obj(type::Button, 1)->KOMABoundsY(), 140);
    EXPECT_DOUBLE_EQ(Obj(type::Button, 1)->Top(), At(140));
}

TEST_F(ScreenObjectEvents, MovedExactlyToTheEdgeStays) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Button, "BUTTON_1",
        RowsWith(screen, type::Button, "BUTTON_1", 2, PropertyCell(114))));
    EXPECT_EQ(Obj(type::Button, 1)->KOMABoundsX(), 114);
}

TEST_F(ScreenObjectEvents, LineIsNotPulledBack) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Line, 10, 10, 46, 30));
    // A line's moved event: 150 and its width of 46 run past the edge.
    static_cast<ObjectOwner&>(screen).ObjectMoved(*Obj(type::Line, 1), 150, 10);
    EXPECT_EQ(Obj(type::Line, 1)->KOMABoundsX(), 150);
    EXPECT_DOUBLE_EQ(Obj(type::Line, 1)->Left(), At(150));
}

TEST_F(ScreenObjectEvents, ResizedPastTheRightEdgeIsCut) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 100, 10, 46, 20));
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Button, "BUTTON_1",
        RowsWith(screen, type::Button, "BUTTON_1", 4, PropertyCell(100))));
    KomaObject* button = Obj(type::Button, 1);
    EXPECT_EQ(button->KOMAWidth(), 60);
    EXPECT_DOUBLE_EQ(button->Width(), 60 * kUnits);
    EXPECT_EQ(button->KOMAHeight(), 20);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScreenObjectEvents, ResizedHeightPastTheBottomIsCut) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Button, "BUTTON_1",
        RowsWith(screen, type::Button, "BUTTON_1", 5, PropertyCell(155))));
    EXPECT_EQ(Obj(type::Button, 1)->KOMAHeight(), 150);
    EXPECT_DOUBLE_EQ(Obj(type::Button, 1)->Height(), 150 * kUnits);
    EXPECT_EQ(Obj(type::Button, 1)->KOMAWidth(), 46);
}

TEST_F(ScreenObjectEvents, FormResizedByTheInspector) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Form, "FORM_1", RowsWith(screen, type::Form, "FORM_1", 4, PropertyCell(100))));
    EXPECT_EQ(Form(1)->KOMAWidth(), 100);
    EXPECT_DOUBLE_EQ(Form(1)->Width(), 100 * kUnits);
}

// --- MoveObject and ResizeObject --------------------------------------------------------

TEST_F(ScreenObjectEvents, MoveObjectDoesNotClamp) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ClearRecords();
    EXPECT_TRUE(screen.MoveObject(type::Button, "BUTTON_1", 6055, 200));
    KomaObject* button = Obj(type::Button, 1);
    // Left 6055 is device pixel 160: the setter refuses it.
    EXPECT_DOUBLE_EQ(button->Left(), 6055);
    EXPECT_EQ(button->KOMABoundsX(), 10);
    EXPECT_EQ(button->KOMABoundsY(), 0);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Invalid value");
    EXPECT_EQ(host.messages[0].title, "KOMABoundsX");
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Object moved: BUTTON_1"}));
}

TEST_F(ScreenObjectEvents, MoveObjectOfAnUnknownName) {
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    EXPECT_FALSE(screen.MoveObject(type::Button, "BUTTON_1", 400, 400));
    EXPECT_FALSE(screen.ResizeObject(type::Button, "BUTTON_1", 400, 400, 800, 800));
    EXPECT_EQ(log.CountStartingWith("Couldn't find requested object: BUTTON_1"), 2);
}

TEST_F(ScreenObjectEvents, ResizeObjectSortsTheBand) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ClearRecords();
    EXPECT_TRUE(screen.ResizeObject(type::Button, "BUTTON_1", At(90), At(80), At(30), At(40)));
    KomaObject* button = Obj(type::Button, 1);
    EXPECT_EQ(button->KOMABoundsX(), 30);
    EXPECT_EQ(button->KOMABoundsY(), 40);
    EXPECT_EQ(button->KOMAWidth(), 60);
    EXPECT_EQ(button->KOMAHeight(), 40);
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Resized: BUTTON_1"}));
}

TEST_F(ScreenObjectEvents, ResizeObjectKeepsAFixedDimension) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    KomaObject* button = Obj(type::Button, 1);
    button->HorizResizeOK(false);
    const double width = button->Width();
    EXPECT_TRUE(screen.ResizeObject(type::Button, "BUTTON_1", At(30), At(40), At(90), At(80)));
    EXPECT_DOUBLE_EQ(button->Width(), width);
    EXPECT_EQ(button->KOMAWidth(), 46);
    EXPECT_EQ(button->KOMAHeight(), 40);
    EXPECT_EQ(button->KOMABoundsX(), 30);
}

TEST_F(ScreenObjectEvents, ResizeObjectOfAFixedObjectOnlyLogs) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Bitmap, 10, 10, 20, 20));
    KomaObject* bitmap = Obj(type::Bitmap, 1);
    ClearRecords();
    EXPECT_TRUE(screen.ResizeObject(type::Bitmap, "BITMAP_1", At(30), At(40), At(90), At(80)));
    EXPECT_EQ(bitmap->KOMABoundsX(), 10);
    EXPECT_EQ(bitmap->KOMAWidth(), 33);
    EXPECT_DOUBLE_EQ(bitmap->Left(), At(10));
    EXPECT_EQ(log.lines, (std::vector<std::string>{"Resized: BITMAP_1"}));
}

TEST_F(ScreenObjectEvents, ResizeTreatsAnythingAsALineWhileALineIsSelected) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(Draw(type::Line, 10, 60, 46, 20));
    ASSERT_TRUE(screen.SelectObject(type::Line, "LINE_1"));
    EXPECT_TRUE(screen.ResizeObject(type::Button, "BUTTON_1", At(30), At(40), At(90), At(40)));
    EXPECT_EQ(Obj(type::Button, 1)->KOMAHeight(), 0);
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    EXPECT_TRUE(screen.ResizeObject(type::Button, "BUTTON_1", At(30), At(40), At(90), At(40)));
    EXPECT_EQ(Obj(type::Button, 1)->KOMAHeight(), 1);
}

// --- NotifyObjectOfPropertyChange ----------------------------------------------------------

TEST_F(ScreenObjectEvents, RenameReachesTheSelectionAndTheForm) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    ClearRecords();
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Button, "BUTTON_1",
        RowsWith(screen, type::Button, "BUTTON_1", 1, PropertyCell("OK_BUTTON"))));
    EXPECT_EQ(Obj(type::Button, 1)->KOMAName(), "OK_BUTTON");
    EXPECT_EQ(screen.SelectedObjectName(), "OK_BUTTON");
    EXPECT_EQ(Form(1)->GetEmbeddedObjectList()[0].name, "OK_BUTTON");
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Changed OK_BUTTON,0"}));
}

TEST_F(ScreenObjectEvents, RenameOfTheSelectionByItsOwnField) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    ClearRecords();
    const PropertyArray rows =
        RowsWith(screen, type::Button, "BUTTON_1", 1, PropertyCell("OK_BUTTON"));
    ASSERT_TRUE(
        screen.NotifyObjectOfPropertyChange(type::Button, screen.SelectedObjectName(), rows));
    EXPECT_EQ(screen.SelectedObjectName(), "OK_BUTTON");
    EXPECT_EQ(Form(1)->GetEmbeddedObjectList()[0].name, "OK_BUTTON");
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Changed OK_BUTTON,0"}));
}

TEST_F(ScreenObjectEvents, RefusedRenameStaysInTheSelectionUntilTheNext) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    ClearRecords();
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Button, "BUTTON_1",
        RowsWith(screen, type::Button, "BUTTON_1", 1, PropertyCell("FORM_1"))));
    EXPECT_EQ(Obj(type::Button, 1)->KOMAName(), "BUTTON_1");
    EXPECT_EQ(screen.SelectedObjectName(), "FORM_1");
    EXPECT_EQ(Form(1)->GetEmbeddedObjectList()[0].name, "BUTTON_1");
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Object name must be unique"}));
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Changed BUTTON_1,0"}));
}

TEST_F(ScreenObjectEvents, RenamingAnyFormRenamesTheFormOnShow) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Form, "FORM_1",
        RowsWith(screen, type::Form, "FORM_1", 1, PropertyCell("FORM_MAIN"))));
    EXPECT_EQ(Form(1)->KOMAName(), "FORM_MAIN");
    // FORM_2 is on show, yet the field takes the new name of FORM_1.
    EXPECT_EQ(screen.CurrentDesignForm(), "FORM_MAIN");
    EXPECT_EQ(screen.CurrentFormRef(), Form(2));
}

TEST_F(ScreenObjectEvents, ArrayOfTheWrongShapeIsReported) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    ClearRecords();
    PropertyArray rows(4);
    rows.SetRow(1, "Name", rowkind::Text, "BUTTON_1");
    EXPECT_TRUE(screen.NotifyObjectOfPropertyChange(type::Button, "BUTTON_1", rows));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Could not change object properties");
    EXPECT_EQ(host.messages[0].title, "NotifyObjectOfPropertyChange");
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Changed BUTTON_1,0"}));
}

TEST_F(ScreenObjectEvents, ChangeOfAnUnknownObject) {
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    PropertyArray rows(5);
    EXPECT_FALSE(screen.NotifyObjectOfPropertyChange(type::Button, "BUTTON_1", rows));
    EXPECT_FALSE(screen.GetObjectPropertiesList(rows, type::Button, "BUTTON_1"));
    EXPECT_TRUE(events.lines.empty());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScreenObjectEvents, NoChangeEventWhileLoading) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 46, 20));
    screen.StartLoading();
    ClearRecords();
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(
        type::Button, "BUTTON_1", RowsWith(screen, type::Button, "BUTTON_1", 2, PropertyCell(20))));
    EXPECT_EQ(Obj(type::Button, 1)->KOMABoundsX(), 20);
    EXPECT_TRUE(events.lines.empty());
}

}  // namespace
}  // namespace tolva::testing
