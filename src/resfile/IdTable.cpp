#include "resfile/IdTable.h"

#include "document/Host.h"
#include "document/Numbers.h"
#include "document/RuntimeFailure.h"
#include "document/StringTable.h"
#include "resfile/LoadedRecord.h"
#include "resfile/RecordReader.h"

namespace tolva {

void IdTable::Clear() {
    rows_.assign(1, Row{});
    firstRowOfName_.clear();
    firstFreeFrom_ = 1;
}

const IdTable::Row& IdTable::At(int id) const {
    if (!Fits(id)) throw RuntimeFailure("Subscript out of range: object ID " + IntToText(id));
    return rows_[static_cast<size_t>(id)];
}

const std::string& IdTable::Name(int id) const { return At(id).name; }

const std::string& IdTable::KindWord(int id) const { return At(id).kindWord; }

void IdTable::Grow(int id) {
    if (id > Top()) rows_.resize(static_cast<size_t>(id) + 1);
}

int IdTable::FirstRowNamed(const std::string& name) {
    if (name.empty()) {
        while (firstFreeFrom_ <= Top() && !rows_[static_cast<size_t>(firstFreeFrom_)].name.empty())
            ++firstFreeFrom_;
        return firstFreeFrom_ <= Top() ? firstFreeFrom_ : 0;
    }
    const auto found = firstRowOfName_.find(name);
    return found == firstRowOfName_.end() ? 0 : found->second;
}

void IdTable::Store(int id, const std::string& name, const std::string& kindWord) {
    if (id < 0) throw RuntimeFailure("Subscript out of range: object ID " + IntToText(id));
    Grow(id);
    Row& row = rows_[static_cast<size_t>(id)];
    row.name = name;
    row.kindWord = kindWord;
    // Row 0 takes no part in the name check.
    if (id < 1 || name.empty()) return;
    auto [entry, added] = firstRowOfName_.try_emplace(name, id);
    if (!added && id < entry->second) entry->second = id;
}

bool IdTable::Enter(LoadedRecord& record, Host& host, int lineNumber) {
    // 1.
    Grow(record.id);

    // 2.
    if (!Name(record.id).empty()) {
        ReportLoadLineError(host, lineNumber, LoadResString(msg::DuplicateIds));
        return false;
    }

    // 3. The new name is not itself checked.
    if (const int row = FirstRowNamed(record.name); row > 0) {
        const std::string newName = "OBJECTSAMENAME_" + IntToText(row);
        RenameRecord(record, newName);
        host.MessageBox(LoadResString(msg::DuplicateNames) + newName, "");
    }

    // 4.
    Store(record.id, record.name, record.kindWord);
    return true;
}

}  // namespace tolva
