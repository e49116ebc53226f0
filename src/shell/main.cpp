// tolva-designer: the editor. No command line is read.
#include "shell/modMain.h"

int main(int argc, char** argv) { return tolva::SubMain(argc, argv); }
