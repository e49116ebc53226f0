#pragma once
// What all Lines share: the inspector's value lists, the style words and
// the parser of the "#LINE" record.
#include <string>

#include "inspector/PropertyArray.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 9 rows.
void FillLineValueLists(ValueLists& lists);

// Upper-cases the word: "LINE_STYLE_0" to "LINE_STYLE_2" give 0 to 2,
// anything else 0.
int LineStyleWordToNumber(const std::string& word);

// Reads from the line after "#LINE" up to and including "#END_LINE",
// strictly in the order written. Groups: 0 name, ID; 1 x, y (the start
// point), width, height; 2 colour; 3 style; 4 thickness; 5 end X; 6 end Y;
// 7 visible.
bool ParseLineRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
