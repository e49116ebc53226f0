#include "objects/textbox/modTextbox.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillTextboxValueLists(ValueLists& lists) {
    lists.assign(23, {});
    lists[7 - 1] = {"TEXTBOX_STYLE_0", "TEXTBOX_STYLE_1", "TEXTBOX_STYLE_2"};
    lists[8 - 1] = {"NO_LINE", "DOT_LINE", "GREY_LINE"};
    lists[9 - 1] = {"SMALL_FONT", "MEDIUM_FONT"};
    lists[10 - 1] = ColorWordList();
    lists[11 - 1] = ColorWordList();
    for (int row = 18; row <= 23; ++row) lists[static_cast<std::size_t>(row - 1)] = {"TRUE", "FALSE"};
}

int TextboxStyleWordToNumber(const std::string& word) {
    const std::string upper = UpperCase(word);
    for (int style = 0; style <= 2; ++style)
        if (upper == "TEXTBOX_STYLE_" + std::to_string(style)) return style;
    return 0;
}

bool ParseTextboxRecord(RecordReader& in, LoadedRecord& record) {
    if (!ParseHeadA(in, record, 15)) return false;
    GroupList& g = record.groups;
    auto word = [&](const char* key, int group) {
        std::string value;
        if (!in.Key(key, value)) return false;
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

    if (!word("(S)TEXTBOX_TEXT=", 2)) return false;
    if (!in.Word("~F4") || !word("(B)TEXTBOX_STYLE=", 3)) return false;
    if (!in.Word("~F5") || !word("(B)TEXTBOX_BACK_LINE=", 4)) return false;
    if (!in.Word("~F6") || !word("(B)TEXTBOX_FONT=", 5)) return false;
    if (!in.Word("~F7") || !word("(B)TEXTBOX_FONT_COLOR=", 6)) return false;
    if (!in.Word("~F8") || !word("(B)TEXTBOX_BACKGROUND_COLOR=", 7)) return false;
    if (!number("~F9", "(W)TEXTBOX_MAX_NUM_CHARS=", 8)) return false;
    if (!number("~F10", "(W)TEXTBOX_LEFT_CHAR_POS=", 9)) return false;
    if (!number("~F11", "(W)TEXTBOX_RIGHT_CHAR_POS=", 10)) return false;
    if (!number("~F12", "(W)TEXTBOX_INSERT_PT_CHAR_POS=", 11)) return false;
    if (!number("~F13", "(W)TEXTBOX_HIGHLIGHT_START_CHAR_POS=", 12)) return false;
    if (!number("~F14", "(W)TEXTBOX_HIGHLIGHT_END_CHAR_POS=", 13)) return false;
    if (!in.Word("~F15")) return false;
    for (const char* key :
         {"(BO)TEXTBOX_ATTR.TEXTBOX_ACTIVE=", "(BO)TEXTBOX_ATTR.TEXTBOX_ENABLE=",
          "(BO)TEXTBOX_ATTR.TEXTBOX_DIRTY=", "(BO)TEXTBOX_ATTR.TEXTBOX_HIGHLIGHT=",
          "(BO)TEXTBOX_ATTR.TEXTBOX_INSERT_PT_VISIBLE=", "(BO)TEXTBOX_ATTR.TEXTBOX_VISIBLE="})
        if (!word(key, 14)) return false;
    return in.Word("#END_TEXTBOX");
}

}  // namespace tolva
