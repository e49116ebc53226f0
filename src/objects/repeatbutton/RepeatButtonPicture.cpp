// The Repeat button's picture: loading it, which sizes the object, and the
// popup menu's actions that choose or remove it.
#include "document/Host.h"
#include "objects/PictureFiles.h"
#include "objects/repeatbutton/ctlKOMARepeatButton.h"

namespace tolva {

bool ctlKOMARepeatButton::LoadPicture(const std::string& path) {
    // 1. An empty path takes the picture away; the size stays.
    if (path.empty()) {
        picture_.loaded = false;
        picture_.pixelWidth = picture_.pixelHeight = 0;
        return true;
    }
    // The file must be there, pass the path rule and hold a picture; a
    // missing one is told under the application's title.
    const std::optional<PictureSize> size = CheckedPicture(host(), path, "");
    if (!size) return false;
    // 2. and 3. Any size goes: no limit of the screen's, nothing to match.
    picture_.pixelWidth = size->width;
    picture_.pixelHeight = size->height;
    picture_.loaded = true;
    // 4. The owner sizes the object after the picture (a picture wider than
    // the screen then fails the width's range there).
    RaiseResized(size->width, size->height);
    // 5. The record's place and size of the picture follow the object's.
    KOMABitmapX(KOMABoundsX());
    KOMABitmapY(KOMABoundsY());
    KOMABitmapHeight(KOMAHeight());
    KOMABitmapWidth(KOMAWidth());
    return true;
}

void ctlKOMARepeatButton::SetBitmapFromChooser() {
    const std::optional<std::string> chosen =
        ChoosePictureFile(host(), "Select Repeat-Button Bitmap", "*.bmp");
    if (!chosen) return;
    KOMABitmapFile(*chosen);
    RaisePicChanged();
}

void ctlKOMARepeatButton::RemoveBitmap() {
    KOMABitmapFile("");
    RaisePicChanged();
}

}  // namespace tolva
