#include "resfile/ResourceWriter.h"

#include "document/RuntimeFailure.h"

namespace tolva {

ResourceWriter::ResourceWriter(const std::string& path) : path_(path) {
    out_.open(path, std::ios::binary | std::ios::trunc);
    if (!out_) throw RuntimeFailure("Path/File access error: " + path);
}

namespace {
constexpr std::size_t kBlockSize = 1 << 16;
}

ResourceWriter::~ResourceWriter() {
    if (out_.is_open() && !buffer_.empty())
        out_.write(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
}

void ResourceWriter::Flush() {
    out_.write(buffer_.data(), static_cast<std::streamsize>(buffer_.size()));
    buffer_.clear();
    if (!out_) throw RuntimeFailure("Could not write to " + path_);
}

void ResourceWriter::WriteLine(const std::string& line) {
    buffer_ += line;
    buffer_ += "\r\n";
    if (buffer_.size() >= kBlockSize) Flush();
}

void ResourceWriter::WriteLines(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) WriteLine(line);
}

void ResourceWriter::Close() {
    Flush();
    out_.close();
    if (out_.fail()) throw RuntimeFailure("Could not write to " + path_);
}

}  // namespace tolva
