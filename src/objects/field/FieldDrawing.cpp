// The Field on the canvas: its white background, the lines of its wrapped
// text from the top line on (lblText(0), lblText(1), ...) each in a box of
// its own, a base line under every row that fits (lnBase(0), ...), and in
// style 1 the frame shpBorder. The wrap measures the text in device pixels
// against the width table of the font; everything else is in screen units.
#include "document/Numbers.h"
#include "objects/field/FieldWrap.h"
#include "objects/field/ctlKOMAField.h"
#include "objects/field/modField.h"

namespace tolva {

namespace {

constexpr double kOutlineWidth = 30;  // two desktop pixels
constexpr DrawColor kBaseLineGrey{0xC0, 0xC0, 0xC0};

// A line's box height and the pitch of the lines, in device pixels.
struct LinePitch {
    int boxHeight;
    int pitch;
};
LinePitch PitchOfFont(int font) { return font == 1 ? LinePitch{12, 11} : LinePitch{10, 9}; }

}  // namespace

void ctlKOMAField::LayOut() {
    const double p = PCTwipsToTolvaPixels();
    if (p != 0) availableWidth_ = RoundToIntSaturating((Width() - 120) / p);
    lines_ = WrapFieldText(text_, KOMAFont() == 1 ? FontMediumWidth() : FontSmallWidth(),
                           availableWidth_);
    const int count = static_cast<int>(lines_.size());
    if (topLineNum_ + 1 > count) topLineNum_ = count - 1;
}

DrawElementList ctlKOMAField::GetDrawElements() const {
    const double p = PCTwipsToTolvaPixels();
    const double w = Width();
    const double h = Height();
    DrawElement back = ShapeElement("shpBackground", {0, 0, w, h});
    back.outline = false;
    back.filled = true;
    back.fillColor = kWhite;
    DrawElementList elements = {back};

    const LinePitch pitch = PitchOfFont(KOMAFont());
    const int alignment = KOMATextAlignment();
    // Every line from the top line on has its box; only those that begin
    // inside the object can show anything, and only they are drawn, so a
    // long text costs the canvas no more than the lines it shows.
    const std::size_t first = FirstShownLine();
    for (std::size_t n = 0; first + n < lines_.size(); ++n) {
        const double top = (1 + pitch.pitch * static_cast<double>(n)) * p;
        if (n > 0 && top >= h) break;
        DrawElement text = TextElement("lblText(" + std::to_string(n) + ")",
                                       {p, top, w <= 40 ? w : w - 40, pitch.boxHeight * p},
                                       lines_[first + n]);
        text.font = ScreenFont();
        text.devicePixel = p;
        text.foreColor = ScreenFontColor();
        text.opaque = true;
        text.backColor = ScreenBackColor();
        text.alignment = alignment == 1   ? TextAlignment::Center
                         : alignment == 2 ? TextAlignment::Right
                                          : TextAlignment::Left;
        elements.push_back(text);
    }

    // A base line lies on the row of pixels just under its row of text, and
    // is drawn for every row whose line falls inside the object; no object
    // holds more rows than the screen's 160 pixels.
    const int backline = KOMABackline();
    if (backline != 0 && p > 0) {
        for (int n = 0; n < 160; ++n) {
            const double y = (1 + pitch.pitch * (n + 1.0)) * p;
            if (y + p > h) break;
            DrawElement line = LineElement("lnBase(" + std::to_string(n) + ")", 0, y, w - 10, y);
            line.devicePixel = p;
            line.lineWidth = p;
            line.dotted = backline == 1;
            line.lineColor = backline == 1 ? kBlack : kBaseLineGrey;
            elements.push_back(line);
        }
    }

    DrawElement border = ShapeElement("shpBorder", {10, 10, w - 20, h - 20});
    border.outline = true;
    border.outlineWidth = kOutlineWidth;
    border.filled = false;
    border.visible = KOMAFieldStyle() == 1 && w > 20 && h > 20;
    elements.push_back(border);
    return elements;
}

}  // namespace tolva
