// The host of the command-line companion: boxes as lines, first buttons,
// the real file system and the program's own directory.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "cli/StderrHost.h"

namespace tolva {
namespace {

TEST(StderrHost, ABoxIsOneLineWithItsTitleOrTheApplicationsTitle) {
    std::ostringstream err;
    StderrHost host(err);
    EXPECT_EQ(host.MessageBox("Invalid/unsupported resource object", "Load Error",
                              MessageButtons::OK),
              MessageAnswer::OK);
    host.MessageBox("Bitmap not found", "", MessageButtons::OK);
    EXPECT_EQ(err.str(),
              "Load Error: Invalid/unsupported resource object\n"
              "Tolva Resource Editor: Bitmap not found\n");
}

TEST(StderrHost, EveryBoxIsAnsweredWithItsFirstButton) {
    std::ostringstream err;
    StderrHost host(err);
    EXPECT_EQ(host.MessageBox("q", "t", MessageButtons::YesNo), MessageAnswer::Yes);
    EXPECT_EQ(host.MessageBox("q", "t", MessageButtons::YesNoCancel), MessageAnswer::Yes);
}

TEST(StderrHost, NoChooserNoMenuNoSetting) {
    std::ostringstream err;
    StderrHost host(err);
    EXPECT_FALSE(host.ChooseOpenFile({}));
    EXPECT_FALSE(host.ChooseSaveFile({}));
    EXPECT_FALSE(host.PopupMenu("Set Properties", {{"mnuA", "a"}}));
    EXPECT_EQ(host.GetSetting("TolvaDesigner", "Settings", "ShowGrid", "1"), "1");
    EXPECT_TRUE(err.str().empty());
}

TEST(StderrHost, FilesAreThoseOfTheRealFileSystem) {
    std::ostringstream err;
    StderrHost host(err);
    EXPECT_TRUE(host.FileExists(host.ProgramDirectory() + "/Strings.txt"));
    EXPECT_FALSE(host.FileExists(host.ProgramDirectory()));  // a directory is no file
    EXPECT_FALSE(host.FileExists(""));
    EXPECT_FALSE(host.FileExists("/no/such/file.bmp"));
    EXPECT_FALSE(host.LoadPicture("/no/such/file.bmp"));
}

TEST(StderrHost, TheProgramsDirectoryIsThatOfTheRunningProgram) {
    std::ostringstream err;
    StderrHost host(err);
    EXPECT_EQ(std::filesystem::path(host.ProgramDirectory()),
              std::filesystem::canonical("/proc/self/exe").parent_path());
}

}  // namespace
}  // namespace tolva
