#include "objects/ctlKOMALine.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMALine::ctlKOMALine() : KomaObject(type::Line, "LINE", 46, 30) {}

}  // namespace tolva
