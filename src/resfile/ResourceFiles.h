#pragma once
// The three file operations of a design: the resource text, its header of
// object IDs, and the load that rebuilds a design from a resource text.
// The editor's file commands and the command-line companion both call these.
#include <string>

namespace tolva {

// The box of the Open command when the load answers false (string 5010),
// under the application's title.
inline constexpr const char* kCouldNotLoadResourceFile = "Could not load resource file";

class DesignText;
class Host;
class LoadTarget;
struct RecordKinds;

// Gives every object its ID anew, then writes the resource text to the
// path, section by section. Throws RuntimeFailure when the path cannot be
// written. Answers true.
bool SaveResourceFile(DesignText& design, const std::string& path);

// Writes the header of object IDs, with the IDs the objects hold now.
// Throws RuntimeFailure when the path cannot be written. Answers true.
bool SaveHeaderFile(DesignText& design, const std::string& path);

// Reads the resource text at the path and rebuilds the design on the
// target, whose owner has cleared it and put it into its load state. The
// kinds' parsers read the records. Messages go to the host. Answers false
// after a message when the file cannot be loaded; a file that cannot be
// read, a value that is no number, a number out of range, an ID that fits
// no row of the load's ID table or the end of the file inside a record
// throws RuntimeFailure, which the caller takes as the silent end of the
// load.
bool LoadResourceFile(const std::string& path, const RecordKinds& kinds, LoadTarget& target,
                      Host& host);

}  // namespace tolva
