// The form's record: written line by line by the real form on a real screen,
// read back by its parser, and applied to a new form; the whole round trip
// through the file operations.
#include <algorithm>
#include <filesystem>

#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/RuntimeFailure.h"
#include "objects/form/FormRecord.h"
#include "resfile/LoadFixture.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"
#include "resfile/ResourceReader.h"

namespace tolva::testing {
namespace {

namespace fs = std::filesystem;

class FormRecordTest : public ResourceFileTest {
protected:
    // The record as the form writes it, banner included.
    std::vector<std::string> RecordOf(ctlKOMAForm& form) {
        LineList lines;
        bool ok = false;
        form.ReturnResourceFileText(lines, ok);
        EXPECT_TRUE(ok);
        return lines;
    }

    // The lines of the record from "~F7" to the end.
    std::vector<std::string> PairsOf(ctlKOMAForm& form) {
        auto lines = RecordOf(form);
        auto f7 = std::find(lines.begin(), lines.end(), "~F7");
        return {f7, lines.end()};
    }

    // A real file of a short path, as the bitmap's 8.3 rule needs, with a
    // picture size the host gives for it.
    std::string ShortBitmap(const std::string& dir, const std::string& name) {
        const fs::path folder = fs::path("/tmp") / dir;
        fs::create_directories(folder);
        const std::string file = (folder / name).string();
        WriteBytes(file, "BM");
        host.pictures[file] = {20, 14};
        return file;
    }

    // Moves the test into a directory of its own that holds a FORM.BMP, the
    // file that the record of a form without a bitmap names; the working
    // directory is where a relative bitmap name is looked up.
    void InDirectoryWithFormBmp(const std::string& dir) {
        const fs::path folder = fs::path("/tmp") / dir;
        fs::create_directories(folder);
        WriteBytes((folder / "FORM.BMP").string(), "BM");
        host.pictures["FORM.BMP"] = {10, 12};
        previousDirectory_ = fs::current_path();
        fs::current_path(folder);
    }
    void TearDown() override {
        if (!previousDirectory_.empty()) fs::current_path(previousDirectory_);
        ResourceFileTest::TearDown();
    }
    fs::path previousDirectory_;

    static bool Has(const std::vector<std::string>& lines, const std::string& line) {
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }

    // Saves the screen and loads the file onto a cleared screen, as Open does.
    bool SaveAndReload() {
        EXPECT_TRUE(SaveResourceFile(screen, path));
        screen.ClearScreen();
        host.ClearRecord();
        screen.StartLoading();
        const bool ok = LoadResourceFile(screen, path);
        screen.StopLoading();
        return ok;
    }

    // Parses a record text (the lines behind "#FORM") with the form's parser.
    bool Parse(const std::vector<std::string>& lines, LoadedRecord& record) {
        ResourceReader reader = ResourceReader::FromText(Text(lines));
        RecordReader in(reader, host);
        return ParseFormRecord(in, record);
    }

    // The lines of the worked example's form, "#FORM" left out.
    static std::vector<std::string> FormBody() {
        return {"NAME=FORM_1", "ID=0", "~F0", "(B)OBJECT.TYPE=FORM", "~F1", "//0 - 159",
                "(SH)BOUNDS.X=0", "(SH)BOUNDS.Y=0", "//0 - 160", "(SH)BOUNDS.WIDTH=160",
                "(SH)BOUNDS.HEIGHT=160", "~F2", "(U)FOCUSED_OBJECT=0", "~F3",
                "(B)FORM_STYLE=NORMAL", "~F4", "(S)FORM_TITLE=Form Title", "~F5",
                "(SH)FORM_BITMAP.X=7", "(SH)FORM_BITMAP.Y=3", "(SH)FORM_BITMAP.WIDTH=10",
                "(SH)FORM_BITMAP.HEIGHT=12", "(P)FORM_BITMAP.FILE=Q_FOUR_BIT,FORM.BMP", "~F6",
                "(U)NO_OF_OBJECTS=0", "~F7", "#END_FORM"};
    }
    static std::vector<std::string> Replace(std::vector<std::string> lines,
                                            const std::string& from, const std::string& to) {
        std::replace(lines.begin(), lines.end(), from, to);
        return lines;
    }
};

// --- written ---------------------------------------------------------------------------

TEST_F(FormRecordTest, TheWorkedExamplesFormIsWrittenByteForByte) {
    ASSERT_TRUE(DrawForm());
    ASSERT_EQ(Form(1)->KOMAName(), "FORM_1");
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), Golden("worked_example_form.txt"));
    ASSERT_TRUE(SaveHeaderFile(screen, path));
    EXPECT_EQ(ReadBytes(path), Golden("worked_example_form.h"));
}

TEST_F(FormRecordTest, NoObjectsAndNoMenusWriteACountOfZeroThenTheLastMarkerThenTheEnd) {
    ASSERT_TRUE(DrawForm());
    const auto lines = RecordOf(*Form(1));
    ASSERT_GE(lines.size(), 3u);
    EXPECT_EQ(std::vector<std::string>(lines.end() - 3, lines.end()),
              (std::vector<std::string>{"(U)NO_OF_OBJECTS=0", "~F7", "#END_FORM"}));
}

TEST_F(FormRecordTest, TheFocusedObjectIsWrittenAsItsIdAndAsZeroOnceDeleted) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 20, 40, 40, 14));
    ctlKOMAForm& form = *Form(1);
    form.KOMAFocusedObject(Obj(type::Button, 1)->KOMAName());
    Obj(type::Button, 1)->KOMAObjectID(7);
    EXPECT_TRUE(Has(RecordOf(form), "(U)FOCUSED_OBJECT=7"));

    ASSERT_TRUE(screen.DeleteObject(type::Button, Obj(type::Button, 1)->KOMAName()));
    EXPECT_EQ(form.KOMAFocusedObject(), "");
    EXPECT_TRUE(Has(RecordOf(form), "(U)FOCUSED_OBJECT=0"));
}

TEST_F(FormRecordTest, AfterADeletionThePairsNoLongerFollowTheOrderOfDrawing) {
    ASSERT_TRUE(DrawForm());
    for (int i = 0; i < 3; ++i) ASSERT_TRUE(Draw(type::Button, 10, 20 + 20 * i, 40, 14));
    const std::string first = Obj(type::Button, 1)->KOMAName();
    const std::string second = Obj(type::Button, 2)->KOMAName();
    const std::string third = Obj(type::Button, 3)->KOMAName();
    ASSERT_TRUE(screen.DeleteObject(type::Button, first));
    // The third object moved into the first one's row; the IDs are those the
    // deletion gave out again, in the order of the button array.
    int secondId = -1;
    int thirdId = -1;
    ASSERT_TRUE(screen.GetObjectID(second, secondId));
    ASSERT_TRUE(screen.GetObjectID(third, thirdId));
    ASSERT_NE(secondId, thirdId);
    EXPECT_EQ(PairsOf(*Form(1)),
              (std::vector<std::string>{"~F7", "(U)OBJECT_ID=" + IntToText(thirdId),
                                        "(B)OBJECT_TYPE=CONTROL",
                                        "(U)OBJECT_ID=" + IntToText(secondId),
                                        "(B)OBJECT_TYPE=CONTROL", "#END_FORM"}));
}

TEST_F(FormRecordTest, MenusComeFirstAndTheCountHoldsRowsAndMenus) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::String, 10, 30, 40, 12));
    Obj(type::String, 1)->KOMAObjectID(5);
    ctlKOMAForm& form = *Form(1);
    form.SetMenus({{"Open"}, {"Cut", "Paste"}}, {"MENU_FILE", "MENU_EDIT"});
    form.SetMenuIDs(1);
    const auto lines = RecordOf(form);
    EXPECT_TRUE(Has(lines, "(U)NO_OF_OBJECTS=3"));
    EXPECT_EQ(PairsOf(form),
              (std::vector<std::string>{"~F7", "(U)OBJECT_ID=1", "(B)OBJECT_TYPE=MENU",
                                        "(U)OBJECT_ID=2", "(B)OBJECT_TYPE=MENU",
                                        "(U)OBJECT_ID=5", "(B)OBJECT_TYPE=STRING",
                                        "#END_FORM"}));
}

TEST_F(FormRecordTest, TheMenuIdsOfTheFormAreThoseOfTheMenuRecordsOfTheFile) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(Draw(type::Button, 20, 40, 40, 14));
    Form(1)->SetMenus({{"Open"}, {"Cut"}}, {"MENU_FILE", "MENU_EDIT"});
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const auto lines = FileLines(ReadBytes(path));
    std::vector<std::string> listed;
    std::vector<std::string> recorded;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        if (lines[i + 1] == "(B)OBJECT_TYPE=MENU") listed.push_back(lines[i].substr(13));
        if (lines[i] == "#MENU") recorded.push_back(lines[i + 2].substr(3));
    }
    ASSERT_EQ(listed.size(), 2u);
    EXPECT_EQ(listed, recorded);
}

TEST_F(FormRecordTest, ATitleHoldingTwoSlashesIsWrittenWholeAndComesBackCut) {
    ASSERT_TRUE(DrawForm());
    Form(1)->KOMAFormTitle("a//b");
    EXPECT_TRUE(Has(RecordOf(*Form(1)), "(S)FORM_TITLE=a//b"));
    InDirectoryWithFormBmp("TOLVAFR3");
    ASSERT_TRUE(SaveAndReload());
    ASSERT_EQ(screen.NumForms(), 1);
    EXPECT_EQ(Form(1)->KOMAFormTitle(), "a");
}

TEST_F(FormRecordTest, StyleOneStillWritesTitleAndBitmap) {
    ASSERT_TRUE(DrawForm());
    Form(1)->KOMAFormStyle(1);
    const auto lines = RecordOf(*Form(1));
    EXPECT_TRUE(Has(lines, "(B)FORM_STYLE=BACKGROUND"));
    EXPECT_TRUE(Has(lines, "(S)FORM_TITLE=Form Title"));
    EXPECT_TRUE(Has(lines, "(P)FORM_BITMAP.FILE=Q_FOUR_BIT,FORM.BMP"));
    EXPECT_TRUE(Has(lines, "(SH)FORM_BITMAP.WIDTH=10"));
}

TEST_F(FormRecordTest, AChosenBitmapIsNamedWithoutItsDirectoryAndItsDepth) {
    ASSERT_TRUE(DrawForm());
    ctlKOMAForm& form = *Form(1);
    const std::string file = ShortBitmap("TOLVAFR1", "LOGO.BMP");
    form.KOMABitmapFile(file);
    ASSERT_EQ(form.KOMABitmapFile(), file) << ::testing::PrintToString(host.MessageLines());
    auto lines = RecordOf(form);
    EXPECT_TRUE(Has(lines, "(P)FORM_BITMAP.FILE=Q_FOUR_BIT,LOGO.BMP"));
    EXPECT_FALSE(Has(lines, "//You did not specify a bitmap so this data has been put here by "
                            "default"));
    EXPECT_FALSE(Has(lines, "//Could not find this bitmap - make sure it is in the specified path "
                            "before compiling"));

    form.KOMABitmapDepth(2);
    EXPECT_TRUE(Has(RecordOf(form), "(P)FORM_BITMAP.FILE=Q_TWO_BIT,LOGO.BMP"));
}

TEST_F(FormRecordTest, ABitmapGoneFromDiskIsWrittenBehindItsWarning) {
    ASSERT_TRUE(DrawForm());
    ctlKOMAForm& form = *Form(1);
    const std::string file = ShortBitmap("TOLVAFR2", "LOGO.BMP");
    form.KOMABitmapFile(file);
    ASSERT_EQ(form.KOMABitmapFile(), file);
    host.pictures.clear();
    fs::remove(file);
    const auto lines = RecordOf(form);
    auto at = std::find(lines.begin(), lines.end(), "(P)FORM_BITMAP.FILE=Q_FOUR_BIT,LOGO.BMP");
    ASSERT_NE(at, lines.end());
    EXPECT_EQ(*(at - 1),
              "//Could not find this bitmap - make sure it is in the specified path before "
              "compiling");
}

// --- read --------------------------------------------------------------------------------

TEST_F(FormRecordTest, TheParserFillsTheEightGroups) {
    LoadedRecord record;
    ASSERT_TRUE(Parse(Replace(FormBody(), "(U)NO_OF_OBJECTS=0", "(U)NO_OF_OBJECTS=1"), record));
    EXPECT_EQ(record.name, "FORM_1");
    EXPECT_EQ(record.id, 0);
    EXPECT_EQ(record.kindWord, "FORM");
    EXPECT_EQ(record.numObjects, 1);
    EXPECT_EQ(record.groups,
              (GroupList{{"FORM_1", "0"},
                         {"0", "0", "160", "160"},
                         {"0"},
                         {"NORMAL"},
                         {"Form Title"},
                         {"7", "3", "10", "12", "FORM.BMP"},
                         {"1"},
                         {"4"}}));
    EXPECT_TRUE(record.objectPairs.empty());  // the count is not checked against the pairs
}

TEST_F(FormRecordTest, WithoutABitmapBlockTheFileIsEmptyTheNumbersZeroAndTheDepthZero) {
    auto lines = FormBody();
    auto from = std::find(lines.begin(), lines.end(), "(SH)FORM_BITMAP.X=7");
    auto to = std::find(lines.begin(), lines.end(), "~F6");
    lines.erase(from, to);
    LoadedRecord record;
    ASSERT_TRUE(Parse(lines, record));
    EXPECT_EQ(record.groups[5], (ValueGroup{"0", "0", "0", "0", ""}));
    EXPECT_EQ(record.groups[7], ValueGroup{"0"});
}

TEST_F(FormRecordTest, TheTwoBitWordGivesDepthTwo) {
    LoadedRecord record;
    ASSERT_TRUE(Parse(Replace(FormBody(), "(P)FORM_BITMAP.FILE=Q_FOUR_BIT,FORM.BMP",
                              "(P)FORM_BITMAP.FILE=Q_TWO_BIT,LOGO.BMP"),
                      record));
    EXPECT_EQ(record.groups[5][4], "LOGO.BMP");
    EXPECT_EQ(record.groups[7], ValueGroup{"2"});
}

TEST_F(FormRecordTest, AnotherDepthWordFailsAtItsLine) {
    LoadedRecord record;
    EXPECT_FALSE(Parse(Replace(FormBody(), "(P)FORM_BITMAP.FILE=Q_FOUR_BIT,FORM.BMP",
                               "(P)FORM_BITMAP.FILE=Q_EIGHT_BIT,FORM.BMP"),
                       record));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{
                  "Tolva Resource Editor: Error on line 23:  (P)FORM_BITMAP.FILE=Q_EIGHT_BIT,FORM.BMP"});
}

TEST_F(FormRecordTest, PairsAreKeptAsTextUntilTheClosingWord) {
    auto lines = FormBody();
    lines.insert(lines.end() - 1, {"(U)OBJECT_ID=12", "(B)OBJECT_TYPE=CONTROL",
                                   "(U)OBJECT_ID=3 // note", "(B)OBJECT_TYPE=ANYTHING"});
    LoadedRecord record;
    ASSERT_TRUE(Parse(lines, record));
    EXPECT_EQ(record.objectPairs,
              (std::vector<std::pair<std::string, std::string>>{{"12", "CONTROL"},
                                                                {"3", "ANYTHING"}}));
}

TEST_F(FormRecordTest, APairWithoutItsTypeFailsAtTheLineThatStandsThere) {
    auto lines = FormBody();
    lines.insert(lines.end() - 1, {"(U)OBJECT_ID=12"});
    LoadedRecord record;
    EXPECT_FALSE(Parse(lines, record));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Tolva Resource Editor: Error on line 28:  #END_FORM"});
}

TEST_F(FormRecordTest, TheFocusedObjectIsASixteenBitNumber) {
    LoadedRecord record;
    EXPECT_THROW(
        Parse(Replace(FormBody(), "(U)FOCUSED_OBJECT=0", "(U)FOCUSED_OBJECT=40000"), record),
        RuntimeFailure);
    EXPECT_THROW(Parse(Replace(FormBody(), "(U)NO_OF_OBJECTS=0", "(U)NO_OF_OBJECTS=x"), record),
                 RuntimeFailure);
    EXPECT_TRUE(host.messages.empty());
}

// --- applied ------------------------------------------------------------------------------

TEST_F(FormRecordTest, GroupsOfAnotherShapeChangeNothing) {
    ASSERT_TRUE(DrawForm());
    ctlKOMAForm& form = *Form(1);
    const GroupList good{{"FORM_X", "3"}, {"1", "2", "100", "80"}, {"0"}, {"BITMAP_DIALOG"},
                         {"T"}, {"7", "3", "10", "12", ""}, {"0"}, {"2"}};
    auto expectRefused = [&](GroupList groups) {
        bool ok = true;
        form.SetFromResText(groups, ok);
        EXPECT_FALSE(ok);
        EXPECT_EQ(form.KOMAName(), "FORM_1");
        EXPECT_EQ(form.KOMAWidth(), 160);
    };
    GroupList seven = good;
    seven.pop_back();
    expectRefused(seven);
    GroupList nine = good;
    nine.push_back({"x"});
    expectRefused(nine);
    GroupList shortName = good;
    shortName[0] = {"FORM_X"};
    expectRefused(shortName);
    GroupList threeBounds = good;
    threeBounds[1].pop_back();
    expectRefused(threeBounds);
    GroupList fourBitmap = good;
    fourBitmap[5].pop_back();
    expectRefused(fourBitmap);
}

TEST_F(FormRecordTest, AppliedGroupsSetEverythingButTheId) {
    ASSERT_TRUE(DrawForm());
    ctlKOMAForm& form = *Form(1);
    form.KOMAObjectID(9);
    bool ok = false;
    form.SetFromResText({{"FORM_X", "3"}, {"1", "2", "100", "80"}, {"0"}, {"BITMAP_DIALOG"},
                         {"T"}, {"8", "4", "11", "13", ""}, {"0"}, {"2"}},
                        ok);
    ASSERT_TRUE(ok);
    EXPECT_EQ(form.KOMAName(), "FORM_X");
    EXPECT_EQ(form.KOMAObjectID(), 9);
    EXPECT_EQ(form.KOMABoundsX(), 1);
    EXPECT_EQ(form.KOMABoundsY(), 2);
    EXPECT_EQ(form.KOMAWidth(), 100);
    EXPECT_EQ(form.KOMAHeight(), 80);
    EXPECT_EQ(form.KOMAFormStyleWord(), "BITMAP_DIALOG");
    EXPECT_EQ(form.KOMAFormTitle(), "T");
    EXPECT_EQ(form.KOMABitmapX(), 8);
    EXPECT_EQ(form.KOMABitmapY(), 4);
    EXPECT_EQ(form.KOMABitmapWidth(), 11);
    EXPECT_EQ(form.KOMABitmapHeight(), 13);
    EXPECT_EQ(form.KOMABitmapDepth(), 2);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(FormRecordTest, AbsentBitmapFileGivesItsMessageAndNoBitmap) {
    ASSERT_TRUE(DrawForm());
    ctlKOMAForm& form = *Form(1);
    bool ok = false;
    form.SetFromResText({{"FORM_1", "0"}, {"0", "0", "160", "160"}, {"0"}, {"NORMAL"},
                         {"Form Title"}, {"7", "3", "10", "12", "NOWHERE.BMP"}, {"0"}, {"0"}},
                        ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(form.KOMABitmapFile(), "");
    EXPECT_EQ(form.KOMABitmapDepth(), 4);  // depth 0 of a record without a block is ignored
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Tolva Resource Editor: Bitmap not found"});
}

// --- round trip ---------------------------------------------------------------------------

TEST_F(FormRecordTest, AFormWithoutBitmapMeetsBitmapNotFoundOnReloadUnlessFormBmpStands) {
    ASSERT_TRUE(DrawForm());
    ASSERT_TRUE(SaveAndReload());
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Tolva Resource Editor: Bitmap not found"});
    ASSERT_EQ(screen.NumForms(), 1);
    EXPECT_EQ(Form(1)->KOMABitmapFile(), "");
}

TEST_F(FormRecordTest, ASavedFormComesBackAsItWasAndIsWrittenTheSameAgain) {
    InDirectoryWithFormBmp("TOLVAFR4");
    ASSERT_TRUE(Draw(type::Form, 10, 20, 120, 100));
    ctlKOMAForm& form = *Form(1);
    form.KOMAName("FORM_MAIN");
    form.KOMAFormStyle(2);
    form.KOMAFormTitle("Main");
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);

    ASSERT_TRUE(SaveAndReload()) << ::testing::PrintToString(host.MessageLines());
    EXPECT_TRUE(host.messages.empty()) << ::testing::PrintToString(host.MessageLines());
    ASSERT_EQ(screen.NumForms(), 1);
    ctlKOMAForm& back = *Form(1);
    EXPECT_EQ(back.KOMAName(), "FORM_MAIN");
    EXPECT_EQ(back.KOMABoundsX(), 10);
    EXPECT_EQ(back.KOMABoundsY(), 20);
    EXPECT_EQ(back.KOMAWidth(), 120);
    EXPECT_EQ(back.KOMAHeight(), 100);
    EXPECT_EQ(back.KOMAFormStyleWord(), "BITMAP_DIALOG");
    EXPECT_EQ(back.KOMAFormTitle(), "Main");
    // The default FORM.BMP that the record named is now the form's bitmap.
    EXPECT_EQ(back.KOMABitmapFile(), "FORM.BMP");

    // Saved again, the file differs only where the bitmap is now a chosen one:
    // the default's comment is gone.
    ASSERT_TRUE(SaveResourceFile(screen, path));
    std::string expected = first;
    const std::string comment =
        "//You did not specify a bitmap so this data has been put here by default\r\n";
    expected.erase(expected.find(comment), comment.size());
    EXPECT_EQ(ReadBytes(path), expected);
}

TEST_F(FormRecordTest, TheFocusedObjectIsReadAndDropped) {
    InDirectoryWithFormBmp("TOLVAFR5");
    auto lines = FormBody();
    lines.insert(lines.begin(), "#FORM");
    WriteBytes(path, Text(Replace(lines, "(U)FOCUSED_OBJECT=0", "(U)FOCUSED_OBJECT=1")));
    screen.StartLoading();
    ASSERT_TRUE(LoadResourceFile(screen, path));
    screen.StopLoading();
    ASSERT_EQ(screen.NumForms(), 1);
    EXPECT_EQ(Form(1)->KOMAFocusedObject(), "");
}

// --- loader edge cases through the form's own parser ---------------------------------------

TEST_F(FormRecordTest, AnIdAboveSixteenBitsEndsTheLoadSilently) {
    WriteBytes(path, Text(Replace(
                         [] {
                             auto l = FormBody();
                             l.insert(l.begin(), "#FORM");
                             return l;
                         }(),
                         "ID=0", "ID=40000")));
    screen.StartLoading();
    EXPECT_THROW(LoadResourceFile(screen, path), RuntimeFailure);
    screen.StopLoading();
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(screen.NumForms(), 0);
}

TEST_F(FormRecordTest, TwoFormsOfOneNameRenameTheSecondAfterTheFirstOnesId) {
    InDirectoryWithFormBmp("TOLVAFR6");
    auto record = [](const std::string& id) {
        auto l = Replace(FormBody(), "ID=0", "ID=" + id);
        l.insert(l.begin(), "#FORM");
        return l;
    };
    auto lines = record("3");
    auto second = record("4");
    lines.insert(lines.end(), second.begin(), second.end());
    WriteBytes(path, Text(lines));
    screen.StartLoading();
    ASSERT_TRUE(LoadResourceFile(screen, path));
    screen.StopLoading();
    // The second is named after the row of the first: its ID, 3.
    EXPECT_EQ(Names(type::Form), (std::vector<std::string>{"FORM_1", "OBJECTSAMENAME_3"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{
                  "Tolva Resource Editor: The resource file specifies more than one object "
                  "having the same name.  The name of the succeeding object has been changed to "
                  "OBJECTSAMENAME_3"});
}

TEST_F(FormRecordTest, ABrokenFormRecordIsToldAndTheLoadGoesOnAtTheNextLine) {
    auto lines = FormBody();
    lines.insert(lines.begin(), "#FORM");
    lines = Replace(lines, "~F3", "~F4");
    WriteBytes(path, Text(lines));
    screen.StartLoading();
    EXPECT_FALSE(LoadResourceFile(screen, path));
    screen.StopLoading();
    const auto messages = host.MessageLines();
    ASSERT_GE(messages.size(), 2u);
    EXPECT_EQ(messages[0], "Tolva Resource Editor: Error on line 15:  ~F4");
    EXPECT_EQ(messages[1], "Load Error: Could not load form object");
}

}  // namespace
}  // namespace tolva::testing
