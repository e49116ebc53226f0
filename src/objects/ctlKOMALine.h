#pragma once
// ctlKOMALine: a line between two points; its box is the rectangle of the two.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMALine : public KomaObject {
public:
    ctlKOMALine();
};

}  // namespace tolva
