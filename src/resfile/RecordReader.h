#pragma once
// RecordReader: what every record parser reads with. It takes meaningful
// lines from the ResourceReader and matches them against the exact key,
// marker or closing word the record expects next. A line that does not fit
// is reported with ReportLoadLineError and the match answers false, so a
// parser reads as a chain of matches:
//
//     if (!in.Word("~F0")) return false;
//     if (!in.Key("(B)OBJECT.TYPE=", record.kindWord)) return false;
//
// A value that is no number or out of range throws RuntimeFailure, which
// ends the load silently; so does the end of the text inside a record.
#include <string>

#include "resfile/ResourceReader.h"

namespace tolva {

class Host;

// Shows "Error on line " N ":  " and the text, under the application's
// title.
void ReportLoadLineError(Host& host, int lineNumber, const std::string& text);

class RecordReader {
public:
    RecordReader(ResourceReader& reader, Host& host) : reader_(reader), host_(host) {}

    ResourceReader& Input() { return reader_; }
    Host& OwnerHost() { return host_; }

    // The next meaningful line, unmatched: for the places where a record
    // takes one of two ways.
    std::string Line() { return reader_.ReadResourceLine(); }

    // Reports the line (as read) as the line that does not fit; always false.
    bool Fail(const std::string& line);

    // The next line must be exactly the word (a marker or a closing word).
    bool Word(const char* word);
    // The next line must begin with the key, "=" included; value is the rest.
    bool Key(const char* key, std::string& value);
    // The same for a line already read.
    bool KeyIn(const std::string& line, const char* key, std::string& value);

    // Keys whose value is a number: "(SH)" and "ID=" take 16 bits, "(U)" and
    // "(W)" 32 bits. Throws RuntimeFailure on a value that is no number.
    bool Int16Key(const char* key, int& value);
    bool Int32Key(const char* key, int& value);

private:
    ResourceReader& reader_;
    Host& host_;
};

// True when the line begins with the key; value is then the rest.
bool LineHasKey(const std::string& line, const char* key, std::string& value);

}  // namespace tolva
