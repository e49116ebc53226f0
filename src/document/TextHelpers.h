#pragma once
// Small text helpers shared by every part of the program.
#include <string>
#include <vector>

namespace tolva {

// A list of text lines: the unit in which records travel. Entry 0 of the
// vector is line 1.
using LineList = std::vector<std::string>;

// Removes blanks (character 32 only) from both ends; a tab stays.
std::string TrimSpaces(const std::string& text);

// Part numbers of SplitPath.
enum PathPart { kPathDrive = 0, kPathDirectory = 1, kPathName = 2, kPathExtension = 3, kPathFileName = 4 };

// One part of a path. Both "\" and "/" separate directories. A name with two
// dots keeps only the part between them: "a.b.c" gives the name "a" and the
// extension ".b". A part number outside 0 to 4 throws RuntimeFailure.
std::string SplitPath(const std::string& path, int part);

// Adds the line at the end of the list.
void AppendLine(LineList& lines, const std::string& line);

// Bubble sort, ascending, in place; entries compare as their byte values.
void SortAscending(std::vector<std::string>& list);

// Upper case of the ASCII letters; other bytes stay.
std::string UpperCase(const std::string& text);

}  // namespace tolva
