// The definitions of the header: one "#define NAME ID" line per object, with
// the IDs the objects hold now (the save has just distributed them).
//
// The order of kinds is the header's own and differs from the resource
// text's: textboxes stand before push buttons, fields before lists.
#include "document/Numbers.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva {

namespace {

std::string Definition(const std::string& name, const std::string& id) {
    return "#define " + name + " " + id;
}

}  // namespace

void ctlTolvaScreen::GetHeaderFileText(LineList& lines) const {
    lines.clear();

    // 1. Each form, its menus directly behind it.
    for (const auto& object : arrays_[type::Form]) {
        lines.push_back(Definition(object->KOMAName(), IntToText(object->KOMAObjectID())));
        for (const auto& menu : static_cast<const ctlKOMAForm&>(*object).Menus())
            lines.push_back(Definition(menu.name, IntToText(menu.id)));
    }

    // 2. Each table, the objects of its cells directly behind it, as the
    // table names and numbers them.
    for (const auto& object : arrays_[type::Table]) {
        lines.push_back(Definition(object->KOMAName(), IntToText(object->KOMAObjectID())));
        std::vector<std::pair<std::string, std::string>> cells;
        static_cast<ctlKOMATable&>(*object).GetHeaderEmbeddedObjectHeaderInfo(cells);
        for (const auto& [name, id] : cells) lines.push_back(Definition(name, id));
    }

    // 3. The other kinds, each in array order.
    constexpr int kOrder[] = {type::Button,       type::String,       type::Bitmap,
                              type::Checkbox,     type::Textbox,      type::PushButton,
                              type::RepeatButton, type::Field,        type::List,
                              type::PopupTrigger, type::Scrollbar,    type::Line,
                              type::SchedulerLine};
    for (int t : kOrder)
        for (const auto& object : arrays_[t])
            lines.push_back(Definition(object->KOMAName(), IntToText(object->KOMAObjectID())));
}

}  // namespace tolva
