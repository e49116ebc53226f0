#pragma once
// Where the programs find the files they read at start (the string table,
// the device fonts and their widths): beside the program first, as in the
// build folder; then in the data folder of the prefix the program is
// installed under ("bin/.." + "/share/tolva-designer"), wherever that
// prefix is; then in the data folder of the prefix it was built for.
#include <string>

namespace tolva {

class Host;

inline constexpr const char* kDataFolderName = "tolva-designer";

std::string DataDirectory(Host& host);

}  // namespace tolva
