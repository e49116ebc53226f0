#include "objects/list/modList.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillListValueLists(ValueLists& lists) {
    lists.assign(15, {});
    lists[6 - 1] = {"LEFT", "CENTRE", "RIGHT"};
    for (int style = 0; style <= 7; ++style) lists[7 - 1].push_back(ListStyleNumberToWord(style));
    lists[8 - 1] = ColorWordList();
    lists[9 - 1] = ColorWordList();
    for (int row = 10; row <= 14; ++row) lists[static_cast<std::size_t>(row - 1)] = {"TRUE", "FALSE"};
}

int ListStyleWordToNumber(const std::string& word) {
    const std::string upper = UpperCase(word);
    for (int style = 0; style <= 7; ++style)
        if (upper == ListStyleNumberToWord(style)) return style;
    return 0;
}

std::string ListStyleNumberToWord(int style) {
    if (style < 0 || style > 7) return "";
    return "LIST_STYLE_" + std::to_string(style);
}

bool IsListStyleWord(const std::string& word) {
    for (int style = 0; style <= 7; ++style)
        if (word == ListStyleNumberToWord(style)) return true;
    return false;
}

bool ParseListRecord(RecordReader& in, LoadedRecord& record) {
    if (!ParseHeadA(in, record, 13)) return false;
    GroupList& g = record.groups;
    auto number = [&](const char* key, int group, int& value) {
        if (!in.Int32Key(key, value)) return false;
        g[static_cast<std::size_t>(group)].push_back(IntToText(value));
        return true;
    };
    auto word = [&](const std::string& key, int group) {
        std::string value;
        if (!in.Key(key.c_str(), value)) return false;
        g[static_cast<std::size_t>(group)].push_back(value);
        return true;
    };
    int related = 0;
    if (!in.Int32Key("(U)LIST_NUM_RELATED_LIST_OBJECT=", related)) return false;
    if (!in.Word("~F4")) return false;
    // Exactly as many related lists as the count says; the loader links
    // lists by their embedding, so their IDs are only kept here.
    for (int i = 1; i <= related; ++i) {
        int id = 0;
        if (!number(("(U)LIST_RELATED_OBJECT_" + std::to_string(i) + "=").c_str(), 2, id)) return false;
    }
    int total = 0, shown = 0, top = 0;
    if (!in.Word("~F5") || !number("(U)LIST_TOTAL_NUM_ITEMS=", 3, total)) return false;
    if (!in.Word("~F6") || !number("(U)LIST_NUM_ITEMS_ON_DISPLAY=", 4, shown)) return false;
    if (!in.Word("~F7") || !number("(U)LIST_TOP_ITEM_NUM=", 5, top)) return false;
    if (!in.Word("~F8")) return false;
    {
        const std::string line = in.Line();
        std::string value;
        if (!LineHasKey(line, "(B)LIST_TEXT_ALIGNMENT=", value) &&
            !in.KeyIn(line, "(B)LIST_TEXTMENT=", value))
            return false;
        g[6].push_back(value);
    }
    if (!in.Word("~F9")) return false;
    {
        std::string value;
        if (!in.Key("(SH)LIST_SELECTED_ITEM=", value)) return false;
        g[7].push_back(value == "NO_SELECTION" ? std::string("-1") : IntToText(ToInt16(value)));
    }
    if (!in.Word("~F10") || !word("(B)LIST_STYLE=", 8)) return false;
    if (!in.Word("~F11") || !word("(B)LIST_TEXT_COLOR=", 9)) return false;
    if (!in.Word("~F12") || !word("(B)LIST_BACKGROUND_COLOR=", 10)) return false;
    if (!in.Word("~F13")) return false;
    for (int i = 1; i <= total; ++i)
        if (!word("(S)LIST_ITEMS" + std::to_string(i) + "=", 11)) return false;
    if (!in.Word("~F14")) return false;
    for (const char* key : {"(BO)LIST_ATTR.LIST_ENABLE=", "(BO)LIST_ATTR.LIST_VISIBLE=",
                            "(BO)LIST_ATTR.LIST_ACTIVE=", "(BO)LIST_ATTR.LIST_SET_SCROLL=",
                            "(BO)LIST_ATTR.LIST_SYNCHRONOUS="})
        if (!word(key, 12)) return false;
    return in.Word("#END_LIST");
}

}  // namespace tolva
