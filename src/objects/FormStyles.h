#pragma once
// The four styles of a form and their words.
#include <string>
#include <vector>

namespace tolva {

// "NORMAL" 0, "BACKGROUND" 1, "BITMAP_DIALOG" 2, "NON_BITMAP_DIALOG" 3.
// An unknown word gives 0; an unknown number the empty word.
int FormStyleFromWord(const std::string& word);
std::string WordFromFormStyle(int style);
// The style words in number order, for the inspector's choice row.
const std::vector<std::string>& FormStyleWords();

}  // namespace tolva
