#include "document/TextHelpers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tolva {
namespace {

TEST(TrimSpaces, RemovesBlanksAtBothEnds) {
    EXPECT_EQ(TrimSpaces("  Name  "), "Name");
    EXPECT_EQ(TrimSpaces("A B"), "A B");
    EXPECT_EQ(TrimSpaces(" A  B "), "A  B");
}

TEST(TrimSpaces, TabsStay) {
    EXPECT_EQ(TrimSpaces("\tName "), "\tName");
    EXPECT_EQ(TrimSpaces(" Name\t"), "Name\t");
}

TEST(TrimSpaces, BlanksAloneGiveEmptyText) {
    EXPECT_EQ(TrimSpaces("    "), "");
    EXPECT_EQ(TrimSpaces(""), "");
}

TEST(AppendLine, AddsAtTheEnd) {
    LineList lines;
    AppendLine(lines, "first");
    AppendLine(lines, "");
    AppendLine(lines, "third");
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], "first");
    EXPECT_EQ(lines[1], "");
    EXPECT_EQ(lines[2], "third");
}

TEST(SortAscending, SortsByByteValue) {
    std::vector<std::string> list = {"b", "B", "a", "A", "10", "9", ""};
    SortAscending(list);
    const std::vector<std::string> expected = {"", "10", "9", "A", "B", "a", "b"};
    EXPECT_EQ(list, expected);
}

TEST(SortAscending, KeepsDuplicatesAndCopesWithShortLists) {
    std::vector<std::string> list = {"x", "y", "x"};
    SortAscending(list);
    EXPECT_EQ(list, (std::vector<std::string>{"x", "x", "y"}));

    std::vector<std::string> one = {"only"};
    SortAscending(one);
    EXPECT_EQ(one, std::vector<std::string>{"only"});

    std::vector<std::string> none;
    SortAscending(none);
    EXPECT_TRUE(none.empty());
}

TEST(UpperCase, OnlyAsciiLettersChange) {
    EXPECT_EQ(UpperCase("color_black 1"), "COLOR_BLACK 1");
    EXPECT_EQ(UpperCase("\xe9t\xe9"), "\xe9T\xe9");  // accented bytes stay
}

}  // namespace
}  // namespace tolva
