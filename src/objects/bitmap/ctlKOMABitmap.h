#pragma once
// ctlKOMABitmap: a bitmap: a picture; its size follows the picture.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMABitmap : public KomaObject {
public:
    ctlKOMABitmap();
};

}  // namespace tolva
