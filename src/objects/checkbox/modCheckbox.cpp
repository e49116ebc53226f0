#include "objects/checkbox/modCheckbox.h"

#include "document/Numbers.h"
#include "objects/ControlBitmapSection.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillCheckboxValueLists(ValueLists& lists) {
    lists.assign(14, {});
    const std::vector<std::string> booleans = {"TRUE", "FALSE"};
    // The depths list "4 Bit" first here, unlike the other kinds.
    const std::vector<std::string> depths = {"4 Bit", "2 Bit"};
    lists[6 - 1] = {"CHECKBOX_STYLE_0"};
    lists[7 - 1] = booleans;
    lists[8 - 1] = booleans;
    lists[9 - 1] = booleans;
    lists[10 - 1] = booleans;
    lists[13 - 1] = depths;
    lists[14 - 1] = depths;
}

int CheckboxStyleWordToNumber(const std::string&) {
    // There is one style: "CHECKBOX_STYLE_0", in any case, is style 0, and
    // so is any other word.
    return 0;
}

std::string CheckboxStyleNumberToWord(int number) {
    return number == 0 ? "CHECKBOX_STYLE_0" : "";
}

namespace {

// One picture's section, its depth as the group the applying wants.
bool ReadSection(RecordReader& in, ValueGroup& values, ValueGroup& depth) {
    int bits = 0;
    if (!ReadControlBitmapSection(in, values, bits)) return false;
    depth = {IntToText(bits)};
    return true;
}

}  // namespace

bool ParseCheckboxRecordTail(RecordReader& in, LoadedRecord& record) {
    if (!in.Word("~F8")) return false;
    int group = 0;
    if (!in.Int16Key("(U)CONTROL_ADD.GROUP_ID=", group)) return false;
    std::string value;
    if (!in.Key("(BO)CONTROL_ADD.CONTROL_VALUE=", value)) return false;
    GroupList& g = record.groups;
    g.resize(11);
    g[6] = {value};
    if (!ReadSection(in, g[7], g[9])) return false;
    if (!in.Word("~F9")) return false;
    if (!ReadSection(in, g[8], g[10])) return false;
    return in.Word("#END_CONTROL");
}

}  // namespace tolva
