#include "document/Paths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace tolva {
namespace {

namespace fs = std::filesystem;

// --- one name ------------------------------------------------------------------

TEST(IsShortName, EightDotThreeFits) {
    for (const char* name : {"FILE.BMP", "FILENAME.BMP", "A", "A.B", "FILENAME", "PIC1.B",
                             "LONGNA~1.BMP", "A_B-C.TXT", "!#$%&'()", "@^`{}~.X"}) {
        EXPECT_TRUE(IsShortName(name)) << name;
    }
}

TEST(IsShortName, LowerCaseFits) {
    EXPECT_TRUE(IsShortName("file.bmp"));
    EXPECT_TRUE(IsShortName("Logo.Bmp"));
}

TEST(IsShortName, TooLongParts) {
    EXPECT_FALSE(IsShortName("FILENAME1.BMP"));  // nine characters
    EXPECT_FALSE(IsShortName("FILE.BMPX"));      // four after the dot
    EXPECT_FALSE(IsShortName("LONGFILENAME"));
}

TEST(IsShortName, DotsOutOfPlace) {
    EXPECT_FALSE(IsShortName("A.B.C"));
    EXPECT_FALSE(IsShortName("FILE."));
    EXPECT_FALSE(IsShortName(".BMP"));
    EXPECT_FALSE(IsShortName("."));
    EXPECT_FALSE(IsShortName(".."));
}

TEST(IsShortName, RefusedCharacters) {
    for (const char* name : {"MY PIC.BMP", "A+B.BMP", "A,B.BMP", "A;B.BMP", "A=B.BMP",
                             "A[B.BMP", "A]B.BMP", "A*B", "A?B", "A\"B", "A<B", "A>B", "A|B",
                             "A:B", "A\\B", "A/B", "PIC.B B", "A\tB"}) {
        EXPECT_FALSE(IsShortName(name)) << name;
    }
}

TEST(IsShortName, BytesOutsideAsciiNeedAnAlias) {
    EXPECT_FALSE(IsShortName("\xe9t\xe9.BMP"));
    EXPECT_FALSE(IsShortName("caf\xc3\xa9"));
}

TEST(IsShortName, EmptyNameDoesNotFit) { EXPECT_FALSE(IsShortName("")); }

// --- whole paths on a real disk ------------------------------------------------

// Each test works in a fresh directory of its own, made the current one, so
// that relative paths are short and known.
class ShortPathTest : public ::testing::Test {
protected:
    void SetUp() override {
        previous_ = fs::current_path();
        std::random_device random;
        for (int attempt = 0; attempt < 100; ++attempt) {
            const fs::path candidate =
                fs::temp_directory_path() / ("t" + std::to_string(random() % 10000000));
            if (fs::create_directory(candidate)) {
                root_ = candidate;
                break;
            }
        }
        ASSERT_FALSE(root_.empty());
        fs::current_path(root_);
    }

    void TearDown() override {
        fs::current_path(previous_);
        std::error_code ec;
        if (!root_.empty()) fs::remove_all(root_, ec);
    }

    static void MakeFile(const fs::path& path) {
        fs::create_directories(path.parent_path().empty() ? fs::path(".") : path.parent_path());
        std::ofstream(path) << "BM";
        ASSERT_TRUE(fs::exists(path)) << path;
    }

    fs::path previous_;
    fs::path root_;
};

TEST_F(ShortPathTest, ShortPathGivesItself) {
    MakeFile("PICS/LOGO.BMP");
    EXPECT_EQ(ShortPathName("PICS/LOGO.BMP"), "PICS/LOGO.BMP");
    EXPECT_EQ(ShortPathName("LOGO.BMP"), "");  // not in the current directory
    EXPECT_TRUE(IsShortPath("PICS/LOGO.BMP"));
}

TEST_F(ShortPathTest, BackslashSeparatesToo) {
    MakeFile("PICS/SUB/LOGO.BMP");
    EXPECT_EQ(ShortPathName("PICS\\SUB\\LOGO.BMP"), "PICS\\SUB\\LOGO.BMP");
    EXPECT_EQ(ShortPathName("PICS\\SUB/LOGO.BMP"), "PICS\\SUB/LOGO.BMP");
    EXPECT_TRUE(IsShortPath("PICS\\SUB\\LOGO.BMP"));
}

TEST_F(ShortPathTest, LowerCaseShortNamesGiveThemselves) {
    MakeFile("pics/logo.bmp");
    EXPECT_EQ(ShortPathName("pics/logo.bmp"), "pics/logo.bmp");
    EXPECT_TRUE(IsShortPath("pics/logo.bmp"));
    // Case plays no part: eight characters of mixed case still fit.
    MakeFile("Pics/LongName.Bmp");
    EXPECT_EQ(ShortPathName("Pics/LongName.Bmp"), "Pics/LongName.Bmp");
}

TEST_F(ShortPathTest, LongFileNameGetsAnAlias) {
    MakeFile("PICS/LongFileName.bmp");
    EXPECT_EQ(ShortPathName("PICS/LongFileName.bmp"), "PICS/LONGFI~1.BMP");
    EXPECT_FALSE(IsShortPath("PICS/LongFileName.bmp"));
}

TEST_F(ShortPathTest, LongDirectoryNameGetsAnAlias) {
    MakeFile("Pictures/LOGO.BMP");
    EXPECT_EQ(ShortPathName("Pictures/LOGO.BMP"), "Pictures/LOGO.BMP");  // eight fit

    MakeFile("MyPictures/LOGO.BMP");
    EXPECT_EQ(ShortPathName("MyPictures/LOGO.BMP"), "MYPICT~1/LOGO.BMP");
    EXPECT_EQ(ShortPathName("MyPictures"), "MYPICT~1");
    EXPECT_FALSE(IsShortPath("MyPictures/LOGO.BMP"));
}

TEST_F(ShortPathTest, BlanksAndSecondDotsAndRefusedMarksNeedAnAlias) {
    MakeFile("MY PIC.BMP");
    MakeFile("A.B.BMP");
    MakeFile("A+B.BMP");
    MakeFile("LOGO.JPEG");
    MakeFile(".hidden");
    EXPECT_EQ(ShortPathName("MY PIC.BMP"), "MYPIC~1.BMP");
    EXPECT_EQ(ShortPathName("A.B.BMP"), "AB~1.BMP");
    EXPECT_EQ(ShortPathName("A+B.BMP"), "A_B~1.BMP");
    EXPECT_EQ(ShortPathName("LOGO.JPEG"), "LOGO~1.JPE");
    EXPECT_EQ(ShortPathName(".hidden"), "HIDDEN~1");
    for (const char* path : {"MY PIC.BMP", "A.B.BMP", "A+B.BMP", "LOGO.JPEG", ".hidden"}) {
        EXPECT_FALSE(IsShortPath(path)) << path;
    }
}

TEST_F(ShortPathTest, LongNamesSharingAStemAreNumberedInOrder) {
    MakeFile("LongNameB.bmp");
    MakeFile("LongNameA.bmp");
    MakeFile("LongNameC.txt");  // another extension: a stem of its own
    EXPECT_EQ(ShortPathName("LongNameA.bmp"), "LONGNA~1.BMP");
    EXPECT_EQ(ShortPathName("LongNameB.bmp"), "LONGNA~2.BMP");
    EXPECT_EQ(ShortPathName("LongNameC.txt"), "LONGNA~1.TXT");
}

TEST_F(ShortPathTest, AliasPassesOverANameAlreadyTaken) {
    MakeFile("LONGFI~1.BMP");
    MakeFile("LongFileName.bmp");
    EXPECT_EQ(ShortPathName("LONGFI~1.BMP"), "LONGFI~1.BMP");
    EXPECT_EQ(ShortPathName("LongFileName.bmp"), "LONGFI~2.BMP");
}

TEST_F(ShortPathTest, MissingPathGivesEmptyText) {
    MakeFile("PICS/LOGO.BMP");
    EXPECT_EQ(ShortPathName("PICS/NOTHERE.BMP"), "");
    EXPECT_EQ(ShortPathName("NODIR/LOGO.BMP"), "");
    EXPECT_EQ(ShortPathName("Missing Long Name.bmp"), "");
    EXPECT_FALSE(IsShortPath("PICS/NOTHERE.BMP"));
}

TEST_F(ShortPathTest, EmptyPathGivesEmptyText) { EXPECT_EQ(ShortPathName(""), ""); }

TEST_F(ShortPathTest, PathWithNulGivesEmptyText) {
    MakeFile("PICS/LOGO.BMP");
    EXPECT_EQ(ShortPathName(std::string("PICS\0X", 6)), "");
    EXPECT_FALSE(IsShortPath(std::string("PICS\0X", 6)));
}

TEST_F(ShortPathTest, OverlongPathGivesEmptyText) {
    EXPECT_EQ(ShortPathName(std::string(10000, 'A')), "");
}

TEST_F(ShortPathTest, DotsAndDotDotsStay) {
    MakeFile("PICS/LOGO.BMP");
    fs::create_directory("OTHER");
    EXPECT_EQ(ShortPathName("./PICS/../PICS/LOGO.BMP"), "./PICS/../PICS/LOGO.BMP");
    EXPECT_EQ(ShortPathName("."), ".");
    EXPECT_EQ(ShortPathName(".."), "..");
    EXPECT_EQ(ShortPathName("OTHER/../PICS/LOGO.BMP"), "OTHER/../PICS/LOGO.BMP");
}

TEST_F(ShortPathTest, SeparatorsAreKeptAsWritten) {
    MakeFile("PICS/LOGO.BMP");
    EXPECT_EQ(ShortPathName("PICS/"), "PICS/");
    EXPECT_EQ(ShortPathName("PICS//LOGO.BMP"), "PICS//LOGO.BMP");
}

TEST_F(ShortPathTest, RootStays) {
    EXPECT_EQ(ShortPathName("/"), "/");
    EXPECT_TRUE(IsShortPath("/"));
}

TEST_F(ShortPathTest, DriveStays) {
    // On this host "C:" is only a directory name, but a path that starts with
    // a drive keeps it as it is.
    MakeFile("C:/LOGO.BMP");
    MakeFile("C:/LongFileName.bmp");
    EXPECT_EQ(ShortPathName("C:\\LOGO.BMP"), "C:\\LOGO.BMP");
    EXPECT_EQ(ShortPathName("C:/LongFileName.bmp"), "C:/LONGFI~1.BMP");
    EXPECT_EQ(ShortPathName("D:\\LOGO.BMP"), "");
}

TEST_F(ShortPathTest, AbsolutePaths) {
    MakeFile("PICS/LOGO.BMP");
    MakeFile("Long Folder/LOGO.BMP");
    const std::string root = root_.string();
    const std::string rootShort = ShortPathName(root);
    ASSERT_FALSE(rootShort.empty());
    EXPECT_EQ(ShortPathName(root + "/PICS/LOGO.BMP"), rootShort + "/PICS/LOGO.BMP");
    EXPECT_EQ(ShortPathName(root + "/Long Folder/LOGO.BMP"), rootShort + "/LONGFO~1/LOGO.BMP");
    EXPECT_EQ(ShortPathName(root + "/PICS/NOTHERE.BMP"), "");
}

}  // namespace
}  // namespace tolva
