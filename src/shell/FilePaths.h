#pragma once
// The paths of the open design's files, shared by the whole program. Paths
// keep the file system's encoding.
#include <string>

namespace tolva {

extern std::string ResourceFilePath;  // the resource text file
extern std::string HeaderFilePath;    // the header file

}  // namespace tolva
