// Moving an object by dragging it, on the main window's grid (spacing 106).
#include "screen/CanvasFixture.h"
#include "objects/line/ctlKOMALine.h"

namespace tolva::testing {
namespace {

class ScreenMoving : public CanvasTest {
protected:
    KomaObject* button = nullptr;

    void SetUp() override {
        CanvasTest::SetUp();
        ASSERT_TRUE(DrawForm());
        // Left and Top 566, Width 1464, Height 732.
        ASSERT_TRUE(Draw(type::Button, 10, 10, 40, 20));
        button = Obj(type::Button, 1);
        ClearRecords();
    }
};

TEST_F(ScreenMoving, ButtonFollowsTheMouseOnTheGrid) {
    Pointer();
    DragObject(*button, 576, 576, 300, 0);
    // 866 snaps down to 836; the top, 566, snaps down to 518.
    EXPECT_EQ(button->Left(), 836);
    EXPECT_EQ(button->Top(), 518);
    EXPECT_EQ(button->KOMABoundsX(), 17);  // 17.38
    EXPECT_EQ(button->KOMABoundsY(), 9);   // 8.69
    EXPECT_TRUE(Logged("Object moved: BUTTON_1"));
}

TEST_F(ScreenMoving, AMoveWithNoButtonDownNeverDrags) {
    Pointer();
    const double left = button->Left();
    const double top = button->Top();
    button->MouseDown(1, 0, 576, 576);
    button->MouseMove(0, 0, 876, 976);
    EXPECT_EQ(button->Left(), left);
    EXPECT_EQ(button->Top(), top);
    // With the button it follows the mouse.
    button->MouseMove(1, 0, 876, 576);
    EXPECT_EQ(button->Left(), 836);
}

TEST_F(ScreenMoving, PressOnAnObjectWithAToolArmedMovesItAndTheToolStays) {
    Arm(type::Button);
    DragObject(*button, 576, 576, 300, 0);
    EXPECT_EQ(button->Left(), 836);
    EXPECT_EQ(screen.NumButtons(), 1);
    EXPECT_EQ(screen.CreateObjectType(), type::Button);
    EXPECT_TRUE(screen.AllowDrawing());
    // No MouseUp: the toolbar stays as it is.
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Changed BUTTON_1,0"}));
}

TEST_F(ScreenMoving, ObjectDraggedToTheRightEdgeStandsOnTheEdge) {
    DragObject(*button, 576, 576, 9000, 0);
    EXPECT_EQ(button->Left() + button->Width(), 6255 - 200);
    EXPECT_EQ(button->Left(), 4591);
    EXPECT_EQ(button->KOMABoundsX() + button->KOMAWidth(), 160);
}

TEST_F(ScreenMoving, ObjectDraggedToTheBottomEdgeStandsOnTheEdge) {
    DragObject(*button, 576, 576, 0, 9000);
    EXPECT_EQ(button->Top() + button->Height(), 6055);
    EXPECT_EQ(button->KOMABoundsY() + button->KOMAHeight(), 160);
}

TEST_F(ScreenMoving, ObjectDraggedPastTheTopLeftStopsOnTheDeviceArea) {
    DragObject(*button, 576, 576, -9000, -9000);
    EXPECT_EQ(button->Left(), 200);
    EXPECT_EQ(button->Top(), 200);
    EXPECT_EQ(button->KOMABoundsX(), 0);
    EXPECT_EQ(button->KOMABoundsY(), 0);
}

TEST_F(ScreenMoving, PressAndReleaseWithoutMovingIsASelectionAndAChange) {
    button->MouseDown(1, 0, 10, 10);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeMoving);
    button->MouseUp(1, 0, 10, 10);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_EQ(button->Left(), 566);
    EXPECT_EQ(screen.SelectedObjectType(), type::Button);
    EXPECT_EQ(screen.SelectedObjectName(), "BUTTON_1");
    EXPECT_EQ(VisibleNodes(), 8);
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Changed BUTTON_1,0"}));
    EXPECT_TRUE(Logged("Object selected: BUTTON_1"));
}

TEST_F(ScreenMoving, NodesAreHiddenWhileTheObjectMoves) {
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    ASSERT_EQ(VisibleNodes(), 8);
    button->MouseDown(1, 0, 10, 10);
    EXPECT_EQ(VisibleNodes(), 0);
    button->MouseMove(1, 0, 500, 10);
    EXPECT_EQ(VisibleNodes(), 0);
    button->MouseUp(1, 0, 10, 10);
    EXPECT_EQ(VisibleNodes(), 8);
    // The nodes stand round the object's new place.
    EXPECT_EQ(Node(node::TopLeft).rect.left, button->Left() - 135);
}

TEST_F(ScreenMoving, LastSelectedStandsOnTop) {
    ASSERT_TRUE(Draw(type::Button, 20, 20, 40, 20));
    KomaObject* second = Obj(type::Button, 2);
    ASSERT_EQ(screen.VisibleObjectsInStackingOrder().back(), second);
    button->MouseDown(1, 0, 10, 10);
    button->MouseUp(1, 0, 10, 10);
    EXPECT_EQ(screen.VisibleObjectsInStackingOrder().back(), button);
    EXPECT_EQ(screen.VisibleObjectsInStackingOrder().front(), Form(1));
}

TEST_F(ScreenMoving, MoveOverAnObjectWithoutAPressDoesNothing) {
    button->MouseMove(0, 0, 5, 5);
    button->MouseUp(0, 0, 5, 5);
    EXPECT_EQ(button->Left(), 566);
    EXPECT_TRUE(events.lines.empty());
    EXPECT_EQ(screen.SelectedObjectType(), type::None);
}

TEST_F(ScreenMoving, MovingAFormLeavesItsObjectsWhereTheyAre) {
    ASSERT_TRUE(screen.DeleteObject(type::Form, "FORM_1"));
    KomaObject* form = DrawFormWithTheMouse();
    ASSERT_TRUE(Draw(type::Button, 10, 10, 40, 20));
    KomaObject* embedded = Obj(type::Button, 1);
    ClearRecords();
    Pointer();
    DragObject(*form, 1000, 1000, 212, 106);
    EXPECT_EQ(form->Left(), 412);
    EXPECT_EQ(form->Top(), 306);
    EXPECT_EQ(form->KOMABoundsX(), 6);
    EXPECT_EQ(form->KOMABoundsY(), 3);
    EXPECT_EQ(embedded->Left(), 566);
    EXPECT_EQ(embedded->KOMABoundsX(), 10);
    EXPECT_EQ(screen.SelectedObjectType(), type::Form);
    EXPECT_EQ(events.lines, (std::vector<std::string>{"Changed FORM_1,1"}));
}

TEST_F(ScreenMoving, SelectingAFormDoesNotSelectItsObjects) {
    Pointer();
    KomaObject* form = Form(1);
    form->MouseDown(1, 0, 10, 10);
    form->MouseUp(1, 0, 10, 10);
    EXPECT_EQ(screen.SelectedObjectType(), type::Form);
    EXPECT_FALSE(button->HasFocus());
    EXPECT_TRUE(form->HasFocus());
    // The form stays behind its objects.
    EXPECT_EQ(screen.VisibleObjectsInStackingOrder().front(), form);
}

TEST_F(ScreenMoving, MovedLineTakesItsEndPointsWithIt) {
    Arm(type::Line);
    DragOnCanvas(G(5), G(15), G(15), G(5));
    auto* line = static_cast<ctlKOMALine*>(Obj(type::Line, 1));
    ASSERT_NE(line, nullptr);
    ASSERT_TRUE(line->PositiveSlope());
    ASSERT_EQ(line->KOMAWidth(), 29);
    ASSERT_EQ(line->KOMAHeight(), 29);
    Pointer();
    DragObject(*line, 800, 800, 212, 318);
    EXPECT_EQ(line->Left(), 942);
    EXPECT_EQ(line->Top(), 1048);
    EXPECT_EQ(line->KOMABoundsX(), 20);
    EXPECT_EQ(line->KOMABoundsY(), 23);
    EXPECT_EQ(line->KOMAStartX(), 20);
    EXPECT_EQ(line->KOMAEndX(), 49);
    EXPECT_EQ(line->KOMAStartY(), 52);
    EXPECT_EQ(line->KOMAEndY(), 23);
    // A selected line shows its two nodes.
    EXPECT_EQ(screen.SelectedObjectType(), type::Line);
    EXPECT_TRUE(Node(node::Line1).visible);
    EXPECT_TRUE(Node(node::Line2).visible);
    EXPECT_EQ(VisibleNodes(), 2);
}

}  // namespace
}  // namespace tolva::testing
