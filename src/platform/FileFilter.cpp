#include "platform/FileFilter.h"

#include <cstddef>

namespace tolva {

namespace {

std::string Trim(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    const auto last = text.find_last_not_of(' ');
    return text.substr(first, last - first + 1);
}

std::vector<std::string> SplitBars(const std::string& filter) {
    std::vector<std::string> pieces;
    std::string piece;
    for (char c : filter) {
        if (c == '|') {
            pieces.push_back(piece);
            piece.clear();
        } else {
            piece.push_back(c);
        }
    }
    if (!piece.empty()) pieces.push_back(piece);
    return pieces;
}

// "*.bmp;*.dib" -> "*.bmp *.dib"
std::string BlankSeparated(const std::string& patterns) {
    std::string out;
    std::string one;
    auto flush = [&] {
        const std::string p = Trim(one);
        if (!p.empty()) {
            if (!out.empty()) out.push_back(' ');
            out += p;
        }
        one.clear();
    };
    for (char c : patterns) {
        if (c == ';' || c == ' ') {
            flush();
        } else {
            one.push_back(c);
        }
    }
    flush();
    return out;
}

bool EndsWith(const std::string& text, const std::string& tail) {
    return text.size() >= tail.size() && text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

}  // namespace

std::vector<FilterEntry> ParseFilter(const std::string& filter) {
    std::vector<FilterEntry> entries;
    const auto pieces = SplitBars(filter);
    for (std::size_t i = 0; i < pieces.size(); i += 2) {
        FilterEntry entry;
        entry.description = Trim(pieces[i]);
        if (i + 1 < pieces.size()) entry.patterns = BlankSeparated(pieces[i + 1]);
        if (entry.description.empty() && entry.patterns.empty()) continue;
        entries.push_back(entry);
    }
    return entries;
}

std::string ToQtFilter(const std::string& filter) {
    std::string out;
    for (const auto& entry : ParseFilter(filter)) {
        std::string one;
        if (entry.patterns.empty()) {
            one = entry.description;
        } else if (entry.description.empty()) {
            one = entry.patterns + " (" + entry.patterns + ")";
        } else if (EndsWith(entry.description, "(" + entry.patterns + ")")) {
            one = entry.description;
        } else {
            one = entry.description + " (" + entry.patterns + ")";
        }
        if (!out.empty()) out += ";;";
        out += one;
    }
    return out;
}

std::string DefaultSuffix(const std::string& defaultExtension) {
    std::string ext = Trim(defaultExtension);
    if (ext.rfind("*", 0) == 0) ext.erase(0, 1);
    if (ext.rfind(".", 0) == 0) ext.erase(0, 1);
    if (ext.find_first_of("*?") != std::string::npos) return {};
    return ext;
}

}  // namespace tolva
