#pragma once
// The widths of the device's characters in its two fonts, read once at
// start-up from "FontSmallWidth.txt" and "FontMediumWidth.txt" beside the
// program, so that text is measured as the device measures it.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tolva {

class Host;

// 256 widths in device pixels, indexed by the character's code; the gap of
// one pixel behind each glyph is not counted in.
using FontWidthTable = std::array<int16_t, 256>;

// Reads a width file's text: digits build a number, a comma puts it at the
// next code, everything else is passed over; a number behind the last comma
// is dropped. A comma with no digit before it, a 257th comma or a number
// beyond 16 bits throws RuntimeFailure.
FontWidthTable ReadFontWidths(std::string_view text);

// The two tables of the program, all 0 until loaded.
FontWidthTable& FontSmallWidth();
FontWidthTable& FontMediumWidth();

// Loads both tables from the program's directory. Both files are looked for
// before either is read: when one is missing the message "Font definition
// files missing.  Cannot continue.  Please reinstall Tolva Resource Editor."
// titled "Files missing" is shown and the answer is false, and the program
// must end.
bool LoadFontWidths(Host& host);

// A text's width in device pixels: each character's width plus 1.
int TextWidth(std::string_view text, const FontWidthTable& table);

}  // namespace tolva
