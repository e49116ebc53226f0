#include "objects/line/ctlKOMALine.h"

#include "document/ObjectOwner.h"
#include "document/ObjectTypes.h"

namespace tolva {

namespace {

// A start value of 160 to 164 is taken as 159.
int PullInStart(int value) { return (value >= 160 && value <= 164) ? 159 : value; }

bool IsDevicePosition(int value) { return value >= 0 && value <= 159; }

}  // namespace

ctlKOMALine::ctlKOMALine() : KomaObject(type::Line, "LINE", 46, 30) {}

void ctlKOMALine::KOMAStartX(int x) {
    x = PullInStart(x);
    if (!IsDevicePosition(x)) {
        Message("Invalid StartX value: " + std::to_string(x), "KOMAStartX");
        return;
    }
    startX_ = x;
}

void ctlKOMALine::KOMAStartY(int y) {
    y = PullInStart(y);
    if (!IsDevicePosition(y)) {
        Message("Invalid StartY value: " + std::to_string(y), "KOMAStartY");
        return;
    }
    startY_ = y;
}

void ctlKOMALine::KOMAEndX(int x) {
    if (!IsDevicePosition(x)) {
        Message("Invalid EndX value: " + std::to_string(x), "KOMAEndX");
        return;
    }
    endX_ = x;
}

void ctlKOMALine::KOMAEndY(int y) {
    if (!IsDevicePosition(y)) {
        Message("Invalid EndY value: " + std::to_string(y), "KOMAEndY");
        return;
    }
    endY_ = y;
}

void ctlKOMALine::SetEndsFromBox() {
    auto held = [](int value) { return value < 0 ? 0 : (value > 159 ? 159 : value); };
    KOMAStartX(held(KOMABoundsX()));
    KOMAEndX(held(KOMABoundsX() + KOMAWidth()));
    const int bottom = held(KOMABoundsY() + KOMAHeight());
    const int top = held(KOMABoundsY());
    if (positiveSlope_) {
        KOMAStartY(bottom);
        KOMAEndY(top);
    } else {
        KOMAStartY(top);
        KOMAEndY(bottom);
    }
    if (Height() < 40) KOMAEndY(KOMAStartY());
    if (Width() < 40) KOMAEndX(KOMAStartX());
}

void ctlKOMALine::RaiseLineResized() {
    if (Owner()) Owner()->ObjectLineResized(*this, startX_, startY_, endX_, endY_);
}

bool ctlKOMALine::CopyModelFrom(const KomaObject& other) {
    const auto* line = dynamic_cast<const ctlKOMALine*>(&other);
    if (!line) return false;
    CopySharedModelFrom(other);
    positiveSlope_ = line->positiveSlope_;
    startX_ = line->startX_;
    startY_ = line->startY_;
    endX_ = line->endX_;
    endY_ = line->endY_;
    return true;
}

}  // namespace tolva
