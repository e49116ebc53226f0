#pragma once
// The device's two pixel fonts, "TolvaSmall" and "TolvaMedium": one glyph of
// ink pixels per character code, read from the glyph files beside the
// program. The canvas draws device text from them pixel by pixel, so it is
// crisp at any zoom and as wide as the width tables say.
//
// Glyph file: "height H" and "ascent A", then for each code
// "glyph CODE WIDTH" followed by H rows of WIDTH pixels ('#' ink, '.' none),
// each row closed by '|'.
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tolva {

struct DeviceGlyph {
    int width = 0;
    std::vector<std::string> rows;  // height rows of width characters

    bool Ink(int x, int y) const;
};

struct DeviceFont {
    int height = 0;
    int ascent = 0;
    std::array<DeviceGlyph, 256> glyphs;

    const DeviceGlyph& Glyph(char c) const { return glyphs[static_cast<unsigned char>(c)]; }
    // A text's width in device pixels: each glyph and the gap behind it.
    int TextWidth(std::string_view text) const;
};

// Reads a glyph file's text; nothing when it is not one.
std::optional<DeviceFont> ReadDeviceFont(std::string_view text);

// Loads "TolvaSmall.font" and "TolvaMedium.font" from the directory; a file
// that is missing or broken leaves its font out, and text in it is drawn in
// the window's font instead.
void LoadDeviceFonts(const std::string& directory);

// The loaded font of this name, or nullptr.
const DeviceFont* FindDeviceFont(const std::string& name);

}  // namespace tolva
