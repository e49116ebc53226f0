#include <gtest/gtest.h>

#include <string>

#include "document/RuntimeFailure.h"
#include "document/TextHelpers.h"

namespace tolva {
namespace {

struct Parts {
    std::string drive, directory, name, extension, fileName;
};

Parts Split(const std::string& path) {
    return {SplitPath(path, kPathDrive), SplitPath(path, kPathDirectory),
            SplitPath(path, kPathName), SplitPath(path, kPathExtension),
            SplitPath(path, kPathFileName)};
}

TEST(SplitPath, PartNumbersAreZeroToFour) {
    EXPECT_EQ(kPathDrive, 0);
    EXPECT_EQ(kPathDirectory, 1);
    EXPECT_EQ(kPathName, 2);
    EXPECT_EQ(kPathExtension, 3);
    EXPECT_EQ(kPathFileName, 4);
}

TEST(SplitPath, DriveDirectoryNameAndExtension) {
    const Parts p = Split("C:\\DIR\\FILE.BMP");
    EXPECT_EQ(p.drive, "C:");
    EXPECT_EQ(p.directory, "\\DIR\\");
    EXPECT_EQ(p.name, "FILE");
    EXPECT_EQ(p.extension, ".BMP");
    EXPECT_EQ(p.fileName, "FILE.BMP");
}

TEST(SplitPath, BareNameHasNoDirectoryNorExtension) {
    const Parts p = Split("FILE");
    EXPECT_EQ(p.drive, "");
    EXPECT_EQ(p.directory, "");
    EXPECT_EQ(p.name, "FILE");
    EXPECT_EQ(p.extension, "");
    EXPECT_EQ(p.fileName, "FILE");
}

TEST(SplitPath, TwoDotsKeepOnlyThePartBetweenThem) {
    const Parts p = Split("a.b.c");
    EXPECT_EQ(p.name, "a");
    EXPECT_EQ(p.extension, ".b");
    EXPECT_EQ(p.fileName, "a.b");
    EXPECT_EQ(p.directory, "");

    const Parts q = Split("C:\\PICS\\LOGO.OLD.BMP");
    EXPECT_EQ(q.directory, "\\PICS\\");
    EXPECT_EQ(q.name, "LOGO");
    EXPECT_EQ(q.extension, ".OLD");
    EXPECT_EQ(q.fileName, "LOGO.OLD");
}

TEST(SplitPath, ForwardSlashSeparatesToo) {
    const Parts p = Split("/home/user/pics/logo.bmp");
    EXPECT_EQ(p.drive, "");
    EXPECT_EQ(p.directory, "/home/user/pics/");
    EXPECT_EQ(p.name, "logo");
    EXPECT_EQ(p.extension, ".bmp");
    EXPECT_EQ(p.fileName, "logo.bmp");
}

TEST(SplitPath, MixedSeparatorsUseTheLastOne) {
    const Parts p = Split("C:/DIR\\SUB/FILE.TXT");
    EXPECT_EQ(p.drive, "C:");
    EXPECT_EQ(p.directory, "/DIR\\SUB/");
    EXPECT_EQ(p.fileName, "FILE.TXT");
}

TEST(SplitPath, DotInADirectoryIsNotAnExtension) {
    const Parts p = Split("C:\\MY.DIR\\FILE");
    EXPECT_EQ(p.directory, "\\MY.DIR\\");
    EXPECT_EQ(p.name, "FILE");
    EXPECT_EQ(p.extension, "");
}

TEST(SplitPath, DotAtTheEndIsCutAndGivesNoExtension) {
    const Parts p = Split("FILE.");
    EXPECT_EQ(p.name, "FILE");
    EXPECT_EQ(p.extension, "");
    EXPECT_EQ(p.fileName, "FILE");
}

TEST(SplitPath, SeparatorAtTheVeryEndIsPassedOver) {
    // The walk does not stop at a final separator: it goes on to the one
    // before, and what stands between them is taken as the name.
    const Parts p = Split("C:\\DIR\\");
    EXPECT_EQ(p.drive, "C:");
    EXPECT_EQ(p.directory, "\\");
    EXPECT_EQ(p.name, "DIR\\");
    EXPECT_EQ(p.extension, "");
}

TEST(SplitPath, DriveAlone) {
    const Parts p = Split("C:");
    EXPECT_EQ(p.drive, "C:");
    EXPECT_EQ(p.directory, "");
    EXPECT_EQ(p.name, "");
    EXPECT_EQ(p.extension, "");
}

TEST(SplitPath, DriveWithoutDirectory) {
    const Parts p = Split("D:PIC.BMP");
    EXPECT_EQ(p.drive, "D:");
    EXPECT_EQ(p.directory, "");
    EXPECT_EQ(p.fileName, "PIC.BMP");
}

TEST(SplitPath, ColonElsewhereIsNoDrive) {
    EXPECT_EQ(SplitPath("ABC:D.BMP", kPathDrive), "");
    EXPECT_EQ(SplitPath("ABC:D.BMP", kPathName), "ABC:D");
}

TEST(SplitPath, EmptyPathGivesEmptyParts) {
    const Parts p = Split("");
    EXPECT_EQ(p.drive, "");
    EXPECT_EQ(p.directory, "");
    EXPECT_EQ(p.name, "");
    EXPECT_EQ(p.extension, "");
    EXPECT_EQ(p.fileName, "");
}

TEST(SplitPath, RootFile) {
    const Parts p = Split("\\FILE.BMP");
    EXPECT_EQ(p.directory, "\\");
    EXPECT_EQ(p.fileName, "FILE.BMP");
}

TEST(SplitPath, InvalidPartNumberIsARunTimeFailure) {
    EXPECT_THROW(SplitPath("C:\\DIR\\FILE.BMP", 5), RuntimeFailure);
    EXPECT_THROW(SplitPath("C:\\DIR\\FILE.BMP", -1), RuntimeFailure);
    EXPECT_THROW(SplitPath("", 100), RuntimeFailure);
}

}  // namespace
}  // namespace tolva
