// The Textbox on the canvas: in style 2 the black block shpShadow behind,
// in styles 1 and 2 the frame shpBorder, and lblText: the text and a row of
// full stops in a box far wider than the object, so that the line runs out
// at the object's right edge as an entry box does on the device. All
// lengths are screen units.
#include "document/Words.h"
#include "objects/textbox/ctlKOMATextbox.h"
#include "objects/textbox/modTextbox.h"

namespace tolva {

namespace {
constexpr double kOutlineWidth = 30;  // two desktop pixels
constexpr double kLabelWidth = 65255;
}  // namespace

void ctlKOMATextbox::LayOut() {
    const int style = KOMATextboxStyle();
    const double w = Width();
    const double h = Height();
    shadowShown_ = style == 2;
    if (shadowShown_) shadow_ = {0, 0, w <= 100 ? w : w - 100, h <= 100 ? h : h - 100};
    borderShown_ = style >= 1;
    if (style == 1) border_ = {10, 10, w <= 40 ? w : w - 20, h <= 40 ? h : h - 20};
    if (style == 2) border_ = {50, 50, w <= 70 ? w : w - 70, h <= 70 ? h : h - 70};
    label_.left = style == 0 ? 30 : style == 1 ? 50 : 70;
    label_.top = style == 0 ? 10 : 100;
    label_.width = kLabelWidth;
    label_.height = 25 * ScreenFontSizeOfWord(fontWord_);
}

DrawElementList ctlKOMATextbox::GetDrawElements() const {
    DrawElement shadow = ShapeElement("shpShadow", shadow_);
    shadow.filled = true;
    shadow.fillColor = kBlack;
    shadow.outline = false;
    shadow.visible = shadowShown_;

    // The frame is white inside, so that the shadow shows only beyond it.
    DrawElement border = ShapeElement("shpBorder", border_);
    border.outline = true;
    border.outlineWidth = kOutlineWidth;
    border.filled = true;
    border.fillColor = kWhite;
    border.visible = borderShown_;

    DrawElement text = TextElement("lblText", label_, ShownText());
    text.font = ScreenFont();
    text.devicePixel = PCTwipsToTolvaPixels();
    text.foreColor = kBlack;
    text.opaque = false;
    text.alignment = TextAlignment::Left;
    return {shadow, border, text};
}

}  // namespace tolva
