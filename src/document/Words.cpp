#include "document/Words.h"

#include <utility>

#include "document/ObjectTypes.h"
#include "document/TextHelpers.h"

namespace tolva {

namespace {

struct WordNumber {
    const char* word;
    int number;
};

// Looks the word up in a table; a word in no row gives 0, the silent answer
// of the whole vocabulary to an unknown word.
template <size_t N>
int NumberOf(const std::string& word, const WordNumber (&table)[N]) {
    for (const WordNumber& row : table) {
        if (word == row.word) return row.number;
    }
    return 0;
}

// The first word of the table for the number, or the empty text.
template <size_t N>
std::string WordOf(int number, const WordNumber (&table)[N]) {
    for (const WordNumber& row : table) {
        if (number == row.number) return row.word;
    }
    return "";
}

constexpr WordNumber kColorWords[] = {
    {"COLOR_WHITE", kColorWhite},
    {"COLOR_GREY1", kColorGrey1},
    {"COLOR_GREY2", kColorGrey2},
    {"COLOR_BLACK", kColorBlack},
};

// The short words come first: they are the ones written back.
constexpr WordNumber kAlignmentWords[] = {
    {"LEFT", 0},       {"CENTRE", 1},       {"RIGHT", 2},
    {"LEFT_ALIGN", 0}, {"CENTRE_ALIGN", 1}, {"RIGHT_ALIGN", 2},
};

constexpr WordNumber kBooleanWords[] = {
    {"TRUE", -1},
    {"FALSE", 0},
};

// "ON" is the lower value on purpose: the sense is not that of the booleans.
constexpr WordNumber kOnOffWords[] = {
    {"ON", 0},
    {"OFF", 1},
};

constexpr WordNumber kBaseLineWords[] = {
    {"NO_LINE", 0},
    {"DOT_LINE", 1},
    {"GREY_LINE", 2},
};

constexpr WordNumber kFontWords[] = {
    {"SMALL_FONT", 0},
    {"MEDIUM_FONT", 1},
};

constexpr WordNumber kScreenFonts[] = {
    {"TolvaSmall", 0},
    {"TolvaMedium", 1},
};

constexpr WordNumber kObjectTypeWords[] = {
    {"BUTTON", type::Button},
    {"FORM", type::Form},
    {"STRING", type::String},
    {"TEXTBOX", type::Textbox},
    {"FIELD", type::Field},
    {"CHECKBOX", type::Checkbox},
    {"TABLE", type::Table},
    {"BITMAP", type::Bitmap},
    {"LINE", type::Line},
    {"LIST", type::List},
    {"MENU", type::Menu},
    {"POPUP_TRIGGER", type::PopupTrigger},
    {"PUSH_BUTTON", type::PushButton},
    {"REPEAT_BUTTON", type::RepeatButton},
    {"SCHLINE", type::SchedulerLine},
    {"SCROLLBAR", type::Scrollbar},
    // Only the literal "0" names no object: the loader treats 16 as invalid.
    {"0", type::None},
};

}  // namespace

int ColorFromWord(const std::string& word) { return NumberOf(UpperCase(word), kColorWords); }

std::string WordFromColor(int number) { return WordOf(number, kColorWords); }

uint32_t ScreenColorFromNumber(int number) {
    switch (number) {
        case kColorWhite:
            return 0xFFFFFF;
        case kColorGrey1:
            return 0xC0C0C0;
        case kColorGrey2:
            return 0x808080;
        default:
            // COLOR_BLACK is the host's button-text colour, black in the
            // default scheme; every other number is black as well.
            return 0x000000;
    }
}

const std::vector<std::string>& ColorWordList() {
    // The order of the choice rows: darkest first.
    static const std::vector<std::string> words = {"COLOR_BLACK", "COLOR_GREY2", "COLOR_GREY1",
                                                   "COLOR_WHITE"};
    return words;
}

int AlignmentFromWord(const std::string& word) {
    return NumberOf(UpperCase(word), kAlignmentWords);
}

std::string WordFromAlignment(int number) { return WordOf(number, kAlignmentWords); }

int BooleanFromWord(const std::string& word) { return NumberOf(UpperCase(word), kBooleanWords); }

std::string WordFromBoolean(int number) { return WordOf(number, kBooleanWords); }

int OnOffFromWord(const std::string& word) { return NumberOf(UpperCase(word), kOnOffWords); }

std::string WordFromOnOff(int number) { return WordOf(number, kOnOffWords); }

int BaseLineFromWord(const std::string& word) {
    return NumberOf(UpperCase(word), kBaseLineWords);
}

std::string WordFromBaseLine(int number) { return WordOf(number, kBaseLineWords); }

int FontFromWord(const std::string& word) { return NumberOf(UpperCase(word), kFontWords); }

std::string WordFromFont(int number) { return WordOf(number, kFontWords); }

std::string ScreenFontName(int number) { return WordOf(number, kScreenFonts); }

std::string ScreenFontOfWord(const std::string& fontWord) {
    return ScreenFontName(FontFromWord(fontWord) == 1 ? 1 : 0);
}

double ScreenFontSizeOfWord(const std::string& fontWord) { return FontFromWord(fontWord) == 1 ? 19 : 14; }

int ObjectTypeFromWord(const std::string& word) {
    // The one conversion that compares exactly, with no change of case.
    return NumberOf(word, kObjectTypeWords);
}

}  // namespace tolva
