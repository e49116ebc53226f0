#include "document/Words.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tolva {
namespace {

using Pairs = std::vector<std::pair<std::string, int>>;

// --- colours -----------------------------------------------------------------

TEST(ColorWords, EveryWordBothWays) {
    const Pairs table = {{"COLOR_WHITE", 0}, {"COLOR_GREY1", 7}, {"COLOR_GREY2", 11},
                         {"COLOR_BLACK", 15}};
    for (const auto& [word, number] : table) {
        EXPECT_EQ(ColorFromWord(word), number) << word;
        EXPECT_EQ(WordFromColor(number), word) << number;
    }
}

TEST(ColorWords, CaseIsIgnoredOnInput) {
    EXPECT_EQ(ColorFromWord("color_black"), 15);
    EXPECT_EQ(ColorFromWord("Color_Grey2"), 11);
    EXPECT_EQ(ColorFromWord("color_grey1"), 7);
}

TEST(ColorWords, UnknownGreyThreeIsWhite) {
    EXPECT_EQ(ColorFromWord("COLOR_GREY3"), 0);
    EXPECT_EQ(WordFromColor(ColorFromWord("COLOR_GREY3")), "COLOR_WHITE");
}

TEST(ColorWords, UnknownWordsGiveZero) {
    EXPECT_EQ(ColorFromWord(""), 0);
    EXPECT_EQ(ColorFromWord("BLACK"), 0);
    EXPECT_EQ(ColorFromWord(" COLOR_BLACK"), 0);
}

TEST(ColorWords, UnknownNumbersGiveEmptyText) {
    for (int n : {-1, 1, 3, 8, 10, 12, 14, 16, 255}) EXPECT_EQ(WordFromColor(n), "") << n;
}

TEST(ScreenColors, TheFourGreyLevels) {
    EXPECT_EQ(ScreenColorFromNumber(0), 0xFFFFFFu);
    EXPECT_EQ(ScreenColorFromNumber(7), 0xC0C0C0u);
    EXPECT_EQ(ScreenColorFromNumber(11), 0x808080u);
    EXPECT_EQ(ScreenColorFromNumber(15), 0x000000u);
}

TEST(ScreenColors, ThreeIsBlack) { EXPECT_EQ(ScreenColorFromNumber(3), 0x000000u); }

TEST(ScreenColors, AnyOtherNumberIsBlack) {
    for (int n : {-1, 1, 6, 8, 12, 14, 16, 100, 32767}) {
        EXPECT_EQ(ScreenColorFromNumber(n), 0x000000u) << n;
    }
}

TEST(ColorWordList, DarkestFirst) {
    const std::vector<std::string> expected = {"COLOR_BLACK", "COLOR_GREY2", "COLOR_GREY1",
                                               "COLOR_WHITE"};
    EXPECT_EQ(ColorWordList(), expected);
}

// --- alignment ---------------------------------------------------------------

TEST(AlignmentWords, ShortWordsBothWays) {
    const Pairs table = {{"LEFT", 0}, {"CENTRE", 1}, {"RIGHT", 2}};
    for (const auto& [word, number] : table) {
        EXPECT_EQ(AlignmentFromWord(word), number) << word;
        EXPECT_EQ(WordFromAlignment(number), word) << number;
    }
}

TEST(AlignmentWords, LongWordsAcceptedOnInput) {
    EXPECT_EQ(AlignmentFromWord("LEFT_ALIGN"), 0);
    EXPECT_EQ(AlignmentFromWord("CENTRE_ALIGN"), 1);
    EXPECT_EQ(AlignmentFromWord("RIGHT_ALIGN"), 2);
    EXPECT_EQ(AlignmentFromWord("right_align"), 2);
    // ...but only the short ones are written.
    EXPECT_EQ(WordFromAlignment(AlignmentFromWord("CENTRE_ALIGN")), "CENTRE");
    EXPECT_EQ(WordFromAlignment(AlignmentFromWord("RIGHT_ALIGN")), "RIGHT");
}

TEST(AlignmentWords, CaseIsIgnoredOnInput) {
    EXPECT_EQ(AlignmentFromWord("centre"), 1);
    EXPECT_EQ(AlignmentFromWord("Right"), 2);
}

TEST(AlignmentWords, CenterSpelledTheAmericanWayIsLeft) {
    EXPECT_EQ(AlignmentFromWord("center"), 0);
    EXPECT_EQ(AlignmentFromWord("CENTER"), 0);
    EXPECT_EQ(AlignmentFromWord("CENTER_ALIGN"), 0);
}

TEST(AlignmentWords, UnknownNumbersGiveEmptyText) {
    for (int n : {-1, 3, 4, 100}) EXPECT_EQ(WordFromAlignment(n), "") << n;
}

// --- booleans ----------------------------------------------------------------

TEST(BooleanWords, BothWays) {
    EXPECT_EQ(BooleanFromWord("TRUE"), -1);
    EXPECT_EQ(BooleanFromWord("FALSE"), 0);
    EXPECT_EQ(WordFromBoolean(-1), "TRUE");
    EXPECT_EQ(WordFromBoolean(0), "FALSE");
}

TEST(BooleanWords, LowerCaseTrueIsTrueYesIsFalse) {
    EXPECT_EQ(BooleanFromWord("true"), -1);
    EXPECT_EQ(BooleanFromWord("True"), -1);
    EXPECT_EQ(BooleanFromWord("YES"), 0);
    EXPECT_EQ(BooleanFromWord("1"), 0);
    EXPECT_EQ(BooleanFromWord(""), 0);
}

TEST(BooleanWords, OtherNumbersGiveEmptyText) {
    EXPECT_EQ(WordFromBoolean(1), "");
    EXPECT_EQ(WordFromBoolean(-2), "");
    EXPECT_EQ(WordFromBoolean(2), "");
}

// --- on and off --------------------------------------------------------------

TEST(OnOffWords, OnIsTheLowerValue) {
    EXPECT_EQ(OnOffFromWord("ON"), 0);
    EXPECT_EQ(OnOffFromWord("OFF"), 1);
    EXPECT_EQ(OnOffFromWord("off"), 1);
    EXPECT_EQ(OnOffFromWord("On"), 0);
}

TEST(OnOffWords, NumberToWord) {
    EXPECT_EQ(WordFromOnOff(0), "ON");
    EXPECT_EQ(WordFromOnOff(1), "OFF");
    EXPECT_EQ(WordFromOnOff(-1), "");
    EXPECT_EQ(WordFromOnOff(2), "");
}

TEST(OnOffWords, UnknownWordsGiveZero) {
    EXPECT_EQ(OnOffFromWord("TRUE"), 0);
    EXPECT_EQ(OnOffFromWord("OF"), 0);
    EXPECT_EQ(OnOffFromWord(""), 0);
}

// --- base lines --------------------------------------------------------------

TEST(BaseLineWords, EveryWord) {
    EXPECT_EQ(BaseLineFromWord("NO_LINE"), 0);
    EXPECT_EQ(BaseLineFromWord("DOT_LINE"), 1);
    EXPECT_EQ(BaseLineFromWord("GREY_LINE"), 2);
    EXPECT_EQ(BaseLineFromWord("grey_line"), 2);
    EXPECT_EQ(BaseLineFromWord("dot_line"), 1);
}

TEST(BaseLineWords, NumberToWord) {
    EXPECT_EQ(WordFromBaseLine(0), "NO_LINE");
    EXPECT_EQ(WordFromBaseLine(1), "DOT_LINE");
    EXPECT_EQ(WordFromBaseLine(2), "GREY_LINE");
    EXPECT_EQ(WordFromBaseLine(3), "");
    EXPECT_EQ(WordFromBaseLine(-1), "");
}

TEST(BaseLineWords, UnknownWordsGiveZero) {
    EXPECT_EQ(BaseLineFromWord("GRAY_LINE"), 0);
    EXPECT_EQ(BaseLineFromWord("DOTTED_LINE"), 0);
    EXPECT_EQ(BaseLineFromWord(""), 0);
}

// --- fonts -------------------------------------------------------------------

TEST(FontWords, BothWays) {
    EXPECT_EQ(FontFromWord("SMALL_FONT"), 0);
    EXPECT_EQ(FontFromWord("MEDIUM_FONT"), 1);
    EXPECT_EQ(WordFromFont(0), "SMALL_FONT");
    EXPECT_EQ(WordFromFont(1), "MEDIUM_FONT");
}

TEST(FontWords, CaseIsIgnoredOnInput) { EXPECT_EQ(FontFromWord("medium_font"), 1); }

TEST(FontWords, UnknownWordsAndNumbers) {
    EXPECT_EQ(FontFromWord("LARGE_FONT"), 0);
    EXPECT_EQ(WordFromFont(2), "");
    EXPECT_EQ(WordFromFont(-1), "");
}

TEST(FontWords, ScreenFonts) {
    EXPECT_EQ(ScreenFontName(FontFromWord("SMALL_FONT")), "TolvaSmall");
    EXPECT_EQ(ScreenFontName(FontFromWord("MEDIUM_FONT")), "TolvaMedium");
    EXPECT_EQ(ScreenFontName(2), "");
}

TEST(FontWords, ATextIsDrawnInTheMediumFontOnlyForItsWord) {
    EXPECT_EQ(ScreenFontOfWord("medium_font"), "TolvaMedium");
    EXPECT_EQ(ScreenFontSizeOfWord("MEDIUM_FONT"), 19);
    EXPECT_EQ(ScreenFontOfWord("LARGE_FONT"), "TolvaSmall");
    EXPECT_EQ(ScreenFontSizeOfWord("SMALL_FONT"), 14);
}

// --- object types ------------------------------------------------------------

TEST(ObjectTypeWords, EveryWord) {
    const Pairs table = {
        {"BUTTON", 0},          {"FORM", 1},          {"STRING", 2},         {"TEXTBOX", 3},
        {"FIELD", 4},           {"CHECKBOX", 5},      {"TABLE", 6},          {"BITMAP", 7},
        {"LINE", 8},            {"LIST", 9},          {"MENU", 10},          {"POPUP_TRIGGER", 11},
        {"PUSH_BUTTON", 12},    {"REPEAT_BUTTON", 13}, {"SCHLINE", 14},      {"SCROLLBAR", 15},
    };
    for (const auto& [word, number] : table) EXPECT_EQ(ObjectTypeFromWord(word), number) << word;
}

TEST(ObjectTypeWords, ComparesExactlyWithCase) {
    EXPECT_EQ(ObjectTypeFromWord("CHECKBOX"), 5);
    EXPECT_EQ(ObjectTypeFromWord("checkbox"), 0);
    EXPECT_EQ(ObjectTypeFromWord("Scrollbar"), 0);
    EXPECT_EQ(ObjectTypeFromWord("menu"), 0);
}

TEST(ObjectTypeWords, OnlyTheLiteralZeroGivesSixteen) {
    EXPECT_EQ(ObjectTypeFromWord("0"), 16);
    EXPECT_EQ(ObjectTypeFromWord("00"), 0);
    EXPECT_EQ(ObjectTypeFromWord(" 0"), 0);
    EXPECT_EQ(ObjectTypeFromWord("16"), 0);
}

TEST(ObjectTypeWords, UnknownWordsAreTheButton) {
    EXPECT_EQ(ObjectTypeFromWord(""), 0);
    EXPECT_EQ(ObjectTypeFromWord("POPUPTRIGGER"), 0);
    EXPECT_EQ(ObjectTypeFromWord("SCHEDULERLINE"), 0);
    EXPECT_EQ(ObjectTypeFromWord("CONTROL"), 0);
}

}  // namespace
}  // namespace tolva
