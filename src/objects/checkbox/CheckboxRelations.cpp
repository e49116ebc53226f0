#include "objects/checkbox/CheckboxRelations.h"

namespace tolva {

void CheckboxRelations::SetRelatedCheckboxes(const Table& table) {
    table_ = table;
    current_ = table_.empty() ? -1 : 0;
}

std::vector<std::string> CheckboxRelations::CheckboxNames() const {
    std::vector<std::string> names;
    names.reserve(table_.size());
    for (const auto& row : table_) names.push_back(row.name);
    return names;
}

void CheckboxRelations::ChooseCheckbox(int row) {
    if (row >= 0 && row < static_cast<int>(table_.size())) current_ = row;
}

std::vector<std::string> CheckboxRelations::OtherNames() const {
    std::vector<std::string> names;
    for (int row = 0; row < static_cast<int>(table_.size()); ++row)
        if (row != current_) names.push_back(table_[row].name);
    if (current_ < 0) names.clear();
    return names;
}

std::vector<bool> CheckboxRelations::OtherTicks() const {
    std::vector<bool> ticks;
    if (current_ < 0) return ticks;
    for (int row = 0; row < static_cast<int>(table_.size()); ++row)
        if (row != current_) ticks.push_back(Flag(current_, row));
    return ticks;
}

void CheckboxRelations::Tick(int item, bool ticked) {
    const int other = RowOfItem(item);
    if (other < 0) return;
    SetFlag(current_, other, ticked);
    SetFlag(other, current_, ticked);
}

int CheckboxRelations::RowOfItem(int item) const {
    if (current_ < 0 || item < 0) return -1;
    const int row = item < current_ ? item : item + 1;
    return row < static_cast<int>(table_.size()) ? row : -1;
}

bool CheckboxRelations::Flag(int row, int column) const {
    const auto& flags = table_[row].linked;
    return column < static_cast<int>(flags.size()) && flags[column];
}

void CheckboxRelations::SetFlag(int row, int column, bool value) {
    // A row shorter than the table (one handed in by hand) grows to reach
    // the column, so that no tick is lost.
    auto& flags = table_[row].linked;
    if (column >= static_cast<int>(flags.size())) flags.resize(column + 1, false);
    flags[column] = value;
}

}  // namespace tolva
