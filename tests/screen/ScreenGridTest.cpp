// The design screen's frame, device area, scale and grid.
#include "screen/CanvasFixture.h"
#include "screen/ScreenUnits.h"

namespace tolva::testing {
namespace {

using ScreenGrid = ScreenTest;  // the grid as the screen starts: off
using ScreenGridShown = CanvasTest;

TEST_F(ScreenGrid, FrameAndDeviceAreaFollowTheCanvas) {
    EXPECT_EQ(screen.BorderRect(), (CanvasRect{0, 0, 6255, 6255}));
    EXPECT_EQ(screen.DeviceAreaRect(), (CanvasRect{200, 200, 5855, 5855}));
    screen.SetCanvasSize(4400, 3000);
    EXPECT_EQ(screen.BorderRect(), (CanvasRect{0, 0, 4400, 3000}));
    EXPECT_EQ(screen.DeviceAreaRect(), (CanvasRect{200, 200, 4000, 2600}));
}

TEST_F(ScreenGrid, ScaleComesFromTheWidthAndReachesEveryObject) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 40, 20));
    log.lines.clear();
    screen.SetCanvasSize(4400, 9999);
    EXPECT_DOUBLE_EQ(screen.PCTwipsToTolvaPixels(), 25);
    EXPECT_DOUBLE_EQ(Form(1)->PCTwipsToTolvaPixels(), 25);
    EXPECT_DOUBLE_EQ(Obj(type::Button, 1)->PCTwipsToTolvaPixels(), 25);
    EXPECT_TRUE(Logged("Pixel scaling changed"));
}

TEST_F(ScreenGrid, StartsHiddenWithIntervalFiftyFiveAndSpacingOne) {
    EXPECT_FALSE(screen.GridVisible());
    EXPECT_EQ(screen.GridInterval(), 55);
    EXPECT_EQ(screen.GridSpacing(), 1);
    EXPECT_EQ(screen.Canvas().dots.Count(), 0);
}

TEST_F(ScreenGrid, StartedWithTheGridOffNothingSnaps) {
    screen.SetGrid(40, false);
    double x = 1234, y = 567;
    screen.GetClosestNode(x, y);
    EXPECT_EQ(x, 1234);
    EXPECT_EQ(y, 567);
}

TEST_F(ScreenGrid, DefaultGridHasSpacing106AndFiftySixDotsEachWay) {
    screen.SetGrid(55, true);
    EXPECT_TRUE(screen.GridVisible());
    EXPECT_EQ(screen.GridSpacing(), 106);
    const GridDots& dots = screen.Canvas().dots;
    EXPECT_EQ(dots.perSide, 56);
    EXPECT_EQ(dots.Count(), 56 * 56);
    EXPECT_EQ(dots.Dot(1), (CanvasRect{182.5, 182.5, 35, 35}));
    // The last column lies short of the right edge of the device area.
    const CanvasRect last = dots.Dot(56);
    EXPECT_EQ(last.left + 17.5, 6030);
    EXPECT_LT(last.left + 17.5, screen.DeviceAreaRect().Right());
}

TEST_F(ScreenGrid, HidingKeepsTheSpacingAndDropsTheInterval) {
    screen.SetGrid(55, true);
    screen.SetGrid(30, false);
    EXPECT_FALSE(screen.GridVisible());
    EXPECT_EQ(screen.GridInterval(), 55);
    EXPECT_EQ(screen.GridSpacing(), 106);
    EXPECT_EQ(screen.Canvas().dots.Count(), 0);
    // The snap goes on with the old spacing.
    double x = 200 + 60, y = 200 + 40;
    screen.GetClosestNode(x, y);
    EXPECT_EQ(x, 306);
    EXPECT_EQ(y, 200);
}

TEST_F(ScreenGrid, ShowGridFalseDoesNothingAndTrueShowsTheCurrentInterval) {
    screen.SetGrid(45, true);
    screen.ShowGrid(false);
    EXPECT_TRUE(screen.GridVisible());
    EXPECT_EQ(screen.Canvas().dots.perSide, 46);
    screen.SetGrid(30, false);
    screen.ShowGrid(true);
    EXPECT_TRUE(screen.GridVisible());
    EXPECT_EQ(screen.GridInterval(), 45);
    EXPECT_EQ(screen.Canvas().dots.perSide, 46);
}

TEST_F(ScreenGrid, SettingTheIntervalRunsSetGridWithTheCurrentFlag) {
    screen.SetGrid(55, true);
    screen.GridInterval(50);
    EXPECT_EQ(screen.GridInterval(), 50);
    EXPECT_EQ(screen.GridSpacing(), 117);
    EXPECT_EQ(screen.Canvas().dots.perSide, 51);
    screen.SetGrid(50, false);
    screen.GridInterval(30);  // hidden: the value is dropped
    EXPECT_EQ(screen.GridInterval(), 50);
    EXPECT_FALSE(screen.GridVisible());
}

TEST_F(ScreenGrid, FinerIntervalGivesMoreDotsAndASmallerSpacing) {
    screen.SetGrid(30, true);
    EXPECT_EQ(screen.GridSpacing(), 195);  // 195.17
    screen.SetGrid(55, true);
    EXPECT_EQ(screen.GridSpacing(), 106);
    EXPECT_EQ(screen.Canvas().dots.Count(), 3136);
}

TEST_F(ScreenGrid, IntervalZeroKeepsTheSpacingAndShowsOneDot) {
    screen.SetGrid(55, true);
    screen.SetGrid(0, true);
    EXPECT_EQ(screen.GridInterval(), 0);
    EXPECT_EQ(screen.GridSpacing(), 106);
    EXPECT_EQ(screen.Canvas().dots.Count(), 1);
}

TEST_F(ScreenGrid, NegativeOrHugeIntervalsDoNotBreakTheScreen) {
    screen.SetGrid(-5, true);
    EXPECT_EQ(screen.Canvas().dots.Count(), 0);
    screen.SetGrid(32767, true);
    EXPECT_EQ(screen.GridSpacing(), 0);
    double x = 1234.0, y = 999.0;
    screen.GetClosestNode(x, y);  // spacing 0 snaps nothing
    EXPECT_EQ(x, 1234);
    screen.SetGrid(100000, true);  // beyond a 16-bit interval: kept as it was
    EXPECT_EQ(screen.GridInterval(), 32767);
}

TEST_F(ScreenGrid, OriginStaysAtEveryInterval) {
    for (int interval = 1; interval <= 60; ++interval) {
        screen.SetGrid(interval, true);
        double x = 200, y = 200;
        screen.GetClosestNode(x, y);
        EXPECT_EQ(x, 200) << "interval " << interval;
        EXPECT_EQ(y, 200) << "interval " << interval;
    }
}

TEST_F(ScreenGridShown, HalfMovesUpAndLessMovesDown) {
    double x = 200 + 53, y = 200 + 52;
    screen.GetClosestNode(x, y);
    EXPECT_EQ(x, 306);
    EXPECT_EQ(y, 200);
}

TEST_F(ScreenGridShown, PointLeftOfTheDeviceAreaMovesRightByItsRemainder) {
    double x = 50, y = 150;
    screen.GetClosestNode(x, y);
    EXPECT_EQ(x, 94);
    EXPECT_EQ(y, 200);
}

TEST_F(ScreenGrid, EdgesGivePixelZeroAndOneHundredSixty) {
    EXPECT_EQ(PixelFromScreenPosition(200, screen.CanvasWidth()), 0);
    EXPECT_EQ(PixelFromScreenPosition(6255 - 200, screen.CanvasWidth()), 160);
}

TEST_F(ScreenGrid, OnlyResizeClampsTheRightEdgeTo159) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 10, 10, 40, 20));
    host.ClearRecord();
    // MoveObject does not clamp: 160 meets the setter's refusal.
    ASSERT_TRUE(screen.MoveObject(type::Button, "BUTTON_1", 6055, 6055));
    EXPECT_EQ(Obj(type::Button, 1)->KOMABoundsX(), 10);
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"KOMABoundsX: Invalid value",
                                        "KOMABoundsY: Invalid value"}));
    host.ClearRecord();
    // ResizeObject clamps.
    ASSERT_TRUE(screen.ResizeObject(type::Button, "BUTTON_1", 6055, 6055, 6055, 6055));
    EXPECT_EQ(Obj(type::Button, 1)->KOMABoundsX(), 159);
    EXPECT_EQ(Obj(type::Button, 1)->KOMABoundsY(), 159);
    EXPECT_TRUE(host.messages.empty());
}

}  // namespace
}  // namespace tolva::testing
