#pragma once
// What all Tables share: the inspector's value lists, the style and cell
// data type words, and the parser of the "#TABLE" record.
#include <string>

#include "inspector/PropertyArray.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 11 rows.
void FillTableValueLists(ValueLists& lists);

// Upper-cased "TABLE_STYLE_0" to "TABLE_STYLE_2" give 0 to 2, anything else
// 0; and back, another number giving the empty word.
int TableStyleWordToNumber(const std::string& word);
std::string TableStyleNumberToWord(int style);
// "TABLE_TEXT" 0, "TABLE_VALUE" 1, "TABLE_UI_OBJECT" 2, alike.
int CellDataTypeWordToNumber(const std::string& word);
std::string CellDataTypeNumberToWord(int type);

// Reads from the line after "#TABLE" up to and including "#END_TABLE",
// strictly in the order written: the bitmap lines only when the line after
// "~F10" is not "~F11", exactly as many widths and heights as the counts
// say, then rows x columns cells. Groups: 0 name, ID; 1 x, y, width,
// height; 2 columns; 3 rows; 4 the widths; 5 the heights; 6 top row; 7 left
// column; 8 style; 9 background colour; 10 the bitmap's x, y, width, height
// and file (empty without one); 11 to 19 the cells' data types, fonts,
// values, alignments, font colours, background colours, highlights,
// has-bitmaps and texts; 20 the enable, scrollbar, active, highlight and
// visible words. The record also keeps the column count and the cells'
// object IDs, -1 for a cell without one.
bool ParseTableRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
