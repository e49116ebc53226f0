#include "canvas/Grid.h"

#include <cmath>

#include "document/Numbers.h"

namespace tolva {

bool GridSpacingFor(double deviceAreaWidth, int interval, int& spacing) {
    // A division by nothing leaves the spacing as it was.
    if (interval == 0) return false;
    spacing = RoundToIntSaturating(deviceAreaWidth / interval);
    return true;
}

CanvasRect GridDots::Dot(int number) const {
    if (perSide <= 0 || number < 1) return {};
    const int row = (number - 1) / perSide + 1;
    const int column = (number - 1) % perSide + 1;
    const double half = kGridDotSize / 2;
    return {static_cast<double>(column - 1) * spacing + originX - half,
            static_cast<double>(row - 1) * spacing + originY - half, kGridDotSize,
            kGridDotSize};
}

double SnapToGrid(double value, double origin, int spacing) {
    if (spacing == 0) return value;
    const double distance = RoundHalfEven(value - origin);
    if (!std::isfinite(distance)) return value;
    // The remainder takes the sign of the dividend, as fmod does.
    const double remainder = std::fmod(distance, static_cast<double>(spacing));
    if (remainder == 0) return value;
    const double half = RoundHalfEven(spacing / 2.0);
    if (remainder >= half) return value + (spacing - remainder);
    return value - remainder;
}

}  // namespace tolva
