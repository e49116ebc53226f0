#include "resfile/RecordReader.h"

#include <cstring>

#include "document/Host.h"
#include "document/Numbers.h"

namespace tolva {

void ReportLoadLineError(Host& host, int lineNumber, const std::string& text) {
    host.MessageBox("Error on line " + IntToText(lineNumber) + ":  " + text, "",
                    MessageButtons::OK);
}

bool LineHasKey(const std::string& line, const char* key, std::string& value) {
    const std::size_t length = std::strlen(key);
    if (line.compare(0, length, key) != 0) return false;
    value = line.substr(length);
    return true;
}

bool RecordReader::Fail(const std::string& line) {
    ReportLoadLineError(host_, reader_.LineCounter(), line);
    return false;
}

bool RecordReader::Word(const char* word) {
    const std::string_view line = reader_.ReadResourceView();
    return line == word ? true : Fail(std::string(line));
}

bool RecordReader::KeyIn(const std::string& line, const char* key, std::string& value) {
    return LineHasKey(line, key, value) ? true : Fail(line);
}

bool RecordReader::Key(const char* key, std::string& value) {
    // Matched on the view: only the value is copied out of the text.
    const std::string_view line = reader_.ReadResourceView();
    const std::size_t length = std::strlen(key);
    if (line.substr(0, length) != key) return Fail(std::string(line));
    value.assign(line.substr(length));
    return true;
}

bool RecordReader::Int16Key(const char* key, int& value) {
    std::string text;
    if (!Key(key, text)) return false;
    value = ToInt16(text);
    return true;
}

bool RecordReader::Int32Key(const char* key, int& value) {
    std::string text;
    if (!Key(key, text)) return false;
    value = ToInt32(text);
    return true;
}

}  // namespace tolva
