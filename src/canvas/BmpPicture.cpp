#include "canvas/BmpPicture.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace tolva {

namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr uint32_t kRgb = 0;
constexpr uint32_t kBitFields = 3;
constexpr uint32_t kAlphaBitFields = 6;

// Little-endian numbers; the caller has checked that the bytes are there.
uint32_t U32(std::string_view b, std::size_t at) {
    return static_cast<uint32_t>(static_cast<unsigned char>(b[at])) |
           static_cast<uint32_t>(static_cast<unsigned char>(b[at + 1])) << 8 |
           static_cast<uint32_t>(static_cast<unsigned char>(b[at + 2])) << 16 |
           static_cast<uint32_t>(static_cast<unsigned char>(b[at + 3])) << 24;
}
uint32_t U16(std::string_view b, std::size_t at) {
    return static_cast<uint32_t>(static_cast<unsigned char>(b[at])) |
           static_cast<uint32_t>(static_cast<unsigned char>(b[at + 1])) << 8;
}
uint32_t U8(std::string_view b, std::size_t at) {
    return static_cast<unsigned char>(b[at]);
}

// One channel of a pixel under a bit mask, scaled to 0..255.
struct Channel {
    uint32_t mask = 0;
    int shift = 0;
    uint32_t top = 0;  // the largest value under the mask

    explicit Channel(uint32_t m = 0) : mask(m) {
        if (m == 0) return;
        while (((m >> shift) & 1u) == 0) ++shift;
        top = m >> shift;
    }
    uint32_t Of(uint32_t pixel) const {
        if (top == 0) return 0;
        const uint64_t value = (pixel & mask) >> shift;
        return static_cast<uint32_t>((value * 255 + top / 2) / top);
    }
};

struct Layout {
    long long width = 0;
    long long height = 0;  // as stored: negative for a top-down picture
    int bitsPerPixel = 0;
    uint32_t compression = kRgb;
    std::size_t paletteAt = 0;
    std::size_t paletteEntrySize = 4;
    std::size_t paletteCount = 0;
    std::array<uint32_t, 3> masks{};
};

std::optional<Layout> ReadHeaders(std::string_view b) {
    if (b.size() < kFileHeaderSize + 4 || b[0] != 'B' || b[1] != 'M') return std::nullopt;
    const uint32_t infoSize = U32(b, kFileHeaderSize);
    Layout l;
    const std::size_t info = kFileHeaderSize;
    if (infoSize == 12) {
        if (b.size() < info + 12) return std::nullopt;
        l.width = U16(b, info + 4);
        l.height = U16(b, info + 6);
        l.bitsPerPixel = static_cast<int>(U16(b, info + 10));
        l.paletteEntrySize = 3;
        l.paletteAt = info + 12;
        if (l.bitsPerPixel <= 8) l.paletteCount = std::size_t{1} << l.bitsPerPixel;
    } else if (infoSize >= 40 && infoSize <= 124) {
        if (b.size() < info + infoSize) return std::nullopt;
        l.width = static_cast<int32_t>(U32(b, info + 4));
        l.height = static_cast<int32_t>(U32(b, info + 8));
        l.bitsPerPixel = static_cast<int>(U16(b, info + 14));
        l.compression = U32(b, info + 16);
        const uint32_t used = U32(b, info + 32);
        l.paletteAt = info + infoSize;
        const bool fields = l.compression == kBitFields || l.compression == kAlphaBitFields;
        if (fields) {
            if (infoSize >= 52) {
                l.masks = {U32(b, info + 40), U32(b, info + 44), U32(b, info + 48)};
            } else {
                // The masks follow a short header.
                if (b.size() < l.paletteAt + 12) return std::nullopt;
                l.masks = {U32(b, l.paletteAt), U32(b, l.paletteAt + 4), U32(b, l.paletteAt + 8)};
                l.paletteAt += l.compression == kAlphaBitFields ? 16 : 12;
            }
        }
        if (l.bitsPerPixel <= 8) {
            const std::size_t full = std::size_t{1} << l.bitsPerPixel;
            l.paletteCount = used > 0 && used < full ? used : full;
        }
    } else {
        return std::nullopt;
    }

    const int bpp = l.bitsPerPixel;
    const bool plainDepth = bpp == 1 || bpp == 4 || bpp == 8 || bpp == 16 || bpp == 24 || bpp == 32;
    if (!plainDepth) return std::nullopt;
    const bool fields = l.compression == kBitFields || l.compression == kAlphaBitFields;
    if (l.compression != kRgb && !(fields && (bpp == 16 || bpp == 32))) return std::nullopt;
    if (!fields) {
        if (bpp == 16) l.masks = {0x7C00, 0x03E0, 0x001F};
        if (bpp == 32) l.masks = {0xFF0000, 0x00FF00, 0x0000FF};
    }

    const long long side = std::llabs(l.height);
    if (l.width <= 0 || side <= 0 || l.width > kLargestPictureSide || side > kLargestPictureSide ||
        l.width * side > kMostPicturePixels)
        return std::nullopt;
    if (l.paletteCount > 0 && l.paletteAt + l.paletteCount * l.paletteEntrySize > b.size())
        return std::nullopt;
    return l;
}

}  // namespace

std::optional<BmpPicture> DecodeBmp(std::string_view b) {
    const std::optional<Layout> found = ReadHeaders(b);
    if (!found) return std::nullopt;
    const Layout& l = *found;

    const std::size_t width = static_cast<std::size_t>(l.width);
    const std::size_t height = static_cast<std::size_t>(std::llabs(l.height));
    const std::size_t stride = (width * static_cast<std::size_t>(l.bitsPerPixel) + 31) / 32 * 4;
    const std::size_t dataAt = U32(b, 10);
    if (dataAt > b.size() || (b.size() - dataAt) / stride < height) return std::nullopt;

    std::vector<uint32_t> palette(l.paletteCount);
    for (std::size_t i = 0; i < l.paletteCount; ++i) {
        const std::size_t at = l.paletteAt + i * l.paletteEntrySize;
        palette[i] = U8(b, at + 2) << 16 | U8(b, at + 1) << 8 | U8(b, at);
    }
    const Channel red(l.masks[0]), green(l.masks[1]), blue(l.masks[2]);

    BmpPicture picture;
    picture.width = static_cast<int>(width);
    picture.height = static_cast<int>(height);
    picture.pixels.resize(width * height);
    const bool bottomUp = l.height > 0;
    for (std::size_t row = 0; row < height; ++row) {
        const std::size_t stored = bottomUp ? height - 1 - row : row;
        const std::size_t line = dataAt + stored * stride;
        uint32_t* out = &picture.pixels[row * width];
        for (std::size_t x = 0; x < width; ++x) {
            uint32_t colour = 0;
            switch (l.bitsPerPixel) {
                case 1:
                case 4:
                case 8: {
                    const std::size_t bit = x * static_cast<std::size_t>(l.bitsPerPixel);
                    const uint32_t byte = U8(b, line + bit / 8);
                    const int shift = 8 - l.bitsPerPixel - static_cast<int>(bit % 8);
                    const uint32_t index = (byte >> shift) & ((1u << l.bitsPerPixel) - 1);
                    // An index past the palette shows black.
                    colour = index < palette.size() ? palette[index] : 0;
                    break;
                }
                case 16: {
                    const uint32_t p = U16(b, line + x * 2);
                    colour = red.Of(p) << 16 | green.Of(p) << 8 | blue.Of(p);
                    break;
                }
                case 24: {
                    const std::size_t at = line + x * 3;
                    colour = U8(b, at + 2) << 16 | U8(b, at + 1) << 8 | U8(b, at);
                    break;
                }
                case 32: {
                    const uint32_t p = U32(b, line + x * 4);
                    colour = red.Of(p) << 16 | green.Of(p) << 8 | blue.Of(p);
                    break;
                }
            }
            out[x] = colour;
        }
    }
    return picture;
}

std::optional<BmpPicture> ReadBmpFile(const std::string& path) {
    if (path.empty()) return std::nullopt;
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) return std::nullopt;
    return DecodeBmp(bytes);
}

uint32_t DeviceGrey(uint32_t rgb, int depth) {
    const uint32_t r = (rgb >> 16) & 0xFF;
    const uint32_t g = (rgb >> 8) & 0xFF;
    const uint32_t b = rgb & 0xFF;
    const int light = static_cast<int>((299 * r + 587 * g + 114 * b + 500) / 1000);
    int grey = 0;
    if (depth == 2) {
        constexpr int kDeviceGreys[] = {0x00, 0x80, 0xC0, 0xFF};
        int best = 0;
        for (int level : kDeviceGreys)
            if (std::abs(level - light) < std::abs(best - light)) best = level;
        grey = best;
    } else {
        grey = (light + 8) / 17 * 17;
    }
    const auto v = static_cast<uint32_t>(grey);
    return v << 16 | v << 8 | v;
}

BmpPicture ToDeviceGreys(const BmpPicture& picture, int depth) {
    BmpPicture greys = picture;
    for (uint32_t& p : greys.pixels) p = DeviceGrey(p, depth);
    return greys;
}

}  // namespace tolva
