// SelectObject: the one selected object, with its nodes round it.
#include "screen/ScreenFocus.h"
#include "screen/ctlTolvaScreen.h"

namespace tolva {

bool ctlTolvaScreen::SelectObject(int screenType, const std::string& objectName, KomaObject* ref) {
    // A copy: the caller may hand in SelectedObjectName itself.
    const std::string name = objectName;
    // 1. Nothing to clear.
    if (screenType == type::None && selectedObjectType_ == type::None) return false;

    // 2.
    ShowNodes(false, true);

    // 4. Type 16 clears the selection.
    if (screenType == type::None) {
        selectedObjectType_ = type::None;
        selectedObjectName_.clear();
        selectedObjectRef_ = nullptr;
        return false;
    }

    // 3.
    KomaObject* object = ref ? ref : FindObject(screenType, name);
    if (!object) return false;
    if (screenType == type::Form) ShowForm(name);
    const bool line = screenType == type::Line;
    PlaceNodes(*object, line);
    selectedObjectRef_ = object;
    object->Visible(true);
    // The last selected object stands on top of the others; a form stays at
    // the back, behind its objects.
    if (screenType != type::Form) object->ZOrder(0);
    GiveFocusTo(*this, *object);
    ShowNodes(true, line);
    selectedObjectType_ = screenType;
    selectedObjectName_ = name;
    Log("Object selected: " + name);
    return true;
}

}  // namespace tolva
