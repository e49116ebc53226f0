#pragma once
// The file operations on the design of a screen: the resource text and its
// header are written from the screen (it answers the writers as their
// DesignText), and a load rebuilds the screen's design with the program's
// record kinds.
#include <string>

#include "resfile/ResourceFiles.h"

namespace tolva {

class ctlTolvaScreen;

// Reads the resource text and rebuilds the design on the screen, which the
// caller has cleared and put into its load state (StartLoading and
// StopLoading stand around it). Messages go through the screen's host. As
// the load of resfile/ResourceFiles.h: false after a message, or
// RuntimeFailure for the silent end.
bool LoadResourceFile(ctlTolvaScreen& screen, const std::string& path);

}  // namespace tolva
