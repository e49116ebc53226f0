#pragma once
// ctlKOMASchedulerLine: a scheduler line.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMASchedulerLine : public KomaObject {
public:
    ctlKOMASchedulerLine();
};

}  // namespace tolva
