#pragma once
// The draw element of a name in an object's list, for the drawing tests.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "document/KomaObject.h"

namespace tolva::testing {

// A copy of the element, so that it outlives the list it came from; an
// empty element, and a failure, when the list has none of the name.
inline DrawElement Named(const DrawElementList& elements, const std::string& name) {
    auto it = std::find_if(elements.begin(), elements.end(),
                           [&](const DrawElement& e) { return e.name == name; });
    EXPECT_NE(it, elements.end()) << name;
    return it == elements.end() ? DrawElement{} : *it;
}

}  // namespace tolva::testing
