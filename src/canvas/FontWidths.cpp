#include "canvas/FontWidths.h"

#include <fstream>
#include <iterator>

#include "document/DataDirectory.h"
#include "document/Host.h"
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"

namespace tolva {

namespace {

constexpr const char* kSmallFile = "FontSmallWidth.txt";
constexpr const char* kMediumFile = "FontMediumWidth.txt";

std::string ReadWhole(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) throw RuntimeFailure("cannot read " + path);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

}  // namespace

FontWidthTable ReadFontWidths(std::string_view text) {
    FontWidthTable table{};
    std::string number;
    std::size_t next = 0;
    for (const char c : text) {
        if (c >= '0' && c <= '9') {
            number += c;
        } else if (c == ',') {
            if (number.empty()) throw RuntimeFailure("a comma with no width before it");
            if (next >= table.size()) throw RuntimeFailure("more than 256 widths");
            table[next++] = static_cast<int16_t>(ToInt16(number));
            number.clear();
        }
    }
    return table;
}

FontWidthTable& FontSmallWidth() {
    static FontWidthTable table{};
    return table;
}

FontWidthTable& FontMediumWidth() {
    static FontWidthTable table{};
    return table;
}

bool LoadFontWidths(Host& host) {
    const std::string dir = DataDirectory(host) + "/";
    const std::string small = dir + kSmallFile;
    const std::string medium = dir + kMediumFile;
    if (!host.FileExists(small) || !host.FileExists(medium)) {
        host.MessageBox(
            "Font definition files missing.  Cannot continue.  Please reinstall Tolva Resource "
            "Editor.",
            "Files missing", MessageButtons::OK);
        return false;
    }
    FontSmallWidth() = ReadFontWidths(ReadWhole(small));
    FontMediumWidth() = ReadFontWidths(ReadWhole(medium));
    return true;
}

int TextWidth(std::string_view text, const FontWidthTable& table) {
    int width = 0;
    for (const char c : text) width += table[static_cast<unsigned char>(c)] + 1;
    return width;
}

}  // namespace tolva
