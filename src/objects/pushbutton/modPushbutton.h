#pragma once
// What all Push buttons share: the inspector's value lists, the style words
// and the parser of the Push button's tail of a "#CONTROL" record.
#include <string>

#include "inspector/ValueLists.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 16 rows: the four style words, the alignment words,
// "TRUE" and "FALSE" for the attributes and the initial value, the colour
// words for both colours.
void FillPushButtonValueLists(ValueLists& lists);

// Upper-cases the word: "PUSHBUTTON_STYLE_0" to "PUSHBUTTON_STYLE_3" give 0
// to 3, anything else 0.
int PushButtonStyleWordToNumber(const std::string& word);
// 0 to 3 give their words; anything else the empty word.
std::string PushButtonStyleNumberToWord(int number);

// Reads "~F8", the two colour words, the group (16 bits, read and then
// dropped), the value word, the radius (16 bits) and "#END_CONTROL" into
// groups 6 (radius), 7 (on, off colour) and 8 (value).
bool ParsePushButtonRecordTail(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
