// The Table Editor's copy: opened from the table, rows and columns inserted
// and deleted in the copy and on the table at once, the selection kept in
// the grid, the size label, and Done writing the copy back while a Cancel
// (no Done) keeps the table's cells but not its counts.
#include <gtest/gtest.h>

#include "objects/button/ctlKOMAButton.h"
#include "objects/table/TableEditing.h"
#include "objects/table/ctlKOMATable.h"
#include "support/OwnedObjectFixture.h"

namespace tolva::testing {
namespace {

class TableEditingTest : public OwnedObjectFixture<ctlKOMATable> {
protected:
    ctlKOMATable& table = object;
};

TEST_F(TableEditingTest, TheCopyIsTheTablesGridAndCellOneIsSelected) {
    TableEditing edit(owner.host, table);
    EXPECT_EQ(edit.Rows(), 1);
    EXPECT_EQ(edit.Columns(), 1);
    EXPECT_EQ(edit.CellAt(1, 1).text, "Text");
    EXPECT_EQ(edit.SelectedText(), "Selected: 1, 1");
    // The height comes first.
    EXPECT_EQ(edit.TableSizeText(), "Table Size: 34 x 48");
    EXPECT_STREQ(edit.DialogName().c_str(), "frmTable");
}

TEST_F(TableEditingTest, InsertsGoToTheTableAtOnceAndDoneWritesTheCopy) {
    ctlKOMAButton button;
    KomaObject* object = &button;
    bool ok = false;
    table.SetObject(1, 1, object, ok);
    TableEditing edit(owner.host, table);
    edit.InsertEditorRow(1);
    edit.InsertEditorColumn(2);
    EXPECT_EQ(table.KOMANumRows(), 2);
    EXPECT_EQ(table.KOMANumColumns(), 2);
    KomaObject* moved = nullptr;
    table.GetObject(2, 1, moved, ok);
    EXPECT_NE(moved, nullptr);
    EXPECT_EQ(edit.TableSizeText(), "Table Size: 68 x 96");
    edit.CellAt(2, 2).text = "Total";
    edit.Done();
    ASSERT_EQ(table.Cells().size(), 4u);
    EXPECT_EQ(table.Cells()[3].text, "Total");
    EXPECT_EQ(table.KOMAHeight(), 68);
    EXPECT_EQ(table.KOMAWidth(), 96);
}

TEST_F(TableEditingTest, WithoutDoneTheCountsRunAheadOfTheCells) {
    {
        TableEditing edit(owner.host, table);
        edit.InsertEditorRow(2);
        edit.CellAt(1, 1).text = "Lost";
    }
    EXPECT_EQ(table.KOMANumRows(), 2);
    ASSERT_EQ(table.Cells().size(), 1u);
    EXPECT_EQ(table.Cells()[0].text, "Text");
    LineList lines;
    bool ok = true;
    table.ReturnResourceFileText(lines, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(owner.host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Error retrieving Table resource file text"}));
}

TEST_F(TableEditingTest, DeletingTheLastRowSelectedLeavesTheSelectionOnTheNewLast) {
    TableEditing edit(owner.host, table);
    edit.InsertEditorRow(2);
    edit.InsertEditorRow(3);
    edit.SelectTableCell(3, 1);
    edit.DeleteEditorRow();
    EXPECT_EQ(edit.Rows(), 2);
    EXPECT_EQ(edit.SelectedRow(), 2);
    EXPECT_EQ(table.KOMANumRows(), 2);
    // One row and one column stay.
    edit.DeleteEditorRow();
    edit.DeleteEditorRow();
    edit.DeleteEditorColumn();
    EXPECT_EQ(edit.Rows(), 1);
    EXPECT_EQ(edit.Columns(), 1);
    EXPECT_EQ(table.KOMANumRows(), 1);
}

TEST_F(TableEditingTest, TheBoxesShowTheSelectedCell) {
    TableEditing edit(owner.host, table);
    edit.CellAt(1, 1).value = 42;
    const TableEditing::Fields boxes = edit.SelectedFields();
    EXPECT_EQ(boxes.rowHeight, "34");
    EXPECT_EQ(boxes.columnWidth, "48");
    EXPECT_EQ(boxes.dataType, "TABLE_TEXT");
    EXPECT_EQ(boxes.value, "42");
    EXPECT_EQ(boxes.text, "Text");
}

TEST_F(TableEditingTest, ApplyKeepsSizesFromTwoTo210) {
    TableEditing edit(owner.host, table);
    TableEditing::Fields boxes = edit.SelectedFields();
    boxes.rowHeight = "1";
    boxes.columnWidth = "500";
    boxes.text = "Hello";
    boxes.value = "-5";
    edit.Apply(boxes);
    EXPECT_EQ(boxes.rowHeight, "2");
    EXPECT_EQ(boxes.columnWidth, "210");
    EXPECT_EQ(edit.RowHeights()[0], 2);
    EXPECT_EQ(edit.ColumnWidths()[0], 210);
    EXPECT_EQ(edit.CellAt(1, 1).text, "Hello");
    EXPECT_EQ(edit.CellAt(1, 1).value, -5);
    EXPECT_EQ(edit.TableSizeText(), "Table Size: 2 x 210");
    // A size that is no number comes back in silence.
    boxes.rowHeight = "tall";
    edit.Apply(boxes);
    EXPECT_EQ(boxes.rowHeight, "2");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(TableEditingTest, AValueThatIsNoNumberEndsApplyWithTheError) {
    TableEditing edit(owner.host, table);
    TableEditing::Fields boxes = edit.SelectedFields();
    boxes.rowHeight = "50";
    boxes.text = "Kept";
    boxes.value = "many";
    edit.Apply(boxes);
    EXPECT_EQ(owner.host.MessageLines(), (std::vector<std::string>{"Tolva Resource Editor: Error 13: Type mismatch"}));
    EXPECT_EQ(edit.RowHeights()[0], 50);
    EXPECT_EQ(edit.CellAt(1, 1).text, "Kept");
    EXPECT_EQ(edit.CellAt(1, 1).value, 0);
}

TEST_F(TableEditingTest, WordsPickedGoIntoTheCopyAtOnce) {
    TableEditing edit(owner.host, table);
    edit.Choose(TableEditing::Field::Font, "MEDIUM_FONT");
    edit.Choose(TableEditing::Field::Alignment, "RIGHT");
    edit.Choose(TableEditing::Field::FontColor, "COLOR_WHITE");
    edit.Choose(TableEditing::Field::BackColor, "COLOR_BLACK");
    edit.Choose(TableEditing::Field::Highlight, "TRUE");
    edit.Choose(TableEditing::Field::HasBitmap, "TRUE");
    const TableCell& cell = edit.CellAt(1, 1);
    EXPECT_EQ(cell.font, "MEDIUM_FONT");
    EXPECT_EQ(cell.alignment, "RIGHT");
    EXPECT_EQ(cell.fontColor, "COLOR_WHITE");
    EXPECT_EQ(cell.backColor, "COLOR_BLACK");
    EXPECT_EQ(cell.highlight, "TRUE");
    EXPECT_EQ(cell.hasBitmap, "TRUE");
}

TEST_F(TableEditingTest, FromObjectToTextTheObjectGoesAndCancelKeepsTheOldType) {
    ctlKOMAButton button;
    KomaObject* object = &button;
    bool ok = false;
    table.SetObject(1, 1, object, ok);
    TableProperties p = table.GetTableProperties();
    p.cells[0].dataType = "TABLE_UI_OBJECT";
    table.SetTableProperties(p);
    {
        TableEditing edit(owner.host, table);
        TableEditing::Fields boxes = edit.SelectedFields();
        edit.ChooseDataType("TABLE_TEXT", boxes);
        EXPECT_EQ(edit.CellAt(1, 1).dataType, "TABLE_TEXT");
    }
    // No Done: the old data type, but no object.
    EXPECT_EQ(table.Cells()[0].dataType, "TABLE_UI_OBJECT");
    EXPECT_EQ(table.CellObjectCount(), 0);
}

TEST_F(TableEditingTest, ObjectEditingSetsTheTypeAndRemovingSetsText) {
    TableEditing edit(owner.host, table);
    edit.PrepareObjectEditing();
    EXPECT_EQ(edit.CellAt(1, 1).dataType, "TABLE_UI_OBJECT");
    edit.Done();
    EXPECT_EQ(table.Cells()[0].dataType, "TABLE_UI_OBJECT");
    EXPECT_EQ(table.CellObjectCount(), 0);
    edit.RemoveObject();
    EXPECT_EQ(edit.CellAt(1, 1).dataType, "TABLE_TEXT");
}

TEST_F(TableEditingTest, ADragKeepsARowAtTwoPixelsAtLeast) {
    TableEditing edit(owner.host, table);
    EXPECT_TRUE(edit.ResizeRowBy(1, -32));
    EXPECT_EQ(edit.RowHeights()[0], 2);
    EXPECT_FALSE(edit.ResizeRowBy(1, -1));
    EXPECT_EQ(edit.RowHeights()[0], 2);
    // No upper limit of its own; half a pixel rounds to even.
    EXPECT_TRUE(edit.ResizeColumnBy(1, 300.5));
    EXPECT_EQ(edit.ColumnWidths()[0], 348);
    EXPECT_FALSE(edit.ResizeRowBy(2, 5));
}

}  // namespace
}  // namespace tolva::testing
