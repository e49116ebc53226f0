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

// The inspector's way to the lists: a copy of the lists of a screen type
// (0 to 15, or 16 for no object, which has none). A type above 16, or below
// 0, gives nothing: the lists come back empty and the answer is false.
bool GetValueListsForType(int type, ValueLists& lists);

}  // namespace tolva
