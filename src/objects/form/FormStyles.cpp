#include "objects/form/FormStyles.h"

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

const std::vector<std::string>& FormDepthWords() {
    static const std::vector<std::string> words = {"2 Bit", "4 Bit"};
    return words;
}

void FillFormValueLists(ValueLists& lists) {
    lists.assign(10, {});
    lists[6 - 1] = {"(None)"};
    lists[7 - 1] = FormStyleWords();
    lists[10 - 1] = FormDepthWords();
}

}  // namespace tolva
