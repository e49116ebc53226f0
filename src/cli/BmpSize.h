#pragma once
// The size of a ".bmp" picture from its header, without decoding it: what
// the command-line companion needs to place a form's bitmap as the editor
// would.
#include <optional>
#include <string>
#include <string_view>

#include "document/Host.h"

namespace tolva {

// The width and height a BMP header gives, or nothing when the bytes are no
// BMP the editor could show (no "BM", a header too short, a size of 0 or
// beyond any screen).
std::optional<PictureSize> BmpSizeFromBytes(std::string_view bytes);

// The same from a file; nothing when it cannot be read.
std::optional<PictureSize> BmpSizeOfFile(const std::string& path);

}  // namespace tolva
