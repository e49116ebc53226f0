#pragma once
// The width tables of the device's two fonts, read from the program's own
// width files, for the tests that measure text as the device does.
#include <fstream>
#include <iterator>
#include <string>

#include "canvas/FontWidths.h"

namespace tolva::testing {

inline FontWidthTable RealFontWidthTable(const std::string& file) {
    std::ifstream in(std::string(TOLVA_SOURCE_DATA_DIR) + "/" + file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    return ReadFontWidths(text);
}

// Fills the program's two tables, as a start-up does.
inline void LoadRealFontWidths() {
    FontSmallWidth() = RealFontWidthTable("FontSmallWidth.txt");
    FontMediumWidth() = RealFontWidthTable("FontMediumWidth.txt");
}

}  // namespace tolva::testing
