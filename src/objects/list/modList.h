#pragma once
// What all Lists share: the inspector's value lists, the style words and
// the parser of the "#LIST" record.
#include <string>

#include "inspector/PropertyArray.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 15 rows.
void FillListValueLists(ValueLists& lists);

// Upper-cased "LIST_STYLE_0" to "LIST_STYLE_7" give 0 to 7, anything else
// 0; and back, another number giving the empty word.
int ListStyleWordToNumber(const std::string& word);
std::string ListStyleNumberToWord(int style);
// True for exactly one of the eight style words.
bool IsListStyleWord(const std::string& word);

// Reads from the line after "#LIST" up to and including "#END_LIST",
// strictly in the order written: exactly as many related-list lines as
// their count says, then as many item lines as the total. The alignment
// may also come as "(B)LIST_TEXT_ALIGNMENT=", the selection as
// "NO_SELECTION" (-1). Groups: 0 name, ID; 1 x, y, width, height; 2 the
// related lists' IDs; 3 total; 4 number on display; 5 top item;
// 6 alignment; 7 selected item; 8 style; 9 font colour; 10 background
// colour; 11 the items; 12 the enable, visible, active, set-scroll and
// synchronous words.
bool ParseListRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
