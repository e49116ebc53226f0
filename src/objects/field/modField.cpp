#include "objects/field/modField.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillFieldValueLists(ValueLists& lists) {
    lists.assign(25, {});
    lists[6 - 1] = {"FIELD_STYLE_0", "FIELD_STYLE_1"};
    lists[8 - 1] = {"NO_LINE", "DOT_LINE", "GREY_LINE"};
    lists[9 - 1] = ColorWordList();
    lists[10 - 1] = ColorWordList();
    lists[11 - 1] = {"SMALL_FONT", "MEDIUM_FONT"};
    lists[12 - 1] = {"LEFT", "CENTRE", "RIGHT"};
    for (int row = 18; row <= 25; ++row) lists[static_cast<std::size_t>(row - 1)] = {"TRUE", "FALSE"};
}

int FieldStyleWordToNumber(const std::string& word) {
    const std::string upper = UpperCase(word);
    if (upper == "FIELD_STYLE_1") return 1;
    return 0;
}

std::string EncodeFieldLineBreaks(std::string_view text) {
    std::string encoded;
    encoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            encoded += "/r";
            ++i;
        } else if (c != '\r' && c != '\n') {
            encoded.push_back(c);
        }
    }
    return encoded;
}

bool ParseFieldRecord(RecordReader& in, LoadedRecord& record) {
    if (!ParseHeadA(in, record, 15)) return false;
    GroupList& g = record.groups;
    auto word = [&](const char* marker, const char* key, int group) {
        std::string value;
        if ((marker && !in.Word(marker)) || !in.Key(key, value)) return false;
        g[static_cast<std::size_t>(group)].push_back(value);
        return true;
    };
    // The numbers are 32-bit and read as they come: a bad one ends the load.
    auto number = [&](const char* marker, const char* key, int group) {
        int value = 0;
        if (!in.Word(marker) || !in.Int32Key(key, value)) return false;
        g[static_cast<std::size_t>(group)].push_back(IntToText(value));
        return true;
    };

    if (!word(nullptr, "(S)FIELD_TEXT=", 2)) return false;
    if (!word("~F4", "(B)FIELD_STYLE=", 3)) return false;
    if (!word("~F5", "(B)FIELD_BACK_LINE=", 4)) return false;
    if (!word("~F6", "(B)FIELD_FONT=", 5)) return false;
    if (!word("~F7", "(B)FIELD_FONT_COLOR=", 6)) return false;
    if (!word("~F8", "(B)FIELD_BACKGROUND_COLOR=", 7)) return false;
    if (!word("~F9", "(B)FIELD_TEXTMENT=", 8)) return false;
    if (!number("~F10", "(W)FIELD_MAX_NUM_CHARS=", 9)) return false;
    if (!number("~F11", "(W)FIELD_TOP_LINE_NUM=", 10)) return false;
    if (!number("~F12", "(W)FIELD_INSERT_PT_CHAR_POS=", 11)) return false;
    if (!number("~F13", "(W)FIELD_HIGHLIGHT_START=", 12)) return false;
    if (!number("~F14", "(W)FIELD_HIGHLIGHT_END=", 13)) return false;
    if (!in.Word("~F15")) return false;
    for (const char* key :
         {"(BO)FIELD_ATTR.FIELD_ACTIVE=", "(BO)FIELD_ATTR.FIELD_ENABLE=",
          "(BO)FIELD_ATTR.FIELD_DIRTY=", "(BO)FIELD_ATTR.FIELD_HIGHLIGHT=",
          "(BO)FIELD_ATTR.FIELD_INSERT_PT_VISIBLE=", "(BO)FIELD_ATTR.FIELD_SCROLLBAR=",
          "(BO)FIELD_ATTR.FIELD_FULL_SIZE=", "(BO)FIELD_ATTR.FIELD_VISIBLE="})
        if (!word(nullptr, key, 14)) return false;
    return in.Word("#END_FIELD");
}

}  // namespace tolva
