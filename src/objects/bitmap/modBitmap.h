#pragma once
// What all Bitmaps share: the inspector's value lists, the style words and
// the parser of the "#BITMAP" record.
#include <string>

#include "inspector/ValueLists.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 11 rows: the style words, "TRUE" and "FALSE" for the
// three attributes, "2 Bit" and "4 Bit" for both depths.
void FillBitmapValueLists(ValueLists& lists);

// Upper-cases the word: "BITMAP_STYLE_1" 1, anything else 0.
int BitmapStyleWordToNumber(const std::string& word);
// 0 and 1 give their words; anything else the empty word.
std::string BitmapStyleNumberToWord(int number);

// Reads a "#BITMAP" record after its section word into eight groups: 0 name
// and ID; 1 x, y, width, height; 2 the style word; 3 and 4 Bitmap 1 and 2:
// x, y, width, height and path; 5 the enable, active and visible words; 6
// and 7 the depths. A section left out gives zeros, an empty path and a
// depth of 0.
bool ParseBitmapRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
