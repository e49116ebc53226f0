#pragma once
// A file's bytes read or written whole, for the tests that compare what
// was saved byte for byte.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tolva::testing {

inline std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

}  // namespace tolva::testing
