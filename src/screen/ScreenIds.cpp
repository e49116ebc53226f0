// DistributeObjectIds: every id of the design given afresh, with no gaps and
// no memory of earlier ids. Ids are thus a function of the array orders.
#include "screen/ctlTolvaScreen.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva {

void ctlTolvaScreen::DistributeObjectIds() {
    int id = 0;

    // 1. Forms.
    for (const auto& form : arrays_[type::Form]) form->KOMAObjectID(id++);

    // 2. Tables, each followed by the objects of its cells.
    for (const auto& table : arrays_[type::Table]) {
        table->KOMAObjectID(id++);
        static_cast<ctlKOMATable&>(*table).DistributeEmbeddedObjectIDs(id);
    }

    // 3. The menus of each form.
    for (const auto& object : arrays_[type::Form]) {
        auto& form = static_cast<ctlKOMAForm&>(*object);
        form.SetMenuIDs(id);
        id += form.GetNumMenus();
    }

    // 4. Everything else, kind by kind.
    constexpr int kOrder[] = {type::Button,       type::String,        type::Bitmap,
                              type::Checkbox,     type::PushButton,    type::RepeatButton,
                              type::Textbox,      type::List,          type::Field,
                              type::PopupTrigger, type::Scrollbar,     type::Line,
                              type::SchedulerLine};
    for (int t : kOrder)
        for (const auto& object : arrays_[t]) object->KOMAObjectID(id++);

    // 5.
    Log("Object IDs distributed");
}

}  // namespace tolva
