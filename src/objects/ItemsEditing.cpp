#include "objects/ItemsEditing.h"

#include <algorithm>
#include <utility>

#include "document/Host.h"
#include "document/TextHelpers.h"

namespace tolva {

void ItemsEditing::SetItems(const std::vector<std::string>& items, int selected, int topItem,
                            int lastTopChoice) {
    items_ = items;
    const int count = static_cast<int>(items_.size());
    selected_ = selected >= 0 && selected < count ? selected : -1;
    topItem_ = topItem >= 0 && topItem <= lastTopChoice ? topItem : 0;
}

bool ItemsEditing::AddWithinLimit(const std::string& text, int limit) {
    if (limit >= 0 && static_cast<int>(items_.size()) >= limit) {
        host_.MessageBox("Maximum number of items reached", "Limit reached", MessageButtons::OK);
        return false;
    }
    const std::string item = TrimSpaces(text);
    if (item.empty()) return false;
    if (std::find(items_.begin(), items_.end(), item) != items_.end()) {
        host_.MessageBox("Duplicate items not allowed", "List Editor", MessageButtons::OK);
        return false;
    }
    items_.push_back(item);
    return true;
}

void ItemsEditing::Check(int position, bool on) {
    if (position < 0 || position >= static_cast<int>(items_.size())) return;
    if (on)
        selected_ = position;
    else if (selected_ == position)
        selected_ = -1;
}

void ItemsEditing::Remove(int position) {
    const int count = static_cast<int>(items_.size());
    if (position < 0 || position >= count) return;
    items_.erase(items_.begin() + position);
    if (selected_ == position) selected_ = -1;
    else if (selected_ > position) --selected_;
    topItem_ = std::max(0, std::min(topItem_, count - 1));
}

void ItemsEditing::RemoveAll() {
    items_.clear();
    selected_ = -1;
    topItem_ = 0;
}

int ItemsEditing::MoveUp(int position) {
    if (position <= 0 || position >= static_cast<int>(items_.size())) return position;
    std::swap(items_[static_cast<std::size_t>(position)], items_[static_cast<std::size_t>(position - 1)]);
    if (selected_ == position) selected_ = position - 1;
    else if (selected_ == position - 1) selected_ = position;
    return position - 1;
}

int ItemsEditing::MoveDown(int position) {
    if (position < 0 || position + 1 >= static_cast<int>(items_.size())) return position;
    std::swap(items_[static_cast<std::size_t>(position)], items_[static_cast<std::size_t>(position + 1)]);
    if (selected_ == position) selected_ = position + 1;
    else if (selected_ == position + 1) selected_ = position;
    return position + 1;
}

void ItemsEditing::Sort() { SortAscending(items_); }

}  // namespace tolva
