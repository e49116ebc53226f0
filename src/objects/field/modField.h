#pragma once
// What all Fields share: the inspector's value lists, the style words, the
// encoder of line breaks for the record and the parser of the "#FIELD"
// record.
#include <string>
#include <string_view>

#include "inspector/PropertyArray.h"

namespace tolva {

class RecordReader;
struct LoadedRecord;

// The lists of the 25 rows.
void FillFieldValueLists(ValueLists& lists);

// Upper-cases the word: "FIELD_STYLE_0" and "FIELD_STYLE_1" give 0 and 1,
// anything else 0.
int FieldStyleWordToNumber(const std::string& word);

// The text as the record carries it: a CR LF pair becomes the two
// characters "/r", a CR or LF alone is dropped. Nothing turns "/r" back into
// a line break: a loaded text keeps the two characters.
std::string EncodeFieldLineBreaks(std::string_view text);

// Reads from the line after "#FIELD" up to and including "#END_FIELD",
// strictly in the order written. Groups: 0 name, ID; 1 x, y, width,
// height; 2 text; 3 style; 4 back line; 5 font; 6 font colour;
// 7 background colour; 8 alignment; 9 to 13 the maximum, top line, insert
// point, highlight start and end; 14 the eight flags.
bool ParseFieldRecord(RecordReader& in, LoadedRecord& record);

}  // namespace tolva
