#include "objects/list/ListEditing.h"

#include <utility>

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/TextHelpers.h"

namespace tolva {

int& ListEditing::EditorItemLimit() {
    static int limit = kFirstItemLimit;
    return limit;
}

void ListEditing::SetList(const std::vector<std::string>& items, int selected, int /*numDisplayed*/,
                          int topItem) {
    SetItems(items, selected, topItem, static_cast<int>(items.size()));
}

void ListEditing::SetRelatedLists(const std::vector<std::string>& names, const std::vector<bool>& flags) {
    if (names.size() != flags.size()) return;
    names_ = names;
    flags_ = flags;
}

std::vector<std::string> ListEditing::TopItemChoices() const {
    std::vector<std::string> choices;
    for (std::size_t i = 0; i <= items_.size(); ++i) choices.push_back(std::to_string(i));
    return choices;
}


void ListEditing::LinkList(int position, bool on) {
    if (position >= 0 && position < static_cast<int>(flags_.size())) flags_[static_cast<std::size_t>(position)] = on;
}

bool ListEditing::Add(const std::string& text) { return AddWithinLimit(text, limit_); }

bool ListEditing::Accept(const std::string& maxNumText) {
    if (!IsNumeric(maxNumText) || ToReal(maxNumText) < 0 || ToReal(maxNumText) > 65534) {
        host().MessageBox("You must enter a number between 0 and 65534", "Invalid value",
                         MessageButtons::OK);
        return false;
    }
    limit_ = static_cast<int>(ToReal(maxNumText));
    EditorItemLimit() = limit_;
    return true;
}

}  // namespace tolva
