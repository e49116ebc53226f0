#include "canvas/DeviceFont.h"

#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

namespace tolva {

namespace {

std::map<std::string, DeviceFont>& Fonts() {
    static std::map<std::string, DeviceFont> fonts;
    return fonts;
}

bool ReadKeyNumber(std::istream& in, const char* key, int& value) {
    std::string word;
    return static_cast<bool>(in >> word >> value) && word == key;
}

}  // namespace

bool DeviceGlyph::Ink(int x, int y) const {
    if (y < 0 || y >= static_cast<int>(rows.size()) || x < 0 || x >= width) return false;
    const std::string& row = rows[static_cast<std::size_t>(y)];
    return static_cast<std::size_t>(x) < row.size() && row[static_cast<std::size_t>(x)] == '#';
}

int DeviceFont::TextWidth(std::string_view text) const {
    int width = 0;
    for (const char c : text) width += Glyph(c).width + 1;
    return width;
}

std::optional<DeviceFont> ReadDeviceFont(std::string_view text) {
    std::istringstream in{std::string(text)};
    DeviceFont font;
    if (!ReadKeyNumber(in, "height", font.height) || !ReadKeyNumber(in, "ascent", font.ascent))
        return std::nullopt;
    if (font.height <= 0 || font.height > 64) return std::nullopt;
    std::string word;
    while (in >> word) {
        int code = 0;
        int width = 0;
        if (word != "glyph" || !(in >> code >> width)) return std::nullopt;
        if (code < 0 || code > 255 || width < 0 || width > 64) return std::nullopt;
        DeviceGlyph glyph;
        glyph.width = width;
        for (int y = 0; y < font.height; ++y) {
            std::string row;
            if (!(in >> row) || row.size() != static_cast<std::size_t>(width) + 1 ||
                row.back() != '|')
                return std::nullopt;
            row.pop_back();
            glyph.rows.push_back(row);
        }
        font.glyphs[static_cast<std::size_t>(code)] = std::move(glyph);
    }
    return font;
}

void LoadDeviceFonts(const std::string& directory) {
    for (const char* name : {"TolvaSmall", "TolvaMedium"}) {
        std::ifstream in(directory + "/" + name + ".font", std::ios::binary);
        if (!in) continue;
        const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        if (auto font = ReadDeviceFont(text)) Fonts()[name] = std::move(*font);
    }
}

const DeviceFont* FindDeviceFont(const std::string& name) {
    auto it = Fonts().find(name);
    return it == Fonts().end() ? nullptr : &it->second;
}

}  // namespace tolva
