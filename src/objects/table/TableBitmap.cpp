// The table's cell bitmap: chosen in the file chooser, and checked before
// the table takes it.
#include "document/Host.h"
#include "document/Paths.h"
#include "document/StringTable.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva {

void ctlKOMATable::SetBitmapFromChooser() {
    FileChooserRequest request;
    request.title = "Select Table Bitmap";
    request.filter = "Bitmaps (*.bmp)|*.bmp";
    request.defaultExtension = "*.bmp";
    request.initialName = "*.bmp";
    const auto choice = host().ChooseOpenFile(request);
    // The chooser's cancel counts as one of its errors.
    if (!choice) {
        Message("Unknown Error");
        return;
    }
    KOMABitmapFile(*choice);
    RaisePicChanged();
}

bool ctlKOMATable::CheckTableBitmapFile(const std::string& path) {
    if (path.empty()) return true;
    if (!host().FileExists(path)) {
        Message(LoadResString(msg::BitmapNotFound), KOMAName());
        return false;
    }
    if (!IsShortPath(path)) {
        Message(LoadResString(msg::PathNotShort), KOMAName());
        return false;
    }
    const auto size = host().LoadPicture(path);
    if (!size) {
        Message(LoadResString(msg::BitmapNotFound), KOMAName());
        return false;
    }
    if (size->width > 160 || size->height > 160) {
        Message(LoadResString(msg::BitmapTooLarge), KOMAName());
        return false;
    }
    bitmapX_ = 0;
    bitmapY_ = 0;
    bitmapHeight_ = size->height;
    bitmapWidth_ = size->width;
    return true;
}

}  // namespace tolva
