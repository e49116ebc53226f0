#include "objects/ControlRecord.h"

#include "document/Numbers.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

namespace {

bool WordKey(RecordReader& in, const char* key, ValueGroup& group) {
    std::string value;
    if (!in.Key(key, value)) return false;
    group.push_back(value);
    return true;
}

}  // namespace

bool ParseControlRecordHead(RecordReader& in, LoadedRecord& record) {
    record = LoadedRecord{};
    record.groups.assign(6, ValueGroup{});
    GroupList& g = record.groups;

    if (!in.Key("NAME=", record.name)) return false;
    g[0].push_back(record.name);
    if (!in.Int16Key("ID=", record.id)) return false;
    g[0].push_back(IntToText(record.id));
    if (!in.Word("~F0")) return false;
    std::string typeWord;
    if (!in.Key("(B)OBJECT.TYPE=", typeWord)) return false;
    if (!in.Word("~F1")) return false;
    if (!in.Int32Key("(U)RELATED_TABLE_ID=", record.relatedTableId)) return false;
    if (!in.Word("~F2")) return false;
    for (const char* key :
         {"(SH)BOUNDS.X=", "(SH)BOUNDS.Y=", "(SH)BOUNDS.WIDTH=", "(SH)BOUNDS.HEIGHT="}) {
        int value = 0;
        if (!in.Int16Key(key, value)) return false;
        g[1].push_back(IntToText(value));
    }
    if (!in.Word("~F3")) return false;
    if (!in.Key("(B)CONTROL_STYLE=", record.kindWord)) return false;
    if (!in.Word("~F4")) return false;
    if (!WordKey(in, "(B)CONTROL_SUBTYPE=", g[2])) return false;
    if (!in.Word("~F5")) return false;
    if (!WordKey(in, "(S)CONTROL_TEXT=", g[3])) return false;
    if (!in.Word("~F6")) return false;
    if (!WordKey(in, "(B)TEXTMENT=", g[4])) return false;
    if (!in.Word("~F7")) return false;
    for (const char* key : {"(BO)CONTROL_ATTR.ENABLE=", "(BO)CONTROL_ATTR.ACTIVE=",
                            "(BO)CONTROL_ATTR.VISIBLE="})
        if (!WordKey(in, key, g[5])) return false;
    return true;
}

}  // namespace tolva
