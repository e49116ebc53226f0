// Names across the whole design: the uniqueness test and the lookups of an
// object's id and type by its name, all through the name index.
#include <iterator>

#include "screen/ctlTolvaScreen.h"

namespace tolva {

bool ctlTolvaScreen::IsNewNameUnique(const std::string& oldName, const std::string& newName) {
    // A menu's name is taken whatever the old name is, so even an object's
    // own name is not free when a menu bears it.
    if (IsMenuName(newName)) return false;
    // An object of any array (forms included) bearing the new name takes
    // it, unless that is the old name too. Objects in table cells are not
    // in the index and are not looked at.
    return oldName == newName || !names_.Contains(newName);
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
    if (const KomaObject* object = FirstNamed(name, kIdWalk, std::size(kIdWalk), nullptr))
        id = object->KOMAObjectID();
    return true;
}

bool ctlTolvaScreen::GetObjectType(const std::string& name, int& screenType) const {
    FirstNamed(name, kTypeWalk, std::size(kTypeWalk), &screenType);
    return true;
}

}  // namespace tolva
