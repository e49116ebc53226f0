// The String on the canvas: its background in the background colour, the
// text box lblString in the device font, and the frame shpBorder of style 1.
// All lengths are screen units.
#include "objects/string/ctlKOMAString.h"
#include "document/Words.h"
#include "objects/string/modString.h"

namespace tolva {

namespace {

constexpr double kOutlineWidth = 30;  // two desktop pixels

}  // namespace

// Styles 0 and 1 lay the parts out; styles 2 to 5 keep the last layout.
void ctlKOMAString::LayOut() {
    const int style = KOMAStringStyle();
    if (style > 1) return;
    const double w = Width();
    const double h = Height();
    if (style == 0) {
        borderVisible_ = false;
        label_.left = 0;
        label_.width = w;
    } else {
        borderVisible_ = true;
        border_ = {10, 10, w - 20, h - 20};
        label_.left = 40;
        label_.width = w >= 80 ? w - 80 : w;
        label_.height = 25 * ScreenFontSizeOfWord(fontWord_);
    }
    label_.top = h / 2 - label_.height / 2;
}

DrawElementList ctlKOMAString::GetDrawElements() const {
    DrawElement back = ShapeElement("shpBackground", {0, 0, Width(), Height()});
    back.outline = false;
    back.filled = true;
    back.fillColor = ScreenBackColor();

    DrawElement text = TextElement("lblString", label_, text_);
    text.font = ScreenFont();
    text.devicePixel = PCTwipsToTolvaPixels();
    text.foreColor = ScreenFontColor();
    // The text box keeps its own grey, which no property changes, but it is
    // drawn clear: the String's background colour shows behind the text, as
    // it does on the device.
    text.opaque = false;
    text.backColor = {0xE0, 0xE0, 0xE0};
    const int alignment = KOMATextAlignment();
    text.alignment = alignment == 1   ? TextAlignment::Center
                     : alignment == 2 ? TextAlignment::Right
                                      : TextAlignment::Left;
    text.visible = label_.width > 0 && label_.height > 0;

    // A frame of negative size (a String under 20 units) draws nothing.
    DrawElement border = ShapeElement("shpBorder", border_);
    border.outline = true;
    border.outlineWidth = kOutlineWidth;
    border.filled = false;
    border.visible = borderVisible_ && border_.width > 0 && border_.height > 0;
    return {back, text, border};
}

}  // namespace tolva
