#include "objects/form/FormLayout.h"

#include <algorithm>

namespace tolva {

namespace {

// Per style: the bar's height, the bitmap's place, the gap between bitmap
// and title, and the title's top.
struct StyleMetrics {
    int barHeight;
    int bitmapX;
    int bitmapY;
    int titleGap;
    int titleTop;
};

constexpr int kTitleHeight = 8;

}  // namespace

FormLayoutParts LayOutFormParts(int style, int formWidth, int formHeight, bool hasBitmap,
                                int imageWidth, int imageHeight) {
    (void)formHeight;  // the frame follows the form's box; nothing else needs the height
    FormLayoutParts parts;
    if (style == 1 || style < 0 || style > 3) return parts;  // the bare surface

    parts.frameVisible = true;
    parts.barVisible = true;
    parts.titleVisible = true;

    if (style == 3) {
        // No bitmap; the title is centred over the whole width.
        parts.bar = {0, 0, formWidth, 17};
        parts.title = {0, 4, std::max(0, formWidth), kTitleHeight};
        parts.titleCentred = true;
        return parts;
    }

    const StyleMetrics m = style == 0 ? StyleMetrics{16, 2, 2, 5, 4} : StyleMetrics{27, 5, 3, 7, 3};
    parts.bar = {0, 0, formWidth, m.barHeight};
    parts.bitmapVisible = hasBitmap;
    parts.bitmap = {m.bitmapX, m.bitmapY, imageWidth, imageHeight};
    const int left = (hasBitmap ? imageWidth : 0) + m.titleGap;
    parts.title = {left, m.titleTop, std::max(0, formWidth - left), kTitleHeight};
    return parts;
}

}  // namespace tolva
