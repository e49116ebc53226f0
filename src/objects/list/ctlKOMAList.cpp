#include "objects/list/ctlKOMAList.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMAList::ctlKOMAList() : KomaObject(type::List, "LIST", 24, 12) {}

}  // namespace tolva
