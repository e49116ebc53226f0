// The grid's arithmetic: spacing, dots and the snap to the closest point.
#include "canvas/Grid.h"

#include <gtest/gtest.h>

namespace tolva {
namespace {

constexpr double kArea = 5855;  // the device area of the main window's canvas

TEST(GridSpacing, IsTheAreaOverTheIntervalRoundedHalfToEven) {
    int spacing = 1;
    ASSERT_TRUE(GridSpacingFor(kArea, 55, spacing));
    EXPECT_EQ(spacing, 106);  // 106.45
    ASSERT_TRUE(GridSpacingFor(kArea, 50, spacing));
    EXPECT_EQ(spacing, 117);  // 117.1
    ASSERT_TRUE(GridSpacingFor(10, 4, spacing));
    EXPECT_EQ(spacing, 2);  // 2.5 goes to the even 2
    ASSERT_TRUE(GridSpacingFor(14, 4, spacing));
    EXPECT_EQ(spacing, 4);  // 3.5 goes to the even 4
}

TEST(GridSpacing, IntervalZeroLeavesTheSpacing) {
    int spacing = 77;
    EXPECT_FALSE(GridSpacingFor(kArea, 0, spacing));
    EXPECT_EQ(spacing, 77);
}

TEST(GridDots, DotsRunRowByRowFromTheTopLeftCorner) {
    GridDots dots;
    dots.perSide = 56;
    dots.spacing = 106;
    EXPECT_EQ(dots.Count(), 3136);
    EXPECT_EQ(dots.Dot(1), (CanvasRect{182.5, 182.5, 35, 35}));
    EXPECT_EQ(dots.Dot(2), (CanvasRect{288.5, 182.5, 35, 35}));
    EXPECT_EQ(dots.Dot(56), (CanvasRect{6012.5, 182.5, 35, 35}));
    EXPECT_EQ(dots.Dot(57), (CanvasRect{182.5, 288.5, 35, 35}));
    EXPECT_EQ(dots.Dot(3136), (CanvasRect{6012.5, 6012.5, 35, 35}));
}

TEST(GridDots, NoDotsWhenNoneAreShown) {
    GridDots dots;
    EXPECT_EQ(dots.Count(), 0);
    EXPECT_EQ(dots.Dot(1), CanvasRect{});
    dots.perSide = -3;
    EXPECT_EQ(dots.Count(), 0);
}

TEST(SnapToGrid, TheOriginStaysAtEverySpacing) {
    for (int spacing = 1; spacing <= 300; ++spacing)
        EXPECT_EQ(SnapToGrid(200, 200, spacing), 200) << "spacing " << spacing;
}

TEST(SnapToGrid, ExactlyHalfMovesUpAndBelowHalfMovesDown) {
    // Spacing 106, half 53.
    EXPECT_EQ(SnapToGrid(200 + 53, 200, 106), 306);
    EXPECT_EQ(SnapToGrid(200 + 52, 200, 106), 200);
    EXPECT_EQ(SnapToGrid(200 + 106 * 7 + 53, 200, 106), 200 + 106 * 8);
    EXPECT_EQ(SnapToGrid(200 + 106 * 7 + 52, 200, 106), 200 + 106 * 7);
}

TEST(SnapToGrid, HalfTheSpacingIsRoundedHalfToEven) {
    // Spacing 117: half is 58.5, rounded to the even 58, so 58 moves up.
    EXPECT_EQ(SnapToGrid(200 + 58, 200, 117), 317);
    EXPECT_EQ(SnapToGrid(200 + 57, 200, 117), 200);
    // Spacing 3: half is 1.5, rounded to 2.
    EXPECT_EQ(SnapToGrid(201, 200, 3), 200);
    EXPECT_EQ(SnapToGrid(202, 200, 3), 203);
}

TEST(SnapToGrid, WithSpacingOneNoPointMoves) {
    for (double x : {0.0, 150.0, 200.0, 201.0, 1234.0, 6055.0, 7000.0})
        EXPECT_EQ(SnapToGrid(x, 200, 1), x);
}

TEST(SnapToGrid, SpacingZeroSnapsNothing) { EXPECT_EQ(SnapToGrid(321, 200, 0), 321); }

TEST(SnapToGrid, PointBeforeTheOriginMovesForwardByItsRemainder) {
    // -50 has the remainder -50 and moves right by 50.
    EXPECT_EQ(SnapToGrid(150, 200, 106), 200);
    // -150 has the remainder -44: the point moves right to 94 only; the
    // callers clamp it afterwards.
    EXPECT_EQ(SnapToGrid(50, 200, 106), 94);
}

TEST(SnapToGrid, DistanceIsRoundedHalfToEvenFirst) {
    // 252.5 is a distance of 52.5, taken as 52: down by 52. The callers
    // hand in whole numbers, which land on the point.
    EXPECT_EQ(SnapToGrid(252.5, 200, 106), 200.5);
    // 253.5 is 53.5, taken as 54: up by 106 less 54.
    EXPECT_EQ(SnapToGrid(253.5, 200, 106), 253.5 + 52);
}

}  // namespace
}  // namespace tolva
