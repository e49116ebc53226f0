// The layout of a Field's text, timed at two sizes.
//
//   field_wrap_bench          prints the time of one layout of a field of
//                             2,000 characters and of 20,000
//   field_wrap_bench --check  the same, and fails (exit 1) when ten times the
//                             characters cost more than twelve times the
//                             time: a wrap that grew with the square of the
//                             text would cost a hundred times.
//
// A layout is what every change of the Field's text, font or size runs:
// the wrap of the whole text against the width table of the font, and the
// draw elements of the lines shown, one text box a line, and of the base
// lines. The text is English prose in the small font on a field as wide as
// the screen. Each size is timed in turn, seven rounds, and its median
// counts. The width files are read from the working directory.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "canvas/FontWidths.h"
#include "objects/field/ctlKOMAField.h"

namespace {

using Clock = std::chrono::steady_clock;

bool LoadWidths() {
    for (auto [file, table] : {std::pair{"FontSmallWidth.txt", &tolva::FontSmallWidth()},
                               std::pair{"FontMediumWidth.txt", &tolva::FontMediumWidth()}}) {
        std::ifstream in(file, std::ios::binary);
        if (!in) return false;
        *table = tolva::ReadFontWidths(
            std::string{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()});
    }
    return true;
}

std::string Prose(std::size_t length) {
    static const std::string kSentence =
        "The quick brown fox jumps over the lazy dog, and a Tolva shows it in four greys. ";
    std::string text;
    while (text.size() < length) text += kSentence;
    text.resize(length);
    return text;
}

// Microseconds of one layout of a field of `length` characters, the median
// of `rounds` rounds of `repeats` layouts each.
double LayoutMicroseconds(std::size_t length, int repeats, int rounds, std::size_t& lines) {
    tolva::ctlKOMAField field;
    field.SetCanvasSize(160 * 36.59, 160 * 36.59);
    const std::string texts[2] = {Prose(length), Prose(length - 1)};
    std::vector<double> times;
    std::size_t elements = 0;
    for (int round = 0; round < rounds; ++round) {
        const auto t0 = Clock::now();
        for (int i = 0; i < repeats; ++i) {
            field.KOMAText(texts[i % 2]);
            elements += field.GetDrawElements().size();
        }
        const auto t1 = Clock::now();
        times.push_back(std::chrono::duration<double, std::micro>(t1 - t0).count() / repeats);
    }
    lines = field.WrappedLines().size();
    if (elements == 0) std::printf("no elements\n");
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    const bool check = argc > 1 && std::strcmp(argv[1], "--check") == 0;
    if (!LoadWidths()) {
        std::fprintf(stderr, "the width files are not in the working directory\n");
        return 2;
    }
    std::size_t smallLines = 0, largeLines = 0;
    const double small = LayoutMicroseconds(2000, 400, 7, smallLines);
    const double large = LayoutMicroseconds(20000, 40, 7, largeLines);
    std::printf("%6d characters, %4zu lines: %8.1f us a layout (median of 7)\n", 2000, smallLines,
                small);
    std::printf("%6d characters, %4zu lines: %8.1f us a layout (median of 7)\n", 20000, largeLines,
                large);
    const double ratio = large / small;
    std::printf("ten times the characters: %.1f times the time\n", ratio);
    if (check && ratio > 12) {
        std::printf("FAILED: more than twelve times\n");
        return 1;
    }
    return 0;
}
