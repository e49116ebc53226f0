#include "objects/menu/ctlKOMAMenu.h"

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "document/Words.h"
#include "objects/RecordHeads.h"
#include "objects/list/ListEditing.h"
#include "resfile/Banners.h"

namespace tolva {

ctlKOMAMenu::ctlKOMAMenu() : KomaObject(type::Menu, "MENU", 24, 12) {
    // Menus are never named by the screen; a new one starts with the bare prefix.
    KOMAName("MENU_");
}

void ctlKOMAMenu::SetList(const std::vector<std::string>& items, int selected) {
    items_ = items;
    selected_ = selected;
    SizeToItems();
}

void ctlKOMAMenu::GetList(std::vector<std::string>& items, int& selected) const {
    items = items_;
    selected = selected_;
}

void ctlKOMAMenu::AddListItem(const std::string& item) {
    items_.push_back(item);
    SizeToItems();
}

void ctlKOMAMenu::RemoveListItem(int position) {
    if (position < 0 || position >= static_cast<int>(items_.size())) return;
    items_.erase(items_.begin() + position);
    SizeToItems();
}

void ctlKOMAMenu::MouseDown(int button, int shift, double x, double y) {
    if ((button & kRightButton) == 0) {
        KomaObject::MouseDown(button, shift, x, y);
        return;
    }
    const std::optional<int> choice = host().PopupMenu(
        "Set Properties", {{"mnuEditMenu", "Edit Menu..."}, {"mnuClearMenu", "Clear Menu"}});
    if (!choice) return;
    if (*choice == 0) {
        ListEditing edit(host());
        edit.SetList(items_, selected_, static_cast<int>(items_.size()), 0);
        if (!host().RunDialog(edit)) return;
        SetList(edit.Items(), edit.Selected());
    } else if (*choice == 1) {
        // Clearing empties the menu: no item, nothing selected.
        SetList({}, -1);
    } else {
        return;
    }
    RaisePicChanged();
}

// --- inspector rows: the record's own key words as labels ---------------------------------

void ctlKOMAMenu::GetPropertyList(PropertyArray& rows) {
    rows = PropertyArray(kRowCount);
    rows.SetRow(1, "NAME", rowkind::Text, KOMAName());
    rows.SetRow(2, "BOUNDS.X", rowkind::Text, KOMABoundsX());
    rows.SetRow(3, "BOUNDS.Y", rowkind::Text, KOMABoundsY());
    rows.SetRow(4, "BOUNDS.WIDTH", rowkind::Text, KOMAWidth());
    rows.SetRow(5, "BOUNDS.HEIGHT", rowkind::Text, KOMAHeight());
    rows.SetRow(6, "LIST_ATTR.LIST_VISIBLE", rowkind::Choice, visibleWord_);
}

bool ctlKOMAMenu::SetPropertyList(const PropertyArray& rows) {
    if (!HasOwnRowShape(rows)) return false;
    ApplyNameRow(rows, "Menu name must be unique");
    ApplyPositionRows(rows);
    ApplySizeRows(rows);
    KOMAVisible(BooleanFromWord(rows.Value(6).Text()) != 0);
    return true;
}

bool ctlKOMAMenu::CopyModelFrom(const KomaObject& other) {
    const auto* menu = dynamic_cast<const ctlKOMAMenu*>(&other);
    if (!menu || !KomaObject::CopyModelFrom(other)) return false;
    selected_ = menu->selected_;
    items_ = menu->items_;
    visibleWord_ = menu->visibleWord_;
    return true;
}

void ctlKOMAMenu::ReturnResourceFileText(LineList& lines, bool& ok) {
    AppendRecordBanner(lines, KOMAName(), false);
    AppendHeadB(lines, *this, "#MENU");
    lines.push_back("(U)MENU_NUM_ITEMS=" + IntToText(KOMANumItems()));
    lines.push_back("~F3");
    lines.push_back("//NO_SELECTION or 0 - ??");
    lines.push_back("(SH)MENU_SELECTED_ITEM=" + IntToText(selected_));
    lines.push_back("~F4");
    lines.push_back("//any text");
    for (std::size_t i = 0; i < items_.size(); ++i)
        lines.push_back("(S)MENU_ITEMS" + std::to_string(i + 1) + "=" + items_[i]);
    lines.push_back("~F5");
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)MENU_VISIBLE=" + visibleWord_);
    lines.push_back("#END_MENU");
    ok = true;
}

}  // namespace tolva
