#include "objects/ControlRecord.h"

#include "objects/RecordHeads.h"
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
    // The loader branches on the style word alone: the type word that head
    // A reads into the same field must not stand in for a style that a
    // failing head never reached.
    const bool headRead = ParseHeadA(in, record, 6);
    record.kindWord.clear();
    if (!headRead) return false;
    GroupList& g = record.groups;
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
