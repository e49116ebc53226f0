#pragma once
// Draw elements: what an object is made of on the canvas. An object lays
// itself out into named elements (shpButton, lblText, imgBitmap, lnLine...),
// each a shape, a text box, an image or a line, placed in screen units
// relative to the object's top left corner. The canvas paints them in their
// order, back to front, and nothing else.
#include <cstdint>
#include <string>
#include <vector>

#include "canvas/CanvasRect.h"

namespace tolva {

struct DrawColor {
    uint8_t red = 0;
    uint8_t green = 0;
    uint8_t blue = 0;

    // A colour from its stored value, blue in the high byte and red in the
    // low one: 0xC00000 is a dark blue.
    static constexpr DrawColor FromStored(uint32_t value) {
        return {static_cast<uint8_t>(value & 0xFF), static_cast<uint8_t>((value >> 8) & 0xFF),
                static_cast<uint8_t>((value >> 16) & 0xFF)};
    }
    bool operator==(const DrawColor&) const = default;
};

inline constexpr DrawColor kBlack{0, 0, 0};
inline constexpr DrawColor kWhite{255, 255, 255};

enum class DrawElementKind { Shape, TextBox, Image, Line };

// Alignment of a text in its box.
enum class TextAlignment { Left, Right, Center };

struct DrawFont {
    std::string name;  // empty: the window's own font
    double size = 8.25;  // points
    bool bold = false;
};

struct DrawElement {
    std::string name;
    DrawElementKind kind = DrawElementKind::Shape;
    // Place and size relative to the object; for a line, the box it spans.
    CanvasRect rect;
    bool visible = true;

    // Shape: a rectangle or a rounded rectangle, its outline and fill.
    bool rounded = false;
    double cornerRadius = 0;  // screen units
    bool outline = true;
    DrawColor outlineColor = kBlack;
    double outlineWidth = 15;  // screen units
    bool filled = false;
    DrawColor fillColor = kWhite;

    // Text box: the text in its box, its font, alignment and colours; a
    // transparent box shows what lies behind it.
    std::string text;
    DrawFont font;
    TextAlignment alignment = TextAlignment::Left;
    bool middle = false;  // centred from top to bottom; else from the top
    DrawColor foreColor = kBlack;
    bool opaque = false;
    DrawColor backColor = kWhite;
    // Screen units per device pixel when the text is in one of the device's
    // pixel fonts ("TolvaSmall", "TolvaMedium"): the canvas then draws it
    // glyph by glyph on the device's pixels. 0 for any other text.
    double devicePixel = 0;

    // Image: a picture file, stretched to the box, in the greys the device
    // shows at the picture's depth in bits (2 or 4; 0: the file's colours).
    std::string imagePath;
    int imageDepth = 0;

    // Line: from x1, y1 to x2, y2, relative to the object.
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    DrawColor lineColor = kBlack;
    double lineWidth = 15;  // screen units
    // A level line on the device's pixels (devicePixel screen units each,
    // one pixel thick, from the row at y1): every pixel, or with `dotted`
    // every other one, as the device draws its dotted lines.
    bool dotted = false;
};

using DrawElementList = std::vector<DrawElement>;

DrawElement ShapeElement(const std::string& name, const CanvasRect& rect);
DrawElement TextElement(const std::string& name, const CanvasRect& rect, const std::string& text);
DrawElement ImageElement(const std::string& name, const CanvasRect& rect, const std::string& path);
DrawElement LineElement(const std::string& name, double x1, double y1, double x2, double y2);

}  // namespace tolva
