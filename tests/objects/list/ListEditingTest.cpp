// The List Editor's rules: the one check mark, the limit of items, the
// duplicate rule after trimming, removing, moving, sorting, the top item's
// choices, the links, and the number on display checked at OK.
#include <gtest/gtest.h>

#include "objects/list/ListEditing.h"
#include "support/ScriptedHost.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;

// The editor's limit lives on between openings: each test starts at the
// program's first limit and leaves it there.
struct FirstItemLimit {
    FirstItemLimit() { ListEditing::EditorItemLimit() = ListEditing::kFirstItemLimit; }
    ~FirstItemLimit() { ListEditing::EditorItemLimit() = ListEditing::kFirstItemLimit; }
};

class ListEditingTest : public ::testing::Test {
protected:
    FirstItemLimit first;
    ScriptedHost host;
    ListEditing edit{host};
};

TEST_F(ListEditingTest, TheFirstLimitIsTen) { EXPECT_EQ(edit.ItemLimit(), 10); }

TEST_F(ListEditingTest, WithALimitOfTenTheEleventhAddIsRefused) {
    edit.SetList({}, -1, 10, 0);
    for (int i = 0; i < 10; ++i) EXPECT_TRUE(edit.Add("Item " + std::to_string(i)));
    EXPECT_FALSE(edit.Add("Item 10"));
    EXPECT_EQ(edit.Items().size(), 10u);
    EXPECT_EQ(host.MessageLines(), (Lines{"Limit reached: Maximum number of items reached"}));
}

TEST_F(ListEditingTest, AAndATrailingBlankAreTheSameItem) {
    EXPECT_TRUE(edit.Add("A"));
    EXPECT_FALSE(edit.Add("A "));
    EXPECT_EQ(edit.Items(), (Lines{"A"}));
    EXPECT_EQ(host.MessageLines(), (Lines{"List Editor: Duplicate items not allowed"}));
    EXPECT_FALSE(edit.Add("   "));
    EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(ListEditingTest, TheMaximumOnDisplayIsCheckedAtOk) {
    EXPECT_FALSE(edit.Accept("65535"));
    EXPECT_FALSE(edit.Accept("ten"));
    EXPECT_FALSE(edit.Accept("-1"));
    EXPECT_EQ(host.MessageLines(),
              (Lines(3, "Invalid value: You must enter a number between 0 and 65534")));
    EXPECT_TRUE(edit.Accept("65534"));
    EXPECT_EQ(edit.ItemLimit(), 65534);
    EXPECT_TRUE(edit.Accept("0"));
    EXPECT_EQ(edit.ItemLimit(), 0);
}

// The number on display accepted at OK is the limit of the next opening,
// whichever list it opens on and whatever that list's own number.
TEST_F(ListEditingTest, WithZeroOnDisplayNoItemCanBeAddedOnTheNextOpening) {
    EXPECT_TRUE(edit.Accept("0"));
    ListEditing next(host);
    next.SetList({}, -1, 25, 0);
    EXPECT_EQ(next.ItemLimit(), 0);
    EXPECT_FALSE(next.Add("A"));
    EXPECT_EQ(host.MessageLines(), (Lines{"Limit reached: Maximum number of items reached"}));
    EXPECT_TRUE(next.Accept("3"));
    ListEditing third(host);
    EXPECT_EQ(third.ItemLimit(), 3);
}

TEST_F(ListEditingTest, OneCheckMarkAtMost) {
    edit.SetList({"a", "b", "c"}, 1, 10, 0);
    EXPECT_EQ(edit.Selected(), 1);
    edit.Check(2, true);
    EXPECT_EQ(edit.Selected(), 2);
    edit.Check(1, false);
    EXPECT_EQ(edit.Selected(), 2);
    edit.Check(2, false);
    EXPECT_EQ(edit.Selected(), -1);
    edit.SetList({"a"}, 5, 10, 0);
    EXPECT_EQ(edit.Selected(), -1);
}

TEST_F(ListEditingTest, TheTopItemOffersZeroAndOneChoiceAnItem) {
    edit.SetList({"a", "b"}, -1, 10, 7);
    EXPECT_EQ(edit.TopItemChoices(), (Lines{"0", "1", "2"}));
    EXPECT_EQ(edit.TopItem(), 0);
    edit.Add("c");
    EXPECT_EQ(edit.TopItemChoices().back(), "3");
    edit.RemoveAll();
    EXPECT_EQ(edit.TopItemChoices(), (Lines{"0"}));
}

TEST_F(ListEditingTest, RemovingKeepsTheMarkWithItsItem) {
    edit.SetList({"a", "b", "c"}, 2, 10, 3);
    edit.Remove(0);
    EXPECT_EQ(edit.Items(), (Lines{"b", "c"}));
    EXPECT_EQ(edit.Selected(), 1);
    EXPECT_EQ(edit.TopItem(), 2);
    edit.Remove(1);
    EXPECT_EQ(edit.Selected(), -1);
}

TEST_F(ListEditingTest, MovingSwapsWithTheNeighbourAndStopsAtTheEnds) {
    edit.SetList({"a", "b", "c"}, 0, 10, 0);
    EXPECT_EQ(edit.MoveDown(0), 1);
    EXPECT_EQ(edit.Items(), (Lines{"b", "a", "c"}));
    EXPECT_EQ(edit.Selected(), 1);
    EXPECT_EQ(edit.MoveUp(0), 0);
    EXPECT_EQ(edit.MoveDown(2), 2);
    EXPECT_EQ(edit.MoveUp(2), 1);
    EXPECT_EQ(edit.Items(), (Lines{"b", "c", "a"}));
}

TEST_F(ListEditingTest, SortingKeepsTheMarkAtItsPosition) {
    edit.SetList({"pear", "apple", "fig"}, 0, 10, 0);
    edit.Sort();
    EXPECT_EQ(edit.Items(), (Lines{"apple", "fig", "pear"}));
    EXPECT_EQ(edit.Selected(), 0);
}

TEST_F(ListEditingTest, LinksAreKeptOnlyWhenNamesAndFlagsAgree) {
    edit.SetRelatedLists({"LIST_2", "LIST_3"}, {true});
    EXPECT_TRUE(edit.RelatedNames().empty());
    edit.SetRelatedLists({"LIST_2", "LIST_3"}, {true, false});
    edit.LinkList(1, true);
    edit.LinkList(0, false);
    EXPECT_EQ(edit.RelatedFlags(), (std::vector<bool>{false, true}));
}

}  // namespace
}  // namespace tolva::testing
