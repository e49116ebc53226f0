// Whole loads onto a real screen: from a file through the program's kinds,
// and from texts of stand-in records, so that the embedding, the menus and
// the fresh IDs can be seen on the screen itself.
#include "document/RuntimeFailure.h"
#include "resfile/LoadFixture.h"
#include "resfile/ResourceFileFixture.h"
#include "screen/ScreenFiles.h"

namespace tolva::testing {
namespace {

class LoadTest : public ResourceFileTest {
protected:
    NamingScreenTarget target{screen};
    RecordKinds kinds = StandInKinds();

    void SetUp() override {
        ResourceFileTest::SetUp();
        screen.StartLoading();
    }

    bool Load(const std::vector<std::string>& lines) {
        ResourceReader reader = ResourceReader::FromText(Text(lines));
        return LoadResourceText(reader, kinds, target, host);
    }

    static std::vector<std::string> Record(const std::string& word, const std::string& name,
                                           int id, std::vector<std::string> more = {}) {
        std::vector<std::string> lines = {"//--- " + name, word, "NAME=" + name,
                                          "ID=" + IntToText(id), "TYPE=" + word.substr(1)};
        lines.insert(lines.end(), more.begin(), more.end());
        lines.push_back("#END");
        return lines;
    }
    static std::vector<std::string> Control(const std::string& style, const std::string& name,
                                            int id) {
        return {"#CONTROL", "NAME=" + name, "ID=" + IntToText(id), "TYPE=" + style, "VISIBLE",
                "#END"};
    }
    static std::vector<std::string> Join(std::initializer_list<std::vector<std::string>> parts) {
        std::vector<std::string> lines;
        for (const auto& part : parts) lines.insert(lines.end(), part.begin(), part.end());
        return lines;
    }

    std::string ParentOf(int screenType, int index) {
        const ctlKOMAForm* parent = Obj(screenType, index)->ParentForm();
        return parent ? parent->KOMAName() : "(none)";
    }

    // The document in words: each kind's names with their forms, each
    // form's embedded list and menus.
    std::vector<std::string> Describe() {
        std::vector<std::string> out;
        for (int t = 0; t < type::Count; ++t)
            for (int i = 1; t != type::Menu && i <= screen.Count(t); ++i)
                out.push_back(IntToText(t) + " " + Obj(t, i)->KOMAName() + " on " +
                              (t == type::Form ? "-" : ParentOf(t, i)));
        for (int f = 1; f <= screen.NumForms(); ++f) {
            for (const auto& row : Form(f)->GetEmbeddedObjectList())
                out.push_back(Form(f)->KOMAName() + " holds " + row.name + " " + row.typeWord);
            for (const auto& menu : Form(f)->Menus())
                out.push_back(Form(f)->KOMAName() + " menu " + menu.name);
        }
        std::sort(out.begin(), out.end());
        return out;
    }
};

TEST_F(LoadTest, AnEmptyFileGivesAnEmptyDocumentAndAnswersTrue) {
    WriteBytes(path, "");
    EXPECT_TRUE(LoadResourceFile(screen, path));
    for (int t = 0; t < type::Count; ++t) EXPECT_EQ(screen.Count(t), 0);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_TRUE(Logged("Object IDs distributed"));
}

TEST_F(LoadTest, AFileOfCommentsEndingInACommentStopsSilently) {
    WriteBytes(path, "//one\r\n//two\r\n");
    EXPECT_THROW(LoadResourceFile(screen, path), RuntimeFailure);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_FALSE(Logged("Object IDs distributed"));
}

TEST_F(LoadTest, AMissingFileIsARunTimeFailure) {
    EXPECT_THROW(LoadResourceFile(screen, path + ".absent"), RuntimeFailure);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(LoadTest, ATableRecordThatDoesNotFitEndsTheLoadOfAFile) {
    WriteBytes(path, Text(Record("#TABLE", "TABLE_1", 0)));
    EXPECT_FALSE(LoadResourceFile(screen, path));
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Error on line 5:  TYPE=TABLE",
                                        "Load Error: Could not load table object",
                                        "Load Error: Invalid/unsupported resource object"}));
    EXPECT_EQ(screen.NumTables(), 0);
}

TEST_F(LoadTest, AFailureWhileScanningLeavesNothingOnTheScreen) {
    EXPECT_FALSE(Load(Join({Record("#FORM", "FORM_1", 0), Record("#STRING", "STRING_1", 1),
                            {""}})));
    for (int t = 0; t < type::Count; ++t) EXPECT_EQ(screen.Count(t), 0);
}

TEST_F(LoadTest, ObjectsComeOntoTheirFormsAndMenusIntoThemWithFreshIds) {
    ASSERT_TRUE(Load(Join({Control("BUTTON", "BUTTON_OK", 40),
                           Record("#MENU", "MENU_FILE", 30, {"ITEM=Open", "ITEM=Close"}),
                           Record("#FORM", "FORM_MAIN", 10,
                                  {"COUNT=3", "OBJ=40", "OBJ=30", "OBJ=50"}),
                           Record("#STRING", "STRING_1", 50)})));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Describe(), (std::vector<std::string>{
                              "0 BUTTON_OK on FORM_MAIN", "1 FORM_MAIN on -",
                              "2 STRING_1 on FORM_MAIN", "FORM_MAIN holds BUTTON_OK CONTROL",
                              "FORM_MAIN holds STRING_1 STRING", "FORM_MAIN menu MENU_FILE"}));
    EXPECT_EQ(Form(1)->Menus().at(0).items, (std::vector<std::string>{"Open", "Close"}));
    EXPECT_EQ(screen.NumMenus(), 1);
    // The IDs of the file only joined the records.
    EXPECT_EQ(Form(1)->KOMAObjectID(), 0);
    EXPECT_EQ(Form(1)->Menus().at(0).id, 1);
    EXPECT_EQ(Obj(type::Button, 1)->KOMAObjectID(), 2);
    EXPECT_EQ(Obj(type::String, 1)->KOMAObjectID(), 3);
}

TEST_F(LoadTest, RecordsInAnyOrderGiveTheSameDocument) {
    const auto form1 = Record("#FORM", "FORM_1", 0, {"COUNT=3", "OBJ=2", "OBJ=3", "OBJ=5"});
    const auto form2 = Record("#FORM", "FORM_2", 1, {"COUNT=1", "OBJ=4"});
    const auto button = Control("BUTTON", "BUTTON_1", 2);
    const auto check = Control("CHECKBOX", "CHECKBOX_1", 3);
    const auto list = Record("#LIST", "LIST_1", 4);
    const auto menu = Record("#MENU", "MENU_1", 5, {"ITEM=A"});
    ASSERT_TRUE(Load(Join({form1, form2, button, check, list, menu})));
    const auto first = Describe();
    screen.ClearScreen();
    ASSERT_TRUE(Load(Join({menu, list, check, form2, button, form1})));
    EXPECT_EQ(Describe(), first);
    EXPECT_EQ(first.size(), 9u);
    // Within a kind the order is the file's.
    EXPECT_EQ(Form(1)->KOMAName(), "FORM_2");
}

TEST_F(LoadTest, ACountAboveTheListRepeatsTheLastObjectWhichTheScreenRefuses) {
    ASSERT_TRUE(Load(Join({Record("#FORM", "FORM_1", 0, {"COUNT=3", "OBJ=1"}),
                           Record("#STRING", "STRING_1", 1)})));
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"STRING_1: Object already embedded in a form.",
                                        "STRING_1: Could not embed in form",
                                        "STRING_1: Object already embedded in a form.",
                                        "STRING_1: Could not embed in form"}));
    EXPECT_EQ(Form(1)->KOMANumEmbeddedObjects(), 1);
}

TEST_F(LoadTest, ACountBelowTheListLeavesTheObjectsBehindItOnNoForm) {
    ASSERT_TRUE(Load(Join({Record("#FORM", "FORM_1", 0, {"COUNT=1", "OBJ=1", "OBJ=2"}),
                           Record("#STRING", "STRING_1", 1), Record("#STRING", "STRING_2", 2)})));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(screen.NumStrings(), 2);
    EXPECT_EQ(ParentOf(type::String, 1), "FORM_1");
    EXPECT_EQ(ParentOf(type::String, 2), "(none)");
}

TEST_F(LoadTest, AnObjectNoFormListsIsCreatedAndStaysOnNoForm) {
    ASSERT_TRUE(Load(Join({Record("#FORM", "FORM_1", 0), Record("#TEXTBOX", "TEXTBOX_1", 1)})));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(screen.NumTextboxes(), 1);
    EXPECT_EQ(ParentOf(type::Textbox, 1), "(none)");
    EXPECT_EQ(Form(1)->KOMANumEmbeddedObjects(), 0);
}

TEST_F(LoadTest, AnIdWithNoRecordFailsToEmbedUnderAnEmptyTitle) {
    ASSERT_TRUE(Load(Join({Record("#FORM", "FORM_1", 0, {"COUNT=1", "OBJ=1"}),
                           Record("#STRING", "STRING_2", 2)})));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Could not embed in form");
    EXPECT_EQ(host.messages[0].title, "");
    EXPECT_TRUE(Logged("Couldn't find requested object: "));
}

TEST_F(LoadTest, AFormInAFormsListIsRefusedWithoutTheFormInFormMessage) {
    ASSERT_TRUE(Load(Join({Record("#FORM", "FORM_1", 0, {"COUNT=1", "OBJ=1"}),
                           Record("#FORM", "FORM_2", 1)})));
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{"FORM_2: Could not embed in form"});
    EXPECT_EQ(Form(1)->KOMANumEmbeddedObjects(), 0);
}

TEST_F(LoadTest, AMenuOfAFormTheScreenDoesNotKnowCannotBeMade) {
    // A form that could not be made keeps its record, and its menu finds no
    // form on the screen.
    class NoForms : public NamingScreenTarget {
    public:
        using NamingScreenTarget::NamingScreenTarget;
        bool CreateObjectFromText(int screenType, const GroupList& record) override {
            return screenType != type::Form &&
                   NamingScreenTarget::CreateObjectFromText(screenType, record);
        }
    } noForms{screen};
    ResourceReader reader = ResourceReader::FromText(
        Text(Join({Record("#FORM", "FORM_1", 0, {"COUNT=1", "OBJ=1"}),
                   Record("#MENU", "MENU_1", 1)})));
    EXPECT_TRUE(LoadResourceText(reader, kinds, noForms, host));
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"FORM_1: Could not create form",
                                                             "Load Error: Could not create menu"}));
}

TEST_F(LoadTest, ACellObjectGoesToItsTableAndNotOntoTheScreen) {
    // The table's refusal (its grid of objects is not built yet) is not
    // looked at: the load goes on in silence.
    ASSERT_TRUE(Load(Join({Record("#TABLE", "TABLE_1", 7, {"COLUMNS=2", "CELLS=8"}),
                           Control("BUTTON", "BUTTON_IN_CELL", 8),
                           Record("#FORM", "FORM_1", 0, {"COUNT=2", "OBJ=7", "OBJ=8"})})));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(screen.NumTables(), 1);
    EXPECT_EQ(screen.NumButtons(), 0);
    EXPECT_EQ(Describe(), (std::vector<std::string>{"1 FORM_1 on -", "6 TABLE_1 on FORM_1",
                                                    "FORM_1 holds TABLE_1 TABLE"}));
}

TEST_F(LoadTest, ARenamedObjectIsCreatedAndEmbeddedUnderItsNewName) {
    ASSERT_TRUE(Load(Join({Record("#FORM", "FORM_1", 3, {"COUNT=1", "OBJ=4"}),
                           Record("#STRING", "FORM_1", 4)})));
    EXPECT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(Obj(type::String, 1)->KOMAName(), "OBJECTSAMENAME_3");
    EXPECT_EQ(ParentOf(type::String, 1), "FORM_1");
}

}  // namespace
}  // namespace tolva::testing
