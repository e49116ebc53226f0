#pragma once
// RecordKinds: what the loader knows of each kind of record. Every section
// word of the resource text has an entry, and so has each style word of a
// "#CONTROL" record: the screen type the record makes, its parser, and the
// texts of the "Could not load" and "Could not create" messages.
//
// The program's own table is filled in screen/StandardRecordKinds.cpp, where
// a kind's parser is plugged in once the kind's record code exists. Until
// then its entry has no parser, and the loader treats its section (or
// its control style) as an unsupported line: the load ends with "Invalid/
// unsupported resource object".
#include <string>
#include <vector>

#include "resfile/LoadedRecord.h"

namespace tolva {

class RecordReader;

// Reads a record from the line after its opening word up to its closing
// word and fills the record; false after ReportLoadLineError at the first
// line that does not fit. A control's head parser reads up to and including
// "(BO)CONTROL_ATTR.VISIBLE=" and leaves the style word in kindWord; the
// tail parser of the style then reads on into the same record.
using RecordParser = bool (*)(RecordReader& in, LoadedRecord& record);

struct RecordKind {
    std::string word;  // "#FORM", ..., or a control's style word "BUTTON", ...
    int screenType;    // the type the record makes; type::None for the head
    RecordParser parser;
    std::string loadFailText;
    std::string createFailText;  // empty for the control head
};

struct RecordKinds {
    // The section words but "#CONTROL".
    std::vector<RecordKind> sections;
    // "#CONTROL": the head shared by the five control kinds.
    RecordKind controlHead;
    // The control styles, in the order in which a record's style is tried.
    std::vector<RecordKind> controlStyles;

    const RecordKind* FindSection(const std::string& word) const;
    const RecordKind* FindControlStyle(const std::string& word) const;
    // The "Could not create" text of a screen type; empty for none.
    std::string CreateFailText(int screenType) const;
    // Plugs a parser in by section or style word ("#CONTROL" for the head);
    // false when no entry has the word.
    bool SetParser(const std::string& word, RecordParser parser);
};

}  // namespace tolva
