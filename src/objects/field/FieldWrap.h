#pragma once
// The wrap of a Field's text as the device does it: one pass over the
// characters against the width table of the Field's font, so that the
// editor shows the line breaks the device will show.
#include <string>
#include <string_view>
#include <vector>

#include "canvas/FontWidths.h"

namespace tolva {

// Wraps text into lines no wider than `available` device pixels, as far as
// the device's rules allow: a word that does not fit moves on whole to the
// next line, a word wider than a whole line breaks in mid-word, and a space
// is never measured once the line holds text, so a line may end in spaces
// beyond the width. CR and LF are skipped: they break nothing. The answer
// holds at least one line; an empty text gives one empty line.
std::vector<std::string> WrapFieldText(std::string_view text, const FontWidthTable& widths,
                                       int available);

}  // namespace tolva
