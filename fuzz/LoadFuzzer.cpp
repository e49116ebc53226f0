// libFuzzer target over the loader: any bytes as a resource file. The load
// must answer true or false, or end with a RuntimeFailure (the silent end of
// the Open command); anything else, a crash, a hang or a leak, is a finding.
// After a load that answered true the design is saved again, so the writer
// runs over whatever the loader built.
//
// The target works in a scratch directory holding the pictures the seed
// files name (FORM.BMP, ICON1.BMP, ICON2.BMP, ARROW.BMP) and one larger
// than the screen (HUGE.BMP), so that the picture rules of every kind run.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "QuietHost.h"
#include "canvas/FontWidths.h"
#include "document/LogSink.h"
#include "document/RuntimeFailure.h"
#include "screen/ctlTolvaScreen.h"
#include "screen/ScreenFiles.h"
#include "support/BmpBytes.h"

namespace {

std::string ScratchPath(const char* what) {
    return "/tmp/tolva-fuzz-" + std::to_string(getpid()) + what;
}

std::filesystem::path& PictureDirectory() {
    static std::filesystem::path directory;
    return directory;
}

void RemovePictureDirectory() {
    std::error_code error;
    std::filesystem::remove_all(PictureDirectory(), error);
}

// Makes the scratch directory with its pictures and works in it.
void EnterPictureDirectory() {
    PictureDirectory() = "/tmp/tf" + std::to_string(getpid() % 1000000);
    std::filesystem::create_directories(PictureDirectory());
    const struct {
        const char* name;
        int width, height, bits;
    } pictures[] = {{"FORM.BMP", 10, 12, 24},  {"ICON1.BMP", 16, 12, 4}, {"ICON2.BMP", 16, -12, 8},
                    {"ARROW.BMP", 16, 12, 1}, {"HUGE.BMP", 200, 200, 24}};
    for (const auto& p : pictures) {
        tolva::testing::BmpSpec picture;
        picture.width = p.width;
        picture.height = p.height;
        picture.bitsPerPixel = p.bits;
        if (p.bits <= 8) picture.palette = {0x000000, 0xFFFFFF}, picture.colorsUsed = 2;
        if (p.bits <= 8) picture.value = [](int x, int y) { return static_cast<uint32_t>((x + y) & 1); };
        std::ofstream(PictureDirectory() / p.name, std::ios::binary) << tolva::testing::BmpFile(picture);
    }
    std::filesystem::current_path(PictureDirectory());
    std::atexit(RemovePictureDirectory);
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
    static const bool entered = (EnterPictureDirectory(), true);
    (void)entered;
    static const std::string input = ScratchPath(".txt");
    static const std::string output = ScratchPath("-out.txt");
    static const std::string header = ScratchPath("-out.h");
    {
        std::ofstream out(input, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    tolva::fuzz::QuietHost host(directory);
    // Fields wrap against the device's widths, as in the editor.
    static const bool widths = tolva::LoadFontWidths(host);
    (void)widths;
    tolva::NullLogSink log;
    tolva::ctlTolvaScreen screen(host, log);
    screen.SetCanvasSize(6255, 6255);
    try {
        screen.ClearScreen();
        screen.StartLoading();
        const bool loaded = tolva::LoadResourceFile(screen, input);
        screen.StopLoading();
        if (loaded) {
            // Every object laid out into what the canvas would paint.
            for (int type = 0; type <= 16; ++type)
                for (int i = 1; i <= screen.Count(type); ++i)
                    if (tolva::KomaObject* object = screen.ObjectAt(type, i)) (void)object->GetDrawElements();
            tolva::SaveResourceFile(screen, output);
            tolva::SaveHeaderFile(screen, header);
        }
    } catch (const tolva::RuntimeFailure&) {
        screen.StopLoading();
    }
    return 0;
}
