// Menus: plain data of their forms. The screen opens the menu editor on the
// form on show, takes back what it made, and adds the menus of a load.
#include "document/Host.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {

void ctlTolvaScreen::ShowMenuEditor() {
    if (currentDesignForm_.empty() || !currentFormRef_) {
        host_.MessageBox("You must draw a form before you can edit its menus",
                         "Couldn't Edit Menus");
        return;
    }
    // The window layer loads the editor, titles it with the form's name,
    // hands it the form's menus and shows it modally.
    if (menuEditorOpener_) menuEditorOpener_(*currentFormRef_);
}

void ctlTolvaScreen::UpdateMenus(const std::vector<std::vector<std::string>>& itemLists,
                                 const std::vector<std::string>& names) {
    if (currentFormRef_) currentFormRef_->SetMenus(itemLists, names);
    DistributeObjectIds();
}

bool ctlTolvaScreen::CreateNewMenuInForm(const std::vector<std::string>& items,
                                         const std::string& menuName,
                                         const std::string& formName) {
    auto* form = static_cast<ctlKOMAForm*>(FindObject(type::Form, formName));
    if (!form) return false;
    std::vector<std::vector<std::string>> itemLists;
    std::vector<std::string> names;
    std::vector<int> ids;
    form->GetMenus(itemLists, names, ids);
    itemLists.push_back(items);
    names.push_back(menuName);
    form->SetMenus(itemLists, names);
    ++numMenus_;
    Log("New menu added to form: " + formName);
    return true;
}

}  // namespace tolva
