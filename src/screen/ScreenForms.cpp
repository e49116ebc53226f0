// The form on show, and the embedding of objects in forms by the loader.
#include "document/Host.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {

bool ctlTolvaScreen::HideForm(const std::string& name) {
    // A copy: the caller may hand in CurrentDesignForm itself, emptied here.
    const std::string formName = name;
    auto* form = static_cast<ctlKOMAForm*>(FindObject(type::Form, formName));
    if (!form) return false;
    form->HideEmbeddedObjects();
    currentDesignForm_.clear();
    currentFormRef_ = nullptr;
    form->Visible(false);
    Log("Form hidden: " + formName);
    return true;
}

bool ctlTolvaScreen::ShowForm(const std::string& formName) {
    auto* form = static_cast<ctlKOMAForm*>(FindObject(type::Form, formName));
    if (!form) return false;
    // The form shown before is not hidden here: the callers hide it.
    currentDesignForm_ = formName;
    currentFormRef_ = form;
    form->ShowEmbeddedObjects();
    form->Visible(true);
    form->ZOrder(1);
    return true;
}

bool ctlTolvaScreen::EmbedObjectInForm(const std::string& formName, int screenType,
                                       const std::string& objectName) {
    // 1.
    if (screenType == type::Form) return false;
    auto* form = static_cast<ctlKOMAForm*>(FindObject(type::Form, formName));
    if (!form) return false;
    KomaObject* object = FindObject(screenType, objectName);
    if (!object) return false;

    // 2. An object stands on one form only.
    if (object->ParentForm()) {
        host_.MessageBox("Object already embedded in a form.", objectName);
        return false;
    }

    // 3.
    if (!form->EmbedObject(screenType, objectName, object)) return false;
    object->ParentForm(form);
    Log("Object embedded in form: " + formName);
    return true;
}

}  // namespace tolva
