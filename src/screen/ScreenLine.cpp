// A line's own answer to a change of its end points from the inspector or
// a record: its box and slope follow the two points.
#include <utility>

#include "screen/ScreenUnits.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/line/ctlKOMALine.h"

namespace tolva {

void ctlTolvaScreen::ObjectLineResized(KomaObject& object, int startX, int startY, int endX,
                                       int endY) {
    // The start is the left point.
    if (startX > endX) {
        std::swap(startX, endX);
        std::swap(startY, endY);
    }
    // With no X span the slope stays as it is, on the line and on the band.
    if (startX != endX) {
        const bool positive = static_cast<double>(startY - endY) / (endX - startX) > 0;
        if (auto* line = dynamic_cast<ctlKOMALine*>(&object)) line->PositiveSlope(positive);
        canvas_.editorLine.positiveSlope = positive;
    }
    const std::string name = object.KOMAName();
    ResizeObject(type::Line, name, ScreenPositionFromPixel(startX, twipsPerPixel_),
                 ScreenPositionFromPixel(startY, twipsPerPixel_),
                 ScreenPositionFromPixel(endX, twipsPerPixel_),
                 ScreenPositionFromPixel(endY, twipsPerPixel_));
    PlaceNodes(object, true);
}

}  // namespace tolva
