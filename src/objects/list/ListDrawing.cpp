// The List on the canvas: the frame shpBorder, one line lblItem(i) for each
// 10 device pixels of height below a margin of 120 screen units, each
// showing three blanks and the number of its item (blank past the last
// item) in the small device font, the selected item's line on a light
// orange band as wide as the list; and the arrows imgUpArrow, when items
// lie above the top, and imgDownArrow, when items lie below the last line.
// The arrows are small triangles of device pixels.
#include <algorithm>
#include <cmath>

#include "document/Words.h"
#include "objects/TextLook.h"
#include "objects/list/ctlKOMAList.h"

namespace tolva {

namespace {

constexpr double kTopMargin = 120;   // screen units
constexpr int kLinePitch = 10;       // device pixels
constexpr int kArrowWidth = 5;       // device pixels
constexpr int kArrowHeight = 3;
constexpr double kArrowMargin = 40;  // screen units
constexpr double kOutlineWidth = 15;
constexpr DrawColor kSelectedBand{0xFF, 0xE0, 0xC0};

// An arrow of three rows of pixels, 1, 3 and 5 wide, pointing up or down.
void AppendArrow(DrawElementList& elements, const std::string& name, double left, double top,
                 double p, bool up, bool shown) {
    for (int row = 0; row < kArrowHeight; ++row) {
        const int width = up ? 2 * row + 1 : 2 * (kArrowHeight - 1 - row) + 1;
        const double x = left + (kArrowWidth - width) / 2 * p;
        const double y = top + row * p;
        DrawElement line = LineElement(name + ".row(" + std::to_string(row) + ")", x, y, x + width * p, y);
        line.devicePixel = p;
        line.lineColor = kBlack;
        line.visible = shown;
        elements.push_back(line);
    }
}

}  // namespace

int ctlKOMAList::LineCount() const {
    const double p = PCTwipsToTolvaPixels();
    if (p <= 0 || KOMAHeight() <= kTopMargin / p) return 0;
    return static_cast<int>(std::floor((KOMAHeight() - kTopMargin / p) / kLinePitch));
}

void ctlKOMAList::LayOut() {}

DrawElementList ctlKOMAList::GetDrawElements() const {
    const double p = PCTwipsToTolvaPixels();
    const double w = Width();
    const double h = Height();
    DrawElement border = ShapeElement("shpBorder", {0, 0, w, h});
    border.outline = true;
    border.outlineWidth = kOutlineWidth;
    border.filled = false;
    DrawElementList elements = {border};
    if (p <= 0) return elements;

    const int lines = LineCount();
    const int count = static_cast<int>(items_.size());
    const int alignment = KOMATextAlignment();
    // The selected item's line, when it is on show: neither above the top
    // item nor below the top item plus the number of lines.
    const bool selectedShown = selected_ >= topItem_ && selected_ <= topItem_ + lines;
    for (int i = 1; i <= lines; ++i) {
        const int item = topItem_ + i;  // counted from 1
        const std::string text = item - 1 < count && item - 1 >= 0 ? "   " + std::to_string(item) : "";
        DrawElement line = TextElement("lblItem(" + std::to_string(i) + ")",
                                       {0, kTopMargin + kLinePitch * p * (i - 1), w, kLinePitch * p}, text);
        line.font = DrawFont{ScreenFontOfWord("SMALL_FONT"), ScreenFontSizeOfWord("SMALL_FONT"), false};
        line.devicePixel = p;
        line.foreColor = ScreenColorOfWord(fontColorWord_);
        line.alignment = alignment == 1   ? TextAlignment::Center
                         : alignment == 2 ? TextAlignment::Right
                                          : TextAlignment::Left;
        const bool selected = selectedShown && selected_ - topItem_ + 1 == i;
        line.opaque = selected;
        line.backColor = selected ? kSelectedBand : ScreenColorOfWord(backColorWord_);
        elements.push_back(line);
    }

    const double arrowWidth = kArrowWidth * p;
    const double arrowHeight = kArrowHeight * p;
    const double left = w > kArrowMargin ? w - arrowWidth - kArrowMargin : w;
    AppendArrow(elements, "imgUpArrow", left, kArrowMargin, p, true, topItem_ != 0);
    const double downTop = h > kArrowMargin ? h - arrowHeight - kArrowMargin : h;
    AppendArrow(elements, "imgDownArrow", left, downTop, p, false, topItem_ + lines < count);
    return elements;
}

}  // namespace tolva
