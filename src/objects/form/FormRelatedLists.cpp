// The related checkboxes and related lists of a form. Each table has one row
// per check box (list) of the form, each with one flag per check box (list)
// of the form by position; a list's own position is skipped when the row is
// read or written.
#include "document/Host.h"
#include "document/ObjectOwner.h"
#include "objects/checkbox/CheckboxRelations.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {

void ctlKOMAForm::CheckboxRenamed(const std::string& oldName, const std::string& newName) {
    for (auto& row : relatedCheckboxes_)
        if (row.name == oldName) {
            row.name = newName;
            return;
        }
}

void ctlKOMAForm::EditRelatedCheckboxes() {
    CheckboxRelations relations;
    relations.SetRelatedCheckboxes(relatedCheckboxes_);
    if (host().RunDialog(relations)) SetRelatedCheckboxes(relations.RelatedCheckboxes());
}

bool ctlKOMAForm::GetRelatedListData(const std::string& listName, std::vector<std::string>& names,
                                     std::vector<bool>& linked) const {
    for (size_t own = 0; own < relatedLists_.size(); ++own) {
        if (relatedLists_[own].name != listName) continue;
        names.clear();
        linked.clear();
        const auto& flags = relatedLists_[own].linked;
        for (size_t k = 0; k < relatedLists_.size(); ++k) {
            if (k == own) continue;
            names.push_back(relatedLists_[k].name);
            linked.push_back(k < flags.size() && flags[k]);
        }
        return true;
    }
    return false;
}

void ctlKOMAForm::SetRelatedListData(const std::string& listName,
                                     const std::vector<std::string>& /*names*/,
                                     const std::vector<bool>& linked) {
    for (size_t own = 0; own < relatedLists_.size(); ++own) {
        if (relatedLists_[own].name != listName) continue;
        auto& flags = relatedLists_[own].linked;
        size_t next = 0;
        for (size_t k = 0; k < flags.size() && next < linked.size(); ++k) {
            if (k == own) continue;
            flags[k] = linked[next++];
        }
        return;
    }
}

void ctlKOMAForm::GetRelatedListIDs(const std::string& listName, std::vector<int>& ids) const {
    ids.clear();
    for (size_t own = 0; own < relatedLists_.size(); ++own) {
        if (relatedLists_[own].name != listName) continue;
        const auto& flags = relatedLists_[own].linked;
        for (size_t k = 0; k < relatedLists_.size() && k < flags.size(); ++k) {
            // A list is never linked to itself, whatever its own flag says.
            if (k == own || !flags[k]) continue;
            int id = 0;
            if (Owner() && Owner()->OwnerGetObjectID(relatedLists_[k].name, id)) ids.push_back(id);
        }
        return;
    }
}

}  // namespace tolva
