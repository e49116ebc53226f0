#pragma once
// What all Checkboxes share: the inspector's value lists, the style words
// and the parser of the Checkbox's tail of a "#CONTROL" record.
#include <string>

#include "inspector/ValueLists.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 14 rows: the one style word, "TRUE" and "FALSE" for the
// attributes and the initial value, "4 Bit" and "2 Bit" (in that order) for
// both depths.
void FillCheckboxValueLists(ValueLists& lists);

// Upper-cases the word: "CHECKBOX_STYLE_0" gives 0, and so does anything
// else.
int CheckboxStyleWordToNumber(const std::string& word);
// 0 gives "CHECKBOX_STYLE_0"; anything else the empty word.
std::string CheckboxStyleNumberToWord(int number);

// Reads "~F8", the group (read and dropped), the value word, the first
// picture's section, "~F9", the second's and "#END_CONTROL" into groups 6
// (value), 7 and 8 (x, y, width, height and path) and 9 and 10 (depths).
bool ParseCheckboxRecordTail(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
