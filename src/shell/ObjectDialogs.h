#pragma once
// The objects' dialogs, registered under their names for the desktop host.

namespace tolva {

// Registers every dialog of the objects; called once at start-up (and by
// tests that run a dialog through the desktop host).
void RegisterObjectDialogs();

}  // namespace tolva
