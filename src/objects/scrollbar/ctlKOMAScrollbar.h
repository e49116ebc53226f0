#pragma once
// ctlKOMAScrollbar: a scroll bar.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMAScrollbar : public KomaObject {
public:
    ctlKOMAScrollbar();
};

}  // namespace tolva
