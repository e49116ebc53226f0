#pragma once
// The rubber band's pictures: four black bars round a rectangle, or the
// editor line, a box with one line across it, for a line.
#include <array>

#include "canvas/CanvasRect.h"

namespace tolva {

// The bars are 15 screen units thick.
inline constexpr double kBandThickness = 15;

namespace bar {
inline constexpr int Vert1 = 0;   // picVert1, at the small X
inline constexpr int Vert2 = 1;   // picVert2, at the large X
inline constexpr int Horiz1 = 2;  // picHoriz1, at the small Y
inline constexpr int Horiz2 = 3;  // picHoriz2, at the large Y
inline constexpr int Count = 4;
}  // namespace bar

using BandBars = std::array<CanvasRect, bar::Count>;

// The four bars of the rectangle with corners X1, Y1 and X2, Y2, in any
// order: the two upright ones from the small Y with the height of the Y
// span, the two flat ones from the small X with the width of the X span.
BandBars BandBarsFor(double x1, double y1, double x2, double y2);

// The box of the two corners, sorted.
CanvasRect SortedBox(double x1, double y1, double x2, double y2);

// The slope of a drawn line: True when X1 equals X2, else when (Y1 less Y2)
// divided by (X2 less X1) is greater than 0 (the line rises to the right).
bool BandLineSlope(double x1, double y1, double x2, double y2);

// ctlEditorLine: a box with one line in it, from the bottom left to the top
// right corner with PositiveSlope (its start), from the top left to the
// bottom right without.
struct EditorLine {
    CanvasRect box;
    bool visible = false;
    bool positiveSlope = true;
};

}  // namespace tolva
