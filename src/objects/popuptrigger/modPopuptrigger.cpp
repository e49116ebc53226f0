#include "objects/popuptrigger/modPopuptrigger.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillPopupTriggerValueLists(ValueLists& lists) {
    lists.assign(12, {});
    lists[6 - 1] = {"LEFT", "CENTRE", "RIGHT"};
    for (int style = 0; style <= 2; ++style) lists[7 - 1].push_back(PopupTriggerStyleNumberToWord(style));
    for (int row = 8; row <= 10; ++row) lists[static_cast<std::size_t>(row - 1)] = {"TRUE", "FALSE"};
}

int PopupTriggerStyleWordToNumber(const std::string& word) {
    const std::string upper = UpperCase(word);
    for (int style = 0; style <= 2; ++style)
        if (upper == PopupTriggerStyleNumberToWord(style)) return style;
    return 0;
}

std::string PopupTriggerStyleNumberToWord(int number) {
    if (number < 0 || number > 2) return "";
    return "POPUP_TRIGGER_STYLE_" + std::to_string(number);
}

bool ParsePopupTriggerRecordTail(RecordReader& in, LoadedRecord& record) {
    GroupList& g = record.groups;
    g.resize(11);
    auto number = [&](const char* key, int group, bool wide, int& value) {
        if (!(wide ? in.Int32Key(key, value) : in.Int16Key(key, value))) return false;
        g[static_cast<std::size_t>(group)].push_back(IntToText(value));
        return true;
    };
    int radius = 0, count = 0, selected = 0, top = 0;
    if (!in.Word("~F8")) return false;
    if (!number("(U)CONTROL_ADD.RADIUS=", 6, false, radius)) return false;
    if (!number("(U)CONTROL_ADD.NUM_OF_OBJECTS=", 7, true, count)) return false;
    if (!number("(SH)CONTROL_ADD.SELECTED_ITEM=", 9, false, selected)) return false;
    if (!number("(U)CONTROL_ADD.TOP_ITEM_NUM=", 8, true, top)) return false;
    // The items are indexed from 0, as this kind has always written them.
    for (int n = 0; n < count; ++n) {
        std::string item;
        if (!in.Key(("(S)CONTROL_ADD.ITEM" + std::to_string(n) + "=").c_str(), item)) return false;
        g[10].push_back(item);
    }
    return in.Word("#END_CONTROL");
}

}  // namespace tolva
