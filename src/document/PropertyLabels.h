#pragma once
// The inspector's labels: strings 101 to 123 and 1001 to 2307 of the string
// table, read once at start-up into a table of their own so that building a
// property array never goes back to the string table.
#include <string>
#include <vector>

#include "document/StringTable.h"

namespace tolva {

// Reads every label from the table, in the table's language (English where
// that language has none). A second call reads them afresh.
void LoadPropertyLabels(const StringTable& table);

// The label of the number; the empty text for a number that is no label.
// Before any LoadPropertyLabels the labels are read from StringTable::Shared().
std::string PropertyLabel(int number);

// The numbers of all labels, in ascending order.
const std::vector<int>& PropertyLabelNumbers();

}  // namespace tolva
