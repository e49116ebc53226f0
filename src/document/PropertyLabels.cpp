#include "document/PropertyLabels.h"

#include <map>

namespace tolva {

namespace {

struct LabelTable {
    bool loaded = false;
    std::map<int, std::string> labels;
};

LabelTable& Labels() {
    static LabelTable table;
    return table;
}

void AddRange(std::vector<int>& numbers, int first, int last) {
    for (int n = first; n <= last; ++n) numbers.push_back(n);
}

}  // namespace

const std::vector<int>& PropertyLabelNumbers() {
    static const std::vector<int> numbers = [] {
        std::vector<int> all;
        AddRange(all, 101, 123);    // shared by the kinds
        AddRange(all, 1001, 1005);  // form
        AddRange(all, 1101, 1103);  // bitmap
        AddRange(all, 1201, 1203);  // button
        AddRange(all, 1301, 1304);  // checkbox
        AddRange(all, 1401, 1406);  // field
        AddRange(all, 1501, 1507);  // line
        AddRange(all, 1601, 1604);  // list
        AddRange(all, 1701, 1701);  // popup trigger
        AddRange(all, 1801, 1803);  // push button
        AddRange(all, 1901, 1902);  // repeat button
        AddRange(all, 2001, 2008);  // scrollbar
        AddRange(all, 2101, 2101);  // string
        AddRange(all, 2201, 2205);  // table
        AddRange(all, 2301, 2307);  // textbox
        return all;
    }();
    return numbers;
}

void LoadPropertyLabels(const StringTable& table) {
    LabelTable& labels = Labels();
    labels.labels.clear();
    for (int number : PropertyLabelNumbers()) labels.labels[number] = table.Get(number);
    labels.loaded = true;
}

std::string PropertyLabel(int number) {
    if (!Labels().loaded) LoadPropertyLabels(StringTable::Shared());
    const auto& labels = Labels().labels;
    const auto found = labels.find(number);
    return found == labels.end() ? "" : found->second;
}

}  // namespace tolva
