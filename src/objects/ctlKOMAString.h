#pragma once
// ctlKOMAString: a string: a text drawn on the device screen.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMAString : public KomaObject {
public:
    ctlKOMAString();
};

}  // namespace tolva
