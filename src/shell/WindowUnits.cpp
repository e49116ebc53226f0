#include "shell/WindowUnits.h"

#include <cmath>

namespace tolva {

int UnitsToPixels(double units) { return static_cast<int>(std::lround(units / kUnitsPerPixel)); }

QRect UnitsRect(double left, double top, double width, double height) {
    return QRect(UnitsToPixels(left), UnitsToPixels(top), UnitsToPixels(width),
                 UnitsToPixels(height));
}

}  // namespace tolva
