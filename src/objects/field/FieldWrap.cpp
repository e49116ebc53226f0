#include "objects/field/FieldWrap.h"

namespace tolva {

// `line` is the text accepted for the current row and `word` the word being
// built, `lineWidth` and `wordWidth` their widths; a character's width w is
// compared without the pixel of gap behind it, and added with it (w + 1).
// The cases are tried in this order for each character.
std::vector<std::string> WrapFieldText(std::string_view text, const FontWidthTable& widths,
                                       int available) {
    std::vector<std::string> lines;
    std::string line;
    std::string word;
    long long lineWidth = 0;
    long long wordWidth = 0;
    const long long a = available;
    for (const char c : text) {
        if (c == '\r' || c == '\n') continue;
        const long long w = widths[static_cast<unsigned char>(c)];
        const bool space = c == ' ';
        if (!space && lineWidth == 0 && wordWidth + w > a) {
            // The word alone is too wide: it goes out, broken here. The row
            // counts the new character as its line's width, though the line
            // is empty, so the next overflow moves the word on whole.
            lines.push_back(std::move(word));
            word.assign(1, c);
            line.clear();
            lineWidth = wordWidth = w + 1;
        } else if (space && lineWidth == 0 && wordWidth + w > a) {
            // The same at a space: the word goes out and the space is lost.
            lines.push_back(std::move(word));
            line.clear();
            word.clear();
            lineWidth = wordWidth = 0;
        } else if (!space && lineWidth + wordWidth + w > a) {
            // The word no longer fits behind the line: the line goes out
            // (empty after a break in mid-word) and the word moves on.
            lines.push_back(std::move(line));
            line.clear();
            word.push_back(c);
            wordWidth += w + 1;
            lineWidth = 0;
        } else if (space) {
            line += word;
            line.push_back(' ');
            lineWidth += wordWidth + w + 1;
            word.clear();
            wordWidth = 0;
        } else {
            word.push_back(c);
            wordWidth += w + 1;
        }
    }
    lines.push_back(line + word);
    return lines;
}

}  // namespace tolva
