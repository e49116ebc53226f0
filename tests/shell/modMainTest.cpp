// The start-up steps up to the loaded main window.
#include <gtest/gtest.h>

#include <filesystem>

#include "canvas/DeviceFont.h"
#include "canvas/FontWidths.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/StringTable.h"
#include "inspector/ValueLists.h"
#include "objects/form/FormStyles.h"
#include "shell/FilePaths.h"
#include "shell/frmMain.h"
#include "shell/modMain.h"
#include "support/ScriptedHost.h"
#include "support/TestStrings.h"

namespace tolva {
namespace {

class StartUpTest : public ::testing::Test {
protected:
    void SetUp() override { host.programDirectory = TOLVA_SOURCE_DATA_DIR; }
    void TearDown() override {
        // Leave the program's table as the other tests expect it.
        StringTable::Shared().SetLanguage(1033);
        testing::EnsureStringsLoaded();
        LoadPropertyLabels(StringTable::Shared());
    }
    testing::ScriptedHost host;
};

TEST_F(StartUpTest, StringTableComesFromTheProgramsFolderInTheHostsLanguage) {
    host.languageId = 1031;
    LoadStringTable(host);
    EXPECT_EQ(StringTable::Shared().Language(), 1031);
    EXPECT_EQ(LoadResString(msg::ConfirmFormDeleteTitle), "Confirm Form Delete");
}

TEST_F(StartUpTest, PathsAreEmptiedAndTheWindowIsLoaded) {
    ResourceFilePath = "a.txt";
    HeaderFilePath = "a.h";
    host.settings["Settings/GridInterval"] = "45";
    auto window = StartUp(host, false);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(ResourceFilePath, "");
    EXPECT_EQ(HeaderFilePath, "");
    EXPECT_EQ(window->GridInterval(), 45);
    EXPECT_NE(window->LogWindow(), nullptr);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(window->DesignSaved());
}

TEST_F(StartUpTest, PropertyLabelsAreReadFromTheTable) {
    auto window = StartUp(host, false);
    ASSERT_NE(window, nullptr);
    // Every label number gives its text from the table.
    for (int number : PropertyLabelNumbers()) {
        EXPECT_EQ(PropertyLabel(number), LoadResString(number)) << number;
    }
}

TEST_F(StartUpTest, FormValueListsAreBuilt) {
    SetValueLists(type::Form, {});
    auto window = StartUp(host, false);
    ValueLists built;
    ASSERT_TRUE(GetValueLists(type::Form, built));
    ValueLists expected;
    FillFormValueLists(expected);
    EXPECT_FALSE(built.empty());
    EXPECT_EQ(built, expected);
}

TEST_F(StartUpTest, ValueListsAreBuiltKindByKindInTheirOrder) {
    const std::vector<int> expected = {
        type::Form,     type::Button,   type::String,       type::RepeatButton,
        type::Bitmap,   type::Checkbox, type::PushButton,   type::Textbox,
        type::Field,    type::Line,     type::List,         type::Menu,
        type::PopupTrigger, type::Scrollbar, type::SchedulerLine, type::Table};
    std::vector<int> order;
    for (const ValueListStep& step : ValueListSteps()) order.push_back(step.type);
    EXPECT_EQ(order, expected);
    EXPECT_STREQ(ValueListSteps().front().kind, "form");
    EXPECT_EQ(ValueListSteps().front().fill, &FillFormValueLists);
}

TEST_F(StartUpTest, TheInspectorGetsTheFormsListsAfterStartUp) {
    SetValueLists(type::Form, {});
    auto window = StartUp(host, false);
    ValueLists lists;
    ASSERT_TRUE(GetValueListsForType(type::Form, lists));
    ASSERT_EQ(lists.size(), 10u);
    EXPECT_EQ(lists[9], (std::vector<std::string>{"2 Bit", "4 Bit"}));
}

TEST_F(StartUpTest, StartUpShowsNoMessage) {
    auto window = StartUp(host, false);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(StartUpTest, TheWidthTablesAndDeviceFontsAreLoaded) {
    FontSmallWidth().fill(0);
    auto window = StartUp(host, false);
    ASSERT_NE(window, nullptr);
    EXPECT_GT(FontSmallWidth()['A'], 0);
    EXPECT_GT(FontMediumWidth()['A'], FontSmallWidth()['A']);
    EXPECT_NE(FindDeviceFont("TolvaSmall"), nullptr);
    EXPECT_NE(FindDeviceFont("TolvaMedium"), nullptr);
}

TEST_F(StartUpTest, AMissingWidthFileEndsTheStartBeforeTheWindowWithItsMessage) {
    const std::string dir = ::testing::TempDir() + "tolva_no_fonts";
    std::filesystem::create_directories(dir);
    std::filesystem::copy_file(std::string(TOLVA_SOURCE_DATA_DIR) + "/Strings.txt",
                               dir + "/Strings.txt",
                               std::filesystem::copy_options::overwrite_existing);
    std::filesystem::copy_file(std::string(TOLVA_SOURCE_DATA_DIR) + "/FontSmallWidth.txt",
                               dir + "/FontSmallWidth.txt",
                               std::filesystem::copy_options::overwrite_existing);
    host.programDirectory = dir;
    host.useRealFileSystem = true;
    auto window = StartUp(host, false);
    EXPECT_EQ(window, nullptr);
    EXPECT_EQ(host.MessageLines(),
              std::vector<std::string>{"Files missing: Font definition files missing.  Cannot "
                                       "continue.  Please reinstall Tolva Resource Editor."});
}

}  // namespace
}  // namespace tolva
