#include "objects/pushbutton/modPushbutton.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

namespace {
constexpr const char* kStyleWords[] = {"PUSHBUTTON_STYLE_0", "PUSHBUTTON_STYLE_1",
                                       "PUSHBUTTON_STYLE_2", "PUSHBUTTON_STYLE_3"};
}

void FillPushButtonValueLists(ValueLists& lists) {
    lists.assign(16, {});
    const std::vector<std::string> booleans = {"TRUE", "FALSE"};
    lists[6 - 1] = {std::begin(kStyleWords), std::end(kStyleWords)};
    lists[8 - 1] = {"LEFT", "CENTRE", "RIGHT"};
    lists[9 - 1] = booleans;
    lists[10 - 1] = booleans;
    lists[11 - 1] = booleans;
    lists[12 - 1] = ColorWordList();
    lists[13 - 1] = ColorWordList();
    lists[14 - 1] = booleans;
}

int PushButtonStyleWordToNumber(const std::string& word) {
    const std::string upper = UpperCase(word);
    for (int n = 0; n < 4; ++n)
        if (upper == kStyleWords[n]) return n;
    return 0;
}

std::string PushButtonStyleNumberToWord(int number) {
    return number >= 0 && number <= 3 ? kStyleWords[number] : "";
}

bool ParsePushButtonRecordTail(RecordReader& in, LoadedRecord& record) {
    if (!in.Word("~F8")) return false;
    std::string on;
    if (!in.Key("(B)CONTROL_ADD.COLOR_ON=", on)) return false;
    std::string off;
    if (!in.Key("(B)CONTROL_ADD.COLOR_OFF=", off)) return false;
    // The group is read as the record wants it, and has nowhere to go.
    int group = 0;
    if (!in.Int16Key("(U)CONTROL_ADD.GROUP_ID=", group)) return false;
    std::string value;
    if (!in.Key("(BO)CONTROL_ADD.CONTROL_VALUE=", value)) return false;
    int radius = 0;
    if (!in.Int16Key("(SH)CONTROL_ADD.RADIUS=", radius)) return false;
    if (!in.Word("#END_CONTROL")) return false;
    record.groups.resize(9);
    record.groups[6] = {IntToText(radius)};
    record.groups[7] = {on, off};
    record.groups[8] = {value};
    return true;
}

}  // namespace tolva
