#include "objects/checkbox/ctlKOMACheckbox.h"

#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/PictureFiles.h"
#include "objects/checkbox/modCheckbox.h"

namespace tolva {

ctlKOMACheckbox::ctlKOMACheckbox()
    : KomaControl(type::Checkbox, controlstyle::Checkbox, "CHECKBOX", 14, 14) {
    ResizeOK(false);
    VertResizeOK(false);
    HorizResizeOK(false);
    SetControlSubTypeWord("CHECKBOX_STYLE_0");
    SetTextAlignmentWord("LEFT");
    KOMAControlText("Checkbox Text");
}

// --- setters ----------------------------------------------------------------------------

int ctlKOMACheckbox::KOMAControlSubType() const {
    return CheckboxStyleWordToNumber(KOMAControlSubTypeWord());
}

void ctlKOMACheckbox::KOMAControlSubType(int style) {
    SetControlSubTypeWord(CheckboxStyleNumberToWord(style));
}

void ctlKOMACheckbox::ApplySubTypeWord(const std::string& word) {
    KOMAControlSubType(CheckboxStyleWordToNumber(word));
}

void ctlKOMACheckbox::KOMAGroupID(int id) {
    if (id < 0) {
        Message("Invalid checkbox group ID", "KOMAGroupID");
        return;
    }
    groupId_ = id;
}

void ctlKOMACheckbox::KOMAControlValue(int value) { valueWord_ = value != 0 ? "TRUE" : "FALSE"; }

// The place and size setters test as the Bitmap's do, the second height's
// plain message included.
bool ctlKOMACheckbox::InRange(int value, int high, const char* what) {
    if (value >= 0 && value <= high) return true;
    Message(PicturePlaceRefusal(what, value), KOMAName());
    return false;
}

void ctlKOMACheckbox::KOMABitmap1X(int x) {
    if (InRange(x, 159, "Bitmap1X")) bitmap1_.x = x;
}
void ctlKOMACheckbox::KOMABitmap1Y(int y) {
    if (InRange(y, 159, "Bitmap1Y")) bitmap1_.y = y;
}
void ctlKOMACheckbox::KOMABitmap2X(int x) {
    if (InRange(x, 159, "Bitmap2X")) bitmap2_.x = x;
}
void ctlKOMACheckbox::KOMABitmap2Y(int y) {
    if (InRange(y, 159, "Bitmap2Y")) bitmap2_.y = y;
}
void ctlKOMACheckbox::KOMABitmap1Width(int width) {
    if (InRange(width, 160, "Bitmap1Width")) bitmap1_.width = width;
}
void ctlKOMACheckbox::KOMABitmap1Height(int height) {
    if (InRange(height, 160, "Bitmap1Height")) bitmap1_.height = height;
}
void ctlKOMACheckbox::KOMABitmap2Width(int width) {
    if (InRange(width, 160, "Bitmap2Width")) bitmap2_.width = width;
}
void ctlKOMACheckbox::KOMABitmap2Height(int height) {
    if (height < 0 || height > 160) {
        Message("Invalid value");
        return;
    }
    bitmap2_.height = height;
}

void ctlKOMACheckbox::KOMABitmap1Depth(int depth) {
    if (depth == 2 || depth == 4) bitmap1_.depth = depth;
}
void ctlKOMACheckbox::KOMABitmap2Depth(int depth) {
    if (depth == 2 || depth == 4) bitmap2_.depth = depth;
}

void ctlKOMACheckbox::KOMABitmap1File(const std::string& path) { SetBitmapFile(1, path); }
void ctlKOMACheckbox::KOMABitmap2File(const std::string& path) { SetBitmapFile(2, path); }

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMACheckbox::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    rows.SetRow(6, PropertyLabel(1301), rowkind::Choice, KOMAControlSubTypeWord());
    rows.SetRow(7, PropertyLabel(106), rowkind::Choice, KOMAEnableWord());
    rows.SetRow(8, PropertyLabel(107), rowkind::Choice, KOMAActiveWord());
    rows.SetRow(9, PropertyLabel(108), rowkind::Choice, KOMAVisibleWord());
    rows.SetRow(10, PropertyLabel(1304), rowkind::Choice, valueWord_);
    rows.SetRow(11, PropertyLabel(1302), rowkind::Button, false);
    rows.SetRow(12, PropertyLabel(1303), rowkind::Button, false);
    rows.SetRow(13, PropertyLabel(123) + " 1", rowkind::Choice, DepthRowWord(bitmap1_.depth));
    rows.SetRow(14, PropertyLabel(123) + " 2", rowkind::Choice, DepthRowWord(bitmap2_.depth));
}

bool ctlKOMACheckbox::SetPropertyList(const PropertyArray& rows) {
    if (!HasOwnRowShape(rows)) return false;
    if (rows.Value(11).Bool()) {
        SetBitmapFromChooser(1);
        return true;
    }
    if (rows.Value(12).Bool()) {
        SetBitmapFromChooser(2);
        return true;
    }
    // Name, position and size as every kind, though the owner refuses to
    // size a check box by hand.
    if (!ApplySharedPropertyRows(rows)) return false;
    KOMAControlSubType(CheckboxStyleWordToNumber(rows.Value(6).Text()));
    KOMAEnable(BooleanFromWord(rows.Value(7).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(8).Text()) != 0);
    KOMAVisible(BooleanFromWord(rows.Value(9).Text()) != 0);
    const bool value = BooleanFromWord(rows.Value(10).Text()) != 0;
    if (value != KOMAControlValue()) KOMAControlValue(value ? 1 : 0);
    KOMABitmap1Depth(DepthFromRowWord(rows.Value(13).Text()));
    KOMABitmap2Depth(DepthFromRowWord(rows.Value(14).Text()));
    return true;
}

bool ctlKOMACheckbox::CopyModelFrom(const KomaObject& other) {
    const auto* box = dynamic_cast<const ctlKOMACheckbox*>(&other);
    if (!box || !KomaControl::CopyModelFrom(other)) return false;
    groupId_ = box->groupId_;
    valueWord_ = box->valueWord_;
    bitmap1_ = box->bitmap1_;
    bitmap2_ = box->bitmap2_;
    return true;
}

}  // namespace tolva
