#include "document/StringTable.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace tolva {

namespace {

constexpr int kEnglish = 1033;
constexpr const char* kFileName = "Strings.txt";

// A whole number of at most nine digits, nothing else; -1 when the text is
// not one.
int ParseNumber(const std::string& text) {
    if (text.empty() || text.size() > 9) return -1;
    int value = 0;
    for (char c : text) {
        if (c < '0' || c > '9') return -1;
        value = value * 10 + (c - '0');
    }
    return value;
}

// Where the program's table is read from when nobody loaded it: the
// program's own directory, as the start-up does, else the current one.
std::string DefaultTablePath() {
    std::error_code ec;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", ec);
    if (!ec && !program.empty()) {
        const std::filesystem::path beside = program.parent_path() / kFileName;
        if (std::filesystem::exists(beside, ec)) return beside.string();
    }
    return kFileName;
}

}  // namespace

bool StringTable::LoadFromFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return false;
    std::ostringstream text;
    text << file.rdbuf();
    if (file.bad()) return false;
    LoadFromText(text.str());
    return true;
}

void StringTable::LoadFromText(const std::string& text) {
    // The new text replaces the whole table; the chosen language stays.
    // A line that is not of the form "<language>\t<number>\t<text>" is passed
    // over, so a damaged file costs its bad lines only.
    strings_.clear();
    std::istringstream lines(text);
    std::string line;
    while (std::getline(lines, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty() || line[0] == '#') continue;
        const size_t firstTab = line.find('\t');
        if (firstTab == std::string::npos) continue;
        const size_t secondTab = line.find('\t', firstTab + 1);
        if (secondTab == std::string::npos) continue;
        const int language = ParseNumber(line.substr(0, firstTab));
        const int number = ParseNumber(line.substr(firstTab + 1, secondTab - firstTab - 1));
        if (language < 0 || number < 0) continue;
        strings_[language][number] = line.substr(secondTab + 1);
    }
}

std::string StringTable::Get(int number) const {
    for (int language : {language_, kEnglish}) {
        const auto texts = strings_.find(language);
        if (texts == strings_.end()) continue;
        const auto text = texts->second.find(number);
        if (text != texts->second.end()) return text->second;
    }
    return "";
}

bool StringTable::Has(int language, int number) const {
    const auto texts = strings_.find(language);
    return texts != strings_.end() && texts->second.count(number) != 0;
}

StringTable& StringTable::Shared() {
    // Filled on first use from the file beside the program, so that every
    // caller finds the texts even before the start-up has run; the start-up
    // may load it again and chooses the language.
    static StringTable table = [] {
        StringTable loaded;
        loaded.LoadFromFile(DefaultTablePath());
        return loaded;
    }();
    return table;
}

std::string LoadResString(int number) { return StringTable::Shared().Get(number); }

}  // namespace tolva
