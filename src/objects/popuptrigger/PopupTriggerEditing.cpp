#include "objects/popuptrigger/PopupTriggerEditing.h"

#include <algorithm>

#include "document/Host.h"

namespace tolva {

void PopupTriggerEditing::SetList(const std::vector<std::string>& items, int selected, int topItem) {
    SetItems(items, selected, topItem, std::max(0, static_cast<int>(items.size()) - 1));
}

std::vector<std::string> PopupTriggerEditing::TopItemChoices() const {
    std::vector<std::string> choices = {"0"};
    for (std::size_t i = 1; i < items_.size(); ++i) choices.push_back(std::to_string(i));
    return choices;
}

bool PopupTriggerEditing::Add(const std::string& text) {
    if (std::find(items_.begin(), items_.end(), text) != items_.end()) {
        host().MessageBox("Duplicate items not allowed", "Popup Trigger Editor", MessageButtons::OK);
        return false;
    }
    items_.push_back(text);
    return true;
}

}  // namespace tolva
