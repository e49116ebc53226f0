#pragma once
// What all Popup triggers share: the inspector's value lists, the style
// words and the parser of the Popup trigger's tail of a "#CONTROL" record.
#include <string>

#include "inspector/ValueLists.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 12 rows.
void FillPopupTriggerValueLists(ValueLists& lists);

// Upper-cases the word: "POPUP_TRIGGER_STYLE_0" to "_2" give 0 to 2,
// anything else 0; and back, another number giving the empty word.
int PopupTriggerStyleWordToNumber(const std::string& word);
std::string PopupTriggerStyleNumberToWord(int number);

// Reads "~F8", the radius, the number of items, the selected and the top
// item, then exactly as many item lines as the number says, "ITEM" indexed
// from 0, and "#END_CONTROL", into groups 6 (radius), 7 (number), 8 (top
// item), 9 (selected item) and 10 (the items).
bool ParsePopupTriggerRecordTail(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
