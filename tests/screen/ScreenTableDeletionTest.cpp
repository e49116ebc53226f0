// Deleting a table that is not the last one: the last table moves into the
// gap by the copy of a whole table, which takes place, size, three flags,
// the style, the grid and the cells' objects (each by its cell copy), and
// leaves the rest as the object in the gap had it.
#include "screen/ScreenFixture.h"

#include "objects/list/ctlKOMAList.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva::testing {
namespace {

using ScreenTableDeletion = ScreenTest;

TEST_F(ScreenTableDeletion, TheLastTableMovesIntoTheGapByTheTablesCopy) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Table, 10, 10, 20, 20));
    ASSERT_TRUE(Draw(type::Table, 10, 80, 20, 20));
    auto* first = static_cast<ctlKOMATable*>(Obj(type::Table, 1));
    auto* last = static_cast<ctlKOMATable*>(Obj(type::Table, 2));
    first->KOMABackColor(11);
    first->KOMAScrollbar(false);
    last->KOMABackColor(7);
    last->KOMATableStyle(2);
    last->KOMAEnable(false);
    last->KOMAHighlightEnable(false);
    TableProperties grid = last->GetTableProperties();
    grid.cells[0].text = "Moved";
    last->SetTableProperties(grid);
    ctlKOMAList list;
    list.SetList({"A", "B"}, 1, 2, 0);
    KomaObject* incoming = &list;
    bool ok = false;
    last->SetObject(1, 1, incoming, ok);
    static_cast<ctlKOMAList*>(incoming)->SetList({"A", "B"}, 1, 2, 0);

    ASSERT_TRUE(screen.DeleteObject(type::Table, "TABLE_1"));
    ASSERT_EQ(screen.Count(type::Table), 1);
    auto* kept = static_cast<ctlKOMATable*>(Obj(type::Table, 1));
    EXPECT_EQ(kept->KOMAName(), "TABLE_2");
    EXPECT_EQ(kept->KOMATableStyleWord(), "TABLE_STYLE_2");
    EXPECT_FALSE(kept->KOMAEnable());
    EXPECT_EQ(kept->Cells()[0].text, "Moved");
    // Not copied: the colour and the scroll bar of the table that was in
    // the gap stay, and so does its highlight word.
    EXPECT_EQ(kept->KOMABackColorWord(), "COLOR_GREY2");
    EXPECT_FALSE(kept->KOMAScrollbar());
    EXPECT_TRUE(kept->KOMAHighlightEnable());
    // The cell's list came by its cell copy: items, but no selection.
    KomaObject* object = nullptr;
    kept->GetObject(1, 1, object, ok);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(static_cast<ctlKOMAList*>(object)->Items(), (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(static_cast<ctlKOMAList*>(object)->KOMASelectedItem(), -1);
}

}  // namespace
}  // namespace tolva::testing
