// Loading the main window: fields, settings, grid and the log window.
#include <QPlainTextEdit>

#include "shell/FilePaths.h"
#include "shell/MainWindowFixture.h"

namespace tolva::testing {
namespace {

using Loading = MainWindowTest;

TEST_F(Loading, FieldsStartAsTheWindowLoads) {
    EXPECT_FALSE(window->FormsComboEnabled());
    EXPECT_FALSE(window->ObjectsComboEnabled());
    EXPECT_TRUE(window->DesignSaved());
}

TEST_F(Loading, LoadingEmptiesTheResourcePath) {
    ResourceFilePath = "old.txt";
    Open();
    EXPECT_EQ(ResourceFilePath, "");
}

TEST_F(Loading, MissingSettingsGiveTheDefaults) {
    EXPECT_TRUE(window->GridVisible());
    EXPECT_EQ(window->GridInterval(), 55);
    EXPECT_TRUE(window->ShowBitmapWarning());
}

TEST_F(Loading, StoredSettingsAreRead) {
    host.settings["Settings/ShowGrid"] = "0";
    host.settings["Settings/GridInterval"] = "40";
    host.settings["Settings/ShowBitmapWarning"] = "0";
    Open();
    EXPECT_FALSE(window->GridVisible());
    EXPECT_EQ(window->GridInterval(), 40);
    EXPECT_FALSE(window->ShowBitmapWarning());
}

TEST_F(Loading, AnyShowGridTextButOneMeansOff) {
    host.settings["Settings/ShowGrid"] = "True";
    Open();
    EXPECT_FALSE(window->GridVisible());
    host.settings["Settings/ShowGrid"] = "1";
    Open();
    EXPECT_TRUE(window->GridVisible());
}

TEST_F(Loading, AnyBitmapWarningTextButZeroMeansOn) {
    host.settings["Settings/ShowBitmapWarning"] = "False";
    Open();
    EXPECT_TRUE(window->ShowBitmapWarning());
}

TEST_F(Loading, IntervalSetByHandOutsideTheListIsKept) {
    host.settings["Settings/GridInterval"] = "33";
    Open();
    EXPECT_EQ(window->GridInterval(), 33);
}

TEST_F(Loading, IntervalThatIsNoNumberKeepsTheDefault) {
    host.settings["Settings/GridInterval"] = "wide";
    Open();
    EXPECT_EQ(window->GridInterval(), 55);
    host.settings["Settings/GridInterval"] = "99999";
    Open();
    EXPECT_EQ(window->GridInterval(), 55);
}

TEST_F(Loading, SettingsAreReadWithNoMessage) {
    host.settings["Settings/GridInterval"] = "wide";
    Open();
    EXPECT_TRUE(host.messages.empty());
}

// A host that notes every settings read with its application key,
// section, key and default.
class KeyRecordingHost : public ScriptedHost {
public:
    struct Read {
        std::string application, section, key, defaultValue;
    };
    std::vector<Read> reads;
    std::string GetSetting(const std::string& application, const std::string& section,
                           const std::string& key, const std::string& defaultValue) override {
        reads.push_back({application, section, key, defaultValue});
        return ScriptedHost::GetSetting(application, section, key, defaultValue);
    }
};

TEST(LoadingKeys, TheThreeSettingsAreReadUnderTheProgramsKeyWithTheirDefaults) {
    EnsureStringsLoaded();
    KeyRecordingHost keys;
    frmMain main(keys);
    main.Load(false);
    ASSERT_EQ(keys.reads.size(), 3u);
    const char* const names[] = {"ShowGrid", "GridInterval", "ShowBitmapWarning"};
    const char* const defaults[] = {"1", "55", "1"};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(keys.reads[i].application, "TolvaDesigner") << names[i];
        EXPECT_EQ(keys.reads[i].section, "Settings") << names[i];
        EXPECT_EQ(keys.reads[i].key, names[i]);
        EXPECT_EQ(keys.reads[i].defaultValue, defaults[i]) << names[i];
    }
}

TEST_F(Loading, LoadingLeavesTheHeaderPath) {
    // Only the start-up empties the header's path; the window's loading
    // empties the resource file's alone.
    HeaderFilePath = "design.h";
    Open();
    EXPECT_EQ(HeaderFilePath, "design.h");
    HeaderFilePath.clear();
}

TEST_F(Loading, TheLogWindowIsLoadedButNotShown) {
    frmLog* log = window->LogWindow();
    ASSERT_NE(log, nullptr);
    EXPECT_FALSE(log->isVisible());
    EXPECT_EQ(log->objectName(), QStringLiteral("frmLog"));
    EXPECT_TRUE(window->isVisible());
}

TEST_F(Loading, TheLogWindowStaysAsItWasAfterAnyNumberOfActions) {
    auto* text = window->LogWindow()->findChild<QPlainTextEdit*>("txtLog");
    ASSERT_NE(text, nullptr);
    const QString before = text->toPlainText();
    EXPECT_EQ(before, QStringLiteral("Log\n"));
    Draw(1);
    Draw(0);
    Draw(0);
    window->AddLogLine("Object created: BUTTON_9");
    TriggerMenu("mnuEditDelete");
    EXPECT_EQ(text->toPlainText(), before);
}

}  // namespace
}  // namespace tolva::testing
