#pragma once
// What all Scrollbars share: the inspector's value lists, the words of
// orientation and style, the rule of which orientation each style allows,
// and the parser of the "#SCROLLBAR" record.
#include <string>

#include "inspector/PropertyArray.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 18 rows.
void FillScrollbarValueLists(ValueLists& lists);

// "HORIZONTAL" 0, "VERTICAL" 1, anything else 0; and back, another number
// giving the empty word.
int OrientationWordToNumber(const std::string& word);
std::string OrientationNumberToWord(int orientation);
// Upper-cased "SCROLLBAR_STYLE_0" to "SCROLLBAR_STYLE_3" give 0 to 3,
// anything else 0; and back, another number giving the empty word.
int ScrollbarStyleWordToNumber(const std::string& word);
std::string ScrollbarStyleNumberToWord(int style);
// Style 0 allows only the vertical bar, styles 1 to 3 only the horizontal
// one; another style either.
bool IsOrientationSupported(int style, int orientation);

// Reads from the line after "#SCROLLBAR" up to and including
// "#END_SCROLLBAR", strictly in the order written; the page size's key may
// also be "(W)SCROLLBAR_PAGE_SIZE=", an arrow's file either depth. Groups:
// 0 name, ID; 1 x, y, width, height; 2 maximum; 3 minimum; 4 current
// value; 5 page size; 6 number of lines; 7 orientation word; 8 style word;
// 9 and 10 the arrows' x, y, width, height and file; 11 text; 12 the
// active, enable and visible words; 13 and 14 the arrows' depths.
bool ParseScrollbarRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
