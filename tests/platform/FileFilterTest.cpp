// The file choosers' filter and default extension in Qt's form.
#include <gtest/gtest.h>

#include "platform/FileFilter.h"

namespace tolva {
namespace {

TEST(FileFilter, ResourceFilterKeepsItsName) {
    EXPECT_EQ(ToQtFilter("Resource Files (*.txt)|*.txt|"), "Resource Files (*.txt)");
}

TEST(FileFilter, HeaderFilter) {
    EXPECT_EQ(ToQtFilter("Header Files (*.h)|*.h|"), "Header Files (*.h)");
}

TEST(FileFilter, NameWithoutPatternsInBracketsGetsThem) {
    EXPECT_EQ(ToQtFilter("Bitmaps|*.bmp|"), "Bitmaps (*.bmp)");
}

TEST(FileFilter, SeveralEntriesAreJoinedBySemicolonPairs) {
    EXPECT_EQ(ToQtFilter("Bitmaps (*.bmp)|*.bmp|All Files (*.*)|*.*|"),
              "Bitmaps (*.bmp);;All Files (*.*)");
}

TEST(FileFilter, SemicolonSeparatedPatternsBecomeBlankSeparated) {
    EXPECT_EQ(ToQtFilter("Pictures|*.bmp;*.dib|"), "Pictures (*.bmp *.dib)");
    const auto entries = ParseFilter("Pictures|*.bmp; *.dib|");
    ASSERT_EQ(entries.size(), 1u);
    EXPECT_EQ(entries[0].description, "Pictures");
    EXPECT_EQ(entries[0].patterns, "*.bmp *.dib");
}

TEST(FileFilter, NameWhoseBracketsDifferFromItsPatternsIsGivenTheRealOnes) {
    EXPECT_EQ(ToQtFilter("Text (*.txt)|*.TXT|"), "Text (*.txt) (*.TXT)");
}

TEST(FileFilter, MissingFinalBarIsAccepted) {
    EXPECT_EQ(ToQtFilter("Resource Files (*.txt)|*.txt"), "Resource Files (*.txt)");
}

TEST(FileFilter, EmptyFilterMeansEveryFile) {
    EXPECT_EQ(ToQtFilter(""), "");
    EXPECT_TRUE(ParseFilter("||").empty());
}

TEST(FileFilter, TrailingNameWithoutPatternsStandsAlone) {
    EXPECT_EQ(ToQtFilter("Bitmaps|*.bmp|Everything"), "Bitmaps (*.bmp);;Everything");
}

TEST(FileFilter, PatternsWithoutName) {
    EXPECT_EQ(ToQtFilter("|*.txt|"), "*.txt (*.txt)");
}

TEST(FileFilter, DefaultSuffixDropsStarAndDot) {
    EXPECT_EQ(DefaultSuffix("*.txt"), "txt");
    EXPECT_EQ(DefaultSuffix("*.h"), "h");
    EXPECT_EQ(DefaultSuffix(".bmp"), "bmp");
    EXPECT_EQ(DefaultSuffix("txt"), "txt");
}

TEST(FileFilter, DefaultSuffixOfWildcardIsNone) {
    EXPECT_EQ(DefaultSuffix("*.*"), "");
    EXPECT_EQ(DefaultSuffix("*"), "");
    EXPECT_EQ(DefaultSuffix(""), "");
}

}  // namespace
}  // namespace tolva
