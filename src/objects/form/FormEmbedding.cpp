// The form's bookkeeping of its embedded objects: a list of names with their
// type words and, parallel to it, a list of references to the live objects.
// The form owns none of them; the screen tells it of renames and deletions.
#include <algorithm>

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {

namespace {

// Takes out element i by moving the last element into its place.
template <typename T>
void MoveLastInto(std::vector<T>& list, size_t i) {
    if (i + 1 != list.size()) list[i] = std::move(list.back());
    list.pop_back();
}

// A related table (lists, check boxes) stays square: a column for the new
// member in every row, then the member's own row.
template <typename Table>
void AddSquareRow(Table& table, const std::string& name) {
    for (auto& row : table) row.linked.push_back(false);
    table.push_back({name, std::vector<bool>(table.size() + 1, false)});
}

// The last row moves into the hole of the named one, and in every row the
// last flag moves into the hole's column. A name the table lacks changes
// nothing.
template <typename Table>
void RemoveSquareRow(Table& table, const std::string& name) {
    const auto hit = std::find_if(table.begin(), table.end(),
                                  [&](const auto& row) { return row.name == name; });
    if (hit == table.end()) return;
    const size_t j = static_cast<size_t>(hit - table.begin());
    MoveLastInto(table, j);
    for (auto& row : table)
        if (j < row.linked.size()) MoveLastInto(row.linked, j);
}

// The embedded list's word for a device kind: "CONTROL" for the control
// family, the kind's own word for the others, empty for a form or a menu.
std::string EmbeddedWordOfKind(int deviceKind) {
    const int screenType = ScreenTypeFromDeviceKind(deviceKind, 0);
    return screenType < 0 ? std::string() : EmbeddedTypeWord(screenType);
}

}  // namespace

void ctlKOMAForm::NotifyEmbeddedObjectNameChanged(const std::string& oldNameIn,
                                                  const std::string& newNameIn) {
    // Copies: the caller may hand in the text of one of the rows changed here.
    const std::string oldName = oldNameIn;
    const std::string newName = newNameIn;
    for (auto& row : embedded_)
        if (row.name == oldName) {
            row.name = newName;
            break;
        }
    for (auto& row : relatedLists_)
        if (row.name == oldName) {
            row.name = newName;
            break;
        }
    // The focus follows a renamed object, so that the form's record and its
    // inspector row keep naming it.
    if (focusedObject_ == oldName) focusedObject_ = newName;
}

bool ctlKOMAForm::EmbedObject(int screenType, const std::string& name, KomaObject* object) {
    if (screenType == type::Form) {
        Message("Tried to embed form in form", "EmbedObject");
        return false;
    }
    if (screenType == type::List) AddSquareRow(relatedLists_, name);
    if (screenType == type::Checkbox) AddSquareRow(relatedCheckboxes_, name);
    embedded_.push_back({name, EmbeddedTypeWord(screenType)});
    references_.push_back(object);
    return true;
}

void ctlKOMAForm::RemoveEmbeddedObject(int number) {
    // Only a name that reads as that number matches; object names begin with
    // a letter or "_", so in practice nothing does.
    for (const auto& row : embedded_) {
        if (IsNumeric(row.name) && ToReal(row.name) == number) {
            const std::string name = row.name;
            NotifyObjectDeleted(name);
            return;
        }
    }
}

bool ctlKOMAForm::NotifyObjectDeleted(const std::string& deletedName) {
    // A copy: the text handed in may be one of this form's own rows, which
    // the rows moving below would change under our feet.
    const std::string name = deletedName;
    const auto hit = std::find_if(embedded_.begin(), embedded_.end(),
                                  [&](const EmbeddedRow& row) { return row.name == name; });
    if (hit == embedded_.end()) return false;
    MoveLastInto(embedded_, static_cast<size_t>(hit - embedded_.begin()));
    if (KOMAFocusedObject() == name) focusedObject_.clear();

    RemoveSquareRow(relatedLists_, name);
    RemoveSquareRow(relatedCheckboxes_, name);

    // The reference, found by asking each object its name.
    const auto ref = std::find_if(references_.begin(), references_.end(), [&](KomaObject* object) {
        return object && object->KOMAName() == name;
    });
    if (ref == references_.end()) {
        Message("couldn't find reference", "NotifyObjectDeleted");
    } else {
        MoveLastInto(references_, static_cast<size_t>(ref - references_.begin()));
    }
    return true;
}

void ctlKOMAForm::HideEmbeddedObjects() {
    for (KomaObject* object : references_)
        if (object) object->Visible(false);
}

void ctlKOMAForm::ShowEmbeddedObjects() {
    for (KomaObject* object : references_)
        if (object) object->Visible(true);
}

KomaObject* ctlKOMAForm::GetFirstEmbeddedObjectReference() const {
    return references_.empty() ? nullptr : references_.front();
}

void ctlKOMAForm::SetEmbeddedObjectReferenceList(const std::vector<KomaObject*>& objects) {
    embedded_.clear();
    references_.clear();
    for (KomaObject* object : objects) {
        if (!object) continue;
        embedded_.push_back({object->KOMAName(), EmbeddedWordOfKind(object->KOMAObjectType())});
        references_.push_back(object);
    }
}

void ctlKOMAForm::UpdateReferenceList(const std::string& name, KomaObject* newReference) {
    for (KomaObject*& object : references_) {
        if (object && object->KOMAName() == name) {
            object = newReference;
            return;
        }
    }
    Message("didn't updat ref list", "UpdateReferenceList");
}

void ctlKOMAForm::ReplaceReference(const KomaObject* object, KomaObject* replacement) {
    for (KomaObject*& ref : references_)
        if (ref == object) ref = replacement;
}

}  // namespace tolva
