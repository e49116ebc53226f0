// The file commands of the main window: New, Open, Save, Save As, the view
// commands and the close of the window, on real widgets with a scripted host.
#include <filesystem>
#include <fstream>
#include <iterator>

#include <QPushButton>

#include "document/ObjectTypes.h"
#include "objects/form/ctlKOMAForm.h"
#include "resfile/ResourceFiles.h"
#include "shell/FilePaths.h"
#include "support/FileBytes.h"
#include "shell/MainWindowFixture.h"
#include "shell/RunGuarded.h"

namespace tolva::testing {
namespace {

namespace fs = std::filesystem;

constexpr const char* kBitmapWarning =
    "Tolva Resource Editor: Make sure you place ALL bitmaps specified in the resource file in "
    "the same directory as the resource file since the resource compiler can't currently "
    "resolve all paths.";
constexpr const char* kCloseQuestion =
    "Save Before Quitting?: Do you want to save your changes before exiting?";

class FileCommands : public MainWindowTest {
protected:
    void SetUp() override {
        ResourceFilePath.clear();
        HeaderFilePath.clear();
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        dir = fs::path(::testing::TempDir()) / (std::string("tolva_files_") + info->name());
        fs::remove_all(dir);
        fs::create_directories(dir);
        txt = (dir / "design.txt").string();
        h = (dir / "design.h").string();
        // The record of a form without a bitmap names FORM.BMP, looked up in
        // the working directory: the test runs in its own, which holds one.
        std::ofstream((dir / "FORM.BMP").string(), std::ios::binary) << "BM";
        host.pictures["FORM.BMP"] = {10, 12};
        previous = fs::current_path();
        fs::current_path(dir);
        MainWindowTest::SetUp();
    }
    void TearDown() override {
        window.reset();
        fs::current_path(previous);
        fs::remove_all(dir);
        ResourceFilePath.clear();
        HeaderFilePath.clear();
    }

    // A form drawn on the screen, as a changed design.
    void DrawForm() {
        ASSERT_TRUE(Draw(type::Form));
        ASSERT_FALSE(window->DesignSaved());
    }

    void SaveAsBoth() {
        host.fileAnswers = {txt, h};
        TriggerMenu("mnuFileSaveAs");
    }

    fs::path dir;
    fs::path previous;
    std::string txt;
    std::string h;
};

// --- New -------------------------------------------------------------------------------------

TEST_F(FileCommands, NewDropsUnsavedChangesWithoutAQuestion) {
    DrawForm();
    ResourceFilePath = "old.txt";
    HeaderFilePath = "old.h";
    TriggerMenu("mnuFileNew");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Screen().NumForms(), 0);
    EXPECT_EQ(Forms()->count(), 0);
    EXPECT_EQ(Objects()->count(), 0);
    EXPECT_EQ(ResourceFilePath, "");
    EXPECT_EQ(HeaderFilePath, "old.h");
    EXPECT_TRUE(window->DesignSaved());
}

TEST_F(FileCommands, AfterNewSaveOpensTheTwoSaveChoosers) {
    HeaderFilePath = "old.h";
    TriggerMenu("mnuFileNew");
    host.fileAnswers = {txt, h};
    TriggerMenu("mnuFileSave");
    ASSERT_EQ(host.saveRequests.size(), 2u);
    EXPECT_EQ(host.saveRequests[0].filter, "Resource Files (*.txt)|*.txt|");
    EXPECT_EQ(host.saveRequests[0].defaultExtension, "*.txt");
    EXPECT_EQ(host.saveRequests[0].initialName, "");
    EXPECT_EQ(host.saveRequests[1].filter, "Header Files (*.h)|*.h|");
    EXPECT_EQ(host.saveRequests[1].defaultExtension, "*.h");
}

// --- Save As ---------------------------------------------------------------------------------

TEST_F(FileCommands, SaveAsWritesBothFilesWarnsAndCountsAsSaved) {
    DrawForm();
    SaveAsBoth();
    EXPECT_EQ(ResourceFilePath, txt);
    EXPECT_EQ(HeaderFilePath, h);
    EXPECT_TRUE(window->DesignSaved());
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{kBitmapWarning});

    // The files are what the writers give for the design.
    const std::string written = ReadFile(txt);
    const std::string header = ReadFile(h);
    ASSERT_TRUE(SaveResourceFile(Screen(), (dir / "again.txt").string()));
    ASSERT_TRUE(SaveHeaderFile(Screen(), (dir / "again.h").string()));
    EXPECT_EQ(written, ReadFile((dir / "again.txt").string()));
    EXPECT_EQ(header, ReadFile((dir / "again.h").string()));
    EXPECT_NE(written.find("#FORM\r\nNAME=FORM_1\r\n"), std::string::npos);
    EXPECT_NE(header.find("#define FORM_1 0\r\n"), std::string::npos);
}

TEST_F(FileCommands, NoBitmapWarningWhenTheSettingsSaySo) {
    window->ShowBitmapWarning(false);
    DrawForm();
    SaveAsBoth();
    EXPECT_TRUE(host.messages.empty());
    EXPECT_TRUE(window->DesignSaved());
}

TEST_F(FileCommands, CancellingTheFirstChooserChangesNothing) {
    DrawForm();
    ResourceFilePath = "old.txt";
    HeaderFilePath = "old.h";
    host.fileAnswers = {std::nullopt};
    TriggerMenu("mnuFileSaveAs");
    EXPECT_EQ(host.saveRequests.size(), 1u);
    EXPECT_EQ(ResourceFilePath, "old.txt");
    EXPECT_EQ(HeaderFilePath, "old.h");
    EXPECT_FALSE(window->DesignSaved());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(FileCommands, CancellingTheSecondChooserLeavesTheResourceFileSavedAndTheRestAsItWas) {
    DrawForm();
    HeaderFilePath = "old.h";
    host.fileAnswers = {txt, std::nullopt};
    TriggerMenu("mnuFileSaveAs");
    EXPECT_EQ(host.saveRequests.size(), 2u);
    EXPECT_TRUE(fs::exists(txt));
    EXPECT_EQ(ResourceFilePath, txt);
    EXPECT_EQ(HeaderFilePath, "old.h");
    EXPECT_FALSE(window->DesignSaved());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(FileCommands, AFailedWriteUnderSaveAsSaysNothingAndLeavesTheSavedState) {
    DrawForm();
    host.fileAnswers = {(dir / "no" / "such" / "dir.txt").string(), h};
    TriggerMenu("mnuFileSaveAs");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_FALSE(window->DesignSaved());
    EXPECT_EQ(host.saveRequests.size(), 1u);  // the command ended at the error
}

// --- Save ------------------------------------------------------------------------------------

TEST_F(FileCommands, SaveWithBothPathsWritesThemWithoutAChooser) {
    DrawForm();
    SaveAsBoth();
    host.ClearRecord();
    fs::remove(txt);
    fs::remove(h);
    ASSERT_TRUE(Draw(type::Form, {3200, 3200, 5000, 5000}));
    TriggerMenu("mnuFileSave");
    EXPECT_TRUE(host.saveRequests.empty());
    EXPECT_NE(ReadFile(txt).find("NAME=FORM_2"), std::string::npos);
    EXPECT_NE(ReadFile(h).find("#define FORM_2 1"), std::string::npos);
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{kBitmapWarning});
    EXPECT_TRUE(window->DesignSaved());
}

TEST_F(FileCommands, SaveWithAPathMissingRunsSaveAs) {
    DrawForm();
    ResourceFilePath = txt;
    host.fileAnswers = {std::nullopt};
    TriggerMenu("mnuFileSave");
    EXPECT_EQ(host.saveRequests.size(), 1u);
    EXPECT_FALSE(window->DesignSaved());
}

TEST_F(FileCommands, AWriteErrorUnderSaveIsNotCaughtByTheCommandAndEndsTheProgram) {
    std::vector<int> exits;
    SetGuardHost(&host);
    SetGuardExit([&](int status) { exits.push_back(status); });
    DrawForm();
    ResourceFilePath = (dir / "no" / "such" / "dir.txt").string();
    HeaderFilePath = h;
    TriggerMenu("mnuFileSave");
    SetGuardHost(nullptr);
    SetGuardExit(nullptr);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].title, "Run-time error");
    EXPECT_EQ(exits, std::vector<int>{kRunTimeErrorStatus});
    EXPECT_FALSE(window->DesignSaved());
}

// --- Open ------------------------------------------------------------------------------------

TEST_F(FileCommands, OpenOfASavedFileShowsAndSelectsItsFirstForm) {
    DrawForm();
    Screen().FormAt(1)->KOMAName("FORM_MAIN");
    ASSERT_TRUE(Draw(type::Form, {3200, 3200, 5000, 5000}));
    SaveAsBoth();
    TriggerMenu("mnuFileNew");
    host.ClearRecord();

    host.fileAnswers = {txt};
    TriggerMenu("mnuFileOpen");
    ASSERT_EQ(host.openRequests.size(), 1u);
    EXPECT_EQ(host.openRequests[0].filter, "Resource Files (*.txt)|*.txt|");
    EXPECT_EQ(host.openRequests[0].defaultExtension, "*.txt");
    EXPECT_EQ(host.openRequests[0].initialName, "");
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();
    EXPECT_EQ(Screen().NumForms(), 2);
    EXPECT_EQ(Forms()->currentText(), "FORM_MAIN");
    EXPECT_EQ(Screen().CurrentDesignForm(), "FORM_MAIN");
    EXPECT_EQ(Screen().SelectedObjectType(), type::Form);
    EXPECT_EQ(Screen().SelectedObjectName(), "FORM_MAIN");
    EXPECT_EQ(ResourceFilePath, txt);
    EXPECT_EQ(HeaderFilePath, h);  // kept from the save
    EXPECT_TRUE(window->DesignSaved());
    EXPECT_TRUE(window->isEnabled());
    ASSERT_FALSE(host.cursors.empty());
    EXPECT_EQ(host.cursors.front(), CursorShape::Hourglass);
    EXPECT_EQ(host.cursors.back(), CursorShape::Arrow);
}

TEST_F(FileCommands, OpenDropsUnsavedChangesWithoutAQuestion) {
    std::ofstream(txt, std::ios::binary) << "";
    DrawForm();
    host.fileAnswers = {txt};
    TriggerMenu("mnuFileOpen");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Screen().NumForms(), 0);
    EXPECT_TRUE(window->DesignSaved());
}

TEST_F(FileCommands, OpenOfABadFileSaysSoAndLeavesAnEmptyScreen) {
    // A blank line at the top level stops the load with its own message.
    std::ofstream(txt, std::ios::binary) << "\r\n";
    DrawForm();
    ResourceFilePath = "old.txt";
    host.fileAnswers = {txt};
    TriggerMenu("mnuFileOpen");
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Load Error: Invalid/unsupported resource object",
                                        "Tolva Resource Editor: Could not load resource file"}));
    EXPECT_EQ(Screen().NumForms(), 0);
    EXPECT_EQ(Forms()->count(), 0);
    EXPECT_EQ(ResourceFilePath, "");
    EXPECT_TRUE(window->isEnabled());
    EXPECT_EQ(host.cursors.back(), CursorShape::Arrow);
}

TEST_F(FileCommands, OpenCancelledEndsTheLoadStateAndTheFirstFormBecomesCurrent) {
    DrawForm();
    ASSERT_TRUE(Draw(type::Form, {3200, 3200, 5000, 5000}));
    ASSERT_EQ(Screen().CurrentDesignForm(), "FORM_2");
    SaveAsBoth();
    host.ClearRecord();
    host.fileAnswers = {std::nullopt};
    TriggerMenu("mnuFileOpen");
    EXPECT_TRUE(window->isEnabled());
    EXPECT_EQ(Screen().ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_EQ(Screen().NumForms(), 2);
    EXPECT_EQ(Screen().CurrentDesignForm(), "FORM_1");
    EXPECT_FALSE(window->DesignSaved());
    EXPECT_EQ(ResourceFilePath, txt);
    // The hourglass stays until the mouse moves over the window.
    EXPECT_EQ(host.cursors.back(), CursorShape::Hourglass);
}

TEST_F(FileCommands, AnOpenEndedByARunTimeFailureOnlyEndsTheLoadState) {
    std::ofstream(txt, std::ios::binary) << "#FORM\r\nNAME=FORM_1\r\nID=40000\r\n";
    host.fileAnswers = {txt};
    TriggerMenu("mnuFileOpen");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_TRUE(window->isEnabled());
    EXPECT_EQ(Screen().ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_EQ(ResourceFilePath, "");
}

// --- view ------------------------------------------------------------------------------------

TEST_F(FileCommands, ViewBeforeTheFirstSaveDoesNothing) {
    QTest::mouseClick(Find<QPushButton>("cmdViewResFile"), Qt::LeftButton);
    QTest::mouseClick(Find<QPushButton>("cmdViewHeaderFile"), Qt::LeftButton);
    TriggerMenu("mnuViewResFile");
    EXPECT_TRUE(host.viewerOpened.empty());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(FileCommands, ViewAfterASaveShowsTheSavedFilesThemselves) {
    DrawForm();
    SaveAsBoth();
    QTest::mouseClick(Find<QPushButton>("cmdViewResFile"), Qt::LeftButton);
    QTest::mouseClick(Find<QPushButton>("cmdViewHeaderFile"), Qt::LeftButton);
    TriggerMenu("mnuViewHeaderFile");
    EXPECT_EQ(host.viewerOpened, (std::vector<std::string>{txt, h, h}));
}

TEST_F(FileCommands, ViewOfAFileThatHasGoneDoesNothing) {
    DrawForm();
    SaveAsBoth();
    fs::remove(txt);
    QTest::mouseClick(Find<QPushButton>("cmdViewResFile"), Qt::LeftButton);
    EXPECT_TRUE(host.viewerOpened.empty());
}

// --- the close of the window -----------------------------------------------------------------

TEST_F(FileCommands, ASavedDesignClosesWithoutAQuestionAndWritesTheSettings) {
    window->ShowBitmapWarning(false);
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(host.settings["Settings/ShowBitmapWarning"], "0");
    EXPECT_EQ(host.settings["Settings/ShowGrid"], "1");
    EXPECT_EQ(host.settings["Settings/GridInterval"], "55");
}

TEST_F(FileCommands, TheGridIsWrittenAsTheScreenHoldsIt) {
    // Read at start: the grid hidden with an interval of 30. Hiding keeps the
    // screen's own interval, so that is what the close writes.
    host.settings["Settings/ShowGrid"] = "0";
    host.settings["Settings/GridInterval"] = "30";
    Open();
    ASSERT_FALSE(Screen().GridVisible());
    ASSERT_EQ(Screen().GridInterval(), 55);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(host.settings["Settings/ShowGrid"], "0");
    EXPECT_EQ(host.settings["Settings/GridInterval"], "55");
}

TEST_F(FileCommands, AGridChangedOnTheScreenIsWrittenAtTheClose) {
    Screen().SetGrid(20, true);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(host.settings["Settings/ShowGrid"], "1");
    EXPECT_EQ(host.settings["Settings/GridInterval"], "20");
}

TEST_F(FileCommands, AGridHiddenOnTheScreenIsWrittenHiddenWithItsInterval) {
    Screen().SetGrid(20, true);
    Screen().SetGrid(20, false);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(host.settings["Settings/ShowGrid"], "0");
    EXPECT_EQ(host.settings["Settings/GridInterval"], "20");
}

TEST_F(FileCommands, CloseWithChangesAsksAndNoClosesWithoutSaving) {
    DrawForm();
    host.messageAnswers = {MessageAnswer::No};
    EXPECT_TRUE(window->close());
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{kCloseQuestion});
    EXPECT_EQ(host.messages[0].buttons, MessageButtons::YesNoCancel);
    EXPECT_TRUE(host.saveRequests.empty());
    EXPECT_EQ(host.settings["Settings/GridInterval"], "55");
}

TEST_F(FileCommands, CloseWithChangesAndCancelStaysButWritesTheSettings) {
    DrawForm();
    host.messageAnswers = {MessageAnswer::Cancel};
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(host.settings["Settings/ShowGrid"], "1");
    EXPECT_EQ(host.settings.count("Settings/ShowBitmapWarning"), 1u);
}

TEST_F(FileCommands, CloseWithChangesAndYesSavesThenCloses) {
    DrawForm();
    host.messageAnswers = {MessageAnswer::Yes, MessageAnswer::OK};
    host.fileAnswers = {txt, h};
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(fs::exists(txt));
    EXPECT_TRUE(fs::exists(h));
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{kCloseQuestion, kBitmapWarning}));
    EXPECT_EQ(host.settings["Settings/GridInterval"], "55");
}

TEST_F(FileCommands, CloseWithChangesYesAndTheSaveCancelledKeepsTheWindowAndWritesNoSetting) {
    DrawForm();
    host.messageAnswers = {MessageAnswer::Yes};
    host.fileAnswers = {std::nullopt};
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(host.settings.empty());
}

TEST_F(FileCommands, ExitRunsTheSameCloseRule) {
    DrawForm();
    host.messageAnswers = {MessageAnswer::Cancel};
    TriggerMenu("mnuExit");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(host.MessageLines(), std::vector<std::string>{kCloseQuestion});
}

}  // namespace
}  // namespace tolva::testing
