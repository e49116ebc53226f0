#pragma once
// LoadedRecord: one record as its parser read it, kept by the loader until
// every record of the file has been read. Numbers have been converted while
// parsing (so a bad one has already ended the load) and are kept in groups
// as the text of the whole number; words and text stay as they stood.
#include <string>
#include <utility>
#include <vector>

#include "document/KomaObject.h"

namespace tolva {

struct LoadedRecord {
    std::string name;
    int id = 0;
    // The word of the ID table: "(B)OBJECT.TYPE=", or for a "#CONTROL"
    // record its "(B)CONTROL_STYLE=" ("BUTTON", "CHECKBOX", ...).
    std::string kindWord;
    // What the object's SetFromResText receives, group by group. In every
    // kind group 0 holds the name and the ID, the name first.
    GroupList groups;

    // Records that may stand in a table cell: the table's ID, or 65535.
    int relatedTableId = kNotInTable;

    // A table: its number of columns and the IDs of its cell objects, row by
    // row.
    int tableColumns = 0;
    std::vector<int> cellObjectIds;

    // A form: "(U)NO_OF_OBJECTS=" and the pairs of "(U)OBJECT_ID=" and
    // "(B)OBJECT_TYPE=" as they stood.
    int numObjects = 0;
    std::vector<std::pair<std::string, std::string>> objectPairs;

    // A menu: its item texts.
    std::vector<std::string> menuItems;
};

// Gives the record a new name, in its group list too.
inline void RenameRecord(LoadedRecord& record, const std::string& name) {
    record.name = name;
    if (!record.groups.empty() && !record.groups.front().empty())
        record.groups.front().front() = name;
}

}  // namespace tolva
