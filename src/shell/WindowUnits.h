#pragma once
// Window geometry is given in screen units, 15 to a logical pixel.
#include <QRect>

namespace tolva {

inline constexpr double kUnitsPerPixel = 15.0;

// Screen units to logical pixels, to the nearest pixel.
int UnitsToPixels(double units);

// A rectangle given in screen units (left, top, width, height) in pixels.
QRect UnitsRect(double left, double top, double width, double height);

}  // namespace tolva
