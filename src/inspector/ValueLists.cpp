#include "inspector/ValueLists.h"

#include <array>

#include "document/ObjectTypes.h"

namespace tolva {

namespace {

// One set per kind 0 to 15, and one (empty) for 16, "no object".
std::array<ValueLists, type::None + 1>& Store() {
    static std::array<ValueLists, type::None + 1> store;
    return store;
}

bool InRange(int kind) { return kind >= 0 && kind <= type::None; }

}  // namespace

void SetValueLists(int kind, const ValueLists& lists) {
    if (InRange(kind)) Store()[static_cast<size_t>(kind)] = lists;
}

bool GetValueLists(int kind, ValueLists& lists) {
    if (!InRange(kind)) return false;
    lists = Store()[static_cast<size_t>(kind)];
    return true;
}

bool GetValueListsForType(int type, ValueLists& lists) {
    if (!GetValueLists(type, lists)) {
        lists.clear();
        return false;
    }
    return true;
}

}  // namespace tolva
