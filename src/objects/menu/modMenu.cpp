#include "objects/menu/modMenu.h"

#include "document/Numbers.h"
#include "objects/RecordHeads.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillMenuValueLists(ValueLists& lists) {
    lists.assign(6, {});
    lists[6 - 1] = {"TRUE", "FALSE"};
}

bool ParseMenuRecord(RecordReader& in, LoadedRecord& record) {
    if (!ParseHeadB(in, record, 6)) return false;
    GroupList& g = record.groups;
    int count = 0;
    if (!in.Word("~F2") || !in.Int32Key("(U)MENU_NUM_ITEMS=", count)) return false;
    g[2].push_back(IntToText(count));
    if (!in.Word("~F3")) return false;
    std::string selected;
    if (!in.Key("(SH)MENU_SELECTED_ITEM=", selected)) return false;
    g[3].push_back(selected == "NO_SELECTION" ? std::string("-1") : IntToText(ToInt16(selected)));
    if (!in.Word("~F4")) return false;
    for (int i = 1; i <= count; ++i) {
        std::string item;
        if (!in.Key(("(S)MENU_ITEMS" + std::to_string(i) + "=").c_str(), item)) return false;
        g[4].push_back(item);
    }
    record.menuItems = g[4];
    std::string visible;
    if (!in.Word("~F5") || !in.Key("(BO)MENU_VISIBLE=", visible)) return false;
    g[5].push_back(visible);
    return in.Word("#END_MENU");
}

}  // namespace tolva
