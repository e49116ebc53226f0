#include "objects/schedulerline/modSchline.h"

#include "document/Numbers.h"
#include "objects/RecordHeads.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillSchlineValueLists(ValueLists& lists) {
    lists.assign(8, {});
    for (int row = 6; row <= 8; ++row) lists[static_cast<std::size_t>(row - 1)] = {"TRUE", "FALSE"};
}

bool ParseSchlineRecord(RecordReader& in, LoadedRecord& record) {
    // The ID is a 32-bit number in this record.
    if (!ParseHeadB(in, record, 3, true)) return false;
    GroupList& g = record.groups;
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
