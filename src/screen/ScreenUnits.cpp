#include "screen/ScreenUnits.h"

#include <cmath>
#include <limits>

#include "document/Numbers.h"

namespace tolva {

int PixelFromScreenPosition(double position, double canvasExtent) {
    const double span = canvasExtent - 2 * kScreenMargin;
    if (!(span > 0)) return 0;
    return RoundToIntSaturating(160.0 * (position - kScreenMargin) / span);
}

int PixelLengthFromScreen(double length, double canvasExtent) {
    const double span = canvasExtent - 2 * kScreenMargin;
    if (!(span > 0)) return 0;
    return RoundToIntSaturating(160.0 * length / span);
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
