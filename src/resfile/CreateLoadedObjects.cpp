// Stages 2 to 4 of a load: tables, then forms, then the other objects kind
// by kind, each object either on its own or in the cell of its table. A
// table, a form, a line or a scheduler line in a table's cell ends the load.
#include <algorithm>

#include "document/Host.h"
#include "document/RuntimeFailure.h"
#include "resfile/LoadTarget.h"
#include "resfile/RecordKinds.h"
#include "resfile/ResourceLoading.h"
#include "resfile/TableCellIndex.h"

namespace tolva {

namespace {

class Creation {
public:
    Creation(LoadedDesign& design, const RecordKinds& kinds, LoadTarget& target, Host& host)
        : design_(design), kinds_(kinds), target_(target), host_(host),
          cells_(design.Store(type::Table)) {}

    bool Run() {
        // Stage 2.
        if (!CreateAllOutsideCells(type::Table, "Table embedded in table.  This is not allowed"))
            return false;
        // Stage 3.
        if (!CreateAllOutsideCells(type::Form, "Form embedded in table.  This is not allowed"))
            return false;
        // Stage 4.
        constexpr int kOrder[] = {type::String,   type::Bitmap,       type::Button,
                                  type::List,     type::Textbox,      type::Checkbox,
                                  type::Field,    type::RepeatButton, type::PushButton,
                                  type::PopupTrigger, type::Scrollbar};
        for (int screenType : kOrder)
            for (LoadedRecord& record : design_.Store(screenType)) {
                if (cells_.InAnyTable(record.id))
                    PutInCell(screenType, record);
                else
                    Create(screenType, record);
                Release(record);
            }
        if (!CreateAllOutsideCells(type::Line,
                                   "Line embedded in table.  This is not currently supported"))
            return false;
        // Menus are made in stage 5, in their forms.
        return CreateAllOutsideCells(
            type::SchedulerLine, "SchedulerLine embedded in table.  This is not currently supported");
    }

private:
    // A failed creation is told under the object's name; the next record
    // follows.
    void Create(int screenType, const LoadedRecord& record) {
        if (!target_.CreateObjectFromText(screenType, record.groups))
            host_.MessageBox(kinds_.CreateFailText(screenType), record.name);
    }

    bool CreateAllOutsideCells(int screenType, const char* inCellMessage) {
        for (LoadedRecord& record : design_.Store(screenType)) {
            if (cells_.InAnyTable(record.id)) {
                host_.MessageBox(inCellMessage, "");
                return false;
            }
            Create(screenType, record);
            // A table's record is read again while its cells are filled.
            if (screenType != type::Table) Release(record);
        }
        return true;
    }

    // The cell is the object's place in the list of the table its record
    // names, whatever its bounds say: position k (from 1) in a table of c
    // columns is row (k - 1) / c + 1, column (k - 1) mod c + 1. An object
    // whose related table lists it not, or that names no table of the file,
    // is passed over. The table's answer is not looked at.
    void PutInCell(int screenType, const LoadedRecord& record) {
        const LoadedRecord* table = cells_.TableWithId(record.relatedTableId);
        if (!table) return;
        const auto& ids = table->cellObjectIds;
        const auto found = std::find(ids.begin(), ids.end(), record.id);
        if (found == ids.end()) return;
        const int k = static_cast<int>(found - ids.begin()) + 1;
        const int c = table->tableColumns;
        if (c == 0) throw RuntimeFailure("Division by zero: table " + table->name);
        const int row = (k - 1) / c + 1;
        const int column = (k - 1) % c + 1;
        target_.CreateObjectInTable(table->name, row, column, screenType, record.groups);
    }

    // The values of a record that has become an object are not wanted
    // again (the embedding reads names, ids and lists only). They go at
    // once, while they are still in the cache, rather than all together at
    // the end of the load: on a large design that halves what it costs to
    // give the memory back.
    static void Release(LoadedRecord& record) { GroupList().swap(record.groups); }

    LoadedDesign& design_;
    const RecordKinds& kinds_;
    LoadTarget& target_;
    Host& host_;
    TableCellIndex cells_;
};

}  // namespace

bool CreateLoadedObjects(LoadedDesign& design, const RecordKinds& kinds,
                         LoadTarget& target, Host& host) {
    return Creation(design, kinds, target, host).Run();
}

}  // namespace tolva
