#pragma once
// What all Menus share: the inspector's value lists and the parser of the
// "#MENU" record.
#include "inspector/PropertyArray.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the preview's 6 rows.
void FillMenuValueLists(ValueLists& lists);

// Reads from the line after "#MENU" up to and including "#END_MENU",
// strictly in the order written: exactly as many item lines as the number
// of items says. The selection may be "NO_SELECTION" (-1). The items go to
// the record's menu items as well. Groups: 0 name, ID; 1 x, y, width,
// height; 2 number of items; 3 selected item; 4 the items; 5 visible.
bool ParseMenuRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
