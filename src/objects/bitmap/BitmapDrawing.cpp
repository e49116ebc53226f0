// The Bitmap on the canvas: imgBitmap1 and imgBitmap2, each the box of its
// picture from the object's corner; Bitmap 2 is never shown. A right press
// opens the popup menu of the pictures.
#include "document/Host.h"
#include "objects/bitmap/ctlKOMABitmap.h"

namespace tolva {

DrawElementList ctlKOMABitmap::GetDrawElements() const {
    const double s = PCTwipsToTolvaPixels();
    DrawElementList elements;
    for (int which : {1, 2}) {
        const ObjectPicture& picture = which == 1 ? bitmap1_ : bitmap2_;
        DrawElement image = ImageElement(
            which == 1 ? "imgBitmap1" : "imgBitmap2",
            {0, 0, picture.pixelWidth * s, picture.pixelHeight * s}, picture.file);
        image.imageDepth = picture.depth;
        image.visible = which == 1 && picture.loaded && !picture.file.empty();
        elements.push_back(image);
    }
    return elements;
}

void ctlKOMABitmap::MouseDown(int button, int shift, double x, double y) {
    if ((button & kRightButton) == 0) {
        KomaObject::MouseDown(button, shift, x, y);
        return;
    }
    const std::optional<int> choice = host().PopupMenu("Set Properties",
                                                       {{"mnuSetPropBitmap1", "Set Bitmap 1"},
                                                        {"mnuSetPropBitmap2", "Set Bitmap 2"},
                                                        {"mnuSetPropRemove1", "Remove Bitmap 1"},
                                                        {"mnuSetPropRemove2", "Remove Bitmap 2"}});
    if (!choice) return;
    switch (*choice) {
        case 0: SetBitmapFromChooser(1); break;
        case 1: SetBitmapFromChooser(2); break;
        case 2: RemoveBitmap(1); break;
        case 3: RemoveBitmap(2); break;
        default: break;
    }
}

}  // namespace tolva
