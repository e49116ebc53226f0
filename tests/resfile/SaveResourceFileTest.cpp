// The resource text as a whole: its order of sections, the IDs given just
// before writing, and the bytes of whole files.
#include "document/RuntimeFailure.h"
#include "resfile/Banners.h"
#include "resfile/ResourceFileFixture.h"
#include "resfile/ResourceFiles.h"

namespace tolva::testing {
namespace {

using SaveResourceFileTest = ResourceFileTest;

TEST_F(SaveResourceFileTest, AnEmptyDocumentWritesTheThreeBannerLinesAndNothingElse) {
    EXPECT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), Golden("empty_design.txt"));
    EXPECT_EQ(FileLines(ReadBytes(path)).size(), 3u);
}

TEST_F(SaveResourceFileTest, ADesignWithMenusAndATableIsWrittenByteForByte) {
    BuildDesignWithMenus();
    EXPECT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), Golden("design_with_menus.txt"));
}

TEST_F(SaveResourceFileTest, TheRecordsOfATablesCellsFollowItDirectlyBeforeAnyMenu) {
    AddForm("FORM_1")->SetMenus({{"Open"}}, {"MENU_FILE"});
    AddTable("TABLE_1")->cells = {{"CELL_A", "7"}, {"CELL_B", "8"}};
    AddTable("TABLE_2")->cells = {{"CELL_C", "9"}};
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const auto lines = FileLines(ReadBytes(path));
    const std::vector<std::string> expected = {
        "#RECORD FORM_1 ID=0", "#RECORD TABLE_1 ID=1", "#CELL CELL_A", "ID=7", "#CELL CELL_B",
        "ID=8",                "#RECORD TABLE_2 ID=2", "#CELL CELL_C", "ID=9", kRecordSeparator,
        "//----------- MENU_FILE ------------------------------------------"};
    ASSERT_GE(lines.size(), 3 + expected.size());
    EXPECT_EQ(std::vector<std::string>(lines.begin() + 3, lines.begin() + 3 + expected.size()),
              expected);
}

TEST_F(SaveResourceFileTest, SectionsGoOutInTheirFixedOrderAndObjectsInArrayOrder) {
    // Added in an order of their own, to show that the file does not follow
    // the order of creation.
    const int kinds[] = {type::SchedulerLine, type::Line,         type::Scrollbar,
                         type::PopupTrigger,  type::Field,        type::List,
                         type::Textbox,       type::RepeatButton, type::PushButton,
                         type::Checkbox,      type::Bitmap,       type::String,
                         type::Button};
    for (int kind : kinds) {
        Add(kind, ScreenTypeNamePrefix(kind) + "1");
        Add(kind, ScreenTypeNamePrefix(kind) + "2");
    }
    AddTable("TABLE_1");
    AddForm("FORM_1")->SetMenus({{}}, {"MENU_1"});
    AddForm("FORM_2");
    ASSERT_TRUE(SaveResourceFile(screen, path));

    std::vector<std::string> records;
    for (const auto& line : FileLines(ReadBytes(path)))
        if (line.rfind("#RECORD ", 0) == 0 || line.rfind("NAME=MENU", 0) == 0)
            records.push_back(line.substr(0, line.find(" ID=")));
    const std::vector<std::string> expected = {
        "#RECORD FORM_1",         "#RECORD FORM_2",         "#RECORD TABLE_1",
        "NAME=MENU_1",            "#RECORD BUTTON_1",       "#RECORD BUTTON_2",
        "#RECORD STRING_1",       "#RECORD STRING_2",       "#RECORD BITMAP_1",
        "#RECORD BITMAP_2",       "#RECORD CHECKBOX_1",     "#RECORD CHECKBOX_2",
        "#RECORD PUSHBUTTON_1",   "#RECORD PUSHBUTTON_2",   "#RECORD REPEATBUTTON_1",
        "#RECORD REPEATBUTTON_2", "#RECORD TEXTBOX_1",      "#RECORD TEXTBOX_2",
        "#RECORD LIST_1",         "#RECORD LIST_2",         "#RECORD FIELD_1",
        "#RECORD FIELD_2",        "#RECORD POPUPTRIGGER_1", "#RECORD POPUPTRIGGER_2",
        "#RECORD SCROLLBAR_1",    "#RECORD SCROLLBAR_2",    "#RECORD LINE_1",
        "#RECORD LINE_2",         "#RECORD SCHEDULERLINE_1",      "#RECORD SCHEDULERLINE_2"};
    EXPECT_EQ(records, expected);
}

TEST_F(SaveResourceFileTest, IdsAreDistributedBeforeTheFirstLineIsWritten) {
    KomaObject* button = Add(type::Button, "BUTTON_1");
    AddForm("FORM_1");
    button->KOMAObjectID(30);  // stale: the save gives out IDs anew
    ClearRecords();
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_TRUE(Logged("Object IDs distributed"));
    const auto lines = FileLines(ReadBytes(path));
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[3], "#RECORD FORM_1 ID=0");
    EXPECT_EQ(lines[4], "#RECORD BUTTON_1 ID=1");
    EXPECT_EQ(button->KOMAObjectID(), 1);
}

TEST_F(SaveResourceFileTest, TwoSavesInARowGiveTheSameIds) {
    BuildDesignWithMenus();
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const std::string first = ReadBytes(path);
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), first);
}

TEST_F(SaveResourceFileTest, MenuRecordsCarryTheIdsTheirFormReports) {
    AddForm("FORM_1")->SetMenus({{"A"}, {"B"}}, {"MENU_A", "MENU_B"});
    AddForm("FORM_2")->SetMenus({{"C"}}, {"MENU_C"});
    ASSERT_TRUE(SaveResourceFile(screen, path));
    std::vector<std::string> written;
    const auto lines = FileLines(ReadBytes(path));
    for (size_t i = 0; i + 1 < lines.size(); ++i)
        if (lines[i].rfind("NAME=MENU_", 0) == 0) written.push_back(lines[i] + " " + lines[i + 1]);
    std::vector<std::string> reported;
    for (int f = 1; f <= 2; ++f) {
        std::vector<std::vector<std::string>> items;
        std::vector<std::string> names;
        std::vector<int> ids;
        Form(f)->GetMenus(items, names, ids);
        for (size_t m = 0; m < names.size(); ++m)
            reported.push_back("NAME=" + names[m] + " ID=" + IntToText(ids[m]));
    }
    EXPECT_EQ(written, reported);
    EXPECT_EQ(written, (std::vector<std::string>{"NAME=MENU_A ID=2", "NAME=MENU_B ID=3",
                                                 "NAME=MENU_C ID=4"}));
}

TEST_F(SaveResourceFileTest, AnExistingFileIsEmptiedFirst) {
    WriteBytes(path, std::string(5000, 'x'));
    ASSERT_TRUE(SaveResourceFile(screen, path));
    EXPECT_EQ(ReadBytes(path), Golden("empty_design.txt"));
}

TEST_F(SaveResourceFileTest, APathThatCannotBeWrittenIsARunTimeFailure) {
    EXPECT_THROW(SaveResourceFile(screen, ::testing::TempDir() + "no_such_dir/x.txt"),
                 RuntimeFailure);
}

TEST_F(SaveResourceFileTest, WhatAnObjectGivesGoesOutEvenWhenItAnswersFalse) {
    class HalfRecord : public FakeRecordObject {
    public:
        using FakeRecordObject::FakeRecordObject;
        void ReturnResourceFileText(LineList& lines, bool& ok) override {
            lines.push_back("#PARTIAL " + KOMAName());
            ok = false;
        }
    };
    screen.Inject(type::Button, std::make_unique<HalfRecord>(type::Button, "BUTTON_1"));
    Add(type::String, "STRING_9");
    ASSERT_TRUE(SaveResourceFile(screen, path));
    const auto lines = FileLines(ReadBytes(path));
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[3], "#PARTIAL BUTTON_1");
    EXPECT_EQ(lines[4], "#RECORD STRING_9 ID=1");
}

}  // namespace
}  // namespace tolva::testing
