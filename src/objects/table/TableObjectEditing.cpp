#include "objects/table/TableObjectEditing.h"

#include "document/Host.h"
#include "document/KomaObject.h"
#include "document/ObjectTypes.h"
#include "objects/table/CellKinds.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva {

namespace {

// The kinds of the list's words, in their order.
constexpr int kKinds[TableObjectEditing::kKindCount] = {
    type::Button, type::PushButton,   type::Bitmap,       type::Checkbox,  type::String, type::Field,
    type::List,   type::PopupTrigger, type::RepeatButton, type::Scrollbar, type::Textbox};

int IndexOfWord(const std::string& word) {
    const auto& words = TableObjectEditing::KindWords();
    for (std::size_t i = 0; i < words.size(); ++i)
        if (words[i] == word) return static_cast<int>(i);
    return -1;
}

int IndexOfKind(int screenType) {
    for (int i = 0; i < TableObjectEditing::kKindCount; ++i)
        if (kKinds[i] == screenType) return i;
    return -1;
}

}  // namespace

const std::vector<std::string>& TableObjectEditing::KindWords() {
    static const std::vector<std::string> words = {"Button", "PushButton",   "Bitmap",       "Checkbox",
                                                   "String", "Field",        "List",         "PopupTrigger",
                                                   "RepeatButton", "Scrollbar", "Textbox"};
    return words;
}

TableObjectEditing::TableObjectEditing(Host& host, LogSink& log, ctlKOMATable& table, double scale)
    : host_(host), log_(log), table_(table), scale_(scale) {
    for (int i = 0; i < kKindCount; ++i) {
        objects_[static_cast<std::size_t>(i)] = NewCellObject(kKinds[i]);
        KomaObject& object = *objects_[static_cast<std::size_t>(i)];
        object.SetOwner(this);
        object.Visible(false);
        object.PCTwipsToTolvaPixels(scale_);
    }
}

TableObjectEditing::~TableObjectEditing() = default;

KomaObject& TableObjectEditing::Object(const std::string& word) const {
    const int index = IndexOfWord(word);
    return *objects_.at(static_cast<std::size_t>(index < 0 ? 0 : index));
}

void TableObjectEditing::SetObject(int row, int column, int rowHeight, int columnWidth, KomaObject* object) {
    row_ = row;
    column_ = column;
    rowHeight_ = rowHeight;
    columnWidth_ = columnWidth;
    std::string word = KindWords()[0];
    if (object) {
        const int index = IndexOfKind(object->ScreenType());
        if (index < 0) {
            current_ = nullptr;
            return;
        }
        word = KindWords()[static_cast<std::size_t>(index)];
        KomaObject& mine = *objects_[static_cast<std::size_t>(index)];
        mine.CopyCellMembersFrom(*object);
        // The object keeps its size, even larger than the cell, until it
        // asks for another.
        mine.SetCanvasSize(object->KOMAWidth() * scale_, object->KOMAHeight() * scale_);
    }
    ChooseKind(word);
}

void TableObjectEditing::ChooseKind(const std::string& word) {
    const int index = IndexOfWord(word);
    if (index < 0) return;
    if (current_) current_->Visible(false);
    KomaObject& object = *objects_[static_cast<std::size_t>(index)];
    object.Left(120);
    object.Top(120);
    object.Visible(true);
    current_ = &object;
    kindWord_ = word;
    object.PCTwipsToTolvaPixels(scale_);
}

PropertyArray TableObjectEditing::Rows() const {
    PropertyArray rows;
    if (current_) current_->GetPropertyList(rows);
    return rows;
}

void TableObjectEditing::ApplyRows(const PropertyArray& rows) {
    if (!current_) return;
    if (!current_->SetPropertyList(rows))
        host_.MessageBox("Could not change object properties", "Table Object Editor", MessageButtons::OK);
}

void TableObjectEditing::ObjectResized(KomaObject& object, int width, int height) {
    // Never larger than the cell at the time of editing.
    if (width > columnWidth_) width = columnWidth_;
    if (height > rowHeight_) height = rowHeight_;
    object.SetCanvasSize(width * scale_, height * scale_);
}

void TableObjectEditing::Ok() {
    if (!current_) return;
    current_->KOMABoundsX(0);
    current_->KOMABoundsY(0);
    KomaObject* object = current_;
    bool ok = false;
    table_.SetObject(row_, column_, object, ok);
}

}  // namespace tolva
