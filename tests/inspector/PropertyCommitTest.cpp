// How an edited row goes into the inspector's copy of the array.
#include "inspector/PropertyCommit.h"

#include <gtest/gtest.h>

namespace tolva {
namespace {

PropertyArray Sample() {
    PropertyArray rows(3);
    rows.SetRow(1, "Name", rowkind::Text, "FORM_1");
    rows.SetRow(2, "X Pos", rowkind::Text, 12);
    rows.SetRow(3, "Form Bitmap", rowkind::Button, false);
    return rows;
}

TEST(PropertyCommit, ChangedTextIsStoredAsText) {
    PropertyArray rows = Sample();
    EXPECT_TRUE(CommitRowText(rows, 1, "MAIN"));
    EXPECT_EQ(rows.Value(1), PropertyCell("MAIN"));
    EXPECT_TRUE(CommitRowText(rows, 2, "40"));
    EXPECT_TRUE(rows.Value(2).IsText());
    EXPECT_EQ(rows.Value(2).Text(), "40");
}

TEST(PropertyCommit, TextEqualToTheCellIsNoChange) {
    PropertyArray rows = Sample();
    EXPECT_FALSE(CommitRowText(rows, 1, "FORM_1"));
    // A number compares by its decimal text and keeps being a number.
    EXPECT_FALSE(CommitRowText(rows, 2, "12"));
    EXPECT_TRUE(rows.Value(2).IsNumber());
}

TEST(PropertyCommit, ComparisonIsExact) {
    PropertyArray rows = Sample();
    EXPECT_TRUE(CommitRowText(rows, 1, "form_1"));
    rows = Sample();
    EXPECT_TRUE(CommitRowText(rows, 2, "12.0"));
}

TEST(PropertyCommit, ButtonRowBecomesTrueEvenWhenAlreadyTrue) {
    PropertyArray rows = Sample();
    EXPECT_TRUE(PressButtonRow(rows, 3));
    EXPECT_EQ(rows.Value(3), PropertyCell(true));
    EXPECT_TRUE(PressButtonRow(rows, 3));
    EXPECT_EQ(rows.Value(3), PropertyCell(true));
}

TEST(PropertyCommit, RowsTheArrayLacksChangeNothing) {
    PropertyArray rows = Sample();
    EXPECT_FALSE(CommitRowText(rows, 0, "x"));
    EXPECT_FALSE(CommitRowText(rows, 4, "x"));
    EXPECT_FALSE(PressButtonRow(rows, 4));
    EXPECT_EQ(RowValueText(rows, 4), "");
    PropertyArray empty;
    EXPECT_FALSE(CommitRowText(empty, 1, "x"));
    PropertyArray wrongShape(2, 2);
    EXPECT_FALSE(CommitRowText(wrongShape, 1, "x"));
}

TEST(PropertyCommit, RowValueTextIsTheCellAsText) {
    const PropertyArray rows = Sample();
    EXPECT_EQ(RowValueText(rows, 1), "FORM_1");
    EXPECT_EQ(RowValueText(rows, 2), "12");
    EXPECT_EQ(RowValueText(rows, 3), "False");
}

}  // namespace
}  // namespace tolva
