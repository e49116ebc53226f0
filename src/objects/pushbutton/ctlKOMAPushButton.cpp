#include "objects/pushbutton/ctlKOMAPushButton.h"

#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/pushbutton/modPushbutton.h"

namespace tolva {

ctlKOMAPushButton::ctlKOMAPushButton()
    : KomaControl(type::PushButton, controlstyle::PushButton, "PUSH_BUTTON", 40, 36) {
    SetControlSubTypeWord("PUSHBUTTON_STYLE_0");
    KOMAControlText("PushButton Text");
    LayOut();
}

// --- setters ----------------------------------------------------------------------------

int ctlKOMAPushButton::KOMAControlSubType() const {
    return PushButtonStyleWordToNumber(KOMAControlSubTypeWord());
}

void ctlKOMAPushButton::KOMAControlSubType(int style) {
    SetControlSubTypeWord(PushButtonStyleNumberToWord(style));
    LayOut();
}

void ctlKOMAPushButton::ApplySubTypeWord(const std::string& word) {
    KOMAControlSubType(PushButtonStyleWordToNumber(word));
}

void ctlKOMAPushButton::KOMARadius(long radius) {
    if (radius < 0) {
        Message("Invalid button radius", "KOMARadius");
        return;
    }
    radius_ = radius;
}

int ctlKOMAPushButton::KOMAOnColor() const { return ColorFromWord(onColorWord_); }

void ctlKOMAPushButton::KOMAOnColor(int color) {
    if (!IsDeviceColor(color)) return;
    onColorWord_ = WordFromColor(color);
    LayOut();
}

int ctlKOMAPushButton::KOMAOffColor() const { return ColorFromWord(offColorWord_); }

void ctlKOMAPushButton::KOMAOffColor(int color) {
    if (!IsDeviceColor(color)) return;
    offColorWord_ = WordFromColor(color);
    LayOut();
}

void ctlKOMAPushButton::KOMAGroupID(int id) {
    // The message speaks of check boxes: both kinds share it.
    if (id < 0) {
        Message("Invalid checkbox group ID", "KOMAGroupID");
        return;
    }
    groupId_ = id;
}

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMAPushButton::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    rows.SetRow(6, PropertyLabel(1801), rowkind::Choice, KOMAControlSubTypeWord());
    rows.SetRow(7, PropertyLabel(109), rowkind::Text, KOMAControlText());
    rows.SetRow(8, PropertyLabel(110), rowkind::Choice, KOMATextAlignmentWord());
    rows.SetRow(9, PropertyLabel(106), rowkind::Choice, KOMAEnableWord());
    rows.SetRow(10, PropertyLabel(107), rowkind::Choice, KOMAActiveWord());
    rows.SetRow(11, PropertyLabel(108), rowkind::Choice, KOMAVisibleWord());
    rows.SetRow(12, PropertyLabel(1802), rowkind::Choice, onColorWord_);
    rows.SetRow(13, PropertyLabel(1803), rowkind::Choice, offColorWord_);
    rows.SetRow(14, PropertyLabel(1304), rowkind::Choice, valueWord_);
    rows.SetRow(15, PropertyLabel(111), rowkind::Text, static_cast<int>(radius_));
    // No friendlier label exists for the group: the record's key stands.
    rows.SetRow(16, "CONTROL_ADD.GROUP_ID", rowkind::Text, groupId_);
}

bool ctlKOMAPushButton::SetPropertyList(const PropertyArray& rows) {
    // Name, position and size; a size that is no number ends the call here.
    if (!ApplySharedPropertyRows(rows)) return false;

    KOMAControlSubType(PushButtonStyleWordToNumber(rows.Value(6).Text()));
    KOMAControlText(rows.Value(7).Text());
    KOMATextAlignment(AlignmentFromWord(rows.Value(8).Text()));
    KOMAEnable(BooleanFromWord(rows.Value(9).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(10).Text()) != 0);
    KOMAVisible(BooleanFromWord(rows.Value(11).Text()) != 0);

    // The inspector takes a radius above 0 only, though the record keeps 0.
    const std::string radius = rows.Value(15).Text();
    if (IsNumeric(radius) && ToReal(radius) > 0 && ToReal(radius) < 32767.5) {
        KOMARadius(ToInt16(radius));
    } else {
        Message("Invalid button radius", "KOMARadius");
    }

    KOMAOnColor(ColorFromWord(rows.Value(12).Text()));
    KOMAOffColor(ColorFromWord(rows.Value(13).Text()));
    KOMAControlValue(BooleanFromWord(rows.Value(14).Text()) != 0);

    // A group that is no 16-bit number is refused like a negative one.
    const std::string group = rows.Value(16).Text();
    if (IsNumeric(group) && ToReal(group) >= -32768.5 && ToReal(group) < 32767.5) {
        KOMAGroupID(ToInt16(group));
    } else {
        Message("Invalid checkbox group ID", "KOMAGroupID");
    }
    return true;
}

bool ctlKOMAPushButton::CopyModelFrom(const KomaObject& other) {
    const auto* button = dynamic_cast<const ctlKOMAPushButton*>(&other);
    if (!button || !KomaControl::CopyModelFrom(other)) return false;
    radius_ = button->radius_;
    onColorWord_ = button->onColorWord_;
    offColorWord_ = button->offColorWord_;
    groupId_ = button->groupId_;
    valueWord_ = button->valueWord_;
    look_ = button->look_;
    return true;
}

}  // namespace tolva
