#pragma once
// IdTable: the loader's table of the IDs of a file, indexed by ID from 0 to
// the highest ID seen: per ID the object's name (empty: the ID is free) and
// its kind word. It joins the records of the file: a form finds the objects
// it lists through it.
//
// The name check looks for the first row from ID 1 on that bears a name, so
// an object with ID 0 is never found by it. An index of names keeps that
// check from walking the table for every record.
#include <string>
#include <unordered_map>
#include <vector>

namespace tolva {

class Host;
struct LoadedRecord;

class IdTable {
public:
    IdTable() { Clear(); }

    // Back to one free row, ID 0.
    void Clear();
    int Top() const { return static_cast<int>(rows_.size()) - 1; }
    bool Fits(int id) const { return id >= 0 && id <= Top(); }

    // The row of an ID; an ID outside 0 to Top throws RuntimeFailure.
    const std::string& Name(int id) const;
    const std::string& KindWord(int id) const;

    // Makes Top at least the ID, with free rows.
    void Grow(int id);
    // The first ID from 1 to Top whose name is the given one (the first free
    // ID for the empty name); 0 when there is none.
    int FirstRowNamed(const std::string& name);
    void Store(int id, const std::string& name, const std::string& kindWord);

    // The checks of a record just read, lineNumber being the line the reader
    // stands on: the table grows to its ID; a taken ID is reported with
    // "Error on line" and string 5017 and gives false; a name some row from
    // ID 1 on bears already is changed to "OBJECTSAMENAME_" and that row's
    // ID, which string 5019 tells, and the load goes on. Then the record's
    // name and kind word are stored at its ID.
    bool Enter(LoadedRecord& record, Host& host, int lineNumber);

private:
    struct Row {
        std::string name;
        std::string kindWord;
    };
    const Row& At(int id) const;

    std::vector<Row> rows_;
    // Each name of a row from ID 1 on, with the lowest such ID.
    std::unordered_map<std::string, int> firstRowOfName_;
    // No row from 1 below this one is free. Rows only fill, so it only moves
    // up.
    int firstFreeFrom_ = 1;
};

}  // namespace tolva
