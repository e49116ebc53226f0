#include "objects/form/ctlKOMAForm.h"

#include <algorithm>

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/ObjectOwner.h"
#include "document/ObjectTypes.h"
#include "document/Paths.h"
#include "document/PropertyLabels.h"
#include "document/StringTable.h"
#include "document/TextHelpers.h"
#include "objects/form/FormStyles.h"

namespace tolva {

ctlKOMAForm::ctlKOMAForm() : KomaObject(type::Form, "FORM", 160, 160) {}

// --- properties ---------------------------------------------------------------------

int ctlKOMAForm::KOMAFormStyle() const { return FormStyleFromWord(styleWord_); }

void ctlKOMAForm::KOMAFormStyle(int style) {
    const std::string word = WordFromFormStyle(style);
    if (word.empty()) return;
    styleWord_ = word;
    LayOut();
}

int ctlKOMAForm::KOMAObjectType() {
    if (KOMAObjectTypeWord() != "FORM") {
        Message("Invalid object type", "Form - KOMAObjectType");
        SetObjectTypeWord("FORM");
    }
    return kind::Form;
}

void ctlKOMAForm::KOMAObjectType(int kind) {
    if (kind != kind::Form) Message("Invalid object type", "Form - KOMAObjectType");
    SetObjectTypeWord("FORM");
}

void ctlKOMAForm::KOMAName(const std::string& name) {
    if (TrimSpaces(name).empty()) {
        Message("Invalid name", "KOMAName");
        return;
    }
    KomaObject::KOMAName(name);
}

void ctlKOMAForm::KOMAFormTitle(const std::string& title) {
    title_ = title;
    LayOut();
}

void ctlKOMAForm::KOMAFocusedObject(const std::string& name) {
    if (!name.empty() && std::none_of(embedded_.begin(), embedded_.end(),
                                      [&](const EmbeddedRow& row) { return row.name == name; })) {
        Message("Invalid value", "KOMAFocusedObject");
        return;
    }
    focusedObject_ = name;
}

void ctlKOMAForm::KOMANumEmbeddedObjects(int count) {
    if (count < 0) {
        Message("Invalid number of embedded objects", "KOMANumEmbeddedObjects");
        return;
    }
    // The count is the length of the two parallel lists: both follow it, a
    // new row holding no name and no object until one is embedded there.
    embedded_.resize(static_cast<size_t>(count));
    references_.resize(static_cast<size_t>(count), nullptr);
}

void ctlKOMAForm::KOMABitmapDepth(int depth) {
    if (depth == 2 || depth == 4) bitmapDepth_ = depth;
}

void ctlKOMAForm::KOMABitmapFile(const std::string& path) {
    if (path.empty()) {
        bitmapFile_.clear();
        hasPicture_ = false;
        LayOut();
        return;
    }
    Host& h = host();
    if (!h.FileExists(path)) {
        Message(LoadResString(msg::BitmapNotFound));
        return;
    }
    if (!IsShortPath(path)) {
        Message(LoadResString(msg::PathNotShort), "Couldn't set bitmap");
        return;
    }
    const auto size = h.LoadPicture(path);
    // A file that is there but holds no picture the program can read gives
    // no bitmap to show either: it is reported as not found.
    if (!size) {
        Message(LoadResString(msg::BitmapNotFound));
        return;
    }
    // The image part takes the picture's own size; the next layout sizes it
    // by the stored bitmap size again.
    pictureWidth_ = size->width;
    pictureHeight_ = size->height;
    imageWidth_ = size->width;
    imageHeight_ = size->height;
    hasPicture_ = true;
    bitmapFile_ = path;
    RaisePicChanged();
}

void ctlKOMAForm::ChooseFormBitmap() {
    FileChooserRequest request;
    request.title = "Select Form Bitmap";
    request.filter = "Bitmaps (*.bmp)|*.bmp|";
    request.defaultExtension = "*.bmp";
    const auto choice = host().ChooseOpenFile(request);
    if (!choice) return;
    KOMABitmapFile(*choice);
}

void ctlKOMAForm::RemoveFormBitmap() {
    KOMABitmapFile("");
    RaisePicChanged();
}

// --- inspector rows --------------------------------------------------------------------

std::vector<std::string> ctlKOMAForm::FocusedObjectChoices() const {
    std::vector<std::string> choices = {"(None)"};
    for (const EmbeddedRow& row : embedded_) choices.push_back(row.name);
    return choices;
}

void ctlKOMAForm::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    rows.SetRow(6, PropertyLabel(1004), rowkind::Choice,
                focusedObject_.empty() ? std::string("(None)") : focusedObject_);
    rows.SetRow(7, PropertyLabel(1002), rowkind::Choice, styleWord_);
    rows.SetRow(8, PropertyLabel(1003), rowkind::Text, title_);
    rows.SetRow(9, PropertyLabel(1001), rowkind::Button, false);
    rows.SetRow(10, PropertyLabel(123), rowkind::Choice,
                std::string(bitmapDepth_ == 2 ? "2 Bit" : "4 Bit"));
}

bool ctlKOMAForm::SetPropertyList(const PropertyArray& rows) {
    if (!ApplySharedPropertyRows(rows)) return false;

    // Row 6: the focused object, "(None)" or empty for none.
    const std::string focused = rows.Value(6).Text();
    if (focused == "(None)" || focused.empty()) {
        focusedObject_.clear();
    } else if (std::any_of(embedded_.begin(), embedded_.end(),
                           [&](const EmbeddedRow& row) { return row.name == focused; })) {
        focusedObject_ = focused;
    } else {
        Message("Invalid focus object", "KOMAFocusedObject");
    }

    // Row 7: the style word; row 8: the title.
    KOMAFormStyle(FormStyleFromWord(rows.Value(7).Text()));
    KOMAFormTitle(rows.Value(8).Text());

    // Row 9: the bitmap button.
    if (rows.Value(9).Bool()) ChooseFormBitmap();

    // Row 10: the depth.
    KOMABitmapDepth(rows.Value(10).Text() == "2 Bit" ? 2 : 4);
    return true;
}

void ctlKOMAForm::ApplyRowHeight(int height) {
    Height(height * PCTwipsToTolvaPixels());
    RaiseResized();
}

void ctlKOMAForm::ApplyRowWidth(int width) {
    Width(width * PCTwipsToTolvaPixels());
    RaiseResized();
}

// --- copy ---------------------------------------------------------------------------------

bool ctlKOMAForm::CopyModelFrom(const KomaObject& other) {
    const auto* form = dynamic_cast<const ctlKOMAForm*>(&other);
    if (!form || !KomaObject::CopyModelFrom(other)) return false;
    styleWord_ = form->styleWord_;
    title_ = form->title_;
    focusedObject_ = form->focusedObject_;
    bitmapX_ = form->bitmapX_;
    bitmapY_ = form->bitmapY_;
    bitmapWidth_ = form->bitmapWidth_;
    bitmapHeight_ = form->bitmapHeight_;
    bitmapFile_ = form->bitmapFile_;
    bitmapDepth_ = form->bitmapDepth_;
    hasPicture_ = form->hasPicture_;
    pictureWidth_ = form->pictureWidth_;
    pictureHeight_ = form->pictureHeight_;
    embedded_ = form->embedded_;
    references_ = form->references_;
    menus_ = form->menus_;
    if (Owner()) Owner()->ObjectMenusChanged(*this);
    relatedCheckboxes_ = form->relatedCheckboxes_;
    relatedLists_ = form->relatedLists_;
    return true;
}

}  // namespace tolva
