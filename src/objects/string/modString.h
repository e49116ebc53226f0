#pragma once
// What all Strings share: the inspector's value lists, the style words and
// the parser of the "#STRING" record.
#include <string>

#include "inspector/PropertyArray.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 12 rows.
void FillStringValueLists(ValueLists& lists);

// Upper-cases the word: "STRING_STYLE_0" to "STRING_STYLE_5" give 0 to 5,
// anything else 0.
int StringStyleWordToNumber(const std::string& word);
// 0 to 5 give their words, anything else the empty word.
std::string StringStyleNumberToWord(int number);

// Reads from the line after "#STRING" up to and including "#END_STRING".
// Groups: 0 name, ID; 1 x, y, width, height; 2 style; 3 text; 4 font colour;
// 5 background colour; 6 font; 7 alignment; 8 visible.
bool ParseStringRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
