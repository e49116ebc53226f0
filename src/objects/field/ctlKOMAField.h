#pragma once
// ctlKOMAField: a field: a wrapped, multi-line text entry.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMAField : public KomaObject {
public:
    ctlKOMAField();
};

}  // namespace tolva
