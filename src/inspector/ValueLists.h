#pragma once
// The store of value lists, one set per kind of object: the words each
// choice row of the inspector may take. Each kind's module fills its set once
// at start-up; the inspector asks for a copy whenever it shows an object.
#include "inspector/PropertyArray.h"

namespace tolva {

// Keeps the lists of a kind (0 to 16, screen object types), replacing what
// it held. A kind outside that range is passed over.
void SetValueLists(int kind, const ValueLists& lists);

// A copy of the lists of a kind; a kind never filled gives no lists. False,
// and lists left as they were, for a kind above 16 (or below 0).
bool GetValueLists(int kind, ValueLists& lists);

}  // namespace tolva
