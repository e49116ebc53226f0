// Where the Table Editor's preview puts its lines, cells and texts.
#include <gtest/gtest.h>

#include "objects/table/TablePreview.h"

namespace tolva::testing {
namespace {

TEST(TablePreview, EdgesStartAtTheOriginOfTheFirstShownRowAndColumn) {
    const TablePreview preview({34, 20, 10}, {48, 30}, 10, 1, 1);
    EXPECT_DOUBLE_EQ(preview.RowTop(1), 440);
    EXPECT_DOUBLE_EQ(preview.RowTop(2), 440 + 340);
    EXPECT_DOUBLE_EQ(preview.RowTop(4), 440 + 640);
    EXPECT_DOUBLE_EQ(preview.ColumnLeft(2), 320 + 480);
    const TablePreview scrolled({34, 20, 10}, {48, 30}, 10, 2, 2);
    EXPECT_DOUBLE_EQ(scrolled.RowTop(2), 440);
    EXPECT_DOUBLE_EQ(scrolled.RowTop(3), 440 + 200);
    EXPECT_DOUBLE_EQ(scrolled.ColumnLeft(2), 320);
}

TEST(TablePreview, OnlyLinesInsideTheFrameCountAndOneAtLeast) {
    const TablePreview preview({34, 20, 10}, {48, 30}, 10, 1, 1);
    EXPECT_EQ(preview.VisibleRows(1000), 2);  // bottoms at 780, 980, 1080
    EXPECT_EQ(preview.VisibleRows(5000), 3);
    EXPECT_EQ(preview.VisibleRows(100), 1);
    EXPECT_EQ(preview.VisibleColumns(1100), 1);  // rights at 800, 1100
    EXPECT_EQ(preview.VisibleColumns(1101), 2);
}

TEST(TablePreview, APressFindsItsCellOrNone) {
    const TablePreview preview({34, 20}, {48, 30}, 10, 1, 1);
    EXPECT_EQ(preview.HitTestTableCell(330, 450), std::make_pair(1, 1));
    EXPECT_EQ(preview.HitTestTableCell(800, 780), std::make_pair(2, 2));
    EXPECT_FALSE(preview.HitTestTableCell(100, 450).has_value());
    EXPECT_FALSE(preview.HitTestTableCell(330, 980).has_value());
    EXPECT_FALSE(preview.HitTestTableCell(1100, 450).has_value());
}

TEST(TablePreview, TextsArePlacedByTheirAlignment) {
    const TablePreview preview({34}, {48}, 10, 1, 1);
    // Row middle: 440 + 10 x 17 + 30 - 50 = 590.
    EXPECT_EQ(preview.CellTextPlace(1, 1, "LEFT", 200, 100), std::make_pair(350.0, 590.0));
    EXPECT_EQ(preview.CellTextPlace(1, 1, "CENTRE", 200, 100), std::make_pair(320 + 240 + 15 - 100.0, 590.0));
    EXPECT_EQ(preview.CellTextPlace(1, 1, "RIGHT", 200, 100), std::make_pair(320 + 480 + 30 - 200.0, 590.0));
    // Halves round to even: a height of 33 has its middle at 16.
    const TablePreview odd({33}, {47}, 1, 1, 1);
    EXPECT_DOUBLE_EQ(odd.CellTextPlace(1, 1, "CENTRE", 5, 5).first, 320 + 24 + 15 - 2);
    EXPECT_DOUBLE_EQ(odd.CellTextPlace(1, 1, "LEFT", 5, 5).second, 440 + 16 + 30 - 2);
}

}  // namespace
}  // namespace tolva::testing
