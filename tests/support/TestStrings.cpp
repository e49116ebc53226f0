#include "support/TestStrings.h"

#include <gtest/gtest.h>

#include "document/PropertyLabels.h"
#include "document/StringTable.h"

namespace tolva::testing {

void EnsureStringsLoaded() {
    static bool loaded = false;
    if (loaded) return;
    StringTable& table = StringTable::Shared();
    const bool ok = table.LoadFromFile(std::string(TOLVA_SOURCE_DATA_DIR) + "/Strings.txt");
    ASSERT_TRUE(ok) << "data/Strings.txt could not be read";
    table.SetLanguage(1033);
    LoadPropertyLabels(table);
    loaded = true;
}

}  // namespace tolva::testing
