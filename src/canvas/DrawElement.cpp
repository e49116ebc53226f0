#include "canvas/DrawElement.h"

#include "canvas/RubberBand.h"

namespace tolva {

DrawElement ShapeElement(const std::string& name, const CanvasRect& rect) {
    DrawElement element;
    element.name = name;
    element.kind = DrawElementKind::Shape;
    element.rect = rect;
    return element;
}

DrawElement TextElement(const std::string& name, const CanvasRect& rect, const std::string& text) {
    DrawElement element;
    element.name = name;
    element.kind = DrawElementKind::TextBox;
    element.rect = rect;
    element.text = text;
    return element;
}

DrawElement ImageElement(const std::string& name, const CanvasRect& rect,
                         const std::string& path) {
    DrawElement element;
    element.name = name;
    element.kind = DrawElementKind::Image;
    element.rect = rect;
    element.imagePath = path;
    return element;
}

DrawElement LineElement(const std::string& name, double x1, double y1, double x2, double y2) {
    DrawElement element;
    element.name = name;
    element.kind = DrawElementKind::Line;
    element.rect = SortedBox(x1, y1, x2, y2);
    element.x1 = x1;
    element.y1 = y1;
    element.x2 = x2;
    element.y2 = y2;
    return element;
}

}  // namespace tolva
