// The Scrollbar's arrow pictures: loading one, which in style 0 grows the
// bar to the arrows, and the popup menu's chooser.
#include <algorithm>

#include "document/Host.h"
#include "document/StringTable.h"
#include "objects/PictureFiles.h"
#include "objects/scrollbar/ctlKOMAScrollbar.h"
#include "objects/scrollbar/modScrollbar.h"

namespace tolva {

bool ctlKOMAScrollbar::SetScrollbarBitmap(int which, const std::string& path) {
    ObjectPicture& arrow = Of(which);
    // 1. An empty path clears the arrow's picture.
    if (path.empty()) {
        arrow.loaded = false;
        arrow.pixelWidth = arrow.pixelHeight = 0;
        return false;
    }
    const std::optional<PictureSize> size = CheckedPicture(host(), path, "");
    if (!size) return false;
    // 2. A picture larger than the screen is refused.
    if (size->width > 160 || size->height > 160) {
        Message(LoadResString(msg::BitmapTooLarge));
        return false;
    }
    // 3. The picture shows, and the arrow's size is the picture's.
    arrow.pixelWidth = size->width;
    arrow.pixelHeight = size->height;
    arrow.loaded = true;
    arrow.width = size->width;
    arrow.height = size->height;
    // 4. In style 0 the bar grows to the arrows across its length.
    if (ScrollbarStyleWordToNumber(styleWord_) == 0) {
        int width = KOMAWidth();
        int height = KOMAHeight();
        if (orientationWord_ == "VERTICAL")
            width = std::max(arrow1_.width, arrow2_.width);
        else
            height = std::max(arrow1_.height, arrow2_.height);
        RaiseResized(width, height);
    }
    RaisePicChanged();
    return true;
}

void ctlKOMAScrollbar::KOMABitmapFile(int which, const std::string& path) {
    // CheckedPicture tells of a file that is not there; an empty path is
    // one too.
    if (path.empty()) {
        Message(LoadResString(msg::BitmapNotFound));
        return;
    }
    if (!SetScrollbarBitmap(which, path)) return;
    Of(which).file = path;
    LayOut();
}

void ctlKOMAScrollbar::SetBitmapFromChooser(int which) {
    const std::optional<std::string> chosen = ChoosePictureFile(host(), "", "");
    if (!chosen) return;
    KOMABitmapFile(which, *chosen);
}

}  // namespace tolva
