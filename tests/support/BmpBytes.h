#pragma once
// BMP files made byte by byte for the tests: the plain white 24-bit picture
// most tests need, and a general writer for every depth and header.
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace tolva::testing {

inline void PutLe(std::string& bytes, uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
}

struct BmpSpec {
    int width = 1;
    int height = 1;  // below 0: stored top down
    int bitsPerPixel = 24;
    uint32_t infoSize = 40;  // 12 (the old core header), 40, 108 or 124
    uint32_t compression = 0;  // 0 plain, 3 bit masks
    std::vector<uint32_t> masks;  // red, green, blue, for compression 3
    std::vector<uint32_t> palette;  // 0xRRGGBB, for 1, 4 and 8 bits
    uint32_t colorsUsed = 0;
    // The stored value of the pixel at x, y counted from the top: a palette
    // index, or the raw 16, 24 or 32-bit value.
    std::function<uint32_t(int x, int y)> value = [](int, int) { return 0xFFFFFFu; };
};

inline std::string BmpFile(const BmpSpec& s) {
    const int rows = std::abs(s.height);
    const int stride = ((s.width * s.bitsPerPixel + 31) / 32) * 4;
    const bool shortMasks = s.compression == 3 && s.infoSize == 40;
    const uint32_t entry = s.infoSize == 12 ? 3 : 4;
    const uint32_t paletteBytes = static_cast<uint32_t>(s.palette.size()) * entry;
    const uint32_t dataAt = 14 + s.infoSize + (shortMasks ? 12 : 0) + paletteBytes;
    const uint32_t dataSize = static_cast<uint32_t>(stride * rows);
    std::string b = "BM";
    PutLe(b, dataAt + dataSize, 4);
    PutLe(b, 0, 4);
    PutLe(b, dataAt, 4);
    PutLe(b, s.infoSize, 4);
    if (s.infoSize == 12) {
        PutLe(b, static_cast<uint32_t>(s.width), 2);
        PutLe(b, static_cast<uint32_t>(s.height), 2);
        PutLe(b, 1, 2);
        PutLe(b, static_cast<uint32_t>(s.bitsPerPixel), 2);
    } else {
        PutLe(b, static_cast<uint32_t>(s.width), 4);
        PutLe(b, static_cast<uint32_t>(s.height), 4);
        PutLe(b, 1, 2);
        PutLe(b, static_cast<uint32_t>(s.bitsPerPixel), 2);
        PutLe(b, s.compression, 4);
        PutLe(b, dataSize, 4);
        PutLe(b, 2835, 4);
        PutLe(b, 2835, 4);
        PutLe(b, s.colorsUsed, 4);
        PutLe(b, 0, 4);
        std::string rest(s.infoSize - 40, '\0');
        if (s.compression == 3 && s.infoSize >= 52)
            for (std::size_t i = 0; i < 3 && i < s.masks.size(); ++i)
                for (int k = 0; k < 4; ++k) rest[i * 4 + k] = static_cast<char>((s.masks[i] >> (8 * k)) & 0xFF);
        b += rest;
        if (shortMasks)
            for (std::size_t i = 0; i < 3; ++i) PutLe(b, i < s.masks.size() ? s.masks[i] : 0, 4);
    }
    for (uint32_t c : s.palette) {
        PutLe(b, c & 0xFF, 1);
        PutLe(b, (c >> 8) & 0xFF, 1);
        PutLe(b, (c >> 16) & 0xFF, 1);
        if (entry == 4) PutLe(b, 0, 1);
    }
    for (int stored = 0; stored < rows; ++stored) {
        const int y = s.height > 0 ? rows - 1 - stored : stored;
        std::string line(static_cast<std::size_t>(stride), '\0');
        for (int x = 0; x < s.width; ++x) {
            const uint32_t v = s.value(x, y);
            if (s.bitsPerPixel < 8) {
                const int bit = x * s.bitsPerPixel;
                const int shift = 8 - s.bitsPerPixel - bit % 8;
                line[static_cast<std::size_t>(bit / 8)] =
                    static_cast<char>(static_cast<unsigned char>(line[static_cast<std::size_t>(bit / 8)]) | (v << shift));
            } else {
                const int bytes = s.bitsPerPixel / 8;
                for (int k = 0; k < bytes; ++k)
                    line[static_cast<std::size_t>(x * bytes + k)] = static_cast<char>((v >> (8 * k)) & 0xFF);
            }
        }
        b += line;
    }
    return b;
}

// A white picture of 24 bits a pixel; height below 0 is stored top down.
inline std::string BmpBytes(int width, int height) {
    BmpSpec spec;
    spec.width = width;
    spec.height = height;
    return BmpFile(spec);
}

}  // namespace tolva::testing
