#include "document/TextHelpers.h"

#include <utility>

namespace tolva {

std::string TrimSpaces(const std::string& text) {
    size_t begin = 0;
    size_t end = text.size();
    while (begin < end && text[begin] == ' ') ++begin;
    while (end > begin && text[end - 1] == ' ') --end;
    return text.substr(begin, end - begin);
}

void AppendLine(LineList& lines, const std::string& line) { lines.push_back(line); }

void SortAscending(std::vector<std::string>& list) {
    // A plain bubble sort from the lowest index upward: neighbours are
    // exchanged when the lower one is greater.
    const size_t n = list.size();
    for (size_t pass = 0; pass + 1 < n; ++pass) {
        for (size_t i = 0; i + 1 < n - pass; ++i) {
            if (list[i] > list[i + 1]) std::swap(list[i], list[i + 1]);
        }
    }
}

std::string UpperCase(const std::string& text) {
    std::string out = text;
    for (char& c : out) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return out;
}

}  // namespace tolva
