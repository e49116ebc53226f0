// The Table Object Editor's objects: an empty cell opens on a Button, a
// cell's object is copied into the one of its kind, each kind keeps what it
// had, names are never refused, sizes asked for are cut to the cell, and OK
// hands the object shown to the cell at 0, 0.
#include <gtest/gtest.h>

#include "document/ObjectTypes.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/list/ctlKOMAList.h"
#include "objects/string/ctlKOMAString.h"
#include "objects/table/TableObjectEditing.h"
#include "objects/table/ctlKOMATable.h"
#include "support/OwnedObjectFixture.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;
constexpr double kP = 36.59;

class TableObjectEditingTest : public OwnedObjectFixture<ctlKOMATable> {
protected:
    ctlKOMATable& table = object;
    TableObjectEditing edit{owner.host, owner.log, table, kP};
};

TEST_F(TableObjectEditingTest, AnEmptyCellOpensOnADefaultButton) {
    edit.SetObject(1, 1, 34, 48, nullptr);
    EXPECT_EQ(edit.KindWord(), "Button");
    ASSERT_NE(edit.Current(), nullptr);
    EXPECT_EQ(edit.Current()->ScreenType(), type::Button);
    EXPECT_EQ(static_cast<ctlKOMAButton*>(edit.Current())->KOMAControlText(), ctlKOMAButton().KOMAControlText());
    EXPECT_TRUE(edit.Current()->Visible());
    EXPECT_DOUBLE_EQ(edit.Current()->Left(), 120);
    EXPECT_DOUBLE_EQ(edit.Current()->Top(), 120);
}

TEST_F(TableObjectEditingTest, EachKindKeepsWhatItHad) {
    edit.SetObject(1, 1, 34, 48, nullptr);
    static_cast<ctlKOMAButton*>(edit.Current())->KOMAControlText("Kept");
    edit.ChooseKind("String");
    EXPECT_EQ(edit.Current()->ScreenType(), type::String);
    EXPECT_FALSE(edit.Object("Button").Visible());
    edit.ChooseKind("Button");
    EXPECT_EQ(static_cast<ctlKOMAButton*>(edit.Current())->KOMAControlText(), "Kept");
    edit.ChooseKind("Line");
    EXPECT_EQ(edit.KindWord(), "Button");
}

TEST_F(TableObjectEditingTest, AListsItemsGoThroughButNotItsEnable) {
    ctlKOMAList list;
    list.SetList({"Apple", "Fig"}, 0, 2, 0);
    list.KOMAEnable(false);
    KomaObject* incoming = &list;
    bool ok = false;
    table.SetObject(1, 1, incoming, ok);
    // The cell's own list has lost its enable already; set it off there.
    static_cast<ctlKOMAList*>(incoming)->KOMAEnable(false);
    edit.SetObject(1, 1, 34, 48, incoming);
    EXPECT_EQ(edit.KindWord(), "List");
    auto* shown = static_cast<ctlKOMAList*>(edit.Current());
    EXPECT_EQ(shown->Items(), (Lines{"Apple", "Fig"}));
    EXPECT_TRUE(shown->KOMAEnable());
    edit.Ok();
    KomaObject* back = nullptr;
    table.GetObject(1, 1, back, ok);
    EXPECT_EQ(static_cast<ctlKOMAList*>(back)->Items(), (Lines{"Apple", "Fig"}));
}

TEST_F(TableObjectEditingTest, ALargerObjectKeepsItsSizeUntilItAsksForAnother) {
    ctlKOMAButton button;
    button.KOMAWidth(100);
    button.KOMAHeight(50);
    KomaObject* incoming = &button;
    bool ok = false;
    table.SetObject(1, 1, incoming, ok);
    edit.SetObject(1, 1, 34, 48, incoming);
    EXPECT_DOUBLE_EQ(edit.Current()->Width(), 100 * kP);
    EXPECT_EQ(edit.Current()->KOMAWidth(), 100);
    // A width row of 90 is asked for: the cell's 48 is the most.
    PropertyArray rows = edit.Rows();
    rows.At(3, 4) = PropertyCell(std::string("90"));
    edit.ApplyRows(rows);
    EXPECT_EQ(edit.Current()->KOMAWidth(), 48);
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(TableObjectEditingTest, NamesAreNeverRefusedHere) {
    owner.takenNames.insert("TWIN");
    edit.SetObject(1, 1, 34, 48, nullptr);
    PropertyArray rows = edit.Rows();
    rows.At(3, 1) = PropertyCell(std::string("TWIN"));
    edit.ApplyRows(rows);
    EXPECT_EQ(edit.Current()->KOMAName(), "TWIN");
    EXPECT_TRUE(owner.host.messages.empty());
}

TEST_F(TableObjectEditingTest, ARefusedArrayIsTold) {
    edit.SetObject(1, 1, 34, 48, nullptr);
    edit.ApplyRows(PropertyArray(3));
    EXPECT_EQ(owner.host.MessageLines(), (Lines{"Table Object Editor: Could not change object properties"}));
}

TEST_F(TableObjectEditingTest, OkPutsTheObjectAtZeroZeroInTheCell) {
    edit.SetObject(1, 1, 34, 48, nullptr);
    edit.ChooseKind("String");
    PropertyArray rows = edit.Rows();
    rows.At(3, 2) = PropertyCell(std::string("50"));
    edit.ApplyRows(rows);
    EXPECT_EQ(edit.Current()->KOMABoundsX(), 50);
    edit.Ok();
    KomaObject* placed = nullptr;
    bool ok = false;
    table.GetObject(1, 1, placed, ok);
    ASSERT_NE(placed, nullptr);
    EXPECT_EQ(placed->ScreenType(), type::String);
    EXPECT_EQ(placed->KOMABoundsX(), 0);
}

}  // namespace
}  // namespace tolva::testing
