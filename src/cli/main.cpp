// tolva-res: the command-line companion of the editor.
#include <iostream>
#include <string>
#include <vector>

#include "cli/ResCommand.h"

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    return tolva::RunResCommand(args, std::cout, std::cerr);
}
