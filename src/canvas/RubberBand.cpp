#include "canvas/RubberBand.h"

#include <algorithm>

namespace tolva {

CanvasRect SortedBox(double x1, double y1, double x2, double y2) {
    const double left = std::min(x1, x2);
    const double top = std::min(y1, y2);
    return {left, top, std::max(x1, x2) - left, std::max(y1, y2) - top};
}

BandBars BandBarsFor(double x1, double y1, double x2, double y2) {
    const CanvasRect box = SortedBox(x1, y1, x2, y2);
    BandBars bars;
    bars[bar::Vert1] = {box.left, box.top, kBandThickness, box.height};
    bars[bar::Vert2] = {box.Right(), box.top, kBandThickness, box.height};
    bars[bar::Horiz1] = {box.left, box.top, box.width, kBandThickness};
    bars[bar::Horiz2] = {box.left, box.Bottom(), box.width, kBandThickness};
    return bars;
}

bool BandLineSlope(double x1, double y1, double x2, double y2) {
    if (x1 == x2) return true;
    return (y1 - y2) / (x2 - x1) > 0;
}

}  // namespace tolva
