#include "objects/line/modLine.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillLineValueLists(ValueLists& lists) {
    lists.assign(9, {});
    lists[6 - 1] = ColorWordList();
    lists[7 - 1] = {"LINE_STYLE_0", "LINE_STYLE_1", "LINE_STYLE_2"};
    lists[9 - 1] = {"TRUE", "FALSE"};
}

int LineStyleWordToNumber(const std::string& word) {
    const std::string upper = UpperCase(word);
    for (int style = 0; style <= 2; ++style)
        if (upper == "LINE_STYLE_" + std::to_string(style)) return style;
    return 0;
}

bool ParseLineRecord(RecordReader& in, LoadedRecord& record) {
    if (!ParseHeadA(in, record, 8)) return false;
    GroupList& g = record.groups;
    auto word = [&](const char* key, int group) {
        std::string value;
        if (!in.Key(key, value)) return false;
        g[static_cast<std::size_t>(group)].push_back(value);
        return true;
    };
    auto number = [&](bool wide, const char* key, int group) {
        int value = 0;
        if (!(wide ? in.Int32Key(key, value) : in.Int16Key(key, value))) return false;
        g[static_cast<std::size_t>(group)].push_back(IntToText(value));
        return true;
    };
    if (!word("(B)LINE_COLOR=", 2)) return false;
    if (!in.Word("~F4") || !word("(B)LINE_STYLE=", 3)) return false;
    if (!in.Word("~F5") || !number(true, "(U)LINE_THICK=", 4)) return false;
    if (!in.Word("~F6") || !number(false, "(SH)LINE_ENDPT_X=", 5)) return false;
    if (!in.Word("~F7") || !number(false, "(SH)LINE_ENDPT_Y=", 6)) return false;
    if (!in.Word("~F8") || !word("(BO)LINE_ATTR.LINE_VISIBLE=", 7)) return false;
    return in.Word("#END_LINE");
}

}  // namespace tolva
