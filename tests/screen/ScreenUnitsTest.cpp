// The arithmetic between device pixels and screen units.
#include "screen/ScreenUnits.h"

#include <gtest/gtest.h>

namespace tolva {
namespace {

constexpr double kCanvas = 6255;
constexpr double kUnits = 36.59375;

TEST(ScreenUnits, EdgesOfTheDeviceArea) {
    EXPECT_EQ(PixelFromScreenPosition(200, kCanvas), 0);
    // The right edge is pixel 160; only the callers that clamp make it 159.
    EXPECT_EQ(PixelFromScreenPosition(kCanvas - 200, kCanvas), 160);
}

TEST(ScreenUnits, PositionsRoundHalfToEven) {
    // 160 * 128.078125 / 5855 = 3.5 exactly, and 2.5 for 91.484375.
    EXPECT_EQ(PixelFromScreenPosition(200 + 128.078125, kCanvas), 4);
    EXPECT_EQ(PixelFromScreenPosition(200 + 91.484375, kCanvas), 2);
}

TEST(ScreenUnits, LengthsRoundHalfToEven) {
    EXPECT_EQ(PixelLengthFromScreen(5855, kCanvas), 160);
    EXPECT_EQ(PixelLengthFromScreen(kUnits * 2.5, kCanvas), 2);
    EXPECT_EQ(PixelLengthFromScreen(kUnits * 3.5, kCanvas), 4);
}

TEST(ScreenUnits, CanvasTooSmallGivesZero) {
    EXPECT_EQ(PixelFromScreenPosition(300, 400), 0);
    EXPECT_EQ(PixelLengthFromScreen(300, 0), 0);
}

TEST(ScreenUnits, PixelsToCanvas) {
    EXPECT_DOUBLE_EQ(ScreenPositionFromPixel(0, kUnits), 200);
    // 36.59375 * 114 + 200 = 4371.6875.
    EXPECT_DOUBLE_EQ(ScreenPositionFromPixel(114, kUnits), 4372);
    // 2.5 + 200 goes to the even 202.
    EXPECT_DOUBLE_EQ(ScreenPositionFromPixel(1, 2.5), 202);
    EXPECT_DOUBLE_EQ(ScreenLengthFromPixel(60, kUnits), 2195.625);
}

TEST(ScreenUnits, RoundTripKeepsEveryPixel) {
    for (int px = 0; px <= 160; ++px)
        EXPECT_EQ(PixelFromScreenPosition(ScreenPositionFromPixel(px, kUnits), kCanvas), px);
}

TEST(ScreenUnits, Clamp) {
    EXPECT_EQ(ClampPixel(-4, 0, 159), 0);
    EXPECT_EQ(ClampPixel(160, 0, 159), 159);
    EXPECT_EQ(ClampPixel(80, 0, 159), 80);
}

}  // namespace
}  // namespace tolva
