#pragma once
// The four styles of a form and their words.
#include <string>
#include <vector>

#include "inspector/PropertyArray.h"

namespace tolva {

// "NORMAL" 0, "BACKGROUND" 1, "BITMAP_DIALOG" 2, "NON_BITMAP_DIALOG" 3.
// An unknown word gives 0; an unknown number the empty word.
int FormStyleFromWord(const std::string& word);
std::string WordFromFormStyle(int style);
// The style words in number order, for the inspector's choice row.
const std::vector<std::string>& FormStyleWords();

// The words of the form's depth row: "2 Bit", "4 Bit".
const std::vector<std::string>& FormDepthWords();

// The value lists of the form's ten inspector rows, built once at start-up:
// the style words for row 7, the depth words for row 10, and for row 6 only
// "(None)", since the names of the embedded objects differ from form to form
// (ctlKOMAForm::FocusedObjectChoices gives the full list of one form). The
// text rows and the bitmap button have empty lists.
void FillFormValueLists(ValueLists& lists);

}  // namespace tolva
