#include "shell/SortedComboBox.h"

#include <algorithm>

namespace tolva {

namespace {

// Marks 0, digits 1, letters 2; then the character itself, case folded.
std::pair<int, char32_t> SortKey(QChar c) {
    if (c.isLetter()) return {2, c.toCaseFolded().unicode()};
    if (c.isDigit()) return {1, c.unicode()};
    return {0, c.unicode()};
}

}  // namespace

bool ListTextLess(const QString& a, const QString& b) {
    const qsizetype n = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < n; ++i) {
        const auto ka = SortKey(a[i]);
        const auto kb = SortKey(b[i]);
        if (ka != kb) return ka < kb;
    }
    return a.size() < b.size();
}

int SortedComboBox::AddSorted(const QString& text) {
    int index = count();
    for (int i = 0; i < count(); ++i) {
        if (ListTextLess(text, itemText(i))) {
            index = i;
            break;
        }
    }
    insertItem(index, text);
    return index;
}

}  // namespace tolva
