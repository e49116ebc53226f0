#include "resfile/ResourceReader.h"

#include <fstream>
#include <sstream>

#include "document/RuntimeFailure.h"
#include "document/TextHelpers.h"

namespace tolva {

ResourceReader ResourceReader::FromFile(const std::string& path) {
    ResourceReader reader;
    std::ifstream in(path, std::ios::binary);
    if (!in) return reader;
    // The whole file in one piece, into text of its size at once; a stream
    // that cannot tell its size is read in blocks.
    in.seekg(0, std::ios::end);
    const std::streamoff size = in.tellg();
    in.seekg(0, std::ios::beg);
    if (size >= 0 && in) {
        reader.text_.resize(static_cast<std::size_t>(size));
        in.read(reader.text_.data(), size);
        reader.text_.resize(static_cast<std::size_t>(in.gcount()));
    } else {
        in.clear();
        std::ostringstream whole;
        whole << in.rdbuf();
        reader.text_ = std::move(whole).str();
    }
    reader.open_ = !in.bad();
    return reader;
}

ResourceReader ResourceReader::FromText(std::string text) {
    ResourceReader reader;
    reader.text_ = std::move(text);
    reader.open_ = true;
    return reader;
}

std::string_view ResourceReader::ReadPhysicalView() {
    if (!open_ || AtEnd()) throw RuntimeFailure("Input past end of file");
    const std::string_view text(text_);
    const std::size_t cr = text.find('\r', pos_);
    std::string_view line;
    if (cr == std::string_view::npos) {
        line = text.substr(pos_);
        pos_ = text.size();
    } else {
        line = text.substr(pos_, cr - pos_);
        pos_ = cr + 1;
        if (pos_ < text.size() && text[pos_] == '\n') ++pos_;
    }
    ++counter_;
    return line;
}

std::string ResourceReader::ReadPhysicalLine() { return std::string(ReadPhysicalView()); }

std::string_view ResourceReader::ReadResourceView() {
    std::string_view line = ReadPhysicalView();
    // A comment begins in the first column; a blank before the slashes makes
    // it an ordinary line, cut below to nothing.
    while (line.substr(0, 2) == "//") line = ReadPhysicalView();
    // The rest of a longer line after "//" is a comment too; then the
    // blanks at both ends go.
    std::size_t end = line.size();
    if (end >= 3) {
        const std::size_t slashes = line.find("//");
        if (slashes != std::string_view::npos) end = slashes;
    }
    std::size_t begin = 0;
    while (begin < end && line[begin] == ' ') ++begin;
    while (end > begin && line[end - 1] == ' ') --end;
    return line.substr(begin, end - begin);
}

std::string ResourceReader::ReadResourceLine() { return std::string(ReadResourceView()); }

}  // namespace tolva
