#include "objects/RecordHeads.h"

#include "document/Numbers.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

namespace {

void AppendNameIdAndType(LineList& lines, const KomaObject& object) {
    lines.push_back("NAME=" + object.KOMAName());
    lines.push_back("ID=" + IntToText(object.KOMAObjectID()));
    lines.push_back("~F0");
    lines.push_back("(B)OBJECT.TYPE=" + object.KOMAObjectTypeWord());
    lines.push_back("~F1");
}

void AppendBounds(LineList& lines, const KomaObject& object, const std::string& sizeComment) {
    lines.push_back("//0 - 159");
    lines.push_back("(SH)BOUNDS.X=" + IntToText(object.KOMABoundsX()));
    lines.push_back("(SH)BOUNDS.Y=" + IntToText(object.KOMABoundsY()));
    lines.push_back(sizeComment);
    lines.push_back("(SH)BOUNDS.WIDTH=" + IntToText(object.KOMAWidth()));
    lines.push_back("(SH)BOUNDS.HEIGHT=" + IntToText(object.KOMAHeight()));
}

}  // namespace

void AppendHeadA(LineList& lines, const KomaObject& object, const std::string& sectionWord,
                 const std::string& sizeComment) {
    lines.push_back(sectionWord);
    AppendNameIdAndType(lines, object);
    lines.push_back("//0 - 65534 (if within table), 65535 means not within table");
    lines.push_back("(U)RELATED_TABLE_ID=" + IntToText(object.KOMARelatedTableID()));
    lines.push_back("~F2");
    AppendBounds(lines, object, sizeComment);
    lines.push_back("~F3");
}

void AppendHeadB(LineList& lines, const KomaObject& object, const std::string& sectionWord) {
    lines.push_back(sectionWord);
    AppendNameIdAndType(lines, object);
    AppendBounds(lines, object, "//0 - 160");
    lines.push_back("~F2");
}

bool ParseHeadA(RecordReader& in, LoadedRecord& record, int groupCount) {
    record = LoadedRecord{};
    record.groups.assign(static_cast<std::size_t>(groupCount), ValueGroup{});
    GroupList& g = record.groups;
    if (!in.Key("NAME=", record.name)) return false;
    g[0].push_back(record.name);
    if (!in.Int16Key("ID=", record.id)) return false;
    g[0].push_back(IntToText(record.id));
    if (!in.Word("~F0")) return false;
    if (!in.Key("(B)OBJECT.TYPE=", record.kindWord)) return false;
    if (!in.Word("~F1")) return false;
    if (!in.Int32Key("(U)RELATED_TABLE_ID=", record.relatedTableId)) return false;
    if (!in.Word("~F2")) return false;
    for (const char* key :
         {"(SH)BOUNDS.X=", "(SH)BOUNDS.Y=", "(SH)BOUNDS.WIDTH=", "(SH)BOUNDS.HEIGHT="}) {
        int value = 0;
        if (!in.Int16Key(key, value)) return false;
        g[1].push_back(IntToText(value));
    }
    return in.Word("~F3");
}

bool ParseHeadB(RecordReader& in, LoadedRecord& record, int groupCount, bool wideId) {
    record = LoadedRecord{};
    record.groups.assign(static_cast<std::size_t>(groupCount), ValueGroup{});
    GroupList& g = record.groups;
    if (!in.Key("NAME=", record.name)) return false;
    g[0].push_back(record.name);
    if (!(wideId ? in.Int32Key("ID=", record.id) : in.Int16Key("ID=", record.id))) return false;
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
    return true;
}

void ApplyHeadA(KomaObject& object, const GroupList& groups) {
    const int x = ToInt16(groups[1][0]);
    const int y = ToInt16(groups[1][1]);
    const int width = ToInt16(groups[1][2]);
    const int height = ToInt16(groups[1][3]);
    const double scale = object.PCTwipsToTolvaPixels();
    object.KOMAName(groups[0][0]);
    object.KOMABoundsX(x);
    object.KOMABoundsY(y);
    object.SetCanvasSize(width * scale, height * scale);
}

}  // namespace tolva
