#pragma once
// A small but complete BMP file, 24 bits a pixel, white, for the tests.
#include <cstdint>
#include <cstdlib>
#include <string>

namespace tolva::testing {

inline void PutLe(std::string& bytes, uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes.push_back(static_cast<char>((value >> (8 * i)) & 0xFF));
}

// height below 0 is a picture stored top down.
inline std::string BmpBytes(int width, int height) {
    const int rows = std::abs(height);
    const int stride = ((width * 3 + 3) / 4) * 4;
    const uint32_t pixels = static_cast<uint32_t>(stride) * static_cast<uint32_t>(rows);
    std::string bytes = "BM";
    PutLe(bytes, 54 + pixels, 4);
    PutLe(bytes, 0, 4);
    PutLe(bytes, 54, 4);
    PutLe(bytes, 40, 4);
    PutLe(bytes, static_cast<uint32_t>(width), 4);
    PutLe(bytes, static_cast<uint32_t>(height), 4);
    PutLe(bytes, 1, 2);
    PutLe(bytes, 24, 2);
    PutLe(bytes, 0, 4);
    PutLe(bytes, pixels, 4);
    PutLe(bytes, 2835, 4);
    PutLe(bytes, 2835, 4);
    PutLe(bytes, 0, 4);
    PutLe(bytes, 0, 4);
    bytes.append(pixels, '\xFF');
    return bytes;
}

}  // namespace tolva::testing
