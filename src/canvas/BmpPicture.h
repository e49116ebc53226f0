#pragma once
// BmpPicture: a ".bmp" file read into its pixels, by the program's own
// reader, so that the editor and the command-line companion agree on every
// picture: which files load, and their sizes. A picture's size is its count
// of pixels (what the device shows; on a desktop of 96 pixels an inch that is
// also what the picture measures).
//
// Read: the old core header and the info headers (40 to 124 bytes); 1, 4 and
// 8 bits per pixel with their palettes, 16 and 32 bits plain or with bit
// masks, 24 bits; stored bottom-up (a positive height) or top-down (a
// negative one). Anything else (no "BM", a compressed picture, a header or
// pixel data cut short, a size of 0 or too large) is a picture that failed
// to load: nothing is answered, nothing is thrown.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tolva {

struct BmpPicture {
    int width = 0;
    int height = 0;
    // Row by row from the top, each pixel 0xRRGGBB.
    std::vector<uint32_t> pixels;

    uint32_t At(int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

// The largest side and the most pixels a picture may have; a larger one
// fails to load (no device picture comes near it).
inline constexpr int kLargestPictureSide = 32767;
inline constexpr long long kMostPicturePixels = 16LL * 1024 * 1024;

std::optional<BmpPicture> DecodeBmp(std::string_view bytes);
// The same from a file; nothing when it cannot be read.
std::optional<BmpPicture> ReadBmpFile(const std::string& path);

// The grey a colour shows on the device at a picture depth: at 2 bits the
// nearest of the device's four greys (white, light grey C0, dark grey 80,
// black), at any other depth the nearest of sixteen evenly spaced greys
// (00, 11, ... FF). The colour's lightness is 0.299 red + 0.587 green +
// 0.114 blue. The answer is 0xRRGGBB with three equal parts.
uint32_t DeviceGrey(uint32_t rgb, int depth);

// The picture as the device shows it at that depth.
BmpPicture ToDeviceGreys(const BmpPicture& picture, int depth);

}  // namespace tolva
