#pragma once
// The grid of the design screen: the dots and the snap.
//
// The grid has GridInterval cells across the device area; the distance of
// two grid points, the spacing, is the width of the device area divided by
// the interval. The dots stand on the grid points, as many down as across,
// each a small circle of 35 by 35 screen units centred on its point.
#include "canvas/CanvasRect.h"

namespace tolva {

inline constexpr double kGridDotSize = 35;

// The spacing of a grid of the interval on a device area of the width:
// the width over the interval, rounded half to even. False when the
// interval is 0, which leaves the spacing as it was.
bool GridSpacingFor(double deviceAreaWidth, int interval, int& spacing);

// The dots on show: perSide dots across and as many down, spacing units
// apart, the first one centred on the device area's top left corner.
struct GridDots {
    int perSide = 0;
    int spacing = 1;
    double originX = 200;
    double originY = 200;

    int Count() const { return perSide > 0 ? perSide * perSide : 0; }
    // Dot number n (from 1), row by row: left is (column less 1) times the
    // spacing plus the origin less 17.5, top likewise with the row.
    CanvasRect Dot(int number) const;
};

// One coordinate snapped to the grid: the distance from the origin as a
// whole number (halves to even), its remainder by the spacing with the sign
// of the distance; a remainder of at least half the spacing (halves to
// even) moves the value up to the next point, a smaller one down to the
// point below. A point on a grid point stays; so does every point at a
// spacing of 1, whose every point is a grid point, and at a spacing of 0.
// A point before the origin has a negative remainder and moves forward by
// it.
double SnapToGrid(double value, double origin, int spacing);

}  // namespace tolva
