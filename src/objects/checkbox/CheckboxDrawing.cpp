// The Checkbox on the canvas: its white background and the picture of its
// state, imgCheckedBitmap while checked, imgUncheckedBitmap while not. A
// right press opens the popup menu of the pictures.
#include "document/Host.h"
#include "objects/checkbox/ctlKOMACheckbox.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {

DrawElementList ctlKOMACheckbox::GetDrawElements() const {
    DrawElement back = ShapeElement("shpBackground", {0, 0, Width(), Height()});
    back.outline = false;
    back.filled = true;
    back.fillColor = kWhite;
    const double s = PCTwipsToTolvaPixels();
    DrawElementList elements = {back};
    for (int which : {1, 2}) {
        const ObjectPicture& picture = which == 1 ? bitmap1_ : bitmap2_;
        DrawElement image = ImageElement(which == 1 ? "imgCheckedBitmap" : "imgUncheckedBitmap",
                                         {0, 0, picture.pixelWidth * s, picture.pixelHeight * s},
                                         picture.file);
        image.imageDepth = picture.depth;
        const bool ofState = (which == 1) == KOMAControlValue();
        image.visible = ofState && picture.loaded && !picture.file.empty();
        elements.push_back(image);
    }
    return elements;
}

void ctlKOMACheckbox::MouseDown(int button, int shift, double x, double y) {
    if ((button & kRightButton) == 0) {
        KomaControl::MouseDown(button, shift, x, y);
        return;
    }
    // The two Remove items are there and do nothing; the related check
    // boxes are edited with the form's editor.
    const std::optional<int> choice = host().PopupMenu(
        "Set Properties", {{"mnuSetPropSetOnBitmap", "Set On Bitmap"},
                           {"mnuSetPropSetOffBitmap", "Set Off Bitmap"},
                           {"mnuSetPropRemoveOnBitmap", "Remove On Bitmap"},
                           {"mnuSetPropRemoveOffBitmap", "Remove Off bitmap"},
                           {"mnuRelatedCheckboxes", "Set Related Checkboxes..."}});
    if (!choice) return;
    if (*choice == 0) SetBitmapFromChooser(1);
    if (*choice == 1) SetBitmapFromChooser(2);
    // A check box in a table cell lies on no form: nothing to edit.
    if (*choice == 4 && ParentForm()) ParentForm()->EditRelatedCheckboxes();
}

}  // namespace tolva
