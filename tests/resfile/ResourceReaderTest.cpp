// The line reader: line ends, the line counter, comments and trimming.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "document/RuntimeFailure.h"
#include "resfile/ResourceReader.h"

namespace tolva {
namespace {

TEST(ResourceReader, CrLfAndLoneCrEndALine) {
    auto in = ResourceReader::FromText("#FORM\r\nNAME=A\rID=0\r\n");
    EXPECT_EQ(in.ReadResourceLine(), "#FORM");
    EXPECT_EQ(in.ReadResourceLine(), "NAME=A");
    EXPECT_EQ(in.ReadResourceLine(), "ID=0");
    EXPECT_TRUE(in.AtEnd());
    EXPECT_EQ(in.LineCounter(), 3);
}

TEST(ResourceReader, ALoneLineFeedStaysInTheLine) {
    auto in = ResourceReader::FromText("#FORM\nNAME=A\r\n");
    EXPECT_EQ(in.ReadPhysicalLine(), "#FORM\nNAME=A");
    EXPECT_TRUE(in.AtEnd());
}

TEST(ResourceReader, TheLastLineNeedsNoLineEnd) {
    auto in = ResourceReader::FromText("#END_FORM");
    EXPECT_EQ(in.ReadResourceLine(), "#END_FORM");
    EXPECT_TRUE(in.AtEnd());
}

TEST(ResourceReader, ReadingPastTheEndIsARunTimeFailure) {
    auto in = ResourceReader::FromText("~F0\r\n");
    in.ReadResourceLine();
    EXPECT_THROW(in.ReadResourceLine(), RuntimeFailure);
}

TEST(ResourceReader, AFileEndingInACommentFailsAtThatComment) {
    auto in = ResourceReader::FromText("#END_FORM\r\n//the end\r\n");
    EXPECT_EQ(in.ReadResourceLine(), "#END_FORM");
    EXPECT_FALSE(in.AtEnd());
    EXPECT_THROW(in.ReadResourceLine(), RuntimeFailure);
    EXPECT_EQ(in.LineCounter(), 2);
}

TEST(ResourceReader, CommentLinesAreSkippedAndCounted) {
    auto in = ResourceReader::FromText("//one\r\n//two\r\n~F1\r\n");
    EXPECT_EQ(in.ReadResourceLine(), "~F1");
    EXPECT_EQ(in.LineCounter(), 3);
}

TEST(ResourceReader, BlankLinesAreCountedAndComeBackEmpty) {
    auto in = ResourceReader::FromText("\r\n\r\n(SH)BOUNDS.X=5\r\n");
    EXPECT_EQ(in.ReadResourceLine(), "");
    EXPECT_EQ(in.ReadResourceLine(), "");
    EXPECT_EQ(in.ReadResourceLine(), "(SH)BOUNDS.X=5");
    EXPECT_EQ(in.LineCounter(), 3);
}

TEST(ResourceReader, BlankIndentIsTrimmedButATabIsNot) {
    auto in = ResourceReader::FromText("   ~F3   \r\n\t~F3\r\n");
    EXPECT_EQ(in.ReadResourceLine(), "~F3");
    EXPECT_EQ(in.ReadResourceLine(), "\t~F3");
}

TEST(ResourceReader, ACommentBehindAMarkerIsDropped) {
    auto in = ResourceReader::FromText("~F3 //style\r\n");
    EXPECT_EQ(in.ReadResourceLine(), "~F3");
}

TEST(ResourceReader, TextValuesLoseEverythingFromTheirFirstDoubleSlash) {
    auto in = ResourceReader::FromText("(S)FORM_TITLE=a//b\r\n(S)FORM_TITLE=  x  \r\n");
    EXPECT_EQ(in.ReadResourceLine(), "(S)FORM_TITLE=a");
    EXPECT_EQ(in.ReadResourceLine(), "(S)FORM_TITLE=  x");
}

TEST(ResourceReader, AnIndentedCommentComesBackAsAnEmptyLine) {
    auto in = ResourceReader::FromText(" // note\r\n");
    EXPECT_EQ(in.ReadResourceLine(), "");
    EXPECT_EQ(in.LineCounter(), 1);
}

TEST(ResourceReader, ShortLinesAreOnlyTrimmed) {
    auto in = ResourceReader::FromText(" / \r\nab\r\n");
    EXPECT_EQ(in.ReadResourceLine(), "/");
    EXPECT_EQ(in.ReadResourceLine(), "ab");
}

TEST(ResourceReader, AnEmptyTextIsAtItsEndAtOnce) {
    auto in = ResourceReader::FromText("");
    EXPECT_TRUE(in.AtEnd());
    EXPECT_THROW(in.ReadPhysicalLine(), RuntimeFailure);
}

TEST(ResourceReader, ReadsAFileByteForByte) {
    const std::string path = ::testing::TempDir() + "reader_test.txt";
    {
        std::ofstream out(path, std::ios::binary);
        out << "#FORM\r\nNAME=\xE9t\xE9\r\n";
    }
    auto in = ResourceReader::FromFile(path);
    ASSERT_TRUE(in.IsOpen());
    EXPECT_EQ(in.ReadResourceLine(), "#FORM");
    EXPECT_EQ(in.ReadResourceLine(), "NAME=\xE9t\xE9");
    std::remove(path.c_str());
}

TEST(ResourceReader, AMissingFileIsNotOpen) {
    auto in = ResourceReader::FromFile(::testing::TempDir() + "no/such/file.txt");
    EXPECT_FALSE(in.IsOpen());
}

}  // namespace
}  // namespace tolva
