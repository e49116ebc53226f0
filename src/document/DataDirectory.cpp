#include "document/DataDirectory.h"

#include "document/Host.h"

#ifndef TOLVA_INSTALL_DATA_DIR
#define TOLVA_INSTALL_DATA_DIR "/usr/local/share/tolva-designer"
#endif

namespace tolva {

std::string DataDirectory(Host& host) {
    // The string table stands for all of them.
    const std::string program = host.ProgramDirectory();
    const std::string beside = program;
    if (host.FileExists(beside + "/Strings.txt")) return beside;
    const std::string installed = program + "/../share/" + kDataFolderName;
    if (host.FileExists(installed + "/Strings.txt")) return installed;
    const std::string built = TOLVA_INSTALL_DATA_DIR;
    if (host.FileExists(built + "/Strings.txt")) return built;
    return beside;
}

}  // namespace tolva
