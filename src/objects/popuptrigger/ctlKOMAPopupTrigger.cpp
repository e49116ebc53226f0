#include "objects/popuptrigger/ctlKOMAPopupTrigger.h"

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/PropertyLabels.h"
#include "document/Words.h"
#include "objects/popuptrigger/PopupTriggerEditing.h"
#include "objects/popuptrigger/modPopuptrigger.h"

namespace tolva {

ctlKOMAPopupTrigger::ctlKOMAPopupTrigger()
    : KomaControl(type::PopupTrigger, controlstyle::PopupTrigger, "POPUP_TRIGGER", 53, 23) {
    SetControlSubTypeWord("POPUP_TRIGGER_STYLE_0");
    SetTextAlignmentWord("LEFT");
}

int ctlKOMAPopupTrigger::KOMAControlSubType() const {
    return PopupTriggerStyleWordToNumber(KOMAControlSubTypeWord());
}

void ctlKOMAPopupTrigger::KOMAControlSubType(int style) {
    const std::string word = PopupTriggerStyleNumberToWord(style);
    if (word.empty()) return;
    SetControlSubTypeWord(word);
    LayOut();
}

void ctlKOMAPopupTrigger::ApplySubTypeWord(const std::string& word) {
    KOMAControlSubType(PopupTriggerStyleWordToNumber(word));
}

void ctlKOMAPopupTrigger::KOMARadius(long radius) {
    if (radius < 0) {
        Message("Invalid button radius", "KOMARadius");
        return;
    }
    radius_ = radius;
}

void ctlKOMAPopupTrigger::KOMANumItems(int count) {
    if (count >= 0) numItems_ = count;
}

void ctlKOMAPopupTrigger::KOMASelectedItem(int item) {
    if (item >= -1 && item < static_cast<int>(items_.size())) selected_ = item;
}

void ctlKOMAPopupTrigger::KOMATopItemNum(int item) {
    if (item >= 0 && item < static_cast<int>(items_.size())) topItem_ = item;
}

void ctlKOMAPopupTrigger::SetList(const std::vector<std::string>& items, int selected, int topItem) {
    items_ = items;
    selected_ = selected;
    topItem_ = topItem;
    numItems_ = static_cast<int>(items_.size());
    const bool chosen = selected_ >= 0 && selected_ < numItems_;
    KOMAControlText(chosen ? items_[static_cast<std::size_t>(selected_)] : std::string());
    LayOut();
}

void ctlKOMAPopupTrigger::GetList(std::vector<std::string>& items, int& selected, int& topItem) const {
    items = items_;
    selected = selected_;
    topItem = topItem_;
}

void ctlKOMAPopupTrigger::EditList() {
    PopupTriggerEditing edit(host());
    edit.SetList(items_, selected_, topItem_);
    if (!host().RunDialog(edit)) return;
    SetList(edit.Items(), edit.Selected(), edit.TopItem());
    // The owner shows the object's new state, as after a new picture.
    RaisePicChanged();
}

void ctlKOMAPopupTrigger::MouseDown(int button, int shift, double x, double y) {
    if ((button & kRightButton) == 0) {
        KomaControl::MouseDown(button, shift, x, y);
        return;
    }
    const std::optional<int> choice =
        host().PopupMenu("Set Properties", {{"mnuSetPropEditList", PropertyLabel(1604)}});
    if (choice && *choice == 0) EditList();
}

// --- inspector rows ---------------------------------------------------------------------

void ctlKOMAPopupTrigger::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    FillSharedPropertyRows(rows);
    rows.SetRow(6, PropertyLabel(110), rowkind::Choice, KOMATextAlignmentWord());
    rows.SetRow(7, PropertyLabel(1701), rowkind::Choice, KOMAControlSubTypeWord());
    rows.SetRow(8, PropertyLabel(106), rowkind::Choice, KOMAEnableWord());
    rows.SetRow(9, PropertyLabel(107), rowkind::Choice, KOMAActiveWord());
    rows.SetRow(10, PropertyLabel(108), rowkind::Choice, KOMAVisibleWord());
    rows.SetRow(11, PropertyLabel(111), rowkind::Text, static_cast<int>(radius_));
    rows.SetRow(12, PropertyLabel(1604), rowkind::Button, false);
}

bool ctlKOMAPopupTrigger::SetPropertyList(const PropertyArray& rows) {
    if (!HasOwnRowShape(rows)) return false;
    if (rows.Value(12).Bool()) {
        EditList();
        return true;
    }
    if (!ApplySharedPropertyRows(rows)) return false;
    KOMAControlSubType(PopupTriggerStyleWordToNumber(rows.Value(7).Text()));
    KOMATextAlignment(AlignmentFromWord(rows.Value(6).Text()));
    // The inspector takes a radius above 0 only, though the record keeps 0.
    const std::string radius = rows.Value(11).Text();
    if (IsNumeric(radius) && ToReal(radius) > 0)
        KOMARadius(ToInt32(radius));
    else
        Message("Invalid button radius", "KOMARadius");
    KOMAVisible(BooleanFromWord(rows.Value(10).Text()) != 0);
    KOMAEnable(BooleanFromWord(rows.Value(8).Text()) != 0);
    KOMAActive(BooleanFromWord(rows.Value(9).Text()) != 0);
    return true;
}

bool ctlKOMAPopupTrigger::CopyModelFrom(const KomaObject& other) {
    const auto* trigger = dynamic_cast<const ctlKOMAPopupTrigger*>(&other);
    if (!trigger || !KomaControl::CopyModelFrom(other)) return false;
    radius_ = trigger->radius_;
    numItems_ = trigger->numItems_;
    selected_ = trigger->selected_;
    topItem_ = trigger->topItem_;
    items_ = trigger->items_;
    return true;
}

}  // namespace tolva
