// The grid call of the options window's OK.
#include <gtest/gtest.h>

#include "canvas/GridOptions.h"

namespace tolva::testing {
namespace {

TEST(GridOptions, NothingChangedRunsNoSetGrid) {
    EXPECT_FALSE(GridCallOnOk(true, 55, 55, true).has_value());
    EXPECT_FALSE(GridCallOnOk(false, 55, 55, false).has_value());
}

TEST(GridOptions, ShowingTheGridOrANewIntervalWithItShown) {
    EXPECT_EQ(GridCallOnOk(false, 55, 55, true), (GridCall{55, true}));
    EXPECT_EQ(GridCallOnOk(true, 55, 40, true), (GridCall{40, true}));
}

TEST(GridOptions, HidingTheGridOrANewIntervalWithItHidden) {
    EXPECT_EQ(GridCallOnOk(true, 55, 55, false), (GridCall{55, false}));
    EXPECT_EQ(GridCallOnOk(false, 55, 30, false), (GridCall{30, false}));
}

TEST(GridOptions, AnIntervalTheListDidNotHoldCountsAsAChange) {
    EXPECT_EQ(GridCallOnOk(true, 0, 30, true), (GridCall{30, true}));
}

}  // namespace
}  // namespace tolva::testing
