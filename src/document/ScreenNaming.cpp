// Names across the whole design: the uniqueness test and the lookups of an
// object's id and type by its name.
#include "document/ctlTolvaScreen.h"
#include "objects/ctlKOMAForm.h"

namespace tolva {

bool ctlTolvaScreen::IsNewNameUnique(const std::string& oldName, const std::string& newName) {
    // Forms, and the menus of every form. A menu's name is taken whatever the
    // old name is, so even an object's own name is not free when a menu
    // bears it.
    for (const auto& object : arrays_[type::Form]) {
        if (object->KOMAName() == newName && oldName != object->KOMAName()) return false;
        for (const auto& menu : static_cast<const ctlKOMAForm&>(*object).Menus())
            if (menu.name == newName) return false;
    }
    // Every other array. Objects in table cells are not looked at.
    for (int t = 0; t < type::Count; ++t) {
        if (t == type::Form) continue;
        for (const auto& object : arrays_[t])
            if (object->KOMAName() == newName && oldName != object->KOMAName()) return false;
    }
    return true;
}

namespace {

// The orders in which the two lookups walk the arrays; the first match wins.
constexpr int kIdWalk[] = {type::Form,         type::Button,       type::String,
                           type::Bitmap,       type::Checkbox,     type::PushButton,
                           type::Field,        type::Textbox,      type::Line,
                           type::List,         type::Scrollbar,    type::RepeatButton,
                           type::PopupTrigger, type::SchedulerLine, type::Table};

constexpr int kTypeWalk[] = {type::Form,         type::Button,        type::String,
                             type::Bitmap,       type::Checkbox,      type::PushButton,
                             type::RepeatButton, type::Textbox,       type::Field,
                             type::List,         type::PopupTrigger,  type::Scrollbar,
                             type::Line,         type::SchedulerLine, type::Table};

}  // namespace

bool ctlTolvaScreen::GetObjectID(const std::string& name, int& id) const {
    for (int t : kIdWalk)
        for (const auto& object : arrays_[t])
            if (object->KOMAName() == name) {
                id = object->KOMAObjectID();
                return true;
            }
    return true;
}

bool ctlTolvaScreen::GetObjectType(const std::string& name, int& screenType) const {
    for (int t : kTypeWalk)
        for (const auto& object : arrays_[t])
            if (object->KOMAName() == name) {
                screenType = t;
                return true;
            }
    return true;
}

}  // namespace tolva
