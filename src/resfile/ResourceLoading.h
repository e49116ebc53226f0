#pragma once
// The load of a resource text in its stages. The scan (stage 1) reads every
// record of the text into the record stores and the ID table; the build
// (stages 2 to 6) makes tables, forms and the other objects from the
// stores, puts objects into their forms and gives out fresh IDs. No object
// is made before the whole text has been read.
//
// Messages go to the host. A value that is no number, the end of the text
// inside a record, an ID that fits no row of the ID table and a table of no
// columns with objects in its cells throw RuntimeFailure: the silent end of
// the load.
#include <array>
#include <vector>

#include "document/ObjectTypes.h"
#include "resfile/IdTable.h"
#include "resfile/LoadedRecord.h"

namespace tolva {

class Host;
class LoadTarget;
class ResourceReader;
struct RecordKinds;

// The records of a file, one store per screen type, and its ID table.
struct LoadedDesign {
    std::array<std::vector<LoadedRecord>, type::Count> stores;
    IdTable ids;

    void Clear();
    std::vector<LoadedRecord>& Store(int screenType) { return stores.at(screenType); }
    const std::vector<LoadedRecord>& Store(int screenType) const { return stores.at(screenType); }
};

// Stage 1. False (after its message) when the text cannot be loaded.
bool ScanResourceText(ResourceReader& reader, Host& host, const RecordKinds& kinds,
                      LoadedDesign& design);

// Stages 2 to 6. False (after its message) when a table, a form, a line or a
// scheduler line stands in a table's cell.
bool BuildDesign(LoadedDesign& design, const RecordKinds& kinds, LoadTarget& target,
                 Host& host);

// Stages 2 to 4, then stage 5; the parts of BuildDesign.
bool CreateLoadedObjects(LoadedDesign& design, const RecordKinds& kinds,
                         LoadTarget& target, Host& host);
void EmbedLoadedObjects(const LoadedDesign& design, LoadTarget& target, Host& host);

// The whole load of a text.
bool LoadResourceText(ResourceReader& reader, const RecordKinds& kinds, LoadTarget& target,
                      Host& host);

}  // namespace tolva
