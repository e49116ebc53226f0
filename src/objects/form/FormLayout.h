#pragma once
// Where the parts of a form lie, in device pixels, for each of the four
// styles: the frame, the title bar, the title and the title-bar bitmap.
// The form turns this into its draw elements at the screen's scale.
namespace tolva {

struct PixelBox {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const PixelBox&) const = default;
};

struct FormLayoutParts {
    bool frameVisible = false;
    bool barVisible = false;
    bool titleVisible = false;
    bool bitmapVisible = false;
    bool titleCentred = false;  // style 3; the others are left-aligned
    PixelBox bar;
    PixelBox title;
    PixelBox bitmap;
};

// The parts of a form of the given size and style. hasBitmap says whether a
// picture is set; imageWidth and imageHeight are the size the image part
// has now. The title starts behind the bitmap only when one is shown.
FormLayoutParts LayOutFormParts(int style, int formWidth, int formHeight, bool hasBitmap,
                                int imageWidth, int imageHeight);

}  // namespace tolva
