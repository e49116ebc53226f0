// The Scheduler line on the canvas: the header imgHeader at the top left,
// 154 by 12 device pixels whatever the box's width, a strip of 17 cells of
// 9 pixels, light grey and white in turn, each holding an hour from 7 to 23
// in the small device font; under it the eight ruled lines lnLine(0) to
// lnLine(7), one device pixel high, every 12 pixels down to 96 and as wide
// as the box. What lies beyond the box is cut by it.
#include "document/Words.h"
#include "objects/schedulerline/ctlKOMASchedulerLine.h"

namespace tolva {

namespace {

constexpr int kCells = 17;
constexpr int kCellWidth = 9;      // device pixels
constexpr int kHeaderWidth = 154;  // device pixels
constexpr int kHeaderHeight = 12;
constexpr int kFirstHour = 7;
constexpr int kLines = 8;
constexpr int kLinePitch = 12;
constexpr DrawColor kGrey{0xC0, 0xC0, 0xC0};

}  // namespace

DrawElementList ctlKOMASchedulerLine::GetDrawElements() const {
    const double p = PCTwipsToTolvaPixels();
    DrawElementList elements;
    DrawElement header = ShapeElement("imgHeader", {0, 0, kHeaderWidth * p, kHeaderHeight * p});
    header.outline = false;
    header.filled = true;
    header.fillColor = kWhite;
    elements.push_back(header);
    for (int cell = 0; cell < kCells; ++cell) {
        const CanvasRect box{cell * kCellWidth * p, 0, kCellWidth * p, kHeaderHeight * p};
        const std::string number = std::to_string(cell);
        DrawElement shade = ShapeElement("imgHeader.cell(" + number + ")", box);
        shade.outline = false;
        shade.filled = true;
        shade.fillColor = cell % 2 == 0 ? kGrey : kWhite;
        elements.push_back(shade);
        DrawElement hour = TextElement("imgHeader.hour(" + number + ")", box,
                                       std::to_string(kFirstHour + cell));
        hour.font = DrawFont{ScreenFontOfWord("SMALL_FONT"), ScreenFontSizeOfWord("SMALL_FONT"), false};
        hour.devicePixel = p;
        hour.alignment = TextAlignment::Center;
        hour.middle = true;
        hour.foreColor = kBlack;
        elements.push_back(hour);
    }
    for (int i = 0; i < kLines; ++i) {
        const double y = kLinePitch * (i + 1) * p;
        DrawElement line = LineElement("lnLine(" + std::to_string(i) + ")", 0, y, Width(), y);
        line.devicePixel = p;
        line.lineWidth = p;
        line.lineColor = kBlack;
        elements.push_back(line);
    }
    return elements;
}

}  // namespace tolva
