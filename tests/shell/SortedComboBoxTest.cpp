// The sorted drop-down list of cmbObjects.
#include <gtest/gtest.h>

#include "shell/SortedComboBox.h"

namespace tolva {
namespace {

QStringList Items(const QComboBox& combo) {
    QStringList items;
    for (int i = 0; i < combo.count(); ++i) items << combo.itemText(i);
    return items;
}

TEST(SortedComboBox, FormEntrySortsBeforeEveryName) {
    SortedComboBox combo;
    for (const char* text : {"STRING_1", "BUTTON_2", "(Form)", "aLabel", "BUTTON_1", "1st"})
        combo.AddSorted(text);
    EXPECT_EQ(Items(combo),
              (QStringList{"(Form)", "1st", "aLabel", "BUTTON_1", "BUTTON_2", "STRING_1"}));
}

TEST(SortedComboBox, CaseDoesNotCount) {
    EXPECT_TRUE(ListTextLess("apple", "Banana"));
    EXPECT_TRUE(ListTextLess("Apple", "banana"));
    EXPECT_FALSE(ListTextLess("APPLE", "apple"));
    EXPECT_FALSE(ListTextLess("apple", "APPLE"));
}

TEST(SortedComboBox, MarksBeforeDigitsBeforeLetters) {
    EXPECT_TRUE(ListTextLess("A_1", "A1"));
    EXPECT_TRUE(ListTextLess("A1", "AB"));
    EXPECT_TRUE(ListTextLess("(Form)", "0"));
}

TEST(SortedComboBox, ShorterPrefixFirstAndNumbersAsText) {
    EXPECT_TRUE(ListTextLess("BUTTON_1", "BUTTON_10"));
    EXPECT_TRUE(ListTextLess("BUTTON_10", "BUTTON_2"));
}

TEST(SortedComboBox, EqualEntriesKeepTheirOrder) {
    SortedComboBox combo;
    combo.AddSorted("abc");
    EXPECT_EQ(combo.AddSorted("ABC"), 1);
    EXPECT_EQ(Items(combo), (QStringList{"abc", "ABC"}));
}

}  // namespace
}  // namespace tolva
