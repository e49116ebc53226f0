// The wrap of a Field's text: hand-made width tables for each of its
// cases, and the real tables of both device fonts at the edge of a line.
#include <gtest/gtest.h>

#include "objects/field/FieldWrap.h"
#include "support/RealFontWidths.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;

// Every character 4 pixels wide (5 with its gap), the space 2 (3).
FontWidthTable FourAndTwo() {
    FontWidthTable table{};
    table.fill(4);
    table[' '] = 2;
    return table;
}

TEST(FieldWrap, AnEmptyTextIsOneEmptyLine) {
    EXPECT_EQ(WrapFieldText("", FourAndTwo(), 50), (Lines{""}));
}

TEST(FieldWrap, AWordThatNoLongerFitsMovesOnWhole) {
    EXPECT_EQ(WrapFieldText("ab cd", FourAndTwo(), 20), (Lines{"ab ", "cd"}));
    EXPECT_EQ(WrapFieldText("ab cd", FourAndTwo(), 22), (Lines{"ab cd"}));
}

// A character fits while the widths so far plus its own, without its gap,
// do not exceed the line: equal is in.
TEST(FieldWrap, ACharacterEndingExactlyAtTheEdgeFits) {
    EXPECT_EQ(WrapFieldText("ab", FourAndTwo(), 9), (Lines{"ab"}));
    EXPECT_EQ(WrapFieldText("ab", FourAndTwo(), 8), (Lines{"a", "b"}));
}

// The word breaks where it overflows; the row then counts the new character
// as its line's width, so the next overflow sends out an empty line and
// moves the word on, and the word after breaks again.
TEST(FieldWrap, AWordLongerThanTheLineBreaksInMidWordWithEmptyLinesBetween) {
    EXPECT_EQ(WrapFieldText("abcdefg", FourAndTwo(), 12), (Lines{"ab", "", "cd", "", "ef", "g"}));
}

TEST(FieldWrap, ASpaceAfterABrokenWordJoinsTheRow) {
    EXPECT_EQ(WrapFieldText("abc d", FourAndTwo(), 12), (Lines{"ab", "c ", "d"}));
}

TEST(FieldWrap, ASpaceThatOverflowsAnEmptyRowIsLost) {
    EXPECT_EQ(WrapFieldText("ab x", FourAndTwo(), 9), (Lines{"ab", "x"}));
}

TEST(FieldWrap, SpacesAreNotMeasuredOnceTheRowHoldsText) {
    EXPECT_EQ(WrapFieldText("a          b", FourAndTwo(), 10), (Lines{"a          ", "b"}));
}

TEST(FieldWrap, LineBreaksAreSkippedAndBreakNothing) {
    EXPECT_EQ(WrapFieldText("ab\r\ncd\ne\rf", FourAndTwo(), 100), (Lines{"abcdef"}));
}

TEST(FieldWrap, AnAvailableWidthOfZeroBreaksEveryOtherCharacter) {
    EXPECT_EQ(WrapFieldText("abc", FourAndTwo(), 0), (Lines{"", "", "ab", "c"}));
}

// The tables are all 0 until the width files are read: every character
// still costs its pixel of gap.
TEST(FieldWrap, CharactersOfWidthZeroStillCostTheirGap) {
    FontWidthTable zero{};
    EXPECT_EQ(WrapFieldText("abcd", zero, 3), (Lines{"abcd"}));
    EXPECT_EQ(WrapFieldText("abcde", zero, 3), (Lines{"abcd", "e"}));
    EXPECT_EQ(WrapFieldText("ab", zero, 0), (Lines{"a", "b"}));
    EXPECT_EQ(WrapFieldText("abc", zero, 0), (Lines{"a", "", "bc"}));
}

TEST(FieldWrap, TheSmallFontFitsHelloWorldInFortySixPixels) {
    const FontWidthTable small = RealFontWidthTable("FontSmallWidth.txt");
    EXPECT_EQ(WrapFieldText("Hello world", small, 46), (Lines{"Hello world"}));
    EXPECT_EQ(WrapFieldText("Hello world", small, 45), (Lines{"Hello ", "world"}));
}

TEST(FieldWrap, TheMediumFontNeedsSixtyThree) {
    const FontWidthTable medium = RealFontWidthTable("FontMediumWidth.txt");
    EXPECT_EQ(WrapFieldText("Hello world", medium, 63), (Lines{"Hello world"}));
    EXPECT_EQ(WrapFieldText("Hello world", medium, 62), (Lines{"Hello ", "world"}));
}

TEST(FieldWrap, CharactersAboveTheFirstHalfAreMeasuredByTheirCode) {
    FontWidthTable table = FourAndTwo();
    table[0xE9] = 20;  // a wide é
    EXPECT_EQ(WrapFieldText("a\xE9", table, 20), (Lines{"a", "\xE9"}));
}

}  // namespace
}  // namespace tolva::testing
