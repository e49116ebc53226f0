#pragma once
// Objects for the tests of the files whose record is one line that names
// them and their ID, so that the order of records in a file can be read off
// before every kind writes its own record. The table fake also stands for
// the objects of its cells.
#include <string>
#include <utility>
#include <vector>

#include "document/Numbers.h"
#include "document/ObjectTypes.h"
#include "objects/form/ctlKOMAForm.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva::testing {

inline std::string FakeRecordLine(const KomaObject& object) {
    return "#RECORD " + object.KOMAName() + " ID=" + IntToText(object.KOMAObjectID());
}

class FakeRecordObject : public KomaObject {
public:
    FakeRecordObject(int screenType, const std::string& name)
        : KomaObject(screenType, ScreenTypeWord(screenType), 10, 10) {
        KOMAName(name);
    }
    void ReturnResourceFileText(LineList& lines, bool& ok) override {
        lines.push_back(FakeRecordLine(*this));
        ok = true;
    }
};

class FakeRecordForm : public ctlKOMAForm {
public:
    explicit FakeRecordForm(const std::string& name) { KOMAName(name); }
    void ReturnResourceFileText(LineList& lines, bool& ok) override {
        lines.push_back(FakeRecordLine(*this));
        ok = true;
    }
};

class FakeRecordTable : public ctlKOMATable {
public:
    // The objects of the cells: their names and IDs, row by row.
    std::vector<std::pair<std::string, std::string>> cells;

    explicit FakeRecordTable(const std::string& name) { KOMAName(name); }
    void ReturnResourceFileText(LineList& lines, bool& ok) override {
        lines.push_back(FakeRecordLine(*this));
        ok = true;
    }
    void GetTableObjectText(std::vector<LineList>& blocks) override {
        blocks.clear();
        for (const auto& [name, id] : cells) blocks.push_back({"#CELL " + name, "ID=" + id});
    }
    void GetHeaderEmbeddedObjectHeaderInfo(
        std::vector<std::pair<std::string, std::string>>& entries) override {
        entries = cells;
    }
};

}  // namespace tolva::testing
