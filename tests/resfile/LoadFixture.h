#pragma once
// What the tests of the loader share: stand-in record parsers of a small
// record shape of their own (so that the scan and the stages can be watched
// before each kind reads its real record), a load target that records what
// the stages ask of it, a target that loads onto a real screen and names the
// objects it makes, and records made by hand.
//
// The stand-in record is a list of "KEY=value" lines up to "#END":
//   NAME=, ID= (16 bits), TYPE= (the kind word; a control's style),
//   RELATED= (the related table), COLUMNS= (a table's columns),
//   CELLS=1,2,3 (a table's cell object IDs), COUNT= (a form's count of
//   objects), OBJ= (a form's pair, its ID as text), ITEM= (a menu item).
// The control head ends at "VISIBLE" instead; its tail at "#END".
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "document/Numbers.h"
#include "screen/ctlTolvaScreen.h"
#include "resfile/LoadTarget.h"
#include "screen/ScreenLoadTarget.h"
#include "resfile/RecordKinds.h"
#include "screen/StandardRecordKinds.h"
#include "resfile/RecordReader.h"
#include "resfile/ResourceLoading.h"
#include "resfile/ResourceReader.h"

namespace tolva::testing {

inline bool ParseStandIn(RecordReader& in, LoadedRecord& record, const char* endWord) {
    for (;;) {
        const std::string line = in.Line();
        if (line == endWord) break;
        const auto eq = line.find('=');
        if (eq == std::string::npos) return in.Fail(line);
        const std::string key = line.substr(0, eq + 1);
        const std::string value = line.substr(eq + 1);
        if (key == "NAME=") {
            record.name = value;
        } else if (key == "ID=") {
            record.id = ToInt16(value);
        } else if (key == "TYPE=") {
            record.kindWord = value;
        } else if (key == "RELATED=") {
            record.relatedTableId = ToInt32(value);
        } else if (key == "COLUMNS=") {
            record.tableColumns = ToInt16(value);
        } else if (key == "CELLS=") {
            std::stringstream ids(value);
            for (std::string id; std::getline(ids, id, ',');)
                record.cellObjectIds.push_back(ToInt32(id));
        } else if (key == "COUNT=") {
            record.numObjects = ToInt16(value);
        } else if (key == "OBJ=") {
            record.objectPairs.emplace_back(value, "");
        } else if (key == "ITEM=") {
            record.menuItems.push_back(value);
        } else {
            return in.Fail(line);
        }
    }
    record.groups = {{record.name, IntToText(record.id)}};
    return true;
}

inline bool StandInRecord(RecordReader& in, LoadedRecord& record) {
    return ParseStandIn(in, record, "#END");
}
inline bool StandInControlHead(RecordReader& in, LoadedRecord& record) {
    return ParseStandIn(in, record, "VISIBLE");
}
inline bool StandInControlTail(RecordReader& in, LoadedRecord& record) {
    // The head's fields stay; the tail adds its own.
    LoadedRecord tail = record;
    if (!ParseStandIn(in, tail, "#END")) return false;
    record = tail;
    return true;
}

// The kinds of the program with a stand-in parser for every section and style.
inline RecordKinds StandInKinds() {
    RecordKinds kinds = StandardRecordKinds();
    for (auto& kind : kinds.sections) kind.parser = &StandInRecord;
    kinds.controlHead.parser = &StandInControlHead;
    for (auto& kind : kinds.controlStyles) kind.parser = &StandInControlTail;
    return kinds;
}

// Lines joined with CR LF, the last one too.
inline std::string Text(const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines) text += line + "\r\n";
    return text;
}

// Records what the stages ask, one line per call; answers from its flags.
class RecordingTarget : public LoadTarget {
public:
    std::vector<std::string> calls;
    bool createAnswer = true;
    bool cellAnswer = true;
    bool menuAnswer = true;
    bool embedAnswer = true;

    bool CreateObjectFromText(int screenType, const GroupList& record) override {
        calls.push_back("create " + IntToText(screenType) + " " + Name(record));
        return createAnswer;
    }
    bool CreateObjectInTable(const std::string& table, int row, int column, int screenType,
                             const GroupList& record) override {
        calls.push_back("cell " + table + " " + IntToText(row) + "," + IntToText(column) + " " +
                        IntToText(screenType) + " " + Name(record));
        return cellAnswer;
    }
    bool CreateNewMenuInForm(const std::string& form, const GroupList& menu) override {
        std::string line = "menu " + form;
        for (const auto& group : menu)
            for (const auto& value : group) line += " " + value;
        calls.push_back(line);
        return menuAnswer;
    }
    bool EmbedObjectInForm(const std::string& form, const std::string& object,
                           int screenType) override {
        calls.push_back("embed " + form + " " + object + " " + IntToText(screenType));
        return embedAnswer;
    }
    void DistributeObjectIds() override { calls.push_back("ids"); }

private:
    static std::string Name(const GroupList& record) {
        return record.empty() || record[0].empty() ? "?" : record[0][0];
    }
};

// Loads onto a real screen. Each kind names its object from the record's
// group 0 in its own SetFromResText; a kind that does not read its record yet
// is named here, so that the embedding can be seen on the screen.
class NamingScreenTarget : public ScreenLoadTarget {
public:
    using ScreenLoadTarget::ScreenLoadTarget;
    bool CreateObjectFromText(int screenType, const GroupList& record) override {
        if (!ScreenLoadTarget::CreateObjectFromText(screenType, record)) return false;
        KomaObject* made = screen_.ObjectAt(screenType, screen_.Count(screenType));
        if (made && made->KOMAName() != record.at(0).at(0)) made->KOMAName(record.at(0).at(0));
        return true;
    }
};

// A record made by hand, entered into the design's store and ID table.
inline LoadedRecord& AddRecord(LoadedDesign& design, int screenType, const std::string& name,
                               int id, const std::string& kindWord) {
    LoadedRecord record;
    record.name = name;
    record.id = id;
    record.kindWord = kindWord;
    record.groups = {{name, IntToText(id)}};
    design.ids.Store(id, name, kindWord);
    return design.Store(screenType).emplace_back(std::move(record));
}

}  // namespace tolva::testing
