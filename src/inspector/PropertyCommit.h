#pragma once
// How an edited row of the inspector goes into its copy of the property
// array. The view raises its change event only when these say so.
#include <string>

#include "inspector/PropertyArray.h"

namespace tolva {

// Compares the editor's text with the row's value (column 3, as text). When
// they differ the text is stored in column 3, as text, and the answer is
// true: the row has changed. The same text, or a row the array lacks, gives
// false and leaves the array alone.
bool CommitRowText(PropertyArray& values, int row, const std::string& editorText);

// A button row was pressed: column 3 becomes True whatever it held. False
// only for a row the array lacks.
bool PressButtonRow(PropertyArray& values, int row);

// The text an editor of the row shows: column 3 as text, or the empty text
// for a row the array lacks.
std::string RowValueText(const PropertyArray& values, int row);

}  // namespace tolva
