#include "objects/button/ctlKOMAButton.h"

#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/button/modButton.h"

namespace tolva {

ctlKOMAButton::ctlKOMAButton()
    : KomaControl(type::Button, controlstyle::Button, "BUTTON", 46, 20) {
    SetControlSubTypeWord("BUTTON_STYLE_1");
    KOMAControlText("Button Text");
}

// --- setters ----------------------------------------------------------------------------

int ctlKOMAButton::KOMAControlSubType() const {
    return ButtonStyleWordToNumber(KOMAControlSubTypeWord());
}

void ctlKOMAButton::KOMAControlSubType(int style) {
    SetControlSubTypeWord(ButtonStyleNumberToWord(style));
    LayOut();
}

void ctlKOMAButton::ApplySubTypeWord(const std::string& word) {
    KOMAControlSubType(ButtonStyleWordToNumber(word));
}

void ctlKOMAButton::KOMARadius(long radius) {
    if (radius < 0) {
        Message("Invalid button radius", "KOMARadius");
        return;
    }
    radius_ = radius;
}

int ctlKOMAButton::KOMAOnColor() const { return ColorFromWord(onColorWord_); }

void ctlKOMAButton::KOMAOnColor(int color) {
    if (IsDeviceColor(color)) onColorWord_ = WordFromColor(color);
}

int ctlKOMAButton::KOMAOffColor() const { return ColorFromWord(offColorWord_); }

void ctlKOMAButton::KOMAOffColor(int color) {
    if (IsDeviceColor(color)) offColorWord_ = WordFromColor(color);
    LayOut();
}

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMAButton::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    rows.SetRow(6, PropertyLabel(1201), rowkind::Choice, KOMAControlSubTypeWord());
    rows.SetRow(7, PropertyLabel(109), rowkind::Text, KOMAControlText());
    rows.SetRow(8, PropertyLabel(110), rowkind::Choice, KOMATextAlignmentWord());
    rows.SetRow(9, PropertyLabel(106), rowkind::Choice, KOMAEnableWord());
    rows.SetRow(10, PropertyLabel(107), rowkind::Choice, KOMAActiveWord());
    rows.SetRow(11, PropertyLabel(108), rowkind::Choice, KOMAVisibleWord());
    rows.SetRow(12, PropertyLabel(111), rowkind::Text, static_cast<int>(radius_));
    rows.SetRow(13, PropertyLabel(1202), rowkind::Choice, onColorWord_);
    rows.SetRow(14, PropertyLabel(1203), rowkind::Choice, offColorWord_);
}

bool ctlKOMAButton::SetPropertyList(const PropertyArray& rows) {
    // Name, position and size; a size that is no number ends the call here.
    if (!ApplySharedPropertyRows(rows)) return false;

    KOMAControlSubType(ButtonStyleWordToNumber(rows.Value(6).Text()));
    KOMAControlText(rows.Value(7).Text());
    KOMATextAlignment(AlignmentFromWord(rows.Value(8).Text()));
    KOMAEnable(BooleanFromWord(rows.Value(9).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(10).Text()) != 0);
    KOMAVisible(BooleanFromWord(rows.Value(11).Text()) != 0);

    // The inspector takes a radius above 0 only, though the record keeps 0.
    const std::string radius = rows.Value(12).Text();
    if (IsNumeric(radius) && ToReal(radius) > 0) {
        KOMARadius(ToInt32(radius));
    } else {
        Message("Invalid button radius", "KOMARadius");
    }

    KOMAOnColor(ColorFromWord(rows.Value(13).Text()));
    KOMAOffColor(ColorFromWord(rows.Value(14).Text()));
    return true;
}

bool ctlKOMAButton::CopyModelFrom(const KomaObject& other) {
    const auto* button = dynamic_cast<const ctlKOMAButton*>(&other);
    if (!button || !KomaControl::CopyModelFrom(other)) return false;
    radius_ = button->radius_;
    onColorWord_ = button->onColorWord_;
    offColorWord_ = button->offColorWord_;
    return true;
}

}  // namespace tolva
