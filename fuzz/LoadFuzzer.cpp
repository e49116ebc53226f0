// libFuzzer target over the loader: any bytes as a resource file. The load
// must answer true or false, or end with a RuntimeFailure (the silent end of
// the Open command); anything else, a crash, a hang or a leak, is a finding.
// After a load that answered true the design is saved again, so the writer
// runs over whatever the loader built.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>

#include "QuietHost.h"
#include "document/LogSink.h"
#include "document/RuntimeFailure.h"
#include "screen/ctlTolvaScreen.h"
#include "screen/ScreenFiles.h"

namespace {

std::string ScratchPath(const char* what) {
    return "/tmp/tolva-fuzz-" + std::to_string(getpid()) + what;
}

std::string ProgramDirectory() {
    char buffer[4096];
    const ssize_t n = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    if (n <= 0) return ".";
    std::string path(buffer, static_cast<std::size_t>(n));
    return path.substr(0, path.find_last_of('/'));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string directory = ProgramDirectory();
    static const std::string input = ScratchPath(".txt");
    static const std::string output = ScratchPath("-out.txt");
    static const std::string header = ScratchPath("-out.h");
    {
        std::ofstream out(input, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    tolva::fuzz::QuietHost host(directory);
    tolva::NullLogSink log;
    tolva::ctlTolvaScreen screen(host, log);
    screen.SetCanvasSize(6255, 6255);
    try {
        screen.ClearScreen();
        screen.StartLoading();
        const bool loaded = tolva::LoadResourceFile(screen, input);
        screen.StopLoading();
        if (loaded) {
            tolva::SaveResourceFile(screen, output);
            tolva::SaveHeaderFile(screen, header);
        }
    } catch (const tolva::RuntimeFailure&) {
        screen.StopLoading();
    }
    return 0;
}
