// Stage 1 of a load: the top-level lines, the control head and its tails,
// the record stores and the checks of the ID table, with the exact texts and
// titles of their messages.
#include "document/RuntimeFailure.h"
#include "resfile/LoadFixture.h"
#include "support/ScriptedHost.h"
#include "support/TestStrings.h"

namespace tolva::testing {
namespace {

class ScanTest : public ::testing::Test {
protected:
    ScriptedHost host;
    RecordKinds kinds = StandInKinds();
    LoadedDesign design;
    int lastLine = 0;

    void SetUp() override { EnsureStringsLoaded(); }

    bool Scan(const std::vector<std::string>& lines) {
        ResourceReader reader = ResourceReader::FromText(Text(lines));
        const bool result = ScanResourceText(reader, host, kinds, design);
        lastLine = reader.LineCounter();
        return result;
    }

    std::vector<std::string> Names(int screenType) const {
        std::vector<std::string> names;
        for (const auto& record : design.Store(screenType)) names.push_back(record.name);
        return names;
    }
};

TEST_F(ScanTest, AnEmptyTextHasNoRecordsAndAnswersTrue) {
    EXPECT_TRUE(Scan({}));
    for (int t = 0; t < type::Count; ++t) EXPECT_TRUE(design.Store(t).empty());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScanTest, ATextOfCommentsEndingInACommentStopsSilentlyAtItsEnd) {
    EXPECT_THROW(Scan({"//one", "//two", "// three"}), RuntimeFailure);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScanTest, EachSectionWordFillsTheStoreOfItsKind) {
    const std::pair<const char*, int> sections[] = {
        {"#FORM", type::Form},       {"#BITMAP", type::Bitmap},
        {"#FIELD", type::Field},     {"#LINE", type::Line},
        {"#LIST", type::List},       {"#MENU", type::Menu},
        {"#SCHLINE", type::SchedulerLine}, {"#SCROLLBAR", type::Scrollbar},
        {"#STRING", type::String},   {"#TABLE", type::Table},
        {"#TEXTBOX", type::Textbox}};
    std::vector<std::string> lines;
    int id = 0;
    for (const auto& [word, screenType] : sections) {
        lines.insert(lines.end(), {"//-- banner", word, "NAME=" + std::string(word + 1),
                                   "ID=" + IntToText(id++), "#END"});
    }
    ASSERT_TRUE(Scan(lines));
    for (const auto& [word, screenType] : sections)
        EXPECT_EQ(Names(screenType), std::vector<std::string>{word + 1}) << word;
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScanTest, AnUnknownTopLevelLineEndsTheLoad) {
    EXPECT_FALSE(Scan({"#FORM", "NAME=FORM_1", "ID=0", "#END", "#WIDGET", "#FORM"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Load Error: Invalid/unsupported resource object"});
    EXPECT_EQ(lastLine, 5);
}

TEST_F(ScanTest, ABlankLineBetweenTwoRecordsEndsTheLoad) {
    EXPECT_FALSE(Scan({"#FORM", "NAME=FORM_1", "ID=0", "#END", "", "#FORM", "NAME=FORM_2",
                       "ID=1", "#END"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Load Error: Invalid/unsupported resource object"});
    EXPECT_EQ(Names(type::Form), std::vector<std::string>{"FORM_1"});
}

TEST_F(ScanTest, AnIndentedCommentAtTopLevelEndsTheLoad) {
    EXPECT_FALSE(Scan({" // note", "#FORM"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Load Error: Invalid/unsupported resource object"});
}

TEST_F(ScanTest, ASectionWhoseKindReadsNoRecordYetIsAnUnsupportedLine) {
    kinds.SetParser("#BITMAP", nullptr);
    EXPECT_FALSE(Scan({"#BITMAP", "NAME=BITMAP_1", "ID=0", "#END"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Load Error: Invalid/unsupported resource object"});
}

TEST_F(ScanTest, AControlStyleWhoseKindReadsNoTailYetIsAnUnsupportedLine) {
    // A kind whose tail parser is not plugged in: its record's tail is then
    // read as lines between records.
    kinds = StandardRecordKinds();
    for (RecordKind& style : kinds.controlStyles)
        if (style.word == "CHECKBOX") style.parser = nullptr;
    EXPECT_FALSE(Scan({"#CONTROL", "NAME=CHECKBOX_1", "ID=1", "~F0", "(B)OBJECT.TYPE=CONTROL",
                       "~F1", "(U)RELATED_TABLE_ID=65535", "~F2", "(SH)BOUNDS.X=0",
                       "(SH)BOUNDS.Y=0", "(SH)BOUNDS.WIDTH=10", "(SH)BOUNDS.HEIGHT=10", "~F3",
                       "(B)CONTROL_STYLE=CHECKBOX", "~F4", "(B)CONTROL_SUBTYPE=X", "~F5",
                       "(S)CONTROL_TEXT=a", "~F6", "(B)TEXTMENT=LEFT", "~F7",
                       "(BO)CONTROL_ATTR.ENABLE=TRUE", "(BO)CONTROL_ATTR.ACTIVE=TRUE",
                       "(BO)CONTROL_ATTR.VISIBLE=TRUE", "~F9", "#END_CONTROL"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Load Error: Invalid/unsupported resource object"});
}

TEST_F(ScanTest, AFailingParserIsNamedByItsKindAndTheScanGoesOnAtTheNextLine) {
    const std::pair<const char*, const char*> failures[] = {
        {"#FORM", "Could not load form object"},
        {"#BITMAP", "Could not load bitmap object"},
        {"#FIELD", "Could not load field object"},
        {"#LINE", "Could not load line object"},
        {"#LIST", "Could not load list object"},
        {"#MENU", "Could not load menu object"},
        {"#SCHLINE", "Could not load SchedulerLine object"},
        {"#SCROLLBAR", "Could not load scrollbar object"},
        {"#STRING", "Could not load string object"},
        {"#TABLE", "Could not load table object"},
        {"#TEXTBOX", "Could not load textbox object"}};
    for (const auto& [word, text] : failures) {
        host.ClearRecord();
        // The record breaks at its second line; its third is then read as a
        // top-level line, here the opening word of a good record.
        EXPECT_TRUE(Scan({"//banner", word, "NAME=X", "BROKEN", "#STRING", "NAME=S", "ID=1",
                          "#END"}))
            << word;
        EXPECT_EQ(host.MessageLines(),
                  (std::vector<std::string>{"Tolva Resource Editor: Error on line 4:  BROKEN",
                                            std::string("Load Error: ") + text}))
            << word;
        EXPECT_EQ(Names(type::String), std::vector<std::string>{"S"});
    }
}

TEST_F(ScanTest, TheLinesOfABrokenRecordAreNotSkippedAsAUnit) {
    EXPECT_FALSE(Scan({"#FORM", "NAME=FORM_1", "BROKEN", "ID=0", "#END"}));
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Error on line 3:  BROKEN",
                                        "Load Error: Could not load form object",
                                        "Load Error: Invalid/unsupported resource object"}));
    EXPECT_TRUE(design.Store(type::Form).empty());
}

TEST_F(ScanTest, AnIdThatIsNoSixteenBitNumberStopsTheLoadSilently) {
    EXPECT_THROW(Scan({"#FORM", "NAME=FORM_1", "ID=40000", "#END"}), RuntimeFailure);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScanTest, ANegativeIdFitsNoRowOfTheIdTable) {
    EXPECT_THROW(Scan({"#FORM", "NAME=FORM_1", "ID=-1", "#END"}), RuntimeFailure);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScanTest, TheEndOfTheTextInsideARecordStopsTheLoadSilently) {
    EXPECT_THROW(Scan({"#FORM", "NAME=FORM_1", "ID=0"}), RuntimeFailure);
    EXPECT_TRUE(host.messages.empty());
}

// --- "#CONTROL" ----------------------------------------------------------------

TEST_F(ScanTest, EachControlStyleGoesToTheStoreOfItsKind) {
    const std::pair<const char*, int> styles[] = {{"BUTTON", type::Button},
                                                  {"POPUP_TRIGGER", type::PopupTrigger},
                                                  {"PUSH_BUTTON", type::PushButton},
                                                  {"REPEAT_BUTTON", type::RepeatButton},
                                                  {"CHECKBOX", type::Checkbox}};
    std::vector<std::string> lines;
    int id = 0;
    for (const auto& [style, screenType] : styles)
        lines.insert(lines.end(), {"#CONTROL", "NAME=" + std::string(style),
                                   "ID=" + IntToText(id++), "TYPE=" + std::string(style),
                                   "VISIBLE", "ITEM=tail", "#END"});
    ASSERT_TRUE(Scan(lines));
    for (const auto& [style, screenType] : styles) {
        ASSERT_EQ(Names(screenType), std::vector<std::string>{style}) << style;
        const LoadedRecord& record = design.Store(screenType).front();
        EXPECT_EQ(record.kindWord, style);
        EXPECT_EQ(record.menuItems, std::vector<std::string>{"tail"});
        EXPECT_EQ(design.ids.KindWord(record.id), style);
    }
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(ScanTest, AFailingTailIsNamedByItsStyle) {
    const std::pair<const char*, const char*> failures[] = {
        {"BUTTON", "Could not load button object"},
        {"POPUP_TRIGGER", "Could not load popuptrigger object"},
        {"PUSH_BUTTON", "Could not load pushbutton object"},
        {"REPEAT_BUTTON", "Could not load repeatbutton object"},
        {"CHECKBOX", "Could not load checkbox object"}};
    for (const auto& [style, text] : failures) {
        host.ClearRecord();
        EXPECT_TRUE(Scan({"#CONTROL", "NAME=C", "ID=0", "TYPE=" + std::string(style), "VISIBLE",
                          "BROKEN"}))
            << style;
        EXPECT_EQ(host.MessageLines(),
                  (std::vector<std::string>{"Tolva Resource Editor: Error on line 6:  BROKEN",
                                            std::string("Load Error: ") + text}));
    }
}

TEST_F(ScanTest, AFailingHeadIsToldAndItsStyleWordStillChoosesTheTail) {
    // The head breaks after its style; the tail then reads on from the line
    // after the failing one.
    EXPECT_TRUE(Scan({"#CONTROL", "NAME=B", "ID=0", "TYPE=BUTTON", "BROKEN", "#END"}));
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Error on line 5:  BROKEN",
                                        "Load Error: Could not load control object"}));
    EXPECT_EQ(Names(type::Button), std::vector<std::string>{"B"});
}

TEST_F(ScanTest, AHeadThatFailsBeforeItsStyleLeavesNoStyleAndIsPassedOver) {
    EXPECT_FALSE(Scan({"#CONTROL", "NAME=B", "BROKEN", "ID=0", "#END"}));
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Error on line 3:  BROKEN",
                                        "Load Error: Could not load control object",
                                        "Load Error: Invalid/unsupported resource object"}));
}

TEST_F(ScanTest, StyleZeroEndsTheLoad) {
    EXPECT_FALSE(Scan({"#CONTROL", "NAME=B", "ID=0", "TYPE=0", "VISIBLE", "#END", "#FORM"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{
                  "Load Error: Invalid control format.  Could not load resource file"});
    EXPECT_EQ(lastLine, 5);
}

TEST_F(ScanTest, AnotherStyleIsPassedOverInSilenceAndItsTailThenStopsTheLoad) {
    EXPECT_FALSE(Scan({"#CONTROL", "NAME=S", "ID=0", "TYPE=SLIDER", "VISIBLE", "~F8", "#END"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Load Error: Invalid/unsupported resource object"});
    EXPECT_EQ(lastLine, 6);
}

TEST_F(ScanTest, AnotherStyleWithNoTailLetsTheNextRecordBeRead) {
    EXPECT_TRUE(Scan({"#CONTROL", "NAME=S", "ID=0", "TYPE=button", "VISIBLE", "#FORM",
                      "NAME=FORM_1", "ID=1", "#END"}));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Names(type::Form), std::vector<std::string>{"FORM_1"});
    EXPECT_TRUE(design.Store(type::Button).empty());
    EXPECT_EQ(design.ids.Name(0), "");
}

TEST_F(ScanTest, AStyleWhoseKindReadsNoTailYetIsAnUnsupportedLine) {
    kinds.SetParser("CHECKBOX", nullptr);
    EXPECT_FALSE(Scan({"#CONTROL", "NAME=C", "ID=0", "TYPE=CHECKBOX", "VISIBLE", "#END"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Load Error: Invalid/unsupported resource object"});
}

// --- the ID table ----------------------------------------------------------------

TEST_F(ScanTest, TheIdTableHoldsNameAndKindWordAndGrowsToTheHighestId) {
    ASSERT_TRUE(Scan({"#FORM", "NAME=FORM_1", "ID=5", "TYPE=FORM", "#END", "#STRING",
                      "NAME=STRING_1", "ID=2", "TYPE=STRING", "#END"}));
    EXPECT_EQ(design.ids.Top(), 5);
    EXPECT_EQ(design.ids.Name(5), "FORM_1");
    EXPECT_EQ(design.ids.KindWord(5), "FORM");
    EXPECT_EQ(design.ids.Name(2), "STRING_1");
    EXPECT_EQ(design.ids.Name(3), "");
}

TEST_F(ScanTest, ATakenIdEndsTheLoadWithTheLineItWasFoundOn) {
    EXPECT_FALSE(Scan({"#FORM", "NAME=FORM_1", "ID=3", "#END", "//--", "#STRING",
                       "NAME=STRING_1", "ID=3", "#END", "#FORM"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{
                  "Tolva Resource Editor: Error on line 9:  The resource file being loaded "
                  "contains multiple objects with the same ID."});
    EXPECT_EQ(host.messages[0].title, "");
}

TEST_F(ScanTest, TwoObjectsOfOneNameTheFirstWithIdZeroAreNotRenamed) {
    ASSERT_TRUE(Scan({"#FORM", "NAME=SAME", "ID=0", "#END", "#STRING", "NAME=SAME", "ID=1",
                      "#END"}));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Names(type::String), std::vector<std::string>{"SAME"});
    EXPECT_EQ(design.ids.Name(1), "SAME");
}

TEST_F(ScanTest, TwoObjectsOfOneNameTheFirstWithIdThreeRenameTheSecond) {
    ASSERT_TRUE(Scan({"#FORM", "NAME=SAME", "ID=3", "#END", "#STRING", "NAME=SAME", "ID=1",
                      "#END"}));
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{
                  "Tolva Resource Editor: The resource file specifies more than one object "
                  "having the same name.  The name of the succeeding object has been changed to "
                  "OBJECTSAMENAME_3"});
    EXPECT_EQ(host.messages[0].title, "");
    const LoadedRecord& renamed = design.Store(type::String).at(0);
    EXPECT_EQ(renamed.name, "OBJECTSAMENAME_3");
    EXPECT_EQ(renamed.groups.at(0).at(0), "OBJECTSAMENAME_3");
    EXPECT_EQ(design.ids.Name(1), "OBJECTSAMENAME_3");
    EXPECT_EQ(design.ids.Name(3), "SAME");
}

TEST_F(ScanTest, TheFirstRowFromIdOneWithTheNameGivesTheNumber) {
    ASSERT_TRUE(Scan({"#FORM", "NAME=SAME", "ID=0", "#END", "#FORM", "NAME=SAME", "ID=6",
                      "#END", "#FORM", "NAME=SAME", "ID=4", "#END", "#FORM", "NAME=SAME",
                      "ID=9", "#END"}));
    // ID 6 was not renamed (ID 0 does not count); ID 4 takes 6's number; ID 9
    // the lowest row bearing the name, which ID 4 no longer does.
    EXPECT_EQ(Names(type::Form), (std::vector<std::string>{"SAME", "SAME", "OBJECTSAMENAME_6",
                                                           "OBJECTSAMENAME_6"}));
    EXPECT_EQ(host.messages.size(), 2u);
}

TEST_F(ScanTest, TheNewNameIsNotItselfChecked) {
    ASSERT_TRUE(Scan({"#FORM", "NAME=OBJECTSAMENAME_2", "ID=1", "#END", "#FORM", "NAME=A",
                      "ID=2", "#END", "#FORM", "NAME=A", "ID=3", "#END"}));
    EXPECT_EQ(Names(type::Form),
              (std::vector<std::string>{"OBJECTSAMENAME_2", "A", "OBJECTSAMENAME_2"}));
    EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(ScanTest, AnEmptyNameMeetsTheFirstFreeRowFromIdOne) {
    // An empty name marks a free ID, so the name check finds the first free
    // row: here the record's own.
    ASSERT_TRUE(Scan({"#FORM", "NAME=F", "ID=1", "#END", "#FORM", "NAME=", "ID=2", "#END"}));
    EXPECT_EQ(Names(type::Form), (std::vector<std::string>{"F", "OBJECTSAMENAME_2"}));
}

TEST_F(ScanTest, AStartEmptiesTheStoresAndTheIdTable) {
    ASSERT_TRUE(Scan({"#FORM", "NAME=FORM_1", "ID=4", "#END"}));
    ASSERT_TRUE(Scan({"#FORM", "NAME=FORM_2", "ID=0", "#END"}));
    EXPECT_EQ(Names(type::Form), std::vector<std::string>{"FORM_2"});
    EXPECT_EQ(design.ids.Top(), 0);
}

TEST_F(ScanTest, EveryIdOfAFullTableKeepsItsOwnRecord) {
    // As many records as there are IDs, in falling order, each name new but
    // for one repeat at the end, which meets the lowest row of its name.
    std::vector<std::string> lines;
    for (int id = 32767; id >= 1; --id)
        lines.insert(lines.end(), {"#STRING", "NAME=S" + IntToText(id % 20000),
                                   "ID=" + IntToText(id), "#END"});
    ASSERT_TRUE(Scan(lines));
    EXPECT_EQ(design.Store(type::String).size(), 32767u);
    EXPECT_EQ(design.ids.Top(), 32767);
    // S1 to S12767 stand twice: at ID n + 20000 first, then at ID n.
    EXPECT_EQ(host.messages.size(), 12767u);
    EXPECT_EQ(design.ids.Name(20001), "S1");
    EXPECT_EQ(design.ids.Name(1), "OBJECTSAMENAME_20001");
    EXPECT_EQ(design.ids.Name(12767), "OBJECTSAMENAME_32767");
    EXPECT_EQ(design.ids.Name(12768), "S12768");
}

}  // namespace
}  // namespace tolva::testing
