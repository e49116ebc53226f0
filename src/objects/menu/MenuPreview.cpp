// The menu preview: its size from its items, and its frame shpBorder with
// one line lblItem(i) of the small device font for each item, 10 device
// pixels apart. All lengths but the text widths are screen units.
#include <algorithm>

#include "canvas/FontWidths.h"
#include "document/Words.h"
#include "objects/menu/ctlKOMAMenu.h"

namespace tolva {

namespace {

constexpr double kWidthMargin = 360;
constexpr double kHeightMargin = 160;
constexpr double kFirstLineTop = 120;
constexpr double kItemLeft = 80;
constexpr int kLinePitch = 10;  // device pixels
constexpr double kOutlineWidth = 15;

}  // namespace

void ctlKOMAMenu::SizeToItems() {
    const double p = PCTwipsToTolvaPixels();
    int widest = 0;
    for (const std::string& item : items_) widest = std::max(widest, TextWidth(item, FontSmallWidth()));
    SetCanvasSize(widest * p + kWidthMargin,
                  kLinePitch * static_cast<double>(items_.size()) * p + kHeightMargin);
}

DrawElementList ctlKOMAMenu::GetDrawElements() const {
    const double p = PCTwipsToTolvaPixels();
    const double w = Width();
    const double h = Height();
    DrawElement border = ShapeElement("shpBorder", {10, 10, w < 20 ? 0 : w - 20, h < 20 ? 0 : h - 20});
    border.outline = true;
    border.outlineWidth = kOutlineWidth;
    border.filled = false;
    DrawElementList elements = {border};
    for (std::size_t i = 0; i < items_.size(); ++i) {
        DrawElement line = TextElement("lblItem(" + std::to_string(i + 1) + ")",
                                       {kItemLeft, kFirstLineTop + kLinePitch * p * static_cast<double>(i),
                                        std::max(0.0, w - kItemLeft), kLinePitch * p},
                                       items_[i]);
        line.font = DrawFont{ScreenFontOfWord("SMALL_FONT"), ScreenFontSizeOfWord("SMALL_FONT"), false};
        line.devicePixel = p;
        elements.push_back(line);
    }
    return elements;
}

}  // namespace tolva
