#include "objects/button/modButton.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillButtonValueLists(ValueLists& lists) {
    lists.assign(14, {});
    const std::vector<std::string> booleans = {"TRUE", "FALSE"};
    lists[6 - 1] = {"BUTTON_STYLE_0", "BUTTON_STYLE_1"};
    lists[8 - 1] = {"LEFT", "CENTRE", "RIGHT"};
    lists[9 - 1] = booleans;
    lists[10 - 1] = booleans;
    lists[11 - 1] = booleans;
    lists[13 - 1] = ColorWordList();
    lists[14 - 1] = ColorWordList();
}

int ButtonStyleWordToNumber(const std::string& word) {
    const std::string upper = UpperCase(word);
    return upper == "BUTTON_STYLE_1" ? 1 : 0;
}

std::string ButtonStyleNumberToWord(int number) {
    if (number == 0) return "BUTTON_STYLE_0";
    if (number == 1) return "BUTTON_STYLE_1";
    return "";
}

bool ParseButtonRecordTail(RecordReader& in, LoadedRecord& record) {
    if (!in.Word("~F8")) return false;
    int radius = 0;
    if (!in.Int32Key("(SH)CONTROL_ADD.RADIUS=", radius)) return false;
    std::string on;
    if (!in.Key("(B)CONTROL_ADD.COLOR_ON=", on)) return false;
    std::string off;
    if (!in.Key("(B)CONTROL_ADD.COLOR_OFF=", off)) return false;
    if (!in.Word("#END_CONTROL")) return false;
    record.groups.resize(8);
    record.groups[6] = {IntToText(radius)};
    record.groups[7] = {on, off};
    return true;
}

}  // namespace tolva
