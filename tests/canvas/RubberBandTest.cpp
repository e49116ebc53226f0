// The rubber band's bars and the slope of its line.
#include "canvas/RubberBand.h"

#include <gtest/gtest.h>

#include "canvas/DeviceArea.h"

namespace tolva {
namespace {

TEST(RubberBand, BarsStandOnTheSortedRectangle) {
    // Drawn from the bottom right to the top left: the same bars.
    for (const BandBars& bars : {BandBarsFor(1000, 500, 3000, 2000),
                                 BandBarsFor(3000, 2000, 1000, 500)}) {
        EXPECT_EQ(bars[bar::Vert1], (CanvasRect{1000, 500, 15, 1500}));
        EXPECT_EQ(bars[bar::Vert2], (CanvasRect{3000, 500, 15, 1500}));
        EXPECT_EQ(bars[bar::Horiz1], (CanvasRect{1000, 500, 2000, 15}));
        EXPECT_EQ(bars[bar::Horiz2], (CanvasRect{1000, 2000, 2000, 15}));
    }
}

TEST(RubberBand, LineSlope) {
    EXPECT_TRUE(BandLineSlope(1000, 2000, 3000, 500));   // rises to the right
    EXPECT_FALSE(BandLineSlope(1000, 500, 3000, 2000));  // falls to the right
    EXPECT_TRUE(BandLineSlope(3000, 500, 1000, 2000));   // rises, drawn leftward
    EXPECT_TRUE(BandLineSlope(1000, 500, 1000, 2000));   // upright
    EXPECT_FALSE(BandLineSlope(1000, 500, 3000, 500));   // flat: slope 0
}

TEST(RubberBand, SortedBox) {
    EXPECT_EQ(SortedBox(3000, 2000, 1000, 500), (CanvasRect{1000, 500, 2000, 1500}));
}

TEST(DeviceArea, FrameAndDeviceArea) {
    EXPECT_EQ(BorderRect(6255, 6255), (CanvasRect{0, 0, 6255, 6255}));
    EXPECT_EQ(DeviceAreaRect(6255, 5000), (CanvasRect{200, 200, 5855, 4600}));
}

TEST(DeviceArea, ClampKeepsThePointInside) {
    double x = 100, y = 7000;
    ClampToDeviceArea(x, y, 6255, 6255);
    EXPECT_EQ(x, 200);
    EXPECT_EQ(y, 6055);
    x = 9000, y = -5;
    ClampToDeviceArea(x, y, 6255, 6255);
    EXPECT_EQ(x, 6055);
    EXPECT_EQ(y, 200);
    x = 3000, y = 4000;
    ClampToDeviceArea(x, y, 6255, 6255);
    EXPECT_EQ(x, 3000);
    EXPECT_EQ(y, 4000);
}

}  // namespace
}  // namespace tolva
