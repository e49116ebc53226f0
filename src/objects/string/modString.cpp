#include "objects/string/modString.h"

#include "objects/RecordHeads.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillStringValueLists(ValueLists& lists) {
    lists.assign(12, {});
    lists[6 - 1] = {"STRING_STYLE_0", "STRING_STYLE_1"};
    lists[8 - 1] = ColorWordList();
    lists[9 - 1] = ColorWordList();
    lists[10 - 1] = {"SMALL_FONT", "MEDIUM_FONT"};
    lists[11 - 1] = {"LEFT", "CENTRE", "RIGHT"};
    lists[12 - 1] = {"TRUE", "FALSE"};
}

int StringStyleWordToNumber(const std::string& word) {
    const std::string upper = UpperCase(word);
    for (int style = 0; style <= 5; ++style)
        if (upper == "STRING_STYLE_" + std::to_string(style)) return style;
    return 0;
}

std::string StringStyleNumberToWord(int number) {
    if (number < 0 || number > 5) return "";
    return "STRING_STYLE_" + std::to_string(number);
}

bool ParseStringRecord(RecordReader& in, LoadedRecord& record) {
    if (!ParseHeadA(in, record, 9)) return false;
    GroupList& g = record.groups;
    auto word = [&](const char* key, int group) {
        std::string value;
        if (!in.Key(key, value)) return false;
        g[static_cast<std::size_t>(group)].push_back(value);
        return true;
    };

    if (!word("(B)STRING_STYLE=", 2)) return false;
    if (!in.Word("~F4") || !word("(S)STRING_TEXT=", 3)) return false;
    if (!in.Word("~F5") || !word("(B)STRING_FONT_COLOR=", 4)) return false;
    if (!in.Word("~F6") || !word("(B)STRING_BACKGROUND_COLOR=", 5)) return false;
    if (!in.Word("~F7") || !word("(B)STRING_FONT=", 6)) return false;
    if (!in.Word("~F8") || !word("(B)STRING_TEXTMENT=", 7)) return false;
    if (!in.Word("~F9")) return false;
    // The visible flag in its two spellings, the written one first.
    const std::string line = in.Line();
    std::string visible;
    if (!LineHasKey(line, "(BO)STRING_ATTR.STRING_VISIBLE=", visible) &&
        !LineHasKey(line, "(BO)STRING_ATTR.STRING.VISIBLE=", visible))
        return in.Fail(line);
    g[8].push_back(visible);
    return in.Word("#END_STRING");
}

}  // namespace tolva
