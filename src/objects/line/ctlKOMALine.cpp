#include "objects/line/ctlKOMALine.h"

#include "document/Numbers.h"
#include "document/ObjectOwner.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/line/modLine.h"

namespace tolva {

namespace {

// A value of 160 to 164 is taken as 159.
int PullIn(int value) { return (value >= 160 && value <= 164) ? 159 : value; }

bool IsDevicePosition(int value) { return value >= 0 && value <= 159; }

}  // namespace

ctlKOMALine::ctlKOMALine() : KomaObject(type::Line, "LINE", 46, 30) {}

void ctlKOMALine::KOMAWidth(int width) { KomaObject::KOMAWidth(PullIn(width)); }

void ctlKOMALine::KOMAHeight(int height) { KomaObject::KOMAHeight(PullIn(height)); }

void ctlKOMALine::KOMAStartX(int x) {
    x = PullIn(x);
    if (!IsDevicePosition(x)) {
        Message("Invalid StartX value: " + std::to_string(x));
        return;
    }
    startX_ = x;
}

void ctlKOMALine::KOMAStartY(int y) {
    y = PullIn(y);
    if (!IsDevicePosition(y)) {
        Message("Invalid StartY value: " + std::to_string(y));
        return;
    }
    startY_ = y;
}

void ctlKOMALine::KOMAEndX(int x) {
    if (!IsDevicePosition(x)) {
        Message("Invalid EndX value: " + std::to_string(x));
        return;
    }
    endX_ = x;
}

void ctlKOMALine::KOMAEndY(int y) {
    if (!IsDevicePosition(y)) {
        Message("Invalid EndY value: " + std::to_string(y));
        return;
    }
    endY_ = y;
}

int ctlKOMALine::KOMAColor() const { return ColorFromWord(colorWord_); }

void ctlKOMALine::KOMAColor(int color) {
    if (IsDeviceColor(color)) colorWord_ = WordFromColor(color);
}

int ctlKOMALine::KOMALineStyle() const { return LineStyleWordToNumber(styleWord_); }

void ctlKOMALine::KOMALineStyle(int style) {
    if (style >= 0 && style <= 2) styleWord_ = "LINE_STYLE_" + std::to_string(style);
}

void ctlKOMALine::KOMAThick(int thick) {
    if (thick < 0) {
        Message("Invalid value", "KOMAThick");
        return;
    }
    thick_ = thick;
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

void ctlKOMALine::WorkOutSlope() {
    if (endX_ == startX_) return;
    positiveSlope_ = static_cast<double>(startY_ - endY_) / (endX_ - startX_) > 0;
}

void ctlKOMALine::RaiseLineResized() {
    if (Owner()) Owner()->ObjectLineResized(*this, startX_, startY_, endX_, endY_);
}

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMALine::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    rows.SetRow(1, PropertyLabel(101), rowkind::Text, KOMAName());
    rows.SetRow(2, PropertyLabel(1501), rowkind::Text, startX_);
    rows.SetRow(3, PropertyLabel(1502), rowkind::Text, startY_);
    rows.SetRow(4, PropertyLabel(1503), rowkind::Text, endX_);
    rows.SetRow(5, PropertyLabel(1504), rowkind::Text, endY_);
    rows.SetRow(6, PropertyLabel(1507), rowkind::Choice, colorWord_);
    rows.SetRow(7, PropertyLabel(1506), rowkind::Choice, styleWord_);
    rows.SetRow(8, PropertyLabel(1505), rowkind::Text, thick_);
    rows.SetRow(9, PropertyLabel(108), rowkind::Choice, visibleWord_);
}

bool ctlKOMALine::SetPropertyList(const PropertyArray& rows) {
    if (!HasOwnRowShape(rows)) return false;
    ApplyNameRow(rows);
    // The end points, each only when it is a number and differs.
    struct PointRow {
        int row;
        int (ctlKOMALine::*get)() const;
        void (ctlKOMALine::*set)(int);
    };
    static constexpr PointRow kPoints[] = {
        {2, &ctlKOMALine::KOMAStartX, &ctlKOMALine::KOMAStartX},
        {3, &ctlKOMALine::KOMAStartY, &ctlKOMALine::KOMAStartY},
        {4, &ctlKOMALine::KOMAEndX, &ctlKOMALine::KOMAEndX},
        {5, &ctlKOMALine::KOMAEndY, &ctlKOMALine::KOMAEndY},
    };
    for (const PointRow& point : kPoints) {
        const std::string text = rows.Value(point.row).Text();
        if (!IsNumeric(text)) continue;
        const int value = ToInt32(text);
        if (value != (this->*point.get)()) (this->*point.set)(value);
    }
    WorkOutSlope();
    RaiseLineResized();
    const std::string thick = rows.Value(8).Text();
    if (IsNumeric(thick) && ToInt32(thick) != thick_) KOMAThick(ToInt32(thick));
    KOMALineStyle(LineStyleWordToNumber(rows.Value(7).Text()));
    KOMAColor(ColorFromWord(rows.Value(6).Text()));
    KOMAVisible(BooleanFromWord(rows.Value(9).Text()) != 0);
    return true;
}

bool ctlKOMALine::CopyModelFrom(const KomaObject& other) {
    const auto* line = dynamic_cast<const ctlKOMALine*>(&other);
    if (!line || !KomaObject::CopyModelFrom(other)) return false;
    positiveSlope_ = line->positiveSlope_;
    startX_ = line->startX_;
    startY_ = line->startY_;
    endX_ = line->endX_;
    endY_ = line->endY_;
    colorWord_ = line->colorWord_;
    styleWord_ = line->styleWord_;
    thick_ = line->thick_;
    visibleWord_ = line->visibleWord_;
    return true;
}

}  // namespace tolva
