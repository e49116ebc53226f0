#pragma once
// The 8.3 path rule for bitmap files. The resource compiler only finds files
// whose every directory name and file name fit the 8.3 form: at most eight
// characters, optionally a dot and at most three characters, with no blank,
// no second dot and none of the characters that old file systems refuse.
#include <string>

namespace tolva {

// The short form of an existing path: the path itself when every part of it
// fits 8.3, otherwise a different text (each long part shortened the way an
// 8.3 alias is made, "LONGNA~1.BMP"). A path that does not exist gives the
// empty text. Relative paths are taken from the current directory.
std::string ShortPathName(const std::string& path);

// True when one name (no separator) fits the 8.3 form.
bool IsShortName(const std::string& name);

// The rule as the objects apply it: a path is acceptable when it equals its
// own short form.
bool IsShortPath(const std::string& path);

}  // namespace tolva
