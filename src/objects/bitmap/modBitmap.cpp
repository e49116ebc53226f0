#include "objects/bitmap/modBitmap.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "objects/PictureFiles.h"
#include "objects/RecordHeads.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillBitmapValueLists(ValueLists& lists) {
    lists.assign(11, {});
    const std::vector<std::string> booleans = {"TRUE", "FALSE"};
    lists[4 - 1] = {"BITMAP_STYLE_0", "BITMAP_STYLE_1"};
    lists[5 - 1] = booleans;
    lists[6 - 1] = booleans;
    lists[7 - 1] = booleans;
    lists[10 - 1] = DepthRowWords();
    lists[11 - 1] = DepthRowWords();
}

int BitmapStyleWordToNumber(const std::string& word) {
    return UpperCase(word) == "BITMAP_STYLE_1" ? 1 : 0;
}

std::string BitmapStyleNumberToWord(int number) {
    if (number == 0) return "BITMAP_STYLE_0";
    if (number == 1) return "BITMAP_STYLE_1";
    return "";
}

namespace {

// One picture's section, from the line after "~F4" (or "~F5") up to and
// including the marker that closes it: left out when that line is already
// the marker.
bool ReadPictureSection(RecordReader& in, int which, const char* closing, ValueGroup& values,
                        ValueGroup& depth) {
    const std::string prefix = std::string("(SH)BITMAP") + (which == 1 ? "1" : "2") + "_BITMAP.";
    std::string line = in.Line();
    if (line == closing) {
        values = {"0", "0", "0", "0", ""};
        depth = {"0"};
        return true;
    }
    for (const char* key : {"X=", "Y=", "WIDTH=", "HEIGHT="}) {
        std::string text;
        if (!in.KeyIn(line, (prefix + key).c_str(), text)) return false;
        values.push_back(IntToText(ToInt16(text)));
        line = in.Line();
    }
    int bits = 0;
    std::string path;
    const std::string fileKey = std::string("(P)BITMAP") + (which == 1 ? "1" : "2") + "_BITMAP.FILE=";
    if (!ReadPictureFileLine(line, fileKey, bits, path)) return in.Fail(line);
    values.push_back(path);
    depth = {IntToText(bits)};
    return in.Word(closing);
}

}  // namespace

bool ParseBitmapRecord(RecordReader& in, LoadedRecord& record) {
    if (!ParseHeadA(in, record, 8)) return false;
    GroupList& g = record.groups;
    std::string style;
    if (!in.Key("(B)BITMAP_STYLE=", style)) return false;
    g[2] = {style};
    if (!in.Word("~F4")) return false;
    if (!ReadPictureSection(in, 1, "~F5", g[3], g[6])) return false;
    if (!ReadPictureSection(in, 2, "~F6", g[4], g[7])) return false;
    for (const char* key : {"(BO)BITMAP_ATTR.BITMAP_ENABLE=", "(BO)BITMAP_ATTR.BITMAP_ACTIVE=",
                            "(BO)BITMAP_ATTR.BITMAP_VISIBLE="}) {
        std::string word;
        if (!in.Key(key, word)) return false;
        g[5].push_back(word);
    }
    return in.Word("#END_BITMAP");
}

}  // namespace tolva
