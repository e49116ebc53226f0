// Tables through tolva-res: a table of two rows and two columns on a form,
// its cells' fields away from their defaults and a button and a string in
// two of its cells, goes through resave byte for byte with its header; the
// size and depth read are dropped as a table's record must; the record's
// failures end it or the load.
#include <gtest/gtest.h>

#include "cli/ResProgramFixture.h"

namespace tolva::testing {
namespace {

class TableResave : public FullRecordResave {
protected:
    TableResave() : FullRecordResave("table_full") {}
};

TEST_F(TableResave, ATableWithObjectsInItsCellsGoesThroughByteForByte) { ExpectResavedUnchanged(); }

TEST_F(TableResave, TheHeaderListsTheCellObjectsBehindTheirTable) {
    EXPECT_NE(Golden("table_full.h")
                  .find("#define FORM_1 0\r\n#define TABLE_1 1\r\n#define BUTTON_TABLE_1_CELL_1_1 2\r\n"
                        "#define STRING_TABLE_1_CELL_2_2 3\r\n"),
              std::string::npos);
}

// A table never taken through the Table Editor's Done is written with no
// size, whatever its record said.
TEST_F(TableResave, TheSizeReadIsDroppedAndWrittenAsZero) {
    std::string text = FullWith("(SH)BOUNDS.WIDTH=0\r\n(SH)BOUNDS.HEIGHT=0\r\n~F2\r\n(U)TABLE_NUM_COLUMN",
                                "(SH)BOUNDS.WIDTH=150\r\n(SH)BOUNDS.HEIGHT=170\r\n~F2\r\n(U)TABLE_NUM_COLUMN");
    WriteFile(dir / "in.txt", text);
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "");
    EXPECT_EQ(ReadFile(dir / "out.txt"), Full());
}

TEST_F(TableResave, TwoBitsAreReadAndForgotten) {
    WriteFile(dir / "in.txt", FullWith("(P)TABLE_CELL_BITMAP.FILE=Q_FOUR_BIT,", "(P)TABLE_CELL_BITMAP.FILE=Q_TWO_BIT,"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(ReadFile(dir / "out.txt"), Full());
}

// The first row and column from a record are stored with no test.
TEST_F(TableResave, TheFirstRowFromARecordIsNotTested) {
    WriteFile(dir / "in.txt", FullWith("(U)TABLE_TOP_ROW_NUM=1", "(U)TABLE_TOP_ROW_NUM=2"));
    EXPECT_EQ(Run("resave in.txt out.txt"), 0);
    EXPECT_EQ(err, "");
    EXPECT_NE(ReadFile(dir / "out.txt").find("(U)TABLE_TOP_ROW_NUM=2\r\n"), std::string::npos);
}

// A width more than the count says: the marker is wanted where it stands.
TEST_F(TableResave, AColumnWidthMoreThanCountedFailsTheRecord) {
    WriteFile(dir / "in.txt", FullWith("(U)TABLE_NUM_COLUMN=2", "(U)TABLE_NUM_COLUMN=1"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err.rfind("Tolva Resource Editor: Error on line 67:  (SH)TABLE_COLUMN_WIDTH=90\n", 0), 0u) << err;
}

TEST_F(TableResave, AWordWhereAValueBelongsEndsTheLoad) {
    WriteFile(dir / "in.txt", FullWith("(W)TABLE_VALUE=12", "(W)TABLE_VALUE=twelve"));
    EXPECT_EQ(Run("check in.txt"), 2);
    EXPECT_EQ(err, "load ended: Type mismatch: \"twelve\" is no number\n");
}

// A form's ID among the cells' objects ends the load with its message.
TEST_F(TableResave, AFormInACellIsRefused) {
    WriteFile(dir / "in.txt", FullWith("(U)TABLE_UI_OBJECT_ID=3\r\n", "(U)TABLE_UI_OBJECT_ID=0\r\n"));
    EXPECT_EQ(Run("check in.txt"), 1);
    EXPECT_EQ(err,
              "Tolva Resource Editor: Form embedded in table.  This is not allowed\n"
              "Tolva Resource Editor: Could not load resource file\n");
}

}  // namespace
}  // namespace tolva::testing
