// The menus of a form: plain data (names, ids, item texts), not objects on
// the screen.
#include "objects/form/ctlKOMAForm.h"

#include "document/ObjectOwner.h"

namespace tolva {

void ctlKOMAForm::SetMenus(const std::vector<std::vector<std::string>>& itemLists,
                           const std::vector<std::string>& names) {
    // All menus are replaced; their ids are handed out at the next
    // distribution.
    menus_.clear();
    for (size_t i = 0; i < names.size(); ++i) {
        MenuData menu;
        menu.name = names[i];
        if (i < itemLists.size()) menu.items = itemLists[i];
        menus_.push_back(std::move(menu));
    }
    if (Owner()) Owner()->ObjectMenusChanged(*this);
}

void ctlKOMAForm::GetMenus(std::vector<std::vector<std::string>>& itemLists,
                           std::vector<std::string>& names, std::vector<int>& ids) const {
    itemLists.clear();
    names.clear();
    ids.clear();
    for (const auto& menu : menus_) {
        itemLists.push_back(menu.items);
        names.push_back(menu.name);
        ids.push_back(menu.id);
    }
}

void ctlKOMAForm::SetMenuIDs(int firstId) {
    for (auto& menu : menus_) menu.id = firstId++;
}

}  // namespace tolva
