#include "inspector/ValueLists.h"

#include <gtest/gtest.h>

#include "document/ObjectTypes.h"
#include "objects/form/FormStyles.h"

namespace tolva {
namespace {

TEST(ValueLists, AKindGivesACopyOfItsLists) {
    ValueLists form;
    FillFormValueLists(form);
    SetValueLists(type::Form, form);

    ValueLists copy;
    ASSERT_TRUE(GetValueLists(type::Form, copy));
    EXPECT_EQ(copy, form);
    copy[6].clear();  // a copy: the store keeps its own
    ValueLists again;
    ASSERT_TRUE(GetValueLists(type::Form, again));
    EXPECT_EQ(again, form);
}

TEST(ValueLists, NoObjectGivesNoListsButAnswersTrue) {
    ValueLists lists = {{"x"}};
    EXPECT_TRUE(GetValueLists(type::None, lists));
    EXPECT_TRUE(lists.empty());
}

TEST(ValueLists, KindAboveSixteenAnswersFalse) {
    ValueLists lists = {{"kept"}};
    EXPECT_FALSE(GetValueLists(17, lists));
    EXPECT_FALSE(GetValueLists(-1, lists));
    EXPECT_EQ(lists, (ValueLists{{"kept"}}));
    SetValueLists(17, {{"ignored"}});  // passed over, no failure
}

}  // namespace
}  // namespace tolva

namespace tolva {
namespace {

TEST(ValueListsForType, ATypeGivesACopyOfItsLists) {
    ValueLists form;
    FillFormValueLists(form);
    SetValueLists(type::Form, form);
    ValueLists lists;
    EXPECT_TRUE(GetValueListsForType(type::Form, lists));
    EXPECT_EQ(lists, form);
    ASSERT_EQ(lists.size(), 10u);
    EXPECT_EQ(lists[6], (std::vector<std::string>{"NORMAL", "BACKGROUND", "BITMAP_DIALOG",
                                                  "NON_BITMAP_DIALOG"}));
}

TEST(ValueListsForType, ATypeAboveSixteenGivesNothing) {
    ValueLists lists = {{"old"}};
    EXPECT_FALSE(GetValueListsForType(17, lists));
    EXPECT_TRUE(lists.empty());
    lists = {{"old"}};
    EXPECT_FALSE(GetValueListsForType(-1, lists));
    EXPECT_TRUE(lists.empty());
}

TEST(ValueListsForType, NoObjectHasNoLists) {
    ValueLists lists = {{"old"}};
    EXPECT_TRUE(GetValueListsForType(type::None, lists));
    EXPECT_TRUE(lists.empty());
}

}  // namespace
}  // namespace tolva
