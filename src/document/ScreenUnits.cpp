#include "document/ScreenUnits.h"

#include <cmath>
#include <limits>

#include "document/Numbers.h"

namespace tolva {

namespace {

// Rounds half to even and holds the result to the int range, so that a wild
// value reaches a setter (which refuses it with its own message) instead of
// overflowing.
int RoundToInt(double value) {
    const double rounded = RoundHalfEven(value);
    if (std::isnan(rounded)) return 0;
    if (rounded > std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
    if (rounded < std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
    return static_cast<int>(rounded);
}

}  // namespace

int PixelFromScreenPosition(double position, double canvasExtent) {
    const double span = canvasExtent - 2 * kScreenMargin;
    if (!(span > 0)) return 0;
    return RoundToInt(160.0 * (position - kScreenMargin) / span);
}

int PixelLengthFromScreen(double length, double canvasExtent) {
    const double span = canvasExtent - 2 * kScreenMargin;
    if (!(span > 0)) return 0;
    return RoundToInt(160.0 * length / span);
}

double ScreenPositionFromPixel(int pixel, double unitsPerPixel) {
    return RoundHalfEven(unitsPerPixel * pixel + kScreenMargin);
}

double ScreenLengthFromPixel(int pixels, double unitsPerPixel) { return unitsPerPixel * pixels; }

int ClampPixel(int value, int low, int high) {
    if (value < low) return low;
    if (value > high) return high;
    return value;
}

}  // namespace tolva
