#include "objects/checkbox/ctlKOMACheckbox.h"

#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/PictureFiles.h"
#include "objects/checkbox/modCheckbox.h"

namespace tolva {

ctlKOMACheckbox::ctlKOMACheckbox()
    : TwoPictures(type::Checkbox, controlstyle::Checkbox, "CHECKBOX", 14, 14) {
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
