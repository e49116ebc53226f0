#pragma once
// What all Textboxes share: the inspector's value lists, the style words and
// the parser of the "#TEXTBOX" record.
#include <string>

#include "inspector/PropertyArray.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 23 rows.
void FillTextboxValueLists(ValueLists& lists);

// Upper-cases the word: "TEXTBOX_STYLE_0" to "TEXTBOX_STYLE_2" give 0 to 2,
// anything else 0.
int TextboxStyleWordToNumber(const std::string& word);

// Reads from the line after "#TEXTBOX" up to and including "#END_TEXTBOX",
// strictly in the order written. Groups: 0 name, ID; 1 x, y, width,
// height; 2 text; 3 style; 4 back line; 5 font; 6 font colour;
// 7 background colour; 8 to 13 the six numbers; 14 the six flags.
bool ParseTextboxRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
