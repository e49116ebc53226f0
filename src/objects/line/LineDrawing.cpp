// The Line on the canvas. A box wide and high enough for a diagonal (40
// screen units or more each way) shows lnLine across it, two desktop pixels
// wide, on the object's light grey background; the slope picks the corners.
// A thinner box is the line itself: black, with its outline on.
#include <algorithm>

#include "objects/line/ctlKOMALine.h"

namespace tolva {

namespace {

constexpr double kDiagonalFrom = 40;   // screen units
constexpr double kLineWidth = 30;      // two desktop pixels
constexpr DrawColor kBackground{0xE0, 0xE0, 0xE0};

}  // namespace

bool ctlKOMALine::IsDiagonal() const { return Width() >= kDiagonalFrom && Height() >= kDiagonalFrom; }

// A line thinner than about one pixel is made exactly level or upright.
void ctlKOMALine::LayOut() {
    if (Height() < kDiagonalFrom) KOMAEndY(KOMAStartY());
    if (Width() < kDiagonalFrom) KOMAEndX(KOMAStartX());
}

DrawElementList ctlKOMALine::GetDrawElements() const {
    const double w = Width();
    const double h = Height();
    const bool diagonal = IsDiagonal();
    // A bar is one device pixel thick at the least, as the device draws it.
    const double p = PCTwipsToTolvaPixels();
    DrawElement back = ShapeElement(
        "shpBackground", diagonal ? CanvasRect{0, 0, w, h} : CanvasRect{0, 0, std::max(w, p), std::max(h, p)});
    back.filled = true;
    back.fillColor = diagonal ? kBackground : kBlack;
    back.outline = !diagonal;
    DrawElement line = positiveSlope_ ? LineElement("lnLine", 0, h, w, 0) : LineElement("lnLine", 0, 0, w, h);
    line.lineWidth = kLineWidth;
    line.lineColor = kBlack;
    line.visible = diagonal;
    return {back, line};
}

}  // namespace tolva
