#pragma once
// The program's entry: reads the string table, builds the shared lists and
// labels, reads the tables it needs and opens the main window.
#include <memory>
#include <vector>

#include "inspector/PropertyArray.h"

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

// One kind's place in the building of the value lists: its name, its screen
// type, and the routine of its module that fills its lists. A kind whose
// module is not in the program yet keeps its place with no routine.
struct ValueListStep {
    const char* kind;
    int type;
    void (*fill)(ValueLists& lists);
};
// The kinds in the order their lists are built.
const std::vector<ValueListStep>& ValueListSteps();
void LoadPropertyLabelStrings();

}  // namespace tolva
