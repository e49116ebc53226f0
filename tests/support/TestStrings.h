#pragma once
// Loads the program's string table (English) and the property labels from
// the data folder of the source tree, once per test program.
namespace tolva::testing {
void EnsureStringsLoaded();
}
