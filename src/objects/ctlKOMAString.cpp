#include "objects/ctlKOMAString.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMAString::ctlKOMAString() : KomaObject(type::String, "STRING", 53, 10) {}

}  // namespace tolva
