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
    const std::string line = Line();
    return line == word ? true : Fail(line);
}

bool RecordReader::KeyIn(const std::string& line, const char* key, std::string& value) {
    return LineHasKey(line, key, value) ? true : Fail(line);
}

bool RecordReader::Key(const char* key, std::string& value) { return KeyIn(Line(), key, value); }

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
