// The form on the canvas: its parts laid out for the style, turned into
// draw elements at the screen's scale, and its popup menu.
#include <optional>

#include "document/Host.h"
#include "objects/form/FormLayout.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {

namespace {

constexpr const char* kPopupTitle = "Set Properties";
constexpr int kSetFormBitmap = 0;
constexpr int kRemoveFormBitmap = 1;

CanvasRect Scaled(const PixelBox& box, double scale) {
    return {box.x * scale, box.y * scale, box.width * scale, box.height * scale};
}

}  // namespace

void ctlKOMAForm::LayOut() {
    imageWidth_ = bitmapWidth_;
    imageHeight_ = bitmapHeight_;
}

DrawElementList ctlKOMAForm::GetDrawElements() const {
    const double s = PCTwipsToTolvaPixels();
    const int width = KOMAWidth();
    const int height = KOMAHeight();
    const FormLayoutParts parts =
        LayOutFormParts(KOMAFormStyle(), width, height, hasPicture_, imageWidth_, imageHeight_);

    DrawElementList elements;

    // The frame: one device pixel along each edge, on the outermost pixels.
    const double half = s / 2;
    const double right = width * s;
    const double bottom = height * s;
    DrawElement top = LineElement("lnTop", 0, half, right, half);
    DrawElement left = LineElement("lnLeft", half, 0, half, bottom);
    DrawElement lower = LineElement("lnBottom", 0, bottom - half, right, bottom - half);
    DrawElement rightLine = LineElement("lnRight", right - half, 0, right - half, bottom);
    for (DrawElement* line : {&top, &left, &lower, &rightLine}) {
        line->lineWidth = s;
        line->visible = parts.frameVisible;
        elements.push_back(*line);
    }

    DrawElement bar = ShapeElement("shpTitleBar", Scaled(parts.bar, s));
    bar.filled = true;
    bar.fillColor = kBlack;
    bar.outline = false;
    bar.visible = parts.barVisible;
    elements.push_back(bar);

    DrawElement image = ImageElement("imgFormBitmap", Scaled(parts.bitmap, s), bitmapFile_);
    image.visible = parts.bitmapVisible;
    image.imageDepth = bitmapDepth_;
    elements.push_back(image);

    DrawElement title = TextElement("lblTitle", Scaled(parts.title, s), title_);
    title.font = DrawFont{"TolvaSmall", 14.25, true};
    title.devicePixel = s;
    title.foreColor = kWhite;
    title.alignment = parts.titleCentred ? TextAlignment::Center : TextAlignment::Left;
    title.visible = parts.titleVisible && parts.title.width > 0;
    elements.push_back(title);
    return elements;
}

void ctlKOMAForm::MouseDown(int button, int shift, double x, double y) {
    if ((button & kRightButton) == 0) {
        KomaObject::MouseDown(button, shift, x, y);
        return;
    }
    const std::optional<int> choice =
        host().PopupMenu(kPopupTitle, {{"mnuSetFormBitmap", "Set Form Bitmap..."},
                                       {"mnuRemoveFormBitmap", "Remove Form Bitmap"}});
    if (!choice) return;
    if (*choice == kSetFormBitmap) ChooseFormBitmap();
    if (*choice == kRemoveFormBitmap) RemoveFormBitmap();
}

}  // namespace tolva
