#pragma once
// What all Buttons share: the inspector's value lists, the style words and
// the parser of the Button's tail of a "#CONTROL" record.
#include <string>

#include "inspector/ValueLists.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 14 rows: the style words, the alignment words, "TRUE"
// and "FALSE" for the three attributes, the colour words for both colours.
void FillButtonValueLists(ValueLists& lists);

// Upper-cases the word: "BUTTON_STYLE_0" 0, "BUTTON_STYLE_1" 1, anything
// else 0.
int ButtonStyleWordToNumber(const std::string& word);
// 0 and 1 give their words; anything else the empty word.
std::string ButtonStyleNumberToWord(int number);

// Reads "~F8", the radius (32 bits), the two colour words and
// "#END_CONTROL" into groups 6 (radius) and 7 (on, off colour).
bool ParseButtonRecordTail(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
