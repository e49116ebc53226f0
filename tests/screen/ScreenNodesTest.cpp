// The selection nodes and resizing by dragging them, on the main window's
// grid (spacing 106).
#include "canvas/RubberBand.h"
#include "screen/CanvasFixture.h"
#include "objects/line/ctlKOMALine.h"

namespace tolva::testing {
namespace {

class ScreenNodes : public CanvasTest {
protected:
    KomaObject* button = nullptr;

    void SetUp() override {
        CanvasTest::SetUp();
        ASSERT_TRUE(DrawForm());
        // Left 730, Top 730, Width 1060, Height 530: grid points 5 to 15
        // across and 5 to 10 down.
        screen.SetRubberBand({730, 730, 1790, 1260});
        ASSERT_TRUE(screen.CreateObject(type::Button));
        button = Obj(type::Button, 1);
        ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
        ClearRecords();
    }

    std::string Size(const KomaObject& object) {
        return std::to_string(static_cast<int>(object.Left())) + "," +
               std::to_string(static_cast<int>(object.Top())) + " " +
               std::to_string(static_cast<int>(object.Width())) + "x" +
               std::to_string(static_cast<int>(object.Height()));
    }
};

TEST_F(ScreenNodes, SelectedBoxHasEightNodesRoundIt) {
    EXPECT_EQ(VisibleNodes(), 8);
    EXPECT_FALSE(Node(node::Line1).visible);
    EXPECT_FALSE(Node(node::Line2).visible);
    EXPECT_EQ(Node(node::TopLeft).rect, (CanvasRect{595, 595, 135, 135}));
    EXPECT_EQ(Node(node::TopCenter).rect, (CanvasRect{1192.5, 595, 135, 135}));
    EXPECT_EQ(Node(node::TopRight).rect, (CanvasRect{1790, 595, 135, 135}));
    EXPECT_EQ(Node(node::CenterLeft).rect, (CanvasRect{595, 927.5, 135, 135}));
    EXPECT_EQ(Node(node::CenterRight).rect, (CanvasRect{1790, 927.5, 135, 135}));
    EXPECT_EQ(Node(node::BottomLeft).rect, (CanvasRect{595, 1260, 135, 135}));
    EXPECT_EQ(Node(node::BottomCenter).rect, (CanvasRect{1192.5, 1260, 135, 135}));
    EXPECT_EQ(Node(node::BottomRight).rect, (CanvasRect{1790, 1260, 135, 135}));
}

TEST_F(ScreenNodes, ClearingTheSelectionHidesTheNodes) {
    screen.SelectObject(type::None, "");
    EXPECT_EQ(VisibleNodes(), 0);
}

TEST_F(ScreenNodes, NodesFollowAMoveFromTheInspector) {
    PropertyArray rows;
    ASSERT_TRUE(screen.GetObjectPropertiesList(rows, type::Button, "BUTTON_1"));
    rows.At(3, 2) = PropertyCell(150);  // sticks out: pulled back to 160 less the width
    ASSERT_TRUE(screen.NotifyObjectOfPropertyChange(type::Button, "BUTTON_1", rows));
    EXPECT_EQ(button->KOMABoundsX(), 160 - button->KOMAWidth());
    EXPECT_LE(button->Left() + button->Width(), 6055 + 1);
    EXPECT_EQ(Node(node::TopLeft).rect.left, button->Left() - 135);
    EXPECT_EQ(Node(node::TopRight).rect.left, button->Left() + button->Width());
}

TEST_F(ScreenNodes, PressOnANodeStartsTheResize) {
    PressNode(node::BottomRight);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeResizing);
    EXPECT_EQ(screen.RubberBand().X1, 730);
    EXPECT_EQ(screen.RubberBand().Y1, 730);
    EXPECT_EQ(screen.RubberBand().X2, 1790);
    EXPECT_EQ(screen.RubberBand().Y2, 1260);
    // The object is hidden behind the band while the nodes are away.
    EXPECT_FALSE(button->Visible());
    EXPECT_EQ(VisibleNodes(), 0);
    EXPECT_TRUE(screen.Canvas().barsVisible);
    EXPECT_FALSE(screen.Canvas().editorLine.visible);
    EXPECT_TRUE(events.lines.empty());
}

TEST_F(ScreenNodes, DraggingTheBottomRightNodeResizesTheObject) {
    PressNode(node::BottomRight);
    MoveNodeTo(node::BottomRight, 2500, 2000);
    EXPECT_EQ(screen.RubberBand().X2, 2532);
    EXPECT_EQ(screen.RubberBand().Y2, 2002);
    EXPECT_EQ(screen.Canvas().bars[bar::Vert2].left, 2532);
    EXPECT_EQ(host.cursors.back(), CursorShape::SizeNWSE);
    ReleaseNode(node::BottomRight, 2500, 2000);
    EXPECT_EQ(Size(*button), "730,730 1802x1272");
    EXPECT_EQ(button->KOMAWidth(), 49);   // 49.24
    EXPECT_EQ(button->KOMAHeight(), 35);  // 34.76
    EXPECT_TRUE(button->Visible());
    EXPECT_EQ(VisibleNodes(), 8);
    EXPECT_FALSE(screen.Canvas().barsVisible);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_EQ(events.lines,
              (std::vector<std::string>{"Changed BUTTON_1,0", "Selected BUTTON_1,0"}));
    EXPECT_TRUE(Logged("Resized: BUTTON_1"));
    EXPECT_EQ(Node(node::BottomRight).rect.left, 730 + 1802);
}

TEST_F(ScreenNodes, DraggingTheTopLeftNodePastTheBottomRightFlipsTheBand) {
    PressNode(node::TopLeft);
    EXPECT_EQ(screen.RubberBand().X1, 1790);
    EXPECT_EQ(screen.RubberBand().Y1, 1260);
    MoveNodeTo(node::TopLeft, 3000, 3000);
    EXPECT_EQ(screen.Canvas().bars[bar::Vert1], (CanvasRect{1790, 1260, 15, 1696}));
    ReleaseNode(node::TopLeft, 3000, 3000);
    EXPECT_EQ(Size(*button), "1790,1260 1166x1696");
}

TEST_F(ScreenNodes, SideNodeFollowsTheMouseInOneCoordinateOnly) {
    PressNode(node::TopCenter);
    MoveNodeTo(node::TopCenter, 3000, 300);
    EXPECT_EQ(screen.RubberBand().X2, 730);
    EXPECT_EQ(screen.RubberBand().Y2, 306);
    EXPECT_EQ(host.cursors.back(), CursorShape::SizeNS);
    ReleaseNode(node::TopCenter, 3000, 300);
    EXPECT_EQ(Size(*button), "730,306 1060x954");

    PressNode(node::CenterRight);
    MoveNodeTo(node::CenterRight, 2500, 5000);
    EXPECT_EQ(host.cursors.back(), CursorShape::SizeWE);
    ReleaseNode(node::CenterRight, 2500, 5000);
    EXPECT_EQ(Size(*button), "730,306 1802x954");
}

TEST_F(ScreenNodes, NodeDragStopsAtTheDeviceArea) {
    PressNode(node::BottomRight);
    MoveNodeTo(node::BottomRight, 9000, 9000);
    EXPECT_EQ(screen.RubberBand().X2, 6055);
    EXPECT_EQ(screen.RubberBand().Y2, 6055);
    ReleaseNode(node::BottomRight, 9000, 9000);
    EXPECT_EQ(button->Left() + button->Width(), 6055);
    EXPECT_EQ(button->KOMABoundsX() + button->KOMAWidth(), 160);
}

TEST_F(ScreenNodes, CursorOverANodeInAnyMode) {
    screen.NodeMouseMove(node::TopRight, 0, 0, 5, 5);
    EXPECT_EQ(host.cursors.back(), CursorShape::SizeNESW);
    screen.NodeMouseMove(node::CenterLeft, 0, 0, 5, 5);
    EXPECT_EQ(host.cursors.back(), CursorShape::SizeWE);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_FALSE(screen.Canvas().barsVisible);
}

TEST_F(ScreenNodes, RefusedResizeComesOnlyAfterTheWholeDrag) {
    button->ResizeOK(false);
    PressNode(node::BottomRight);
    MoveNodeTo(node::BottomRight, 2500, 2000);
    EXPECT_TRUE(host.messages.empty());
    ReleaseNode(node::BottomRight, 2500, 2000);
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{
                                       "Resize not allowed: Manual resize not allowed for "
                                       "this object"}));
    EXPECT_EQ(Size(*button), "730,730 1060x530");
    EXPECT_TRUE(button->Visible());
    EXPECT_EQ(VisibleNodes(), 8);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_EQ(events.lines,
              (std::vector<std::string>{"Changed BUTTON_1,0", "Selected BUTTON_1,0"}));
}

TEST_F(ScreenNodes, ListNodeStartsWithALineBandUntilTheFirstMove) {
    screen.SetRubberBand({2000, 2000, 3000, 3000});
    ASSERT_TRUE(screen.CreateObject(type::List));
    ASSERT_TRUE(screen.SelectObject(type::List, "LIST_1"));
    PressNode(node::BottomRight);
    // The value 9 is tested where 8 was meant: a list starts with a line.
    EXPECT_TRUE(screen.Canvas().editorLine.visible);
    EXPECT_FALSE(screen.Canvas().barsVisible);
    MoveNodeTo(node::BottomRight, 3500, 3500);
    EXPECT_FALSE(screen.Canvas().editorLine.visible);
    EXPECT_TRUE(screen.Canvas().barsVisible);
    ReleaseNode(node::BottomRight, 3500, 3500);
}

TEST_F(ScreenNodes, LineNodeStartsWithARectangleBandUntilTheFirstMove) {
    Arm(type::Line);
    DragOnCanvas(G(5), G(15), G(15), G(5));
    auto* line = static_cast<ctlKOMALine*>(Obj(type::Line, 1));
    ASSERT_NE(line, nullptr);
    ASSERT_TRUE(screen.SelectObject(type::Line, "LINE_1"));
    EXPECT_EQ(VisibleNodes(), 2);
    PressNode(node::Line2);
    EXPECT_TRUE(screen.Canvas().barsVisible);
    EXPECT_FALSE(screen.Canvas().editorLine.visible);
    MoveNodeTo(node::Line2, 2500, 500);
    EXPECT_TRUE(screen.Canvas().editorLine.visible);
    EXPECT_FALSE(screen.Canvas().barsVisible);
    ReleaseNode(node::Line2, 2500, 500);
}

TEST_F(ScreenNodes, LineNodeDragMovesOneEndAndKeepsHalfANodeOffset) {
    Arm(type::Line);
    DragOnCanvas(G(5), G(15), G(15), G(5));  // rises to the right
    auto* line = static_cast<ctlKOMALine*>(Obj(type::Line, 1));
    ASSERT_NE(line, nullptr);
    ASSERT_TRUE(screen.SelectObject(type::Line, "LINE_1"));
    ClearRecords();
    ASSERT_EQ(Size(*line), "730,730 1060x1060");
    EXPECT_EQ(Node(node::Line1).rect, (CanvasRect{662.5, 1722.5, 135, 135}));
    EXPECT_EQ(Node(node::Line2).rect, (CanvasRect{1722.5, 662.5, 135, 135}));

    PressNode(node::Line2);
    EXPECT_EQ(screen.RubberBand().X1, 662);
    EXPECT_EQ(screen.RubberBand().Y1, 1722);
    EXPECT_EQ(screen.RubberBand().X2, 1722);
    EXPECT_EQ(screen.RubberBand().Y2, 662);
    MoveNodeTo(node::Line2, 2500, 500);
    EXPECT_EQ(screen.RubberBand().X2, 2532);
    EXPECT_EQ(screen.RubberBand().Y2, 518);
    EXPECT_TRUE(screen.Canvas().editorLine.positiveSlope);
    ReleaseNode(node::Line2, 2500, 500);

    // The fixed end moved by half a node, as it always did.
    EXPECT_EQ(Size(*line), "662,518 1870x1204");
    EXPECT_TRUE(line->PositiveSlope());
    EXPECT_EQ(line->KOMAWidth(), 51);
    EXPECT_EQ(line->KOMAHeight(), 33);
    EXPECT_EQ(line->KOMAStartX(), 13);
    EXPECT_EQ(line->KOMAEndX(), 64);
    EXPECT_EQ(line->KOMAStartY(), 42);
    EXPECT_EQ(line->KOMAEndY(), 9);
    EXPECT_EQ(VisibleNodes(), 2);
    EXPECT_EQ(events.lines,
              (std::vector<std::string>{"Changed LINE_1,8", "Selected LINE_1,8"}));
}

TEST_F(ScreenNodes, FirstNodeOfAFallingLineMovesTheStart) {
    Arm(type::Line);
    DragOnCanvas(G(5), G(5), G(15), G(15));  // falls to the right
    auto* line = static_cast<ctlKOMALine*>(Obj(type::Line, 1));
    ASSERT_NE(line, nullptr);
    ASSERT_FALSE(line->PositiveSlope());
    ASSERT_TRUE(screen.SelectObject(type::Line, "LINE_1"));
    EXPECT_EQ(Node(node::Line1).rect, (CanvasRect{662.5, 662.5, 135, 135}));
    EXPECT_EQ(Node(node::Line2).rect, (CanvasRect{1722.5, 1722.5, 135, 135}));

    PressNode(node::Line1);
    EXPECT_EQ(screen.RubberBand().X1, 1722);
    EXPECT_EQ(screen.RubberBand().Y1, 1722);
    EXPECT_EQ(screen.RubberBand().X2, 662);
    EXPECT_EQ(screen.RubberBand().Y2, 662);
    MoveNodeTo(node::Line1, 300, 300);
    EXPECT_FALSE(screen.Canvas().editorLine.positiveSlope);
    ReleaseNode(node::Line1, 300, 300);
    EXPECT_EQ(Size(*line), "306,306 1416x1416");
    EXPECT_FALSE(line->PositiveSlope());
    EXPECT_EQ(line->KOMAStartX(), 3);
    EXPECT_EQ(line->KOMAStartY(), 3);
    EXPECT_EQ(line->KOMAEndX(), 42);
    EXPECT_EQ(line->KOMAEndY(), 42);
}

TEST_F(ScreenNodes, NodePressWithNothingSelectedDoesNothing) {
    screen.SelectObject(type::None, "");
    PressNode(node::BottomRight);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_TRUE(button->Visible());
}

TEST_F(ScreenNodes, NodeNumbersOutOfRangeAreIgnored) {
    screen.NodeMouseDown(10, 1, 0, 0, 0);
    screen.NodeMouseMove(-1, 1, 0, 0, 0);
    screen.NodeMouseUp(12, 1, 0, 0, 0);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_TRUE(events.lines.empty());
}

}  // namespace
}  // namespace tolva::testing
