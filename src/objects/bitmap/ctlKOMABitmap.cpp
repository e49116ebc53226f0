#include "objects/bitmap/ctlKOMABitmap.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMABitmap::ctlKOMABitmap() : KomaObject(type::Bitmap, "BITMAP", 33, 33) {
    ResizeOK(false);
    VertResizeOK(false);
    HorizResizeOK(false);
}

}  // namespace tolva
