#pragma once
// The file choosers' filter and default extension, turned from the form the
// program writes them in ("Resource Files (*.txt)|*.txt|", "*.txt") into the
// form Qt's file dialog takes ("Resource Files (*.txt)", "txt").
#include <string>
#include <vector>

namespace tolva {

// One entry of a filter: what the user reads and the patterns it matches,
// blank-separated ("*.bmp *.dib").
struct FilterEntry {
    std::string description;
    std::string patterns;
};

// Splits "Name|patterns|Name|patterns|" into its entries. Patterns may be
// separated by ";" as in "*.bmp;*.dib". A trailing name without patterns
// stands alone; empty pieces are skipped.
std::vector<FilterEntry> ParseFilter(const std::string& filter);

// The filter in Qt's form: entries "Name (patterns)" joined by ";;". A name
// that already ends in its own patterns in brackets is kept as it is. An
// empty filter gives the empty text (every file).
std::string ToQtFilter(const std::string& filter);

// The suffix a save dialog adds to a bare name: "*.txt", ".txt" and "txt"
// give "txt"; "*.*", "*" and "" give "".
std::string DefaultSuffix(const std::string& defaultExtension);

}  // namespace tolva
