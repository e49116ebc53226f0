#include "objects/scrollbar/modScrollbar.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "objects/PictureFiles.h"
#include "objects/RecordHeads.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void FillScrollbarValueLists(ValueLists& lists) {
    lists.assign(18, {});
    lists[9 - 1] = {"HORIZONTAL", "VERTICAL"};
    lists[10 - 1] = {"SCROLLBAR_STYLE_0", "SCROLLBAR_STYLE_1", "SCROLLBAR_STYLE_2",
                     "SCROLLBAR_STYLE_3"};
    for (int row = 12; row <= 14; ++row) lists[static_cast<std::size_t>(row - 1)] = {"TRUE", "FALSE"};
    lists[17 - 1] = {"2 Bit", "4 Bit"};
    lists[18 - 1] = {"2 Bit", "4 Bit"};
}

int OrientationWordToNumber(const std::string& word) { return word == "VERTICAL" ? 1 : 0; }

std::string OrientationNumberToWord(int orientation) {
    if (orientation == 0) return "HORIZONTAL";
    if (orientation == 1) return "VERTICAL";
    return "";
}

int ScrollbarStyleWordToNumber(const std::string& word) {
    const std::string upper = UpperCase(word);
    for (int style = 0; style <= 3; ++style)
        if (upper == ScrollbarStyleNumberToWord(style)) return style;
    return 0;
}

std::string ScrollbarStyleNumberToWord(int style) {
    if (style < 0 || style > 3) return "";
    return "SCROLLBAR_STYLE_" + std::to_string(style);
}

bool IsOrientationSupported(int style, int orientation) {
    if (style == 0) return orientation == 1;
    if (style >= 1 && style <= 3) return orientation == 0;
    return true;
}

namespace {

// An arrow's section: its place and size, then its file line with the
// depth, into the arrow's group and its depth's.
bool ParseArrow(RecordReader& in, const std::string& arrow, ValueGroup& place, ValueGroup& depth) {
    const std::string key = "(SH)SCROLLBAR_" + arrow + "_BITMAP.";
    for (const char* field : {"X=", "Y=", "WIDTH=", "HEIGHT="}) {
        int value = 0;
        if (!in.Int16Key((key + field).c_str(), value)) return false;
        place.push_back(IntToText(value));
    }
    const std::string fileKey = "(P)SCROLLBAR_" + arrow + "_BITMAP.FILE=";
    std::string line;
    if (!in.Key(fileKey.c_str(), line)) return false;
    int bits = 4;
    std::string path;
    if (!ReadPictureFileLine(fileKey + line, fileKey, bits, path)) return in.Fail(fileKey + line);
    place.push_back(path);
    depth.push_back(IntToText(bits));
    return true;
}

}  // namespace

bool ParseScrollbarRecord(RecordReader& in, LoadedRecord& record) {
    if (!ParseHeadA(in, record, 15)) return false;
    GroupList& g = record.groups;
    auto number = [&](const char* key, int group) {
        int value = 0;
        if (!in.Int32Key(key, value)) return false;
        g[static_cast<std::size_t>(group)].push_back(IntToText(value));
        return true;
    };
    auto word = [&](const char* key, int group) {
        std::string value;
        if (!in.Key(key, value)) return false;
        g[static_cast<std::size_t>(group)].push_back(value);
        return true;
    };
    if (!number("(W)SCROLLBAR_MAX=", 2)) return false;
    if (!in.Word("~F4") || !number("(W)SCROLLBAR_MIN=", 3)) return false;
    if (!in.Word("~F5") || !number("(W)SCROLLBAR_CURRENT_VALUE=", 4)) return false;
    if (!in.Word("~F6")) return false;
    // Either key of the page size; the writer writes the first.
    {
        const std::string line = in.Line();
        std::string value;
        if (!LineHasKey(line, "(W)SCROLLBAR_PAGE_SIZE=", value) &&
            !in.KeyIn(line, "(W)SCROLLBAR_PAGESIZE=", value))
            return false;
        g[5].push_back(IntToText(ToInt32(value)));
    }
    if (!in.Word("~F7") || !number("(W)SCROLLBAR_TOTAL_NUM_LINES=", 6)) return false;
    if (!in.Word("~F8") || !word("(B)SCROLLBAR_STYLE=", 7)) return false;
    if (!in.Word("~F9") || !word("(B)SCROLLBAR_TYPE=", 8)) return false;
    if (!in.Word("~F10") || !ParseArrow(in, "ARROW1", g[9], g[13])) return false;
    if (!in.Word("~F11") || !ParseArrow(in, "ARROW2", g[10], g[14])) return false;
    if (!in.Word("~F12") || !word("(S)SCROLLBAR_TEXT=", 11)) return false;
    if (!in.Word("~F13")) return false;
    for (const char* key : {"(BO)SCROLLBAR_ATTR.SCROLLBAR_ACTIVE=", "(BO)SCROLLBAR_ATTR.SCROLLBAR_ENABLE=",
                            "(BO)SCROLLBAR_ATTR.SCROLLBAR_VISIBLE="})
        if (!word(key, 12)) return false;
    return in.Word("#END_SCROLLBAR");
}

}  // namespace tolva
