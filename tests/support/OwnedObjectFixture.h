#pragma once
// The fixture of the tests of one kind: the object on a recording owner,
// with the string table loaded and the object's rows at hand.
#include <gtest/gtest.h>

#include "support/RecordingOwner.h"
#include "support/TestStrings.h"

namespace tolva::testing {

template <typename Object>
class OwnedObjectFixture : public ::testing::Test {
protected:
    void SetUp() override {
        EnsureStringsLoaded();
        object.SetOwner(&owner);
    }
    PropertyArray Rows() {
        PropertyArray rows;
        object.GetPropertyList(rows);
        return rows;
    }

    RecordingOwner owner;
    Object object;
};

}  // namespace tolva::testing
