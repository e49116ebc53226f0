// MoveObject and ResizeObject: an object takes a new place or size on the
// canvas, and its device values follow from the canvas values. A line's end
// points follow its box.
#include <algorithm>
#include <cmath>

#include "screen/ScreenUnits.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/line/ctlKOMALine.h"

namespace tolva {

bool ctlTolvaScreen::MoveObject(int screenType, const std::string& name, double left, double top) {
    KomaObject* object = FindObject(screenType, name);
    if (!object) return false;

    object->Left(left);
    object->Top(top);
    // No clamp here: a value out of range meets the setter's own refusal.
    object->KOMABoundsX(PixelFromScreenPosition(left, canvasWidth_));
    object->KOMABoundsY(PixelFromScreenPosition(top, canvasHeight_));

    if (screenType == type::Line) {
        if (auto* line = dynamic_cast<ctlKOMALine*>(object)) line->SetEndsFromBox();
    }

    Log("Object moved: " + name);
    return true;
}

bool ctlTolvaScreen::ResizeObject(int screenType, const std::string& name, double x1, double y1,
                                  double x2, double y2) {
    KomaObject* object = FindObject(screenType, name);
    if (!object) return false;

    // A line may shrink to nothing; anything else keeps at least one pixel.
    // The line test looks at the selection and the armed tool, not at the
    // object's own type; a line then takes the slope of the band's line.
    const bool asLine = selectedObjectType_ == type::Line || createObjectType_ == type::Line;
    auto* line = dynamic_cast<ctlKOMALine*>(object);
    if (asLine && line) line->PositiveSlope(canvas_.editorLine.positiveSlope);
    const int smallest = asLine ? 0 : 1;

    if (object->VertResizeOK()) object->Height(std::abs(y2 - y1));
    if (object->HorizResizeOK()) object->Width(std::abs(x2 - x1));

    if (object->ResizeOK()) {
        object->Left(std::min(x1, x2));
        object->Top(std::min(y1, y2));
        if (object->VertResizeOK())
            object->KOMAHeight(
                std::clamp(PixelLengthFromScreen(std::abs(y2 - y1), canvasHeight_), smallest, 160));
        if (object->HorizResizeOK())
            object->KOMAWidth(
                std::clamp(PixelLengthFromScreen(std::abs(x2 - x1), canvasWidth_), smallest, 160));
        object->KOMABoundsX(
            ClampPixel(PixelFromScreenPosition(object->Left(), canvasWidth_), 0, 159));
        object->KOMABoundsY(
            ClampPixel(PixelFromScreenPosition(object->Top(), canvasHeight_), 0, 159));
        if (line) line->SetEndsFromBox();
    }

    Log("Resized: " + name);
    return true;
}

}  // namespace tolva
