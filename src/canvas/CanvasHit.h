#pragma once
// What lies under a point of the canvas, in the hit order of the screen:
// the nodes on top, then the objects in their stacking order (last created
// or last selected on top), then the form on show at the back, then the
// bare canvas.
namespace tolva {

class KomaObject;

struct CanvasHit {
    enum class Kind { Canvas, Node, Object };
    Kind kind = Kind::Canvas;
    int node = -1;                  // with Kind::Node, 0 to 9
    KomaObject* object = nullptr;   // with Kind::Object
};

}  // namespace tolva
