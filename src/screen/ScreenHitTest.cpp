// What lies under a point of the canvas, for the canvas widget.
#include "screen/ctlTolvaScreen.h"

namespace tolva {

CanvasHit ctlTolvaScreen::HitTest(double x, double y) const {
    CanvasHit hit;
    for (int n = node::Count - 1; n >= 0; --n) {
        const ShownRect& at = canvas_.nodes[n];
        if (at.visible && at.rect.Contains(x, y)) {
            hit.kind = CanvasHit::Kind::Node;
            hit.node = n;
            return hit;
        }
    }
    const std::vector<KomaObject*> objects = VisibleObjectsInStackingOrder();
    for (auto it = objects.rbegin(); it != objects.rend(); ++it) {
        const KomaObject& object = **it;
        const CanvasRect box{object.Left(), object.Top(), object.Width(), object.Height()};
        if (box.Contains(x, y)) {
            hit.kind = CanvasHit::Kind::Object;
            hit.object = *it;
            return hit;
        }
    }
    return hit;
}

bool ctlTolvaScreen::HoldsObject(const KomaObject* object) const {
    if (!object) return false;
    for (const auto& array : arrays_)
        for (const auto& held : array)
            if (held.get() == object) return true;
    return false;
}

}  // namespace tolva
