#pragma once
// What all Scheduler lines share: the inspector's value lists and the
// parser of the "#SCHLINE" record.
#include "inspector/PropertyArray.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 8 rows.
void FillSchlineValueLists(ValueLists& lists);

// Reads from the line after "#SCHLINE" up to and including "#END_SCHLINE",
// strictly in the order written. Groups: 0 name, ID; 1 x, y, width,
// height; 2 the enable, active and visible words.
bool ParseSchlineRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
