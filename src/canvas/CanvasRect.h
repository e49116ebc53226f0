#pragma once
// A rectangle on the canvas, in screen units: left, top, width, height.
namespace tolva {

struct CanvasRect {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    double Right() const { return left + width; }
    double Bottom() const { return top + height; }
    // True when the point lies inside; the right and bottom edges are out.
    bool Contains(double x, double y) const {
        return x >= left && x < left + width && y >= top && y < top + height;
    }
    bool operator==(const CanvasRect&) const = default;
};

// A rectangle that may be shown or hidden.
struct ShownRect {
    CanvasRect rect;
    bool visible = false;
};

}  // namespace tolva
