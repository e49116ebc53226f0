#pragma once
// The vocabulary between the words of the resource text and numbers.
// Word-to-number functions upper-case the word first (all but
// ObjectTypeFromWord); an unknown word gives 0. Number-to-word functions give
// the empty text for an unknown number.
#include <cstdint>
#include <string>
#include <vector>

namespace tolva {

// Colours: the device's 4-bit grey levels.
inline constexpr int kColorWhite = 0;
inline constexpr int kColorGrey1 = 7;
inline constexpr int kColorGrey2 = 11;
inline constexpr int kColorBlack = 15;

int ColorFromWord(const std::string& word);
// One of the four numbers above.
inline bool IsDeviceColor(int number) {
    return number == kColorWhite || number == kColorGrey1 || number == kColorGrey2 ||
           number == kColorBlack;
}
std::string WordFromColor(int number);
// The colour on the design screen as 0xRRGGBB; any unknown number is black.
uint32_t ScreenColorFromNumber(int number);
// The colour words for choice rows: "COLOR_BLACK", "COLOR_GREY2",
// "COLOR_GREY1", "COLOR_WHITE".
const std::vector<std::string>& ColorWordList();

// Alignment: "LEFT" 0, "CENTRE" 1, "RIGHT" 2; "LEFT_ALIGN", "CENTRE_ALIGN",
// "RIGHT_ALIGN" accepted on input.
int AlignmentFromWord(const std::string& word);
std::string WordFromAlignment(int number);

// Booleans: "TRUE" is -1, "FALSE" 0.
int BooleanFromWord(const std::string& word);
std::string WordFromBoolean(int number);

// On and off: "ON" 0, "OFF" 1.
int OnOffFromWord(const std::string& word);
std::string WordFromOnOff(int number);

// Base lines: "NO_LINE" 0, "DOT_LINE" 1, "GREY_LINE" 2.
int BaseLineFromWord(const std::string& word);
std::string WordFromBaseLine(int number);

// Fonts: "SMALL_FONT" 0, "MEDIUM_FONT" 1.
int FontFromWord(const std::string& word);
std::string WordFromFont(int number);
// The screen font of a font number: "TolvaSmall" or "TolvaMedium"; empty for
// any other number.
std::string ScreenFontName(int number);
// The device font a text of a font word is drawn in, and its size: "MEDIUM_FONT"
// gives "TolvaMedium" at 19, any other word "TolvaSmall" at 14.
std::string ScreenFontOfWord(const std::string& fontWord);
double ScreenFontSizeOfWord(const std::string& fontWord);

// Object-type words, compared exactly with no change of case: "BUTTON" 0 ...
// "SCROLLBAR" 15, and the literal "0" 16. Any other word gives 0.
int ObjectTypeFromWord(const std::string& word);

}  // namespace tolva
