#include "objects/field/ctlKOMAField.h"

#include "document/ObjectTypes.h"

namespace tolva {

ctlKOMAField::ctlKOMAField() : KomaObject(type::Field, "FIELD", 50, 46) {}

}  // namespace tolva
