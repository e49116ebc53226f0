// ctlTolvaScreen: the arrays of objects, the lookups on them, the scale, the
// stacking order and the inspector's way in (property lists). The other jobs
// of the class live beside this file: creation, deletion, selection, naming,
// ids, menus, loading and the object events.
#include "screen/ctlTolvaScreen.h"

#include <algorithm>
#include <unordered_map>

#include "document/Host.h"
#include "document/LogSink.h"
#include "document/RuntimeFailure.h"
#include "screen/ScreenEvents.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {

namespace {

bool IsArrayType(int screenType) { return screenType >= 0 && screenType < type::Count; }

}  // namespace

ctlTolvaScreen::ctlTolvaScreen(Host& host, LogSink& log) : host_(host), log_(log) {}

ctlTolvaScreen::~ctlTolvaScreen() {
    // Forms hold plain references to the other objects; none of them is
    // looked at while the arrays go, so the order does not matter here.
    selectedObjectRef_ = nullptr;
    currentFormRef_ = nullptr;
}

// --- arrays ----------------------------------------------------------------------

int ctlTolvaScreen::Count(int screenType) const {
    if (screenType == type::Menu) return numMenus_;
    if (!IsArrayType(screenType)) return 0;
    return static_cast<int>(arrays_[screenType].size());
}

KomaObject* ctlTolvaScreen::ObjectAt(int screenType, int index) const {
    if (!IsArrayType(screenType)) return nullptr;
    const auto& array = arrays_[screenType];
    if (index < 1 || index > static_cast<int>(array.size())) return nullptr;
    return array[index - 1].get();
}

ctlKOMAForm* ctlTolvaScreen::FormAt(int index) const {
    return static_cast<ctlKOMAForm*>(ObjectAt(type::Form, index));
}

KomaObject* ctlTolvaScreen::FindObject(int screenType, const std::string& name, int* index) const {
    // The index answers as the walk of the array from 1 would: the first
    // object of the type with exactly that name.
    if (IsArrayType(screenType)) {
        if (const NameIndex::Entry* entry = names_.Find(screenType, name)) {
            if (index) *index = entry->position;
            return entry->object;
        }
    }
    Log("Couldn't find requested object: " + name);
    return nullptr;
}

KomaObject* ctlTolvaScreen::FirstNamed(const std::string& name, const int* walk, int walkLength,
                                       int* foundType) const {
    const NameIndex::Entry* best = nullptr;
    int bestRank = walkLength;
    names_.ForEach(name, [&](const NameIndex::Entry& entry) {
        int rank = 0;
        while (rank < walkLength && walk[rank] != entry.type) ++rank;
        if (rank == walkLength) return;
        if (!best || rank < bestRank || (rank == bestRank && entry.position < best->position)) {
            best = &entry;
            bestRank = rank;
        }
    });
    if (!best) return nullptr;
    if (foundType) *foundType = best->type;
    return best->object;
}

bool ctlTolvaScreen::IsMenuName(const std::string& name) const {
    if (!menuNamesValid_) {
        menuNames_.clear();
        for (const auto& form : arrays_[type::Form])
            for (const auto& menu : static_cast<const ctlKOMAForm&>(*form).Menus())
                ++menuNames_[menu.name];
        menuNamesValid_ = true;
    }
    return menuNames_.count(name) != 0;
}

void ctlTolvaScreen::ObjectRenamed(KomaObject& object, const std::string& oldName) {
    names_.Rename(&object, oldName, object.KOMAName());
}

void ctlTolvaScreen::ObjectMenusChanged(KomaObject&) { menuNamesValid_ = false; }

void ctlTolvaScreen::Log(const std::string& line) const { log_.AddLogLine(line); }

// --- scale -------------------------------------------------------------------------

void ctlTolvaScreen::SetPCTwipsToTolvaPixels(double value) {
    if (!(value > 0)) return;
    twipsPerPixel_ = value;
    for (const auto& array : arrays_)
        for (const auto& object : array) object->PCTwipsToTolvaPixels(twipsPerPixel_);
}

void ctlTolvaScreen::SetCanvasSize(double width, double height) {
    canvasWidth_ = width;
    canvasHeight_ = height;
    // Screen units per device pixel come from the width alone, also for
    // vertical distances. A canvas too small for the device area keeps the
    // scale it had.
    SetPCTwipsToTolvaPixels((width - 400) / 160);
    Log("Pixel scaling changed");
}

// --- stacking ---------------------------------------------------------------------------

long long ctlTolvaScreen::NextStackStamp(bool toFront) {
    return toFront ? ++frontStamp_ : --backStamp_;
}

std::vector<KomaObject*> ctlTolvaScreen::OnShowInStackingOrder(
    const std::vector<KomaObject*>& objects) {
    std::vector<KomaObject*> out;
    for (KomaObject* object : objects)
        if (object->Visible()) out.push_back(object);
    // Stable: equal stamps keep the array order.
    std::stable_sort(out.begin(), out.end(), [](const KomaObject* a, const KomaObject* b) {
        return a->StackStamp() < b->StackStamp();
    });
    return out;
}

std::vector<KomaObject*> ctlTolvaScreen::VisibleObjectsInStackingOrder() const {
    std::vector<KomaObject*> all;
    for (const auto& array : arrays_)
        for (const auto& object : array) all.push_back(object.get());
    return OnShowInStackingOrder(all);
}

std::vector<std::vector<KomaObject*>> ctlTolvaScreen::ObjectsOfEachForm() const {
    const int forms = NumForms();
    std::vector<std::vector<KomaObject*>> lists(static_cast<size_t>(forms));
    std::unordered_map<const KomaObject*, size_t> formNumber;
    for (int i = 1; i <= forms; ++i) formNumber[FormAt(i)] = static_cast<size_t>(i - 1);
    // A stable sort of a part keeps the order the whole would give it, so
    // each list in array order sorts as the whole does.
    for (const auto& array : arrays_)
        for (const auto& object : array) {
            const KomaObject* form = object->ScreenType() == type::Form
                                         ? object.get()
                                         : static_cast<const KomaObject*>(object->ParentForm());
            auto it = form ? formNumber.find(form) : formNumber.end();
            if (it != formNumber.end()) {
                lists[it->second].push_back(object.get());
            } else {
                for (auto& list : lists) list.push_back(object.get());
            }
        }
    return lists;
}

// --- name lists ---------------------------------------------------------------------------

std::vector<std::string> ctlTolvaScreen::GetNameList(int screenType) const {
    std::vector<std::string> names;
    if (!IsArrayType(screenType)) return names;
    for (const auto& object : arrays_[screenType]) names.push_back(object->KOMAName());
    return names;
}

void ctlTolvaScreen::GetMenuNameList(std::vector<std::string>& out) const {
    // No menu object is ever kept in the menu array: the menus are data of
    // their forms, so their names come from the forms, in form order.
    out.clear();
    for (const auto& form : arrays_[type::Form])
        for (const auto& menu : static_cast<const ctlKOMAForm&>(*form).Menus())
            out.push_back(menu.name);
}

bool ctlTolvaScreen::GetEmbeddedObjectNamesFromForm(const std::string& formName,
                                                    std::vector<std::string>& out) const {
    auto* form = static_cast<ctlKOMAForm*>(FindObject(type::Form, formName));
    if (!form) return false;
    out.clear();
    for (const auto& row : form->GetEmbeddedObjectList()) out.push_back(row.name);
    return true;
}

// --- the inspector's way in ----------------------------------------------------------------

bool ctlTolvaScreen::GetObjectPropertiesList(PropertyArray& rows, int screenType,
                                             const std::string& name) {
    KomaObject* object = FindObject(screenType, name);
    if (!object) return false;
    object->GetPropertyList(rows);
    return true;
}

bool ctlTolvaScreen::NotifyObjectOfPropertyChange(int screenType, const std::string& objectName,
                                                  const PropertyArray& rows) {
    // A copy: the caller may hand in SelectedObjectName or CurrentDesignForm
    // itself, which follow the new name below.
    const std::string name = objectName;
    KomaObject* object = FindObject(screenType, name);
    if (!object) return false;

    // The selection and the current form follow a new name at once, before
    // the object has judged it: a refused name stays in these two fields
    // until the next selection.
    if (rows.Columns() >= 3 && rows.Rows() >= 1) {
        const std::string newName = rows.Value(1).Text();
        if (newName != name) {
            if (name == selectedObjectName_) selectedObjectName_ = newName;
            if (screenType == type::Form) currentDesignForm_ = newName;
            if (screenType == type::None)
                host_.MessageBox("Could not change object properties",
                                 "NotifyObjectOfPropertyChange");
        }
    }

    // A row the object cannot convert at all (a size that is no number) ends
    // its SetPropertyList early; the rows before it stay applied and the
    // change counts as not made, with the same message as a refused array.
    bool applied = false;
    try {
        applied = object->SetPropertyList(rows);
    } catch (const RuntimeFailure&) {
        applied = false;
    }
    if (!applied)
        host_.MessageBox("Could not change object properties", "NotifyObjectOfPropertyChange");

    if (screenType != type::Form && object->KOMAName() != name && object->ParentForm()) {
        object->ParentForm()->NotifyEmbeddedObjectNameChanged(name, object->KOMAName());
        // A check box's relations are kept by name on its form.
        if (screenType == type::Checkbox)
            object->ParentForm()->CheckboxRenamed(name, object->KOMAName());
    }

    if (screenMode_ != ModeLoading && events_)
        events_->ChangedObject(object->KOMAName(), screenType);
    return true;
}

}  // namespace tolva
