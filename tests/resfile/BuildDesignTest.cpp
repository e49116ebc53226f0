// Stages 2 to 6 of a load on records made by hand: the order of creation,
// tables and their cells, forms, lines, the embedding with its menus, and
// the fresh IDs at the end.
#include "document/RuntimeFailure.h"
#include "resfile/LoadFixture.h"
#include "support/ScriptedHost.h"
#include "support/TestStrings.h"

namespace tolva::testing {
namespace {

class BuildTest : public ::testing::Test {
protected:
    ScriptedHost host;
    LoadedDesign design;
    RecordingTarget target;
    const RecordKinds& kinds = StandardRecordKinds();

    void SetUp() override { EnsureStringsLoaded(); }

    bool Build() { return BuildDesign(design, kinds, target, host); }

    LoadedRecord& Table(const std::string& name, int id, int columns, std::vector<int> cells) {
        LoadedRecord& table = AddRecord(design, type::Table, name, id, "TABLE");
        table.tableColumns = columns;
        table.cellObjectIds = std::move(cells);
        return table;
    }
    LoadedRecord& Form(const std::string& name, int id, std::vector<int> listed) {
        return FormCounting(name, id, listed, static_cast<int>(listed.size()));
    }
    LoadedRecord& FormCounting(const std::string& name, int id, const std::vector<int>& listed,
                               int count) {
        LoadedRecord& form = AddRecord(design, type::Form, name, id, "FORM");
        form.numObjects = count;
        for (int listedId : listed) form.objectPairs.emplace_back(IntToText(listedId), "CONTROL");
        return form;
    }
    LoadedRecord& InCell(int screenType, const std::string& name, int id, const std::string& word,
                         int tableId) {
        LoadedRecord& record = AddRecord(design, screenType, name, id, word);
        record.relatedTableId = tableId;
        return record;
    }
};

TEST_F(BuildTest, NoRecordsOnlyGiveOutIds) {
    EXPECT_TRUE(Build());
    EXPECT_EQ(target.calls, std::vector<std::string>{"ids"});
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(BuildTest, TablesThenFormsThenTheOtherKindsInTheirOrderThenLines) {
    // Stored in an order of their own: creation does not follow the file.
    int id = 0;
    const std::pair<int, const char*> kindsInStore[] = {
        {type::SchedulerLine, "SCHLINE"}, {type::Line, "LINE"},
        {type::Scrollbar, "SCROLLBAR"},   {type::PopupTrigger, "POPUP_TRIGGER"},
        {type::PushButton, "PUSH_BUTTON"}, {type::RepeatButton, "REPEAT_BUTTON"},
        {type::Field, "FIELD"},           {type::Checkbox, "CHECKBOX"},
        {type::Textbox, "TEXTBOX"},       {type::List, "LIST"},
        {type::Button, "BUTTON"},         {type::Bitmap, "BITMAP"},
        {type::String, "STRING"}};
    for (const auto& [screenType, word] : kindsInStore)
        AddRecord(design, screenType, std::string(word) + "_1", id++, word);
    Form("FORM_1", id++, {});
    Table("TABLE_1", id++, 1, {});
    Table("TABLE_2", id++, 1, {});
    EXPECT_TRUE(Build());
    const std::vector<std::string> expected = {
        "create 6 TABLE_1",          "create 6 TABLE_2",       "create 1 FORM_1",
        "create 2 STRING_1",         "create 7 BITMAP_1",      "create 0 BUTTON_1",
        "create 9 LIST_1",           "create 3 TEXTBOX_1",     "create 5 CHECKBOX_1",
        "create 4 FIELD_1",          "create 13 REPEAT_BUTTON_1", "create 12 PUSH_BUTTON_1",
        "create 11 POPUP_TRIGGER_1", "create 15 SCROLLBAR_1",  "create 8 LINE_1",
        "create 14 SCHLINE_1",       "ids"};
    EXPECT_EQ(target.calls, expected);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(BuildTest, AMenuRecordMakesNoObjectOfItsOwn) {
    AddRecord(design, type::Menu, "MENU_1", 0, "MENU");
    EXPECT_TRUE(Build());
    EXPECT_EQ(target.calls, std::vector<std::string>{"ids"});
}

TEST_F(BuildTest, ATableInATablesCellEndsTheLoad) {
    Table("TABLE_1", 0, 2, {5});
    Table("TABLE_2", 5, 2, {});
    Form("FORM_1", 1, {});
    EXPECT_FALSE(Build());
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{
                                       "Tolva Resource Editor: Table embedded in table.  This is "
                                       "not allowed"});
    EXPECT_EQ(host.messages[0].title, "");
    EXPECT_EQ(target.calls, std::vector<std::string>{"create 6 TABLE_1"});
}

TEST_F(BuildTest, AFormInATablesCellEndsTheLoad) {
    Table("TABLE_1", 0, 2, {1});
    Form("FORM_1", 1, {});
    AddRecord(design, type::String, "STRING_1", 2, "STRING");
    EXPECT_FALSE(Build());
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{
                                       "Tolva Resource Editor: Form embedded in table.  This is "
                                       "not allowed"});
    EXPECT_EQ(target.calls, std::vector<std::string>{"create 6 TABLE_1"});
}

TEST_F(BuildTest, ALineInATablesCellEndsTheLoad) {
    Table("TABLE_1", 0, 2, {3});
    AddRecord(design, type::Line, "LINE_1", 2, "LINE");
    InCell(type::Line, "LINE_2", 3, "LINE", 0);
    AddRecord(design, type::SchedulerLine, "SCHLINE_1", 4, "SCHLINE");
    EXPECT_FALSE(Build());
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{
                                       "Tolva Resource Editor: Line embedded in table.  This is "
                                       "not currently supported"});
    EXPECT_EQ(target.calls, (std::vector<std::string>{"create 6 TABLE_1", "create 8 LINE_1"}));
}

TEST_F(BuildTest, ASchedulerLineInATablesCellEndsTheLoad) {
    Table("TABLE_1", 0, 2, {3});
    AddRecord(design, type::Line, "LINE_1", 2, "LINE");
    InCell(type::SchedulerLine, "SCHLINE_1", 3, "SCHLINE", 0);
    EXPECT_FALSE(Build());
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{
                                       "Tolva Resource Editor: SchedulerLine embedded in table.  "
                                       "This is not currently supported"});
    EXPECT_EQ(target.calls, (std::vector<std::string>{"create 6 TABLE_1", "create 8 LINE_1"}));
}

TEST_F(BuildTest, ACellObjectGoesToThePlaceOfItsIdInItsRelatedTablesList) {
    Table("TABLE_7", 7, 3, {10, 11, 12, 13, 14});
    // Row (5 - 1) / 3 + 1 = 2, column (5 - 1) mod 3 + 1 = 2, whatever the
    // bounds of its record say.
    InCell(type::Button, "BUTTON_IN_CELL", 14, "BUTTON", 7);
    InCell(type::String, "STRING_IN_CELL", 10, "STRING", 7);
    InCell(type::Checkbox, "CHECK_IN_CELL", 12, "CHECKBOX", 7);
    EXPECT_TRUE(Build());
    const std::vector<std::string> expected = {
        "create 6 TABLE_7", "cell TABLE_7 1,1 2 STRING_IN_CELL", "cell TABLE_7 2,2 0 BUTTON_IN_CELL",
        "cell TABLE_7 1,3 5 CHECK_IN_CELL", "ids"};
    EXPECT_EQ(target.calls, expected);
}

TEST_F(BuildTest, ThePlaceIsTakenInTheTableTheRecordNames) {
    // Listed by table 1, but its record names table 2: its place is the one
    // in table 2's list.
    Table("TABLE_A", 1, 2, {20});
    Table("TABLE_B", 2, 1, {21, 22, 20});
    InCell(type::Field, "FIELD_1", 20, "FIELD", 2);
    EXPECT_TRUE(Build());
    EXPECT_EQ(target.calls[2], "cell TABLE_B 3,1 4 FIELD_1");
}

TEST_F(BuildTest, TheTablesAnswerIsNotLookedAt) {
    target.cellAnswer = false;
    Table("TABLE_1", 0, 1, {1});
    InCell(type::Scrollbar, "SCROLLBAR_1", 1, "SCROLLBAR", 0);
    EXPECT_TRUE(Build());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(BuildTest, ACellObjectWhoseRelatedTableIsNotInTheFileIsPassedOver) {
    Table("TABLE_1", 0, 1, {1, 2});
    InCell(type::Button, "BUTTON_1", 1, "BUTTON", 9);
    InCell(type::Button, "BUTTON_2", 2, "BUTTON", 0);
    EXPECT_TRUE(Build());
    EXPECT_EQ(target.calls, (std::vector<std::string>{"create 6 TABLE_1",
                                                      "cell TABLE_1 2,1 0 BUTTON_2", "ids"}));
}

TEST_F(BuildTest, ATableOfNoColumnsWithCellObjectsStopsTheLoadSilently) {
    Table("TABLE_1", 0, 0, {1});
    InCell(type::Button, "BUTTON_1", 1, "BUTTON", 0);
    EXPECT_THROW(Build(), RuntimeFailure);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(BuildTest, AnObjectThatCannotBeCreatedIsToldUnderItsNameAndTheNextFollows) {
    target.createAnswer = false;
    const std::pair<int, const char*> kindsAndTexts[] = {
        {type::Table, "Could not create table"},
        {type::Form, "Could not create form"},
        {type::String, "Could not create string"},
        {type::Bitmap, "Could not create bitmap"},
        {type::Button, "Could not create button"},
        {type::List, "Could not create list"},
        {type::Textbox, "Could not create textbox"},
        {type::Checkbox, "Could not create checkbox"},
        {type::Field, "Could not create field"},
        {type::RepeatButton, "Could not create repeatbutton"},
        {type::PushButton, "Could not create pushbutton"},
        {type::PopupTrigger, "Could not create popuptrigger"},
        {type::Scrollbar, "Could not create scrollbar"},
        {type::Line, "Could not create line"},
        {type::SchedulerLine, "Could not create scheduler line"}};
    std::vector<std::string> expected;
    int id = 0;
    for (const auto& [screenType, text] : kindsAndTexts) {
        const std::string name = "OBJ_" + IntToText(screenType);
        AddRecord(design, screenType, name, id++, ScreenTypeWord(screenType));
        expected.push_back(name + ": " + text);
    }
    EXPECT_TRUE(Build());
    EXPECT_EQ(host.MessageLines(), expected);
    EXPECT_EQ(target.calls.back(), "ids");
}

// --- stage 5: embedding ---------------------------------------------------------------

TEST_F(BuildTest, EachFormTakesTheObjectsItListsWithTheirKindsFromTheIdTable) {
    Form("FORM_1", 0, {2, 3});
    Form("FORM_2", 1, {4});
    AddRecord(design, type::PushButton, "PUSH_1", 2, "PUSH_BUTTON");
    AddRecord(design, type::Textbox, "TEXT_1", 3, "TEXTBOX");
    AddRecord(design, type::List, "LIST_1", 4, "LIST");
    EXPECT_TRUE(Build());
    const std::vector<std::string> tail(target.calls.end() - 4, target.calls.end());
    EXPECT_EQ(tail, (std::vector<std::string>{"embed FORM_1 PUSH_1 12", "embed FORM_1 TEXT_1 3",
                                              "embed FORM_2 LIST_1 9", "ids"}));
}

TEST_F(BuildTest, AMenuIsMadeInItsFormFromItsNameAndItems) {
    Form("FORM_1", 0, {1, 2});
    LoadedRecord& file = AddRecord(design, type::Menu, "MENU_FILE", 1, "MENU");
    file.menuItems = {"Open", "Save"};
    AddRecord(design, type::Menu, "MENU_EMPTY", 2, "MENU");
    EXPECT_TRUE(Build());
    EXPECT_EQ(target.calls, (std::vector<std::string>{"create 1 FORM_1",
                                                      "menu FORM_1 MENU_FILE Open Save",
                                                      "menu FORM_1 MENU_EMPTY", "ids"}));
}

TEST_F(BuildTest, AMenuThatCannotBeMadeIsToldUnderLoadError) {
    target.menuAnswer = false;
    Form("FORM_1", 0, {1});
    AddRecord(design, type::Menu, "MENU_FILE", 1, "MENU");
    EXPECT_TRUE(Build());
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{"Load Error: Could not create menu"});
}

TEST_F(BuildTest, AnObjectThatCannotBeEmbeddedIsToldUnderItsName) {
    target.embedAnswer = false;
    Form("FORM_1", 0, {1, 2});
    AddRecord(design, type::Bitmap, "BITMAP_1", 1, "BITMAP");
    AddRecord(design, type::Field, "FIELD_1", 2, "FIELD");
    EXPECT_TRUE(Build());
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"BITMAP_1: Could not embed in form",
                                                             "FIELD_1: Could not embed in form"}));
    EXPECT_EQ(target.calls.back(), "ids");
}

TEST_F(BuildTest, TheKindWordZeroIsAnInvalidObjectType) {
    Form("FORM_1", 0, {1, 2});
    AddRecord(design, type::String, "ODD", 1, "0");
    AddRecord(design, type::String, "STRING_1", 2, "STRING");
    EXPECT_TRUE(Build());
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{
                                       "Load Error: Invalid object type.  Could not embed in form"});
    EXPECT_EQ(target.calls.at(target.calls.size() - 2), "embed FORM_1 STRING_1 2");
}

TEST_F(BuildTest, AnIdWithNoRecordHasAnEmptyKindWordWhichIsKindZero) {
    Form("FORM_1", 0, {1});
    AddRecord(design, type::String, "STRING_2", 2, "STRING");
    EXPECT_TRUE(Build());
    EXPECT_EQ(target.calls.at(target.calls.size() - 2), "embed FORM_1  0");
}

TEST_F(BuildTest, CellObjectsListedByTheFormAreLeftInTheirTable) {
    Table("TABLE_1", 1, 1, {2});
    Form("FORM_1", 0, {1, 2});
    InCell(type::Button, "BUTTON_1", 2, "BUTTON", 1);
    EXPECT_TRUE(Build());
    EXPECT_EQ(target.calls,
              (std::vector<std::string>{"create 6 TABLE_1", "create 1 FORM_1",
                                        "cell TABLE_1 1,1 0 BUTTON_1", "embed FORM_1 TABLE_1 6",
                                        "ids"}));
}

TEST_F(BuildTest, ACountAboveThePairsRepeatsTheLastObject) {
    FormCounting("FORM_1", 0, {1}, 3);
    AddRecord(design, type::Button, "BUTTON_1", 1, "BUTTON");
    EXPECT_TRUE(Build());
    const std::vector<std::string> tail(target.calls.end() - 4, target.calls.end());
    EXPECT_EQ(tail, (std::vector<std::string>{"embed FORM_1 BUTTON_1 0", "embed FORM_1 BUTTON_1 0",
                                              "embed FORM_1 BUTTON_1 0", "ids"}));
}

TEST_F(BuildTest, ACountBelowThePairsLeavesTheRestOnNoForm) {
    FormCounting("FORM_1", 0, {1, 2}, 1);
    AddRecord(design, type::Button, "BUTTON_1", 1, "BUTTON");
    AddRecord(design, type::Button, "BUTTON_2", 2, "BUTTON");
    EXPECT_TRUE(Build());
    EXPECT_EQ(target.calls, (std::vector<std::string>{"create 1 FORM_1", "create 0 BUTTON_1",
                                                      "create 0 BUTTON_2",
                                                      "embed FORM_1 BUTTON_1 0", "ids"}));
}

TEST_F(BuildTest, AFailedStepLeavesWhatTheStepBeforeSet) {
    // A pair that is no number keeps the ID before it; an ID beyond the
    // table keeps the name and kind word before it.
    LoadedRecord& form = Form("FORM_1", 0, {1});
    form.objectPairs.emplace_back("abc", "CONTROL");
    form.objectPairs.emplace_back("999", "CONTROL");
    form.numObjects = 3;
    AddRecord(design, type::Bitmap, "BITMAP_1", 1, "BITMAP");
    EXPECT_TRUE(Build());
    const std::vector<std::string> tail(target.calls.end() - 4, target.calls.end());
    EXPECT_EQ(tail, (std::vector<std::string>{"embed FORM_1 BITMAP_1 7", "embed FORM_1 BITMAP_1 7",
                                              "embed FORM_1 BITMAP_1 7", "ids"}));
}

TEST_F(BuildTest, AFormsPairsTypeWordIsNotUsed) {
    LoadedRecord& form = Form("FORM_1", 0, {});
    form.objectPairs = {{"1", "SCROLLBAR"}};
    form.numObjects = 1;
    AddRecord(design, type::Field, "FIELD_1", 1, "FIELD");
    EXPECT_TRUE(Build());
    EXPECT_EQ(target.calls.at(target.calls.size() - 2), "embed FORM_1 FIELD_1 4");
}

}  // namespace
}  // namespace tolva::testing
