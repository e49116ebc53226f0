// The property view's layout arithmetic, in screen units.
#include "inspector/PropertyViewLayout.h"

#include <gtest/gtest.h>

namespace tolva::propview {
namespace {

// The inspector of the main window: 5535 by 5775 units.
constexpr double kViewWidth = 5535;
constexpr double kViewHeight = 5775;

TEST(PropertyViewLayout, RowsThatFitWhenAListIsSet) {
    // (5775 - 500) / 315 = 16.75; less 2 gives 14.75, which rounds to 15.
    EXPECT_EQ(VisibleRowsAfterSet(kViewHeight, kTitleHeight, kNameRowHeight), 15);
}

TEST(PropertyViewLayout, AResizeCountsOneRowMoreThanSettingAList) {
    EXPECT_EQ(VisibleRowsAfterResize(kViewHeight, kTitleHeight, kNameRowHeight), 16);
    for (double height : {1000.0, 2000.0, 3333.0, 5775.0, 9000.0}) {
        EXPECT_EQ(VisibleRowsAfterResize(height, kTitleHeight, kNameRowHeight),
                  VisibleRowsAfterSet(height, kTitleHeight, kNameRowHeight) + 1)
            << height;
    }
}

TEST(PropertyViewLayout, RowsThatFitRoundHalvesToEven) {
    // (1917.5 - 500) / 315 = 4.5: less 2 is 2.5, giving 2; less 1 is 3.5, giving 4.
    EXPECT_EQ(VisibleRowsAfterSet(1917.5, kTitleHeight, kNameRowHeight), 2);
    EXPECT_EQ(VisibleRowsAfterResize(1917.5, kTitleHeight, kNameRowHeight), 4);
}

TEST(PropertyViewLayout, RowsThatFitWithNoRowHeightIsNone) {
    EXPECT_EQ(VisibleRowsAfterSet(kViewHeight, kTitleHeight, 0), 0);
    EXPECT_EQ(VisibleRowsAfterResize(kViewHeight, kTitleHeight, 0), 0);
}

TEST(PropertyViewLayout, MoreRowsThanFitShowTheScrollBarWithItsRange) {
    const ScrollBarSetting bar = ScrollBarFor(20, 15);
    EXPECT_TRUE(bar.shown);
    EXPECT_EQ(bar.width, 255);
    EXPECT_EQ(bar.minimum, 1);
    EXPECT_EQ(bar.maximum, 5);
}

TEST(PropertyViewLayout, RowsThatFitHideTheScrollBarWithWidthZero) {
    for (int rows : {0, 10, 15}) {
        const ScrollBarSetting bar = ScrollBarFor(rows, 15);
        EXPECT_FALSE(bar.shown) << rows;
        EXPECT_EQ(bar.width, 0) << rows;
    }
    EXPECT_TRUE(ScrollBarFor(16, 15).shown);
    EXPECT_EQ(ScrollBarFor(16, 15).maximum, 1);
}

TEST(PropertyViewLayout, AllRowsAreOnShowWhenTheyFit) {
    const VisibleRows rows = RowsOnShow(10, 15, 4);
    EXPECT_EQ(rows.first, 1);
    EXPECT_EQ(rows.last, 10);
}

TEST(PropertyViewLayout, ScrolledRowsRunFromTheScrollValueForOneRowMoreThanFit) {
    const VisibleRows rows = RowsOnShow(20, 15, 3);
    EXPECT_EQ(rows.first, 3);
    EXPECT_EQ(rows.last, 18);
}

TEST(PropertyViewLayout, RowTopsFollowTheTitleRowByRow) {
    EXPECT_EQ(RowTop(1, 1, kTitleHeight, kValueRowHeight), 515);
    EXPECT_EQ(RowTop(5, 3, kTitleHeight, kValueRowHeight), 500 + 2 * 315 + 15);
    EXPECT_EQ(RowTop(2, 3, kTitleHeight, kValueRowHeight), 500 - 315 + 15);
}

TEST(PropertyViewLayout, LabelAndEditorStandEitherSideOfTheDivider) {
    const RowColumns columns = PlaceRowColumns(2915, kViewWidth, false, 5265);
    EXPECT_EQ(columns.labelLeft, 15);
    EXPECT_EQ(columns.labelWidth, 2900);
    EXPECT_EQ(columns.editorLeft, 2980);
    EXPECT_EQ(columns.editorWidth, 5535 - 2980 - 30);
}

TEST(PropertyViewLayout, EditorsStopAtTheScrollBarWhenItIsShown) {
    const RowColumns shown = PlaceRowColumns(2915, kViewWidth, true, 5265);
    const RowColumns hidden = PlaceRowColumns(2915, kViewWidth, false, 5265);
    EXPECT_EQ(shown.editorWidth, 5265 - 2980 - 30);
    EXPECT_GT(hidden.editorWidth, shown.editorWidth);
    EXPECT_EQ(shown.editorLeft, hidden.editorLeft);
}

TEST(PropertyViewLayout, DividerMovesByTheMouse) {
    EXPECT_EQ(DraggedDividerLeft(2915, 100, kViewWidth), 3015);
    EXPECT_EQ(DraggedDividerLeft(2915, -15, kViewWidth), 2900);
}

TEST(PropertyViewLayout, DividerMovesByWholeUnitsRoundedHalfToEven) {
    EXPECT_EQ(DraggedDividerLeft(2915, 0.5, kViewWidth), 2916);
    EXPECT_EQ(DraggedDividerLeft(2914, 0.5, kViewWidth), 2914);
}

TEST(PropertyViewLayout, DividerStopsAtSevenHundred) {
    EXPECT_EQ(DraggedDividerLeft(2915, -3000, kViewWidth), 700);
    EXPECT_EQ(DraggedDividerLeft(2915, -2215, kViewWidth), 700);
    EXPECT_EQ(DraggedDividerLeft(2915, -2214, kViewWidth), 701);
}

TEST(PropertyViewLayout, DividerStopsAtTheWidthLess1065) {
    EXPECT_EQ(DraggedDividerLeft(2915, 5000, kViewWidth), 5535 - 1065);
    EXPECT_EQ(DraggedDividerLeft(2915, 4470 - 2915, kViewWidth), 4470);
    EXPECT_EQ(DraggedDividerLeft(2915, 4469 - 2915, kViewWidth), 4469);
}

TEST(PropertyViewLayout, InANarrowViewTheRightLimitWins) {
    EXPECT_EQ(DraggedDividerLeft(700, 0, 1500), 1500 - 1065);
}

TEST(PropertyViewLayout, ResizePlacesTheFixedParts) {
    const ResizeGeometry g =
        ResizedGeometry(kViewWidth, kViewHeight, kScrollBarWidth, kNameColumnWidth, kNameRowHeight);
    EXPECT_EQ(g.title, (UnitRect{15, 15, 5505, 500}));
    EXPECT_EQ(g.border, (UnitRect{1, 1, 5533, 5773}));
    EXPECT_EQ(g.scrollBar, (UnitRect{5265, 515, 255, 5775 - 515 - 15}));
    EXPECT_EQ(g.divider, (UnitRect{2915, 515, 50, 5775 - 515 - 30}));
    EXPECT_EQ(g.numVisibleRows, 16);
}

TEST(PropertyViewLayout, ResizePlacesAHiddenScrollBarAtTheRightEdge) {
    const ResizeGeometry g =
        ResizedGeometry(kViewWidth, kViewHeight, 0, kNameColumnWidth, kNameRowHeight);
    EXPECT_EQ(g.scrollBar.left, 5535 - 15);
    EXPECT_EQ(g.scrollBar.width, 0);
}

}  // namespace
}  // namespace tolva::propview
