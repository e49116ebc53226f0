#include "objects/FormStyles.h"

#include "document/TextHelpers.h"

namespace tolva {

const std::vector<std::string>& FormStyleWords() {
    static const std::vector<std::string> words = {"NORMAL", "BACKGROUND", "BITMAP_DIALOG",
                                                   "NON_BITMAP_DIALOG"};
    return words;
}

int FormStyleFromWord(const std::string& word) {
    const std::string upper = UpperCase(word);
    const auto& words = FormStyleWords();
    for (size_t i = 0; i < words.size(); ++i) {
        if (words[i] == upper) return static_cast<int>(i);
    }
    return 0;
}

std::string WordFromFormStyle(int style) {
    const auto& words = FormStyleWords();
    if (style < 0 || style >= static_cast<int>(words.size())) return "";
    return words[style];
}

}  // namespace tolva
