// The drawing every kind starts from: a white box with a black outline and
// the object's name in its middle. A form is not filled: the grid shows
// through it, since objects are drawn on it.
#include "document/KomaObject.h"
#include "document/ObjectTypes.h"

namespace tolva {

DrawElementList KomaObject::GetDrawElements() const {
    const CanvasRect box{0, 0, Width(), Height()};
    DrawElement outline = ShapeElement("shpOutline", box);
    outline.filled = ScreenType() != type::Form;
    outline.fillColor = kWhite;
    DrawElement label = TextElement("lblName", box, KOMAName());
    label.alignment = TextAlignment::Center;
    label.middle = true;
    return {outline, label};
}

}  // namespace tolva
