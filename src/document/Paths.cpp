// The 8.3 path rule on a host that has no short names of its own.
//
// The resource compiler finds a bitmap only by a path whose every part fits
// the old 8.3 form. A desktop with short names hands back an alias for any
// long part; here the alias is made by the program, the way such hosts make
// it, so that the rule "a path is acceptable when it equals its short form"
// holds for short and long names alike:
//
// - Both "\" and "/" separate the parts; separators are kept as written, runs
//   of them too, so a path that fits comes back unchanged, byte for byte.
// - A leading drive ("C:"), the parts "." and "..", and the root "/" are kept
//   as they are.
// - A part fits when it has one to eight characters, optionally one dot and one
//   to three more, and only letters, digits and the marks ! # $ % & ' ( ) - @
//   ^ _ ` { } ~. Lower-case letters fit: such a host keeps a lower-case 8.3
//   name without an alias. A blank, a second dot, a leading or final dot, the
//   marks + , ; = [ ] and the other marks no 8.3 name may hold, and every byte
//   outside ASCII need an alias.
// - An alias is the name in upper case without blanks and inner dots, the
//   refused marks and bytes turned into "_", cut to six characters, then "~"
//   and a number, then the first three characters of the extension:
//   "LongNames.bmp" gives "LONGNA~1.BMP". Long names of one directory that
//   share an alias stem are numbered 1, 2, ... in byte order of their names,
//   passing over a number whose alias is already the name of a file there.
// - A path that does not exist gives the empty text. Relative paths are taken
//   from the current directory.
#include "document/Paths.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <system_error>
#include <vector>

namespace tolva {

namespace {

namespace fs = std::filesystem;

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

// A character that an 8.3 name may hold as it is.
bool IsShortNameChar(char c) {
    const unsigned char u = static_cast<unsigned char>(c);
    if (u >= 'A' && u <= 'Z') return true;
    if (u >= 'a' && u <= 'z') return true;
    if (u >= '0' && u <= '9') return true;
    static const std::string marks = "!#$%&'()-@^_`{}~";
    return marks.find(c) != std::string::npos;
}

char UpperAscii(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c; }

std::string UpperAscii(std::string text) {
    for (char& c : text) c = UpperAscii(c);
    return text;
}

// The part of a long name that an alias keeps: up to six characters of the
// name and up to three of the extension, both cleaned of what 8.3 refuses.
struct AliasStem {
    std::string base;
    std::string extension;
    bool operator==(const AliasStem&) const = default;
};

std::string CleanForAlias(const std::string& text) {
    std::string out;
    for (char c : text) {
        if (c == ' ' || c == '.') continue;
        out += IsShortNameChar(c) ? UpperAscii(c) : '_';
    }
    return out;
}

AliasStem StemOf(const std::string& name) {
    const size_t firstKept = name.find_first_not_of('.');
    const std::string trimmed = firstKept == std::string::npos ? "" : name.substr(firstKept);
    const size_t lastDot = trimmed.rfind('.');
    AliasStem stem;
    if (lastDot == std::string::npos) {
        stem.base = CleanForAlias(trimmed);
    } else {
        stem.base = CleanForAlias(trimmed.substr(0, lastDot));
        stem.extension = CleanForAlias(trimmed.substr(lastDot + 1)).substr(0, 3);
    }
    if (stem.base.empty()) stem.base = "_";
    stem.base = stem.base.substr(0, 6);
    return stem;
}

std::string AliasText(const AliasStem& stem, int number) {
    const std::string tail = "~" + std::to_string(number);
    std::string alias = stem.base.substr(0, 8 - std::min<size_t>(tail.size(), 7)) + tail;
    if (!stem.extension.empty()) alias += "." + stem.extension;
    return alias;
}

// The alias of a long name that stands in the directory: numbered among the
// long names of that directory with the same stem.
std::string AliasOf(const std::string& name, const fs::path& directory) {
    const AliasStem stem = StemOf(name);
    std::vector<std::string> sharing;
    std::set<std::string> taken;  // names of the directory, upper case

    std::error_code ec;
    for (fs::directory_iterator it(directory, ec), end; !ec && it != end; it.increment(ec)) {
        const std::string sibling = it->path().filename().string();
        taken.insert(UpperAscii(sibling));
        if (!IsShortName(sibling) && StemOf(sibling) == stem) sharing.push_back(sibling);
    }
    if (std::find(sharing.begin(), sharing.end(), name) == sharing.end()) {
        sharing.push_back(name);
    }
    std::sort(sharing.begin(), sharing.end());

    int number = 0;
    for (const std::string& sibling : sharing) {
        std::string alias;
        do {
            ++number;
            alias = AliasText(stem, number);
        } while (taken.count(alias) != 0);
        if (sibling == name) return alias;
    }
    return AliasText(stem, 1);  // not reached: the name is in the list
}

}  // namespace

bool IsShortName(const std::string& name) {
    const size_t dot = name.find('.');
    const std::string base = name.substr(0, dot);
    if (base.empty() || base.size() > 8) return false;
    if (dot != std::string::npos) {
        const std::string extension = name.substr(dot + 1);
        if (extension.empty() || extension.size() > 3) return false;
        if (extension.find('.') != std::string::npos) return false;
        if (!std::all_of(extension.begin(), extension.end(), IsShortNameChar)) return false;
    }
    return std::all_of(base.begin(), base.end(), IsShortNameChar);
}

std::string ShortPathName(const std::string& path) {
    // A path with a NUL byte names no file: the system would read only its
    // first part.
    if (path.empty() || path.find('\0') != std::string::npos) return "";

    // The path as this host's file system reads it.
    std::string hostPath = path;
    std::replace(hostPath.begin(), hostPath.end(), '\\', '/');
    std::error_code ec;
    if (!fs::exists(fs::path(hostPath), ec) || ec) return "";

    std::string result;
    std::string walked;  // the host's form of the parts done so far
    size_t i = 0;
    if (path.size() >= 2 && path[1] == ':') {
        result = walked = path.substr(0, 2);
        i = 2;
    }
    while (i < path.size()) {
        if (IsSeparator(path[i])) {
            result += path[i];
            walked += '/';
            ++i;
            continue;
        }
        size_t end = i;
        while (end < path.size() && !IsSeparator(path[end])) ++end;
        const std::string name = path.substr(i, end - i);
        if (name == "." || name == ".." || IsShortName(name)) {
            result += name;
        } else {
            result += AliasOf(name, walked.empty() ? fs::path(".") : fs::path(walked));
        }
        walked += name;
        i = end;
    }
    return result;
}

bool IsShortPath(const std::string& path) { return ShortPathName(path) == path; }

}  // namespace tolva
