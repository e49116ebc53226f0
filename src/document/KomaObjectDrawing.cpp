// The drawing every kind starts from: a white box with a black outline and
// the object's name in its middle.
#include "document/KomaObject.h"

namespace tolva {

DrawElementList KomaObject::GetDrawElements() const {
    const CanvasRect box{0, 0, Width(), Height()};
    DrawElement outline = ShapeElement("shpOutline", box);
    outline.filled = true;
    outline.fillColor = kWhite;
    DrawElement label = TextElement("lblName", box, KOMAName());
    label.alignment = TextAlignment::Center;
    label.middle = true;
    return {outline, label};
}

}  // namespace tolva
