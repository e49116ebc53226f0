#include "objects/schedulerline/modSchline.h"

#include "document/Numbers.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillSchlineValueLists(ValueLists& lists) {
    lists.assign(8, {});
    for (int row = 6; row <= 8; ++row) lists[static_cast<std::size_t>(row - 1)] = {"TRUE", "FALSE"};
}

bool ParseSchlineRecord(RecordReader& in, LoadedRecord& record) {
    record = LoadedRecord{};
    record.groups.assign(3, ValueGroup{});
    GroupList& g = record.groups;
    if (!in.Key("NAME=", record.name)) return false;
    g[0].push_back(record.name);
    // The ID is a 32-bit number in this record.
    if (!in.Int32Key("ID=", record.id)) return false;
    g[0].push_back(IntToText(record.id));
    if (!in.Word("~F0")) return false;
    if (!in.Key("(B)OBJECT.TYPE=", record.kindWord)) return false;
    if (!in.Word("~F1")) return false;
    for (const char* key :
         {"(SH)BOUNDS.X=", "(SH)BOUNDS.Y=", "(SH)BOUNDS.WIDTH=", "(SH)BOUNDS.HEIGHT="}) {
        int value = 0;
        if (!in.Int16Key(key, value)) return false;
        g[1].push_back(IntToText(value));
    }
    if (!in.Word("~F2")) return false;
    for (const char* key : {"(BO)SCHLINE_ATTR.ENABLE=", "(BO)SCHLINE_ATTR.ACTIVE=",
                            "(BO)SCHLINE_ATTR.VISIBLE="}) {
        std::string value;
        if (!in.Key(key, value)) return false;
        g[2].push_back(value);
    }
    return in.Word("#END_SCHLINE");
}

}  // namespace tolva
