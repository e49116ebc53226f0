#include "objects/table/modTable.h"

#include "document/Numbers.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

namespace {

const char* const kStyleWords[] = {"TABLE_STYLE_0", "TABLE_STYLE_1", "TABLE_STYLE_2"};
const char* const kDataTypeWords[] = {"TABLE_TEXT", "TABLE_VALUE", "TABLE_UI_OBJECT"};

int WordNumber(const std::string& word, const char* const (&words)[3]) {
    const std::string upper = UpperCase(word);
    for (int i = 0; i < 3; ++i)
        if (upper == words[i]) return i;
    return 0;
}

}  // namespace

void FillTableValueLists(ValueLists& lists) {
    lists.assign(11, {});
    lists[4 - 1] = {"TABLE_STYLE_0", "TABLE_STYLE_1", "TABLE_STYLE_2"};
    lists[5 - 1] = ColorWordList();
    for (int row = 6; row <= 10; ++row) lists[static_cast<std::size_t>(row - 1)] = {"TRUE", "FALSE"};
}

int TableStyleWordToNumber(const std::string& word) { return WordNumber(word, kStyleWords); }

std::string TableStyleNumberToWord(int style) {
    return style >= 0 && style <= 2 ? kStyleWords[style] : "";
}

int CellDataTypeWordToNumber(const std::string& word) { return WordNumber(word, kDataTypeWords); }

std::string CellDataTypeNumberToWord(int type) {
    return type >= 0 && type <= 2 ? kDataTypeWords[type] : "";
}

bool ParseTableRecord(RecordReader& in, LoadedRecord& record) {
    GroupList& g = record.groups;
    auto group = [&](int index) -> ValueGroup& { return g[static_cast<std::size_t>(index)]; };
    auto word = [&](const char* key, int index) {
        std::string value;
        if (!in.Key(key, value)) return false;
        group(index).push_back(value);
        return true;
    };
    auto number16 = [&](const char* key, int index, int& value) {
        if (!in.Int16Key(key, value)) return false;
        group(index).push_back(IntToText(value));
        return true;
    };
    auto number32 = [&](const char* key, int index, int& value) {
        if (!in.Int32Key(key, value)) return false;
        group(index).push_back(IntToText(value));
        return true;
    };

    if (!ParseHeadB(in, record, 21)) return false;
    int value = 0;
    int columns = 0, rows = 0;
    if (!in.Word("~F2") || !number32("(U)TABLE_NUM_COLUMN=", 2, columns)) return false;
    if (!in.Word("~F3") || !number32("(U)TABLE_NUM_ROW=", 3, rows)) return false;
    if (!in.Word("~F4")) return false;
    for (int c = 0; c < columns; ++c)
        if (!number16("(SH)TABLE_COLUMN_WIDTH=", 4, value)) return false;
    if (!in.Word("~F5")) return false;
    for (int r = 0; r < rows; ++r)
        if (!number16("(SH)TABLE_ROW_HEIGHT=", 5, value)) return false;
    if (!in.Word("~F6") || !number32("(U)TABLE_TOP_ROW_NUM=", 6, value)) return false;
    if (!in.Word("~F7") || !number32("(U)TABLE_LEFT_COL_NUM=", 7, value)) return false;
    if (!in.Word("~F8") || !word("(B)TABLE_STYLE=", 8)) return false;
    if (!in.Word("~F9") || !word("(B)TABLE_BACKGROUND_COLOR=", 9)) return false;
    if (!in.Word("~F10")) return false;

    // The bitmap's lines stand only where the table has one.
    const std::string afterMarker = in.Line();
    if (afterMarker != "~F11") {
        std::string text;
        if (!in.KeyIn(afterMarker, "(SH)TABLE_CELL_BITMAP.X=", text)) return false;
        g[10].push_back(IntToText(ToInt16(text)));
        for (const char* key : {"(SH)TABLE_CELL_BITMAP.Y=", "(SH)TABLE_CELL_BITMAP.WIDTH=",
                                "(SH)TABLE_CELL_BITMAP.HEIGHT="})
            if (!number16(key, 10, value)) return false;
        // The depth of the file line is read and forgotten.
        const std::string line = in.Line();
        std::string path;
        if (!LineHasKey(line, "(P)TABLE_CELL_BITMAP.FILE=Q_FOUR_BIT,", path) &&
            !in.KeyIn(line, "(P)TABLE_CELL_BITMAP.FILE=Q_TWO_BIT,", path))
            return false;
        g[10].push_back(path);
        if (!in.Word("~F11")) return false;
    } else {
        g[10] = {"0", "0", "0", "0", ""};
    }

    record.tableColumns = columns;
    const long long cells = static_cast<long long>(rows) * columns;
    for (long long cell = 0; cell < cells; ++cell) {
        if (!word("(B)TABLE_DATA_TYPE=", 11)) return false;
        std::string id;
        if (!in.Key("(U)TABLE_UI_OBJECT_ID=", id)) return false;
        record.cellObjectIds.push_back(id.empty() ? -1 : ToInt32(id));
        if (!word("(B)TABLE_FONT=", 12)) return false;
        if (!number32("(W)TABLE_VALUE=", 13, value)) return false;
        if (!word("(B)TABLE_TEXTMENT=", 14)) return false;
        if (!word("(B)TABLE_FONT_COLOR=", 15)) return false;
        if (!word("(B)TABLE_BACKGROUND_COLOR=", 16)) return false;
        if (!word("(BO)TABLE_CELL_HIGHLIGHT=", 17)) return false;
        if (!word("(BO)TABLECELL_HAS_BITMAP=", 18)) return false;
        if (!word("(S)TABLE_TEXT=", 19)) return false;
    }
    if (!in.Word("~F12")) return false;
    for (const char* key : {"(BO)TABLE_ATTR.TABLE_ENABLE=", "(BO)TABLE_ATTR.TABLE_SCROLLBAR=",
                            "(BO)TABLE_ATTR.TABLE_ACTIVE=", "(BO)TABLE_ATTR.TABLE_HIGHLIGHT_ENABLE=",
                            "(BO)TABLE_ATTR.TABLE_VISIBLE="})
        if (!word(key, 20)) return false;
    return in.Word("#END_TABLE");
}

}  // namespace tolva
