// The Repeat button on the canvas: its own light-blue background over the
// whole box, and imgBitmap, the picture in the greys of its depth, one
// desktop pixel in from the corner. Without a picture the blue block is all
// there is. A right press opens the popup menu of the picture.
#include "document/Host.h"
#include "objects/repeatbutton/ctlKOMARepeatButton.h"

namespace tolva {

namespace {

constexpr double kDesktopPixel = 15;  // screen units
constexpr DrawColor kLightBlue{0x80, 0x80, 0xFF};

}  // namespace

DrawElementList ctlKOMARepeatButton::GetDrawElements() const {
    DrawElement back = ShapeElement("shpBackground", {0, 0, Width(), Height()});
    back.outline = false;
    back.filled = true;
    back.fillColor = kLightBlue;

    const double s = PCTwipsToTolvaPixels();
    DrawElement image =
        ImageElement("imgBitmap",
                     {kDesktopPixel, kDesktopPixel, picture_.pixelWidth * s, picture_.pixelHeight * s},
                     picture_.file);
    image.imageDepth = picture_.depth;
    image.visible = picture_.loaded && !picture_.file.empty();
    return {back, image};
}

void ctlKOMARepeatButton::MouseDown(int button, int shift, double x, double y) {
    if ((button & kRightButton) == 0) {
        KomaControl::MouseDown(button, shift, x, y);
        return;
    }
    const std::optional<int> choice = host().PopupMenu(
        "Set Properties", {{"mnuSetRepeatButtonBitmap", "Set Repeat-Button Bitmap"},
                           {"mnuRemoveRepeatButtonBitmap", "Remove Repeat-Button Bitmap"}});
    if (!choice) return;
    if (*choice == 0) SetBitmapFromChooser();
    if (*choice == 1) RemoveBitmap();
}

}  // namespace tolva
