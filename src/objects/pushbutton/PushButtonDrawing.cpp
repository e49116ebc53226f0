// The Push button on the canvas: its white background (with a single line
// around it in styles 0 and 1), shpBorder, shpBottom for style 3 and
// lblText, worked out at each redraw. All lengths are screen units.
#include "objects/pushbutton/ctlKOMAPushButton.h"

namespace tolva {

namespace {

constexpr double kLabelWidth = 2265;
constexpr double kLabelHeight = 285;
constexpr double kFontSize = 14.25;
constexpr double kDesktopPixel = 15;
constexpr double kCornerRadius = 60;

// The colour a colour word shows: the device's greys, black for black.
DrawColor StateColor(const std::string& word) {
    if (word == "COLOR_WHITE") return kWhite;
    if (word == "COLOR_GREY1") return {0xC0, 0xC0, 0xC0};
    if (word == "COLOR_GREY2") return {0x80, 0x80, 0x80};
    return kBlack;
}

// White text on black and on the dark grey, black on the others.
DrawColor TextColorOn(const DrawColor& back) {
    return (back == kBlack || back == DrawColor{0x80, 0x80, 0x80}) ? kWhite : kBlack;
}

}  // namespace

void ctlKOMAPushButton::LayOut() {
    const double w = Width();
    const double h = Height();
    const int style = KOMAControlSubType();
    const DrawColor state = StateColor(KOMAControlValue() ? onColorWord_ : offColorWord_);

    look_.objectOutline = style <= 1;
    // The frame, where a style shows it: 20 in from the top left corner.
    look_.borderShown = style != 0;
    look_.borderRounded = style >= 2;
    look_.border = {20, 20, w <= 20 ? w : w - 20, h <= 20 ? h : h - 20};
    if (style == 0) {
        look_.borderFilled = false;
    } else if (style <= 2) {
        look_.borderFilled = true;
        look_.borderFill = state;
    } else {
        // Its lower corners fall off the object; the fill stays as it was.
        look_.border.height += 1000;
    }
    look_.labelBack = style == 3 ? kWhite : state;
    look_.labelFore = style == 3 ? kBlack : TextColorOn(state);

    // The tab of style 3, whose lower edge shows the state.
    look_.bottomShown = style == 3;
    look_.bottom = {30, h - 30, w < 40 ? w : w - 60, 30};
    look_.bottomOutline = KOMAControlValue();

    // The text's box has a fixed size; it is centred from top to bottom and
    // placed across by the alignment.
    double left = 40;
    const int alignment = KOMATextAlignment();
    if (alignment == 1) left = kLabelWidth >= w ? 40 : w / 2 - kLabelWidth / 2;
    if (alignment == 2) left = w < 40 ? 0 : w - kLabelWidth - 40;
    look_.label = {left, h / 2 - kLabelHeight / 2, kLabelWidth, kLabelHeight};
}

DrawElementList ctlKOMAPushButton::GetDrawElements() const {
    DrawElement back = ShapeElement("shpBackground", {0, 0, Width(), Height()});
    back.filled = true;
    back.fillColor = kWhite;
    back.outline = look_.objectOutline;
    back.outlineWidth = kDesktopPixel;

    DrawElement border = ShapeElement("shpBorder", look_.border);
    border.visible = look_.borderShown;
    border.rounded = look_.borderRounded;
    border.cornerRadius = look_.borderRounded ? kCornerRadius : 0;
    border.outlineWidth = 2 * kDesktopPixel;
    border.filled = look_.borderFilled;
    border.fillColor = look_.borderFill;

    DrawElement bottom = ShapeElement("shpBottom", look_.bottom);
    bottom.visible = look_.bottomShown;
    bottom.outline = look_.bottomOutline;
    bottom.outlineWidth = kDesktopPixel;

    DrawElement text = TextElement("lblText", look_.label, KOMAControlText());
    text.font = DrawFont{"TolvaSmall", kFontSize, false};
    text.devicePixel = PCTwipsToTolvaPixels();
    text.opaque = true;
    text.backColor = look_.labelBack;
    text.foreColor = look_.labelFore;
    const int alignment = KOMATextAlignment();
    text.alignment = alignment == 0   ? TextAlignment::Left
                     : alignment == 2 ? TextAlignment::Right
                                      : TextAlignment::Center;
    return {back, border, bottom, text};
}

}  // namespace tolva
