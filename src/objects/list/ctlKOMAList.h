#pragma once
// ctlKOMAList: a list of items.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMAList : public KomaObject {
public:
    ctlKOMAList();
};

}  // namespace tolva
