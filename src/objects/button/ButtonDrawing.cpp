// The Button on the canvas: shpButton, a box filled in the unclicked colour,
// and lblText above it in the device's small font. All lengths are screen
// units.
#include "objects/button/ctlKOMAButton.h"

namespace tolva {

namespace {

constexpr double kFontSize = 15;
constexpr double kOutlineWidth = 30;  // two desktop pixels

// The fill of the box and the colour of its text, by the unclicked colour.
struct ButtonColors {
    DrawColor fill;
    DrawColor text;
};

ButtonColors ColorsFor(const std::string& offColorWord) {
    // The colour value 15 (red 15 of 255), not the palette's black.
    constexpr DrawColor kValue15{15, 0, 0};
    if (offColorWord == "COLOR_GREY1") return {{0xC0, 0xC0, 0xC0}, kValue15};
    if (offColorWord == "COLOR_GREY2") return {{0x80, 0x80, 0x80}, kWhite};
    if (offColorWord == "COLOR_BLACK") return {kBlack, kWhite};
    return {kWhite, kValue15};
}

}  // namespace

DrawElementList ctlKOMAButton::GetDrawElements() const {
    const double w = Width();
    const double h = Height();
    const bool rounded = KOMAControlSubType() == 1;
    const ButtonColors colors = ColorsFor(offColorWord_);

    CanvasRect shape{0, 0, w, h};
    if (rounded) shape = {10, 10, w <= 20 ? w : w - 20, h <= 20 ? h : h - 20};
    DrawElement box = ShapeElement("shpButton", shape);
    box.rounded = rounded;
    box.cornerRadius = rounded ? 60 : 0;
    box.outline = rounded;
    box.outlineWidth = kOutlineWidth;
    box.filled = true;
    box.fillColor = colors.fill;

    const double labelHeight = 25 * kFontSize;
    double labelLeft = 50;
    double labelWidth = w >= 100 ? w - 100 : w;
    if (rounded) {
        labelLeft = shape.left + 50;
        labelWidth = shape.width - 100 > 0 ? shape.width - 100 : 0;
    }
    DrawElement text = TextElement("lblText", {labelLeft, h / 2 - labelHeight / 2, labelWidth,
                                               labelHeight},
                                   KOMAControlText());
    text.font = DrawFont{"TolvaSmall", kFontSize, false};
    text.devicePixel = PCTwipsToTolvaPixels();
    text.foreColor = colors.text;
    text.opaque = true;
    text.backColor = colors.fill;  // always the box's fill
    const int alignment = KOMATextAlignment();
    text.alignment = alignment == 0   ? TextAlignment::Left
                     : alignment == 2 ? TextAlignment::Right
                                      : TextAlignment::Center;
    text.visible = labelWidth > 0;
    return {box, text};
}

}  // namespace tolva
