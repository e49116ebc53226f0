#pragma once
// What all Repeat buttons share: the inspector's value lists, the style
// words and the parser of the Repeat button's tail of a "#CONTROL" record.
#include <string>

#include "inspector/ValueLists.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 9 rows: the one style word, "TRUE" and "FALSE" for the
// three attributes, "2 Bit" and "4 Bit" for the depth.
void FillRepeatButtonValueLists(ValueLists& lists);

// Upper-cases the word: "REPEATBUTTON_STYLE_0" gives 0, and so does
// anything else.
int RepeatButtonStyleWordToNumber(const std::string& word);
// 0 gives "REPEATBUTTON_STYLE_0"; anything else the empty word.
std::string RepeatButtonStyleNumberToWord(int number);

// Reads "~F8", the picture's x, y, width and height (16 bits each), its file
// line (with the depth word "Q_TWO_BIT," or "Q_FOUR_BIT,") and
// "#END_CONTROL" into group 6: x, y, width, height and path.
bool ParseRepeatButtonRecordTail(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
