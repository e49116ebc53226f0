#pragma once
// The program's entry: reads the string table, builds the shared lists and
// labels, reads the tables it needs and opens the main window.
#include <memory>

namespace tolva {

class Host;
class frmMain;

// Runs the program; returns its exit status.
int SubMain(int argc, char** argv);

// The start-up steps in their order, with the host of the program, up to and
// including the loading of the main window (made and loaded, shown when
// show is true). Gives the main window, or nothing when a step ended the
// start-up.
std::unique_ptr<frmMain> StartUp(Host& host, bool show = true);

// The steps one by one.
void LoadStringTable(Host& host);
void BuildColorWordList();
bool LoadFontWidthTables(Host& host);
void BuildValueLists();
void LoadPropertyLabelStrings();

}  // namespace tolva
