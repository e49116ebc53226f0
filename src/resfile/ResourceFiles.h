#pragma once
// The three file operations of a design: the resource text, its header of
// object IDs, and the load that rebuilds a design from a resource text.
// The editor's file commands and the command-line companion both call these.
#include <string>

namespace tolva {

class ctlTolvaScreen;

// Gives every object its ID anew, then writes the resource text to the
// path, section by section. Throws RuntimeFailure when the path cannot be
// written. Answers true.
bool SaveResourceFile(ctlTolvaScreen& screen, const std::string& path);

// Writes the header of object IDs, with the IDs the objects hold now.
// Throws RuntimeFailure when the path cannot be written. Answers true.
bool SaveHeaderFile(ctlTolvaScreen& screen, const std::string& path);

// Reads the resource text and rebuilds the design on the screen, which the
// caller has cleared and put into its load state. Messages go through the
// screen's host. Answers false after a message when the file cannot be
// loaded; a file that cannot be read, a value that is no number, a number
// out of range, an ID that fits no row of the load's ID table or the end of
// the file inside a record throws RuntimeFailure, which the caller takes as
// the silent end of the load. The caller's StartLoading and StopLoading
// stand around it.
bool LoadResourceFile(ctlTolvaScreen& screen, const std::string& path);

}  // namespace tolva
