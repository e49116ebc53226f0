#pragma once
// ResourceWriter: the output side of the resource text and the header. Lines
// go out as they are produced, each ended by CR LF, onto the one file the
// writer holds; opening the path empties an existing file at once. There is
// no temporary file and the text is never patched afterwards. Lines gather in
// a buffer that goes to the file in blocks, at Close, and when the writer is
// destroyed without a Close (a save that failed half-way leaves what it had
// written, as an unbuffered writer would).
//
// A path that cannot be opened, or a write that fails, throws
// RuntimeFailure: the commands that save decide what becomes of it.
#include <fstream>
#include <string>
#include <vector>

namespace tolva {

class ResourceWriter {
public:
    explicit ResourceWriter(const std::string& path);
    ~ResourceWriter();
    ResourceWriter(const ResourceWriter&) = delete;
    ResourceWriter& operator=(const ResourceWriter&) = delete;

    void WriteLine(const std::string& line);
    void WriteLines(const std::vector<std::string>& lines);
    void Close();

private:
    void Flush();

    std::ofstream out_;
    std::string buffer_;
    std::string path_;
};

}  // namespace tolva
