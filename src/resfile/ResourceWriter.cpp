#include "resfile/ResourceWriter.h"

#include "document/RuntimeFailure.h"

namespace tolva {

ResourceWriter::ResourceWriter(const std::string& path) : path_(path) {
    out_.open(path, std::ios::binary | std::ios::trunc);
    if (!out_) throw RuntimeFailure("Path/File access error: " + path);
}

void ResourceWriter::WriteLine(const std::string& line) {
    out_ << line << "\r\n";
    if (!out_) throw RuntimeFailure("Could not write to " + path_);
}

void ResourceWriter::WriteLines(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) WriteLine(line);
}

void ResourceWriter::Close() {
    out_.close();
    if (out_.fail()) throw RuntimeFailure("Could not write to " + path_);
}

}  // namespace tolva
