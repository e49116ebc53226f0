// Drawing with the rubber band: press, move and release on the bare canvas
// and through a form, on the main window's grid (spacing 106).
#include "canvas/RubberBand.h"
#include "screen/CanvasFixture.h"
#include "objects/line/ctlKOMALine.h"

namespace tolva::testing {
namespace {

using ScreenDrawing = CanvasTest;

TEST_F(ScreenDrawing, PressMoveReleaseDrawsAFormOnTheGrid) {
    Arm(type::Form);
    screen.CanvasMouseDown(1, 0, 250, 260);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeDrawing);
    // 250 is 50 past a point and snaps down; 260 is 60 past and snaps up.
    EXPECT_EQ(screen.RubberBand().X1, 200);
    EXPECT_EQ(screen.RubberBand().Y1, 306);
    EXPECT_TRUE(screen.Canvas().barsVisible);

    screen.CanvasMouseMove(1, 0, 2000, 3000);
    EXPECT_EQ(screen.RubberBand().X2, 2002);
    EXPECT_EQ(screen.RubberBand().Y2, 2956);
    EXPECT_EQ(screen.Canvas().bars[bar::Vert1], (CanvasRect{200, 306, 15, 2650}));
    EXPECT_EQ(screen.Canvas().bars[bar::Horiz2], (CanvasRect{200, 2956, 1802, 15}));

    screen.CanvasMouseUp(1, 0, 2000, 3000);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_FALSE(screen.Canvas().barsVisible);
    EXPECT_EQ(screen.CreateObjectType(), type::None);
    ASSERT_EQ(screen.NumForms(), 1);
    KomaObject* form = Form(1);
    EXPECT_EQ(form->Left(), 200);
    EXPECT_EQ(form->Top(), 306);
    EXPECT_EQ(form->Width(), 1802);
    EXPECT_EQ(form->Height(), 2650);
    EXPECT_EQ(form->KOMABoundsX(), 0);
    EXPECT_EQ(form->KOMABoundsY(), 3);   // 2.897
    EXPECT_EQ(form->KOMAWidth(), 49);    // 49.24
    EXPECT_EQ(form->KOMAHeight(), 72);   // 72.42
    EXPECT_EQ(events.lines,
              (std::vector<std::string>{"MouseDown 1,0,250,260", "MouseMove 1,0,2000,3000",
                                        "Created FORM_1,1", "MouseUp 1,0,2000,3000"}));
    ASSERT_FALSE(host.cursors.empty());
    EXPECT_EQ(host.cursors.back(), CursorShape::Arrow);
}

TEST_F(ScreenDrawing, ClickWithAToolArmedCreatesNothingButDisarmsIt) {
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    Arm(type::Button);
    screen.CanvasMouseDown(1, 0, 1000, 1000);
    screen.CanvasMouseUp(1, 0, 1000, 1000);
    EXPECT_EQ(screen.NumButtons(), 0);
    EXPECT_EQ(screen.CreateObjectType(), type::None);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    // The main window puts the toolbar back to "Pointer" on the MouseUp.
    EXPECT_EQ(events.lines, (std::vector<std::string>{"MouseDown 1,0,1000,1000",
                                                      "MouseUp 1,0,1000,1000"}));
}

TEST_F(ScreenDrawing, BandOfOneDimensionOnlyCreatesNothing) {
    ASSERT_TRUE(DrawForm());
    Arm(type::Button);
    DragOnCanvas(1000, 1000, 3000, 1010);  // the same grid row
    EXPECT_EQ(screen.NumButtons(), 0);
}

TEST_F(ScreenDrawing, ClickWithTheLineToolCreatesALine) {
    ASSERT_TRUE(DrawForm());
    ClearRecords();
    Arm(type::Line);
    screen.CanvasMouseDown(1, 0, 1000, 1000);
    EXPECT_TRUE(screen.Canvas().editorLine.visible);
    EXPECT_FALSE(screen.Canvas().barsVisible);
    screen.CanvasMouseUp(1, 0, 1000, 1000);
    ASSERT_EQ(screen.NumLines(), 1);
    auto* line = static_cast<ctlKOMALine*>(Obj(type::Line, 1));
    EXPECT_EQ(line->Left(), 1048);
    EXPECT_EQ(line->Top(), 1048);
    EXPECT_EQ(line->KOMAWidth(), 0);
    EXPECT_EQ(line->KOMAHeight(), 0);
    // An upright band line counts as rising.
    EXPECT_TRUE(line->PositiveSlope());
    EXPECT_EQ(line->KOMAStartX(), 23);
    EXPECT_EQ(line->KOMAEndX(), 23);
    EXPECT_EQ(line->KOMAStartY(), 23);
    EXPECT_EQ(line->KOMAEndY(), 23);
    EXPECT_EQ(screen.CreateObjectType(), type::None);
    EXPECT_EQ(events.lines[1], "Created LINE_1,8");
}

TEST_F(ScreenDrawing, DraggingPastTheRightEdgeStopsTheBandAtTheEdge) {
    ASSERT_TRUE(DrawForm());
    Arm(type::Button);
    screen.CanvasMouseDown(1, 0, 1000, 1000);
    screen.CanvasMouseMove(1, 0, 7000, 1500);
    EXPECT_EQ(screen.RubberBand().X2, 6255 - 200);
    EXPECT_EQ(screen.Canvas().bars[bar::Vert2].left, 6055);
    screen.CanvasMouseUp(1, 0, 7000, 1500);
    KomaObject* button = Obj(type::Button, 1);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->Left() + button->Width(), 6055);
    EXPECT_EQ(button->KOMABoundsX() + button->KOMAWidth(), 160);
}

TEST_F(ScreenDrawing, BandStopsAtEveryEdgeOfTheDeviceArea) {
    ASSERT_TRUE(DrawForm());
    Arm(type::Button);
    screen.CanvasMouseDown(1, 0, 3000, 3000);
    screen.CanvasMouseMove(1, 0, -500, -500);
    EXPECT_EQ(screen.RubberBand().X2, 200);
    EXPECT_EQ(screen.RubberBand().Y2, 200);
    screen.CanvasMouseMove(1, 0, 6250, 9000);
    EXPECT_EQ(screen.RubberBand().X2, 6055);
    EXPECT_EQ(screen.RubberBand().Y2, 6055);
}

TEST_F(ScreenDrawing, FixedCornerIsClampedAtOnceTheMovingOneFromTheFirstMove) {
    ASSERT_TRUE(DrawForm());
    Arm(type::Button);
    // 6200 snaps to 6242, in the margin.
    screen.CanvasMouseDown(1, 0, 6200, 6200);
    EXPECT_EQ(screen.RubberBand().X1, 6055);
    EXPECT_EQ(screen.RubberBand().Y1, 6055);
    EXPECT_EQ(screen.RubberBand().X2, 6242);
    EXPECT_EQ(screen.RubberBand().Y2, 6242);
    screen.CanvasMouseMove(1, 0, 6200, 6200);
    EXPECT_EQ(screen.RubberBand().X2, 6055);
    screen.CanvasMouseUp(1, 0, 6200, 6200);
    EXPECT_EQ(screen.NumButtons(), 0);
}

TEST_F(ScreenDrawing, BandDrawnBackwardsFlipsAndGivesTheSortedBox) {
    ASSERT_TRUE(DrawForm());
    Arm(type::Button);
    screen.CanvasMouseDown(1, 0, 3000, 3000);
    screen.CanvasMouseMove(1, 0, 1000, 800);
    EXPECT_EQ(screen.Canvas().bars[bar::Vert1], (CanvasRect{1048, 836, 15, 2120}));
    EXPECT_EQ(screen.Canvas().bars[bar::Vert2], (CanvasRect{2956, 836, 15, 2120}));
    EXPECT_EQ(screen.Canvas().bars[bar::Horiz1], (CanvasRect{1048, 836, 1908, 15}));
    screen.CanvasMouseUp(1, 0, 1000, 800);
    KomaObject* button = Obj(type::Button, 1);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->Left(), 1048);
    EXPECT_EQ(button->Top(), 836);
    EXPECT_EQ(button->Width(), 1908);
    EXPECT_EQ(button->Height(), 2120);
}

TEST_F(ScreenDrawing, LineToolShowsTheEditorLineWithItsSlope) {
    ASSERT_TRUE(DrawForm());
    Arm(type::Line);
    screen.CanvasMouseDown(1, 0, 1000, 3000);
    screen.CanvasMouseMove(1, 0, 3000, 1000);
    const EditorLine& editorLine = screen.Canvas().editorLine;
    EXPECT_TRUE(editorLine.visible);
    EXPECT_FALSE(screen.Canvas().barsVisible);
    EXPECT_TRUE(editorLine.positiveSlope);
    EXPECT_EQ(editorLine.box, (CanvasRect{1048, 1048, 1908, 1908}));
    screen.CanvasMouseMove(1, 0, 3000, 5000);
    EXPECT_FALSE(screen.Canvas().editorLine.positiveSlope);
    screen.CanvasMouseUp(1, 0, 3000, 5000);
    EXPECT_FALSE(screen.Canvas().editorLine.visible);

    auto* line = static_cast<ctlKOMALine*>(Obj(type::Line, 1));
    ASSERT_NE(line, nullptr);
    EXPECT_FALSE(line->PositiveSlope());
    // Falling to the right: the start is the top left, the end the bottom right.
    EXPECT_EQ(line->KOMAStartX(), line->KOMABoundsX());
    EXPECT_EQ(line->KOMAStartY(), line->KOMABoundsY());
    EXPECT_EQ(line->KOMAEndX(), line->KOMABoundsX() + line->KOMAWidth());
    EXPECT_EQ(line->KOMAEndY(), line->KOMABoundsY() + line->KOMAHeight());
}

TEST_F(ScreenDrawing, RisingLineStartsAtTheBottomLeft) {
    ASSERT_TRUE(DrawForm());
    Arm(type::Line);
    DragOnCanvas(1000, 3000, 3000, 1000);
    auto* line = static_cast<ctlKOMALine*>(Obj(type::Line, 1));
    ASSERT_NE(line, nullptr);
    EXPECT_TRUE(line->PositiveSlope());
    EXPECT_EQ(line->KOMAStartY(), line->KOMABoundsY() + line->KOMAHeight());
    EXPECT_EQ(line->KOMAEndY(), line->KOMABoundsY());
}

TEST_F(ScreenDrawing, DrawingPassesThroughAFormWhileDrawingOnObjectsIsAllowed) {
    KomaObject* form = DrawFormWithTheMouse();
    ASSERT_NE(form, nullptr);
    ASSERT_EQ(form->Left(), 200);
    ClearRecords();
    Arm(type::Button);
    form->MouseDown(1, 0, 800, 800);
    form->MouseMove(1, 0, 2800, 1800);
    form->MouseUp(1, 0, 2800, 1800);
    // The form passed the mouse on in canvas units and did not move.
    EXPECT_EQ(form->Left(), 200);
    EXPECT_EQ(events.lines,
              (std::vector<std::string>{"MouseDown 1,0,1000,1000", "MouseMove 1,0,3000,2000",
                                        "Created BUTTON_1,0", "MouseUp 1,0,3000,2000"}));
    KomaObject* button = Obj(type::Button, 1);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->Left(), 1048);
    EXPECT_EQ(button->Top(), 1048);
    EXPECT_EQ(button->Width(), 1908);
    EXPECT_EQ(button->Height(), 954);
    EXPECT_EQ(button->ParentForm(), form);
}

TEST_F(ScreenDrawing, PressOnTheBareCanvasWithPointerClearsTheSelection) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 40, 20));
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    ASSERT_EQ(VisibleNodes(), 8);
    ClearRecords();
    Pointer();
    screen.CanvasMouseDown(1, 0, 100, 100);
    screen.CanvasMouseUp(1, 0, 100, 100);
    EXPECT_EQ(screen.SelectedObjectType(), type::None);
    EXPECT_EQ(screen.SelectedObjectName(), "");
    EXPECT_EQ(VisibleNodes(), 0);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_EQ(events.lines,
              (std::vector<std::string>{"Selected ,16", "MouseDown 1,0,100,100",
                                        "MouseUp 1,0,100,100"}));
}

TEST_F(ScreenDrawing, PressWithoutAllowDrawingStaysIdle) {
    ASSERT_TRUE(DrawForm());
    screen.CreateObjectType(type::Button);
    screen.AllowDrawing(false);
    screen.CanvasMouseDown(1, 0, 1000, 1000);
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_FALSE(screen.Canvas().barsVisible);
}

TEST_F(ScreenDrawing, MoveOverTheCanvasOnlyTellsTheMainWindow) {
    screen.CanvasMouseMove(0, 0, 500, 700);
    EXPECT_EQ(events.lines, (std::vector<std::string>{"MouseMove 0,0,500,700"}));
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
}

TEST_F(ScreenDrawing, NothingButAFormWithoutAForm) {
    Arm(type::Button);
    DragOnCanvas(1000, 1000, 3000, 3000);
    EXPECT_EQ(screen.NumButtons(), 0);
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{
                  "Couldn't Create Object: You must draw a form before you can draw other "
                  "controls"}));
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeIdle);
}

// With no grid (spacing 1), so a band may be thinner than a grid cell.
using ScreenDrawingNoGrid = ScreenTest;

TEST_F(ScreenDrawingNoGrid, LineFlatterThanFortyUnitsTurnsHorizontal) {
    ASSERT_TRUE(DrawForm());
    screen.CreateObjectType(type::Line);
    screen.AllowDrawing(true);
    screen.CanvasMouseDown(1, 0, 1000, 1000);
    screen.CanvasMouseMove(1, 0, 3000, 1030);
    screen.CanvasMouseUp(1, 0, 3000, 1030);
    auto* line = static_cast<ctlKOMALine*>(Obj(type::Line, 1));
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->Height(), 30);
    EXPECT_EQ(line->KOMAHeight(), 1);
    EXPECT_FALSE(line->PositiveSlope());
    EXPECT_EQ(line->KOMAStartY(), 22);
    // Without the rule the end would lie one pixel lower.
    EXPECT_EQ(line->KOMAEndY(), line->KOMAStartY());
    EXPECT_NE(line->KOMAEndX(), line->KOMAStartX());
}

TEST_F(ScreenDrawingNoGrid, LineNarrowerThanFortyUnitsTurnsUpright) {
    ASSERT_TRUE(DrawForm());
    screen.CreateObjectType(type::Line);
    screen.AllowDrawing(true);
    screen.CanvasMouseDown(1, 0, 1000, 1000);
    screen.CanvasMouseMove(1, 0, 1039, 3000);
    screen.CanvasMouseUp(1, 0, 1039, 3000);
    auto* line = static_cast<ctlKOMALine*>(Obj(type::Line, 1));
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(line->KOMAWidth(), 1);
    EXPECT_EQ(line->KOMAEndX(), line->KOMAStartX());
}

}  // namespace
}  // namespace tolva::testing
