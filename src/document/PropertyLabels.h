#pragma once
// The inspector's row labels, read once at start-up from the string table
// into a table of their own.
#include <string>

namespace tolva {

class StringTable;

// Reads every label (101 to 2307) from the table.
void LoadPropertyLabels(const StringTable& table);
// The label of that number; "" when there is none.
std::string PropertyLabel(int number);

}  // namespace tolva
