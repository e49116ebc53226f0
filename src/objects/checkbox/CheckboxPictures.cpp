// The Checkbox's two pictures: loading one with its size rules, each told
// in a message box under the object's name, and the popup menu's choosers.
#include "document/Host.h"
#include "document/StringTable.h"
#include "objects/PictureFiles.h"
#include "objects/checkbox/ctlKOMACheckbox.h"

namespace tolva {

bool ctlKOMACheckbox::LoadCheckboxPicture(int which, const std::string& path) {
    ObjectPicture& picture = Of(which);
    // 2. An empty path takes the picture away.
    if (path.empty()) {
        picture.loaded = false;
        picture.pixelWidth = picture.pixelHeight = 0;
        return true;
    }
    // 1. The file must be there (and pass the path rule, and hold a picture).
    const std::optional<PictureSize> size = CheckedPicture(host(), path, KOMAName());
    if (!size) return false;
    // 3. Unlike the Bitmap, a check box says so when a picture is too large.
    if (size->width > 160 || size->height > 160) {
        Message(LoadResString(msg::BitmapTooLarge), KOMAName());
        return false;
    }
    // 4. Beside another picture it must have the object's size.
    const ObjectPicture& other = Of(which == 1 ? 2 : 1);
    if (!other.file.empty() && (size->width != KOMAWidth() || size->height != KOMAHeight())) {
        Message(LoadResString(msg::BitmapsSameSize), KOMAName());
        return false;
    }
    // 5. The image takes the picture and the owner sizes the object.
    picture.pixelWidth = size->width;
    picture.pixelHeight = size->height;
    picture.loaded = true;
    RaiseResized(size->width, size->height);
    return true;
}

void ctlKOMACheckbox::SetBitmapFile(int which, const std::string& path) {
    if (LoadCheckboxPicture(which, path)) Of(which).file = path;
}

void ctlKOMACheckbox::SetBitmapFromChooser(int which) {
    const std::optional<std::string> chosen = ChoosePictureFile(host(), "", "");
    if (!chosen) return;
    SetBitmapFile(which, *chosen);
    RaisePicChanged();
}

}  // namespace tolva
