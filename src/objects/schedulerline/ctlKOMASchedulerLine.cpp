#include "objects/schedulerline/ctlKOMASchedulerLine.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMASchedulerLine::ctlKOMASchedulerLine() : KomaObject(type::SchedulerLine, "SCHLINE", 40, 40) {}

}  // namespace tolva
