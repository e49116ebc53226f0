#include "shell/FilePaths.h"

namespace tolva {

std::string ResourceFilePath;
std::string HeaderFilePath;

}  // namespace tolva
