#include "objects/menu/MenuEditing.h"

#include <algorithm>
#include <utility>

#include "document/Host.h"
#include "document/KomaObject.h"

namespace tolva {

MenuEditing::MenuEditing(Host& host, std::function<bool(const std::string&)> nameTaken)
    : ItemsEditing(host), nameTaken_(std::move(nameTaken)) {}

void MenuEditing::AddMenu(const std::string& name, const std::vector<std::string>& items) {
    names_.push_back(name);
    lists_.push_back(items);
}

void MenuEditing::SetMenuSelected(int number) {
    if (number >= 0 && number < static_cast<int>(names_.size())) {
        shown_ = number;
        SetItems(lists_[static_cast<std::size_t>(number)], -1, 0, 0);
    } else {
        shown_ = -1;
        SetItems({}, -1, 0, 0);
    }
}

void MenuEditing::ChooseMenu(int number) {
    StoreShown();
    SetMenuSelected(number);
}

void MenuEditing::StoreShown() {
    if (shown_ >= 0) lists_[static_cast<std::size_t>(shown_)] = items_;
}

std::vector<std::vector<std::string>> MenuEditing::ItemLists() const {
    std::vector<std::vector<std::string>> lists = lists_;
    if (shown_ >= 0) lists[static_cast<std::size_t>(shown_)] = items_;
    return lists;
}

bool MenuEditing::PassesNameTest(const std::string& name) {
    if (name.empty()) return false;
    if (!IsValidObjectName(name)) {
        host().MessageBox(
            "The name you have entered contains illegal characters or starts with a number.  "
            "Names must start with a letter or underscore, and contain only letters, numbers "
            "and underscores",
            "Invalid Name", MessageButtons::OK);
        return false;
    }
    const bool inEditor = std::find(names_.begin(), names_.end(), name) != names_.end();
    if (inEditor || (nameTaken_ && nameTaken_(name))) {
        host().MessageBox("This name is being used by another object.  Please choose another",
                          "Invalid Name", MessageButtons::OK);
        return false;
    }
    return true;
}

bool MenuEditing::New(const std::string& name) {
    if (!PassesNameTest(name)) return false;
    StoreShown();
    AddMenu(name, {});
    SetMenuSelected(static_cast<int>(names_.size()) - 1);
    return true;
}

bool MenuEditing::CopyToNew(const std::string& name) {
    if (shown_ < 0 || !PassesNameTest(name)) return false;
    StoreShown();
    AddMenu(name, items_);
    SetMenuSelected(static_cast<int>(names_.size()) - 1);
    return true;
}

bool MenuEditing::Rename(const std::string& name) {
    if (shown_ < 0 || !PassesNameTest(name)) return false;
    names_[static_cast<std::size_t>(shown_)] = name;
    return true;
}

void MenuEditing::Delete() {
    if (shown_ < 0) return;
    const int gone = shown_;
    names_.erase(names_.begin() + gone);
    lists_.erase(lists_.begin() + gone);
    shown_ = -1;
    SetMenuSelected(gone - 1);
}

bool MenuEditing::Add(const std::string& text) {
    if (shown_ < 0) return false;
    return AddWithinLimit(text, kItemLimit);
}

const ctlKOMAMenu& MenuEditing::Sample() {
    sample_.SetList(items_, -1);
    return sample_;
}

}  // namespace tolva
