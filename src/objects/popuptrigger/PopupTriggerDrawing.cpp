// The Popup trigger on the canvas. Style 0 is the object's own outline
// around lblText; styles 1 and 2 draw alike: the frame shpBorder and, 4
// device pixels in from the right edge and centred in height, imgArrow, a
// downward arrow of 7 by 4 pixels. lblText, in the small device font,
// stands 40 screen units in and is centred in height.
#include "document/Words.h"
#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"

namespace tolva {

namespace {

constexpr double kOutlineWidth = 15;
constexpr int kArrowWidth = 7;   // device pixels
constexpr int kArrowHeight = 4;
constexpr int kArrowInset = 4;

}  // namespace

DrawElementList ctlKOMAPopupTrigger::GetDrawElements() const {
    const double p = PCTwipsToTolvaPixels();
    const double w = Width();
    const double h = Height();
    const bool framed = KOMAControlSubType() != 0;

    DrawElement outline = ShapeElement("shpOutline", {0, 0, w, h});
    outline.outline = true;
    outline.outlineWidth = kOutlineWidth;
    outline.filled = false;
    outline.visible = !framed;

    DrawElement border = ShapeElement(
        "shpBorder", {10, 10, w <= 10 ? w : w - 10, h <= 10 ? h : h - 10});
    border.outline = true;
    border.outlineWidth = kOutlineWidth;
    border.filled = false;
    border.visible = framed;

    const double fontHeight = 25 * ScreenFontSizeOfWord("SMALL_FONT");
    DrawElement text = TextElement("lblText", {40, h / 2 - fontHeight / 2, w > 40 ? w - 40 : 0, fontHeight},
                                   KOMAControlText());
    text.font = DrawFont{ScreenFontOfWord("SMALL_FONT"), ScreenFontSizeOfWord("SMALL_FONT"), false};
    text.devicePixel = p;
    const int alignment = KOMATextAlignment();
    text.alignment = alignment == 1   ? TextAlignment::Center
                     : alignment == 2 ? TextAlignment::Right
                                      : TextAlignment::Left;

    DrawElementList elements = {outline, border, text};
    // The arrow: rows 7, 5, 3 and 1 pixels wide, pointing down.
    const double left = w - (kArrowInset + kArrowWidth) * p;
    const double top = h / 2 - kArrowHeight * p / 2;
    for (int row = 0; row < kArrowHeight; ++row) {
        const int width = kArrowWidth - 2 * row;
        const double x = left + row * p;
        const double y = top + row * p;
        DrawElement line = LineElement("imgArrow.row(" + std::to_string(row) + ")", x, y, x + width * p, y);
        line.devicePixel = p;
        line.lineColor = kBlack;
        line.visible = framed && p > 0;
        elements.push_back(line);
    }
    return elements;
}

}  // namespace tolva
