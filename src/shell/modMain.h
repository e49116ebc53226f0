#pragma once
// The program's entry: builds the shared lists, reads the tables it needs and
// opens the main window.
namespace tolva {
int SubMain(int argc, char** argv);
}
