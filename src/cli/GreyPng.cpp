#include "cli/GreyPng.h"

#include <zlib.h>

#include <vector>

namespace tolva {

namespace {

void PutBigEndian(std::string& out, uint32_t value) {
    for (int shift = 24; shift >= 0; shift -= 8) out.push_back(static_cast<char>((value >> shift) & 0xFF));
}

// A chunk: its length, type, data and the CRC of type and data.
void PutChunk(std::string& out, const char* type, const std::string& data) {
    PutBigEndian(out, static_cast<uint32_t>(data.size()));
    const std::size_t typeAt = out.size();
    out.append(type, 4);
    out += data;
    const auto* crcFrom = reinterpret_cast<const Bytef*>(out.data() + typeAt);
    PutBigEndian(out, static_cast<uint32_t>(crc32(0, crcFrom, static_cast<uInt>(4 + data.size()))));
}

}  // namespace

std::string GreyPng(const uint8_t* pixels, int width, int height, int stride) {
    if (width <= 0 || height <= 0) return {};
    // The rows, each after its filter byte (0: none).
    std::vector<uint8_t> raw;
    raw.reserve(static_cast<std::size_t>(height) * (static_cast<std::size_t>(width) + 1));
    for (int y = 0; y < height; ++y) {
        raw.push_back(0);
        const uint8_t* row = pixels + static_cast<std::ptrdiff_t>(y) * stride;
        raw.insert(raw.end(), row, row + width);
    }
    uLongf packedSize = compressBound(static_cast<uLong>(raw.size()));
    std::string packed(packedSize, '\0');
    if (compress2(reinterpret_cast<Bytef*>(packed.data()), &packedSize, raw.data(),
                  static_cast<uLong>(raw.size()), Z_BEST_SPEED) != Z_OK)
        return {};
    packed.resize(packedSize);

    std::string header;
    PutBigEndian(header, static_cast<uint32_t>(width));
    PutBigEndian(header, static_cast<uint32_t>(height));
    header += std::string("\x08\x00\x00\x00\x00", 5);  // 8 bits, grey, deflate, no filters' method, no interlace

    std::string png("\x89PNG\r\n\x1a\n", 8);
    PutChunk(png, "IHDR", header);
    PutChunk(png, "IDAT", packed);
    PutChunk(png, "IEND", "");
    return png;
}

}  // namespace tolva
