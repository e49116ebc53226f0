#include "objects/form/FormRecord.h"

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/ObjectOwner.h"
#include "document/StringTable.h"
#include "document/TextHelpers.h"
#include "objects/form/FormStyles.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/table/ctlKOMATable.h"
#include "objects/PictureFiles.h"
#include "objects/RecordHeads.h"
#include "resfile/Banners.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

namespace {

bool TextKey(RecordReader& in, const char* key, std::string& value) { return in.Key(key, value); }

// A 16-bit key whose number is kept as text in the record's groups.
bool NumberKey(RecordReader& in, const char* key, ValueGroup& group, int* number = nullptr) {
    int value = 0;
    if (!in.Int16Key(key, value)) return false;
    group.push_back(IntToText(value));
    if (number) *number = value;
    return true;
}

}  // namespace

// --- written ------------------------------------------------------------------------------

void ctlKOMAForm::ReturnResourceFileText(LineList& lines, bool& ok) {
    ObjectOwner* owner = Owner();
    auto idOf = [&](const std::string& name, int& id) {
        return owner != nullptr && !name.empty() && owner->OwnerGetObjectID(name, id);
    };

    AppendRecordBanner(lines, KOMAName(), false);
    AppendHeadB(lines, *this, "#FORM");
    int focusedId = 0;
    if (!idOf(focusedObject_, focusedId)) focusedId = 0;
    lines.push_back("(U)FOCUSED_OBJECT=" + IntToText(focusedId));
    lines.push_back("~F3");
    lines.push_back("//BACKGROUND,NORMAL,BITMAP_DIALOG,NON_BITMAP_DIALOG");
    lines.push_back("(B)FORM_STYLE=" + styleWord_);
    lines.push_back("~F4");
    lines.push_back("//any text");
    lines.push_back("(S)FORM_TITLE=" + title_);
    lines.push_back("~F5");
    const bool noBitmap = TrimSpaces(bitmapFile_).empty();
    if (noBitmap) lines.push_back("//" + LoadResString(msg::NoBitmapDefault));
    lines.push_back("//0 - 159");
    lines.push_back("//FormBitmap X and Y currently don't do anything");
    lines.push_back("(SH)FORM_BITMAP.X=" + IntToText(bitmapX_));
    lines.push_back("(SH)FORM_BITMAP.Y=" + IntToText(bitmapY_));
    lines.push_back("//0 - 160");
    lines.push_back("(SH)FORM_BITMAP.WIDTH=" + IntToText(bitmapWidth_));
    lines.push_back("(SH)FORM_BITMAP.HEIGHT=" + IntToText(bitmapHeight_));
    if (bitmapFile_.empty()) {
        lines.push_back("(P)FORM_BITMAP.FILE=Q_FOUR_BIT,FORM.BMP");
    } else {
        AppendPictureFileLine(lines, host(), "(P)FORM_BITMAP.FILE=", bitmapDepth_, bitmapFile_);
    }

    // The count holds every row, every menu and every object in the cells of
    // an embedded table, whether or not its pair can be written below.
    std::vector<std::vector<std::pair<std::string, std::string>>> tablePairs;
    for (KomaObject* object : references_) {
        auto* table = dynamic_cast<ctlKOMATable*>(object);
        if (!table) continue;
        tablePairs.emplace_back();
        table->GetTableObjectTypesAndIds(tablePairs.back());
    }
    std::size_t count = embedded_.size() + menus_.size();
    for (const auto& pairs : tablePairs) count += pairs.size();
    lines.push_back("~F6");
    lines.push_back("(U)NO_OF_OBJECTS=" + IntToText(static_cast<long long>(count)));
    lines.push_back("~F7");
    for (const MenuData& menu : menus_) {
        lines.push_back("(U)OBJECT_ID=" + IntToText(menu.id));
        lines.push_back("(B)OBJECT_TYPE=MENU");
    }
    for (const EmbeddedRow& row : embedded_) {
        int id = 0;
        if (!idOf(row.name, id)) continue;
        lines.push_back("(U)OBJECT_ID=" + IntToText(id));
        lines.push_back("(B)OBJECT_TYPE=" + row.typeWord);
    }
    for (const auto& pairs : tablePairs)
        for (const auto& [id, word] : pairs) {
            lines.push_back("(U)OBJECT_ID=" + id);
            lines.push_back("(B)OBJECT_TYPE=" + word);
        }
    lines.push_back("#END_FORM");
    ok = true;
}

// --- read ---------------------------------------------------------------------------------

bool ParseFormRecord(RecordReader& in, LoadedRecord& record) {
    record = LoadedRecord{};
    record.groups.assign(8, ValueGroup{});
    GroupList& g = record.groups;
    std::string text;

    if (!TextKey(in, "NAME=", record.name)) return false;
    g[0].push_back(record.name);
    if (!in.Int16Key("ID=", record.id)) return false;
    g[0].push_back(IntToText(record.id));
    if (!in.Word("~F0")) return false;
    if (!TextKey(in, "(B)OBJECT.TYPE=", record.kindWord)) return false;
    if (!in.Word("~F1")) return false;
    for (const char* key :
         {"(SH)BOUNDS.X=", "(SH)BOUNDS.Y=", "(SH)BOUNDS.WIDTH=", "(SH)BOUNDS.HEIGHT="})
        if (!NumberKey(in, key, g[1])) return false;
    if (!in.Word("~F2")) return false;
    // The focused object's ID is read as a number and kept as its text;
    // nothing uses it afterwards.
    if (!NumberKey(in, "(U)FOCUSED_OBJECT=", g[2])) return false;
    if (!in.Word("~F3")) return false;
    if (!TextKey(in, "(B)FORM_STYLE=", text)) return false;
    g[3].push_back(text);
    if (!in.Word("~F4")) return false;
    if (!TextKey(in, "(S)FORM_TITLE=", text)) return false;
    g[4].push_back(text);
    if (!in.Word("~F5")) return false;

    // The bitmap block is optional: "~F6" directly behind "~F5" means none.
    int depth = 0;
    std::string line = in.Line();
    if (line == "~F6") {
        g[5] = {"0", "0", "0", "0", ""};
    } else {
        int value = 0;
        if (!in.KeyIn(line, "(SH)FORM_BITMAP.X=", text)) return false;
        value = ToInt16(text);
        g[5].push_back(IntToText(value));
        for (const char* key :
             {"(SH)FORM_BITMAP.Y=", "(SH)FORM_BITMAP.WIDTH=", "(SH)FORM_BITMAP.HEIGHT="})
            if (!NumberKey(in, key, g[5])) return false;
        line = in.Line();
        if (!ReadPictureFileLine(line, "(P)FORM_BITMAP.FILE=", depth, text)) return in.Fail(line);
        g[5].push_back(text);
        if (!in.Word("~F6")) return false;
    }
    if (!NumberKey(in, "(U)NO_OF_OBJECTS=", g[6], &record.numObjects)) return false;
    g[7].push_back(IntToText(depth));
    if (!in.Word("~F7")) return false;

    // Pairs of ID and type, both as text, until the closing word.
    for (;;) {
        line = in.Line();
        if (line == "#END_FORM") return true;
        std::string id;
        if (!in.KeyIn(line, "(U)OBJECT_ID=", id)) return false;
        std::string word;
        if (!in.Key("(B)OBJECT_TYPE=", word)) return false;
        record.objectPairs.emplace_back(id, word);
    }
}

// --- applied ------------------------------------------------------------------------------

void ctlKOMAForm::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    if (groups.size() != 8 || groups[0].size() != 2 || groups[1].size() != 4 ||
        groups[5].size() != 5 || groups[3].empty() || groups[4].empty() || groups[7].empty())
        return;
    const double scale = PCTwipsToTolvaPixels();
    KOMAName(groups[0][0]);
    KOMABoundsX(ToInt16(groups[1][0]));
    KOMABoundsY(ToInt16(groups[1][1]));
    SetCanvasSize(ToInt16(groups[1][2]) * scale, ToInt16(groups[1][3]) * scale);
    KOMAFormStyle(FormStyleFromWord(groups[3][0]));
    KOMAFormTitle(groups[4][0]);
    bitmapX_ = ToInt16(groups[5][0]);
    bitmapY_ = ToInt16(groups[5][1]);
    bitmapWidth_ = ToInt16(groups[5][2]);
    bitmapHeight_ = ToInt16(groups[5][3]);
    KOMABitmapFile(groups[5][4]);
    KOMABitmapDepth(ToInt16(groups[7][0]));
    RaiseMoved();
    RaiseResized();
    LayOut();
    ok = true;
}

}  // namespace tolva
