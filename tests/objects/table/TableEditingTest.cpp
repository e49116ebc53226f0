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

}  // namespace
}  // namespace tolva::testing
