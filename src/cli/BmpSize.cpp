#include "cli/BmpSize.h"

#include <cstdint>
#include <cstdlib>
#include <fstream>

namespace tolva {

namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr long kLargestSide = 32767;

uint32_t Le(std::string_view bytes, std::size_t at, int count) {
    uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i)
        value = (value << 8) | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
    return value;
}

}  // namespace

std::optional<PictureSize> BmpSizeFromBytes(std::string_view bytes) {
    if (bytes.size() < kFileHeaderSize + 4 || bytes[0] != 'B' || bytes[1] != 'M') return std::nullopt;
    const uint32_t infoSize = Le(bytes, kFileHeaderSize, 4);
    long width = 0;
    long height = 0;
    if (infoSize == 12) {
        // The old core header: 16-bit sizes.
        if (bytes.size() < kFileHeaderSize + 12) return std::nullopt;
        width = static_cast<long>(Le(bytes, kFileHeaderSize + 4, 2));
        height = static_cast<long>(Le(bytes, kFileHeaderSize + 6, 2));
    } else if (infoSize >= 40 && infoSize <= 124) {
        if (bytes.size() < kFileHeaderSize + 12) return std::nullopt;
        width = static_cast<int32_t>(Le(bytes, kFileHeaderSize + 4, 4));
        // A negative height is a picture stored top down.
        height = std::labs(static_cast<long>(static_cast<int32_t>(Le(bytes, kFileHeaderSize + 8, 4))));
    } else {
        return std::nullopt;
    }
    if (width <= 0 || height <= 0 || width > kLargestSide || height > kLargestSide)
        return std::nullopt;
    return PictureSize{static_cast<int>(width), static_cast<int>(height)};
}

std::optional<PictureSize> BmpSizeOfFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::string head(kFileHeaderSize + 12, '\0');
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(in.gcount()));
    return BmpSizeFromBytes(head);
}

}  // namespace tolva
