// Deleting objects. An array never has a hole: the last object of the array
// takes over the model of the deleted one, and the last one goes.
#include "document/Host.h"
#include "screen/ScreenEvents.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/KomaControl.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {

bool ctlTolvaScreen::DeleteObject(int screenType, const std::string& objectName,
                                  bool notifyParent) {
    // A copy: the caller's text may be the name of the very object that goes.
    const std::string name = objectName;

    // 1.
    int index = 0;
    KomaObject* deleted = FindObject(screenType, name, &index);
    if (!deleted) return false;

    // 2. A form takes its objects with it.
    if (screenType == type::Form) {
        currentDesignForm_.clear();
        currentFormRef_ = nullptr;
        DeleteAllEmbededObjectsFromForm(name, index);
    }

    // 3. The forms hear of it first.
    auto& array = arrays_[screenType];
    KomaObject* last = array.back().get();
    if (screenType != type::Form && notifyParent) {
        if (deleted->ParentForm()) deleted->ParentForm()->NotifyObjectDeleted(name);
        if (deleted != last && last->ParentForm())
            last->ParentForm()->UpdateReferenceList(last->KOMAName(), deleted);
    }

    // No form may keep a reference to the last object, which is about to
    // go: a form that still holds it (it was not told, or under another
    // name) now holds the object in the gap, where the last one's model
    // moves, or nothing when the last object is the one that goes.
    KomaObject* successor = deleted != last ? deleted : nullptr;
    // By reference, not by name: names can repeat after a load.
    for (const auto& form : arrays_[type::Form])
        static_cast<ctlKOMAForm*>(form.get())->ReplaceReference(last, successor);

    // 4. The last object moves into the gap by a copy of its model.
    if (deleted != last) {
        deleted->Visible(false);
        deleted->AllowRedraw(false);
        if (!deleted->CopyModelFrom(*last)) return false;
        deleted->Top(last->Top());
        deleted->Left(last->Left());
        deleted->Width(last->Width());
        deleted->Height(last->Height());
        // The index is the old index of the last object, and stays so.
        deleted->iIndex(last->iIndex());
        deleted->KOMAName(last->KOMAName());
        deleted->AllowRedraw(true);
        if (currentFormRef_ == last) currentFormRef_ = static_cast<ctlKOMAForm*>(deleted);
        if (selectedObjectRef_ == last) selectedObjectRef_ = deleted;
    } else if (selectedObjectRef_ == deleted) {
        selectedObjectRef_ = nullptr;
    }

    if (screenType == type::Form) {
        // An object that the emptying of the form could not take (it stopped
        // at a kind it does not know, or looked in the wrong array) stays in
        // the design with no form: its own is gone. Only then do the objects
        // of the last form follow that form into the gap.
        for (const auto& kind : arrays_)
            for (const auto& object : kind)
                if (object->ParentForm() == deleted) object->ParentForm(nullptr);
        if (deleted != last) {
            for (const auto& kind : arrays_)
                for (const auto& object : kind)
                    if (object->ParentForm() == last)
                        object->ParentForm(static_cast<ctlKOMAForm*>(deleted));
        }
    }

    // 5.
    names_.Remove(last->KOMAName(), last);
    if (screenType == type::Form) menuNamesValid_ = false;
    array.pop_back();

    // 6. The object now in the gap shows if it belongs to the form on show.
    if (!currentDesignForm_.empty() && currentFormRef_) currentFormRef_->ShowEmbeddedObjects();

    // 7.
    DistributeObjectIds();

    // 8.
    SelectObject(type::None, "");
    if (screenMode_ != ModeLoading && events_) {
        events_->DeletedObject(name, screenType);
        events_->SelectedObject("", type::None);
    }
    Log("Object deleted: " + name);
    return true;
}

void ctlTolvaScreen::DeleteAllEmbededObjectsFromForm(const std::string& formName, int formIndex) {
    ctlKOMAForm* form = FormAt(formIndex);
    if (!form) return;
    const std::string title = "DeleteAllEmbededObjectsFromForm";
    const int rounds = form->KOMANumEmbeddedObjects();
    for (int round = 0; round < rounds; ++round) {
        KomaObject* object = form->GetFirstEmbeddedObjectReference();
        if (!object) break;
        const int deviceKind = object->KOMAObjectType();
        if (deviceKind == kind::Form) {
            host_.MessageBox("Form embedded in form.  Should not have occured", title);
            return;
        }
        if (deviceKind >= 12 || deviceKind < 0) {
            host_.MessageBox("Unknown object type", title);
            return;
        }
        int controlStyle = 0;
        if (deviceKind == kind::Control) {
            auto* control = dynamic_cast<KomaControl*>(object);
            controlStyle = control ? control->KOMAControlStyle() : -1;
            if (controlStyle < 0 || controlStyle > 4) {
                host_.MessageBox("Unknown control type", title);
                return;
            }
        }
        DeleteObject(ScreenTypeFromDeviceKind(deviceKind, controlStyle), object->KOMAName(), true);
    }
    Log("All objects deleted from form: " + formName);
}

bool ctlTolvaScreen::DeleteSelectedObject() {
    if (selectedObjectName_.empty()) return false;
    // The device kind goes in where the screen type belongs. The two
    // numberings differ for every kind, so the lookup finds nothing and the
    // selected object stays; this is how the command has always behaved.
    if (selectedObjectRef_)
        DeleteObject(selectedObjectRef_->KOMAObjectType(), selectedObjectName_);
    return true;
}

}  // namespace tolva
