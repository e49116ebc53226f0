// Menus: plain data of their forms. The screen opens the menu editor on the
// form on show, takes back what it made, and adds the menus of a load.
#include "document/Host.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/menu/MenuEditing.h"

namespace tolva {

void ctlTolvaScreen::ShowMenuEditor() {
    if (currentDesignForm_.empty() || !currentFormRef_) {
        host_.MessageBox("You must draw a form before you can edit its menus",
                         "Couldn't Edit Menus");
        return;
    }
    ctlKOMAForm& form = *currentFormRef_;
    MenuEditing edit(host_, [this, &form](const std::string& name) {
        return IsNameTakenForMenu(form, name);
    });
    edit.Caption(form.KOMAName());
    for (const auto& menu : form.Menus()) edit.AddMenu(menu.name, menu.items);
    edit.SetMenuSelected(0);
    MenuEditing::FormPicture picture;
    for (const KomaObject* object : VisibleObjectsInStackingOrder()) picture.objects.push_back(object);
    picture.left = form.Left();
    picture.top = form.Top();
    picture.devicePixel = twipsPerPixel_;
    edit.SetFormPicture(std::move(picture));
    // The dialog is modal: the main window waits while it is open.
    if (host_.RunDialog(edit)) UpdateMenus(edit.ItemLists(), edit.Names());
}

bool ctlTolvaScreen::IsNameTakenForMenu(const ctlKOMAForm& editing, const std::string& name) const {
    // Every object of the screen, forms included; the menus of the form
    // being edited are the editor's own, so only the other forms' count.
    if (names_.Contains(name)) return true;
    for (const auto& other : arrays_[type::Form]) {
        if (other.get() == &editing) continue;
        for (const auto& menu : static_cast<const ctlKOMAForm&>(*other).Menus())
            if (menu.name == name) return true;
    }
    return false;
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
