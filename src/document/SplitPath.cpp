// SplitPath: one part of a path, as the resource text and the bitmap rows
// need it.
//
// The walk goes from the last character to the first. Every dot cuts the
// text in front of it and hands what stood behind it to the extension, so a
// name with two dots keeps only the part between them ("a.b.c" gives the name
// "a" and the extension ".b"); older designs rely on this, so it stays. The
// first separator met with something behind it ends the walk: behind it is
// the file's name, before and with it the directory. Both "\" (the files'
// own separator) and "/" (the one of this host) count as separators.
#include <string>

#include "document/RuntimeFailure.h"
#include "document/TextHelpers.h"

namespace tolva {

namespace {

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

}  // namespace

std::string SplitPath(const std::string& path, int part) {
    if (part < kPathDrive || part > kPathFileName) {
        throw RuntimeFailure("SplitPath: invalid part number " + std::to_string(part));
    }

    std::string rest = path;
    std::string drive;
    if (rest.size() >= 2 && rest[1] == ':') {
        drive = rest.substr(0, 2);
        rest.erase(0, 2);
    }

    std::string directory;
    std::string name;
    std::string extension;
    bool separatorUsed = false;

    for (size_t i = rest.size(); i-- > 0;) {
        const char c = rest[i];
        const bool somethingBehind = i + 1 < rest.size();
        if (c == '.') {
            if (somethingBehind) extension = rest.substr(i);
            rest.erase(i);
        } else if (IsSeparator(c) && somethingBehind) {
            name = rest.substr(i + 1);
            directory = rest.substr(0, i + 1);
            separatorUsed = true;
            break;
        }
        // A separator at the very end of what is left is passed over.
    }
    if (!separatorUsed) name = rest;

    switch (part) {
        case kPathDrive:
            return drive;
        case kPathDirectory:
            return directory;
        case kPathName:
            return name;
        case kPathExtension:
            return extension;
        default:
            return name + extension;
    }
}

}  // namespace tolva
