// The Scrollbar on the canvas, by style; W and H are the object's size in
// screen units.
//
// Style 0: the arrows imgBitmap1 and imgBitmap2 at the two ends (top and
// bottom at the left edge of an upright bar, left and right ends of a level
// one), and between them the position bar shpPos: the free length divided
// into as many steps as the bar has lines, the bar one step long, as many
// steps from the first arrow as the current value lies above the minimum,
// 10 screen units thick and centred across the bar.
// Styles 1 and 2: the frame shpBorder round the object, shpPos placed the
// same way along its whole length.
// Style 3: the text lblText in the small device font over the whole width,
// centred from top to bottom where it fits; shpPos a mark 10 units wide at
// (current - minimum) / (maximum - minimum) of the width, at the left edge
// when the range is one value.
#include <algorithm>

#include "document/Words.h"
#include "objects/scrollbar/ctlKOMAScrollbar.h"
#include "objects/scrollbar/modScrollbar.h"

namespace tolva {

namespace {

constexpr double kBarThickness = 10;  // screen units
constexpr double kOutlineWidth = 15;  // one desktop pixel

}  // namespace

void ctlKOMAScrollbar::OnCanvasResize() {
    if (resizing_) return;
    resizing_ = true;
    KomaObject::OnCanvasResize();
    const double p = PCTwipsToTolvaPixels();
    if (p != 0 && (Width() != KOMAWidth() * p || Height() != KOMAHeight() * p)) {
        SetCanvasSize(KOMAWidth() * p, KOMAHeight() * p);
        LayOut();
    }
    resizing_ = false;
}

void ctlKOMAScrollbar::LayOut() {
    const double w = Width();
    const double h = Height();
    const double p = PCTwipsToTolvaPixels();
    const int style = ScrollbarStyleWordToNumber(styleWord_);
    const bool upright = orientationWord_ == "VERTICAL";
    image1_ = {0, 0, arrow1_.pixelWidth * p, arrow1_.pixelHeight * p};
    image2_ = upright ? CanvasRect{0, h - arrow2_.pixelHeight * p, arrow2_.pixelWidth * p,
                                   arrow2_.pixelHeight * p}
                      : CanvasRect{w - arrow2_.pixelWidth * p, 0, arrow2_.pixelWidth * p,
                                   arrow2_.pixelHeight * p};
    if (style == 3) {
        const double fontHeight = 25 * ScreenFontSizeOfWord("SMALL_FONT");
        label_ = {0, fontHeight <= h ? (h - fontHeight) / 2 : 0, w, fontHeight};
        const double at = max_ == min_ ? 0 : static_cast<double>(current_ - min_) / (max_ - min_) * w;
        bar_ = {at, 0, kBarThickness, h};
        barShown_ = true;
        return;
    }
    // The free length between the arrows (style 0) or the whole length.
    const double from = style == 0 ? (upright ? image1_.height : image1_.width) : 0;
    const double to = style == 0 ? (upright ? h - image2_.height : w - image2_.width) : (upright ? h : w);
    barShown_ = numLines_ > 0 && to > from;
    if (!barShown_) return;
    const double step = (to - from) / numLines_;
    const double start = from + (current_ - min_) * step;
    bar_ = upright ? CanvasRect{(w - kBarThickness) / 2, start, kBarThickness, step}
                   : CanvasRect{start, (h - kBarThickness) / 2, step, kBarThickness};
}

DrawElementList ctlKOMAScrollbar::GetDrawElements() const {
    const int style = ScrollbarStyleWordToNumber(styleWord_);
    DrawElement border = ShapeElement("shpBorder", {0, 0, Width(), Height()});
    border.outline = true;
    border.outlineWidth = kOutlineWidth;
    border.filled = false;
    border.visible = style == 1 || style == 2;

    DrawElement text = TextElement("lblText", label_, text_);
    text.font = DrawFont{ScreenFontOfWord("SMALL_FONT"), ScreenFontSizeOfWord("SMALL_FONT"), false};
    text.devicePixel = PCTwipsToTolvaPixels();
    text.foreColor = kBlack;
    text.visible = style == 3;

    DrawElement bar = ShapeElement("shpPos", bar_);
    bar.outline = false;
    bar.filled = true;
    bar.fillColor = kBlack;
    bar.visible = barShown_;

    DrawElementList elements = {border, text, bar};
    for (int which : {1, 2}) {
        const ObjectPicture& arrow = Arrow(which);
        DrawElement image = ImageElement(which == 1 ? "imgBitmap1" : "imgBitmap2",
                                         which == 1 ? image1_ : image2_, arrow.file);
        image.imageDepth = arrow.depth;
        image.visible = style == 0 && arrow.loaded && !arrow.file.empty();
        elements.push_back(image);
    }
    return elements;
}

}  // namespace tolva
