#include "resfile/ResourceReader.h"

#include <fstream>
#include <iterator>

#include "document/RuntimeFailure.h"
#include "document/TextHelpers.h"

namespace tolva {

ResourceReader ResourceReader::FromFile(const std::string& path) {
    ResourceReader reader;
    std::ifstream in(path, std::ios::binary);
    if (!in) return reader;
    reader.text_.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    reader.open_ = !in.bad();
    return reader;
}

ResourceReader ResourceReader::FromText(std::string text) {
    ResourceReader reader;
    reader.text_ = std::move(text);
    reader.open_ = true;
    return reader;
}

std::string ResourceReader::ReadPhysicalLine() {
    if (!open_ || AtEnd()) throw RuntimeFailure("Input past end of file");
    const std::size_t cr = text_.find('\r', pos_);
    std::string line;
    if (cr == std::string::npos) {
        line = text_.substr(pos_);
        pos_ = text_.size();
    } else {
        line = text_.substr(pos_, cr - pos_);
        pos_ = cr + 1;
        if (pos_ < text_.size() && text_[pos_] == '\n') ++pos_;
    }
    ++counter_;
    return line;
}

std::string ResourceReader::ReadResourceLine() {
    std::string line = ReadPhysicalLine();
    // A comment begins in the first column; a blank before the slashes makes
    // it an ordinary line, cut below to nothing.
    while (TrimSpaces(line.substr(0, 2)) == "//") line = ReadPhysicalLine();
    if (line.size() < 3) return TrimSpaces(line);
    const std::size_t slashes = line.find("//");
    if (slashes != std::string::npos) line.erase(slashes);
    return TrimSpaces(line);
}

}  // namespace tolva
