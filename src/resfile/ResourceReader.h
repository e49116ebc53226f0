#pragma once
// ResourceReader: the input side of a resource text. It cuts the bytes into
// physical lines (ended by CR LF or by a lone CR; a lone LF is part of the
// line), counts every line it reads, and gives the parsers the next
// meaningful line through ReadResourceLine.
//
// Reading past the end of the text is a run-time failure: it ends a load
// without a message, as a bad number does.
#include <string>
#include <string_view>

namespace tolva {

class ResourceReader {
public:
    // Reads the whole file at once; IsOpen() tells whether it could be read.
    static ResourceReader FromFile(const std::string& path);
    // A reader over text already in memory (tests, the fuzzer).
    static ResourceReader FromText(std::string text);

    bool IsOpen() const { return open_; }
    // True when every byte has been read.
    bool AtEnd() const { return pos_ >= text_.size(); }
    // The number of the line read last, counted from 1; 0 before the first.
    int LineCounter() const { return counter_; }
    // Ends the reading and gives the text's memory back at once (a large
    // file's bytes are not kept while the design is built from its records).
    void Close() {
        open_ = false;
        std::string().swap(text_);
        pos_ = 0;
    }

    // One physical line without its line end; throws RuntimeFailure at the
    // end of the text.
    std::string ReadPhysicalLine();

    // The next meaningful line: comment lines (the first two characters
    // "//") are skipped, the text from the first "//" on is dropped, and the
    // rest is trimmed of blanks. There is no quoting: "a//b" reads as "a".
    std::string ReadResourceLine();
    // The same line as a view into the text, valid until the next read or
    // Close: the parsers match most lines without copying them.
    std::string_view ReadResourceView();

private:
    std::string_view ReadPhysicalView();

    ResourceReader() = default;
    std::string text_;
    std::size_t pos_ = 0;
    int counter_ = 0;
    bool open_ = false;
};

}  // namespace tolva
