// The Bitmap's two pictures: loading one with its size rules, and the popup
// menu's actions that choose or remove one.
#include "document/Host.h"
#include "document/Numbers.h"
#include "document/StringTable.h"
#include "objects/PictureFiles.h"
#include "objects/bitmap/ctlKOMABitmap.h"

namespace tolva {

bool ctlKOMABitmap::LoadBitmapPicture(int which, const std::string& path) {
    ObjectPicture& picture = Of(which);
    // 1. and 2. An empty path takes the picture away; the size stays.
    if (path.empty()) {
        picture.loaded = false;
        picture.pixelWidth = picture.pixelHeight = 0;
        return true;
    }
    // 1. (the file must be there), the path rule, and a file the program
    // can read as a picture.
    const std::optional<PictureSize> size = CheckedPicture(host(), path, KOMAName());
    if (!size) return false;
    // 3. and 4. A picture larger than the device screen is refused without a
    // word: the box that would say so never opens.
    if (size->width > 160 || size->height > 160) return false;
    // 5. Beside another picture it must have that picture's size, which is
    // the object's.
    const ObjectPicture& other = Of(which == 1 ? 2 : 1);
    if (!other.file.empty() && (size->width != KOMAWidth() || size->height != KOMAHeight())) {
        Message(LoadResString(msg::BitmapsSameSize), KOMAName());
        return false;
    }
    // 6. The image takes the picture; only Bitmap 1 is shown.
    picture.pixelWidth = size->width;
    picture.pixelHeight = size->height;
    picture.loaded = true;
    // 7. The owner sizes the object after the picture.
    RaiseResized(size->width, size->height);
    RaisePicChanged();
    return true;
}

void ctlKOMABitmap::SetBitmapFile(int which, const std::string& path) {
    // The path is kept only when its picture loaded.
    if (LoadBitmapPicture(which, path)) Of(which).file = path;
}

void ctlKOMABitmap::SetBitmapFromChooser(int which) {
    const std::optional<std::string> chosen = ChoosePictureFile(host(), "", "");
    if (!chosen) return;
    SetBitmapFile(which, *chosen);
    RaisePicChanged();
}

void ctlKOMABitmap::RemoveBitmap(int which) {
    SetBitmapFile(which, "");
    RaisePicChanged();
}

}  // namespace tolva
