// Load and save of a generated design, timed at growing sizes.
//
//   load_save_bench             prints the figures for 500, 5000 and 50000 forms
//   load_save_bench --check     runs 1000 and 10000 forms and fails (exit 1)
//                               when ten times the records cost more than
//                               thirty times the time: a quadratic step would
//                               cost a hundred times.
//
// Every form carries a title, a bitmap block and a menu-free object list, so
// each record is the full form record of about forty lines.
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "document/Host.h"
#include "document/LogSink.h"
#include "document/RuntimeFailure.h"
#include "document/ctlTolvaScreen.h"
#include "resfile/ResourceFiles.h"

namespace {

using Clock = std::chrono::steady_clock;

class BenchHost : public tolva::Host {
public:
    explicit BenchHost(std::string directory) : directory_(std::move(directory)) {}
    int messages = 0;
    std::string firstMessage;
    tolva::MessageAnswer MessageBox(const std::string& text, const std::string& title,
                                    tolva::MessageButtons) override {
        if (++messages == 1) firstMessage = title + ": " + text;
        return tolva::MessageAnswer::OK;
    }
    std::optional<std::string> ChooseOpenFile(const tolva::FileChooserRequest&) override { return {}; }
    std::optional<std::string> ChooseSaveFile(const tolva::FileChooserRequest&) override { return {}; }
    std::string GetSetting(const std::string&, const std::string&, const std::string&,
                           const std::string& value) override {
        return value;
    }
    void SaveSetting(const std::string&, const std::string&, const std::string&,
                     const std::string&) override {}
    std::optional<tolva::PictureSize> LoadPicture(const std::string&) override {
        return tolva::PictureSize{10, 12};
    }
    std::optional<int> PopupMenu(const std::string&, const std::vector<std::string>&) override {
        return {};
    }
    void SetCursor(tolva::CursorShape) override {}
    void OpenInViewer(const std::string&) override {}
    void OpenMail(const std::string&, const std::string&) override {}
    bool FileExists(const std::string& path) override { return std::filesystem::exists(path); }
    std::string ProgramDirectory() override { return directory_; }
    int LanguageId() override { return 1033; }

private:
    std::string directory_;
};

std::string ProgramDirectory() {
    char buffer[4096];
    const ssize_t n = readlink("/proc/self/exe", buffer, sizeof buffer - 1);
    if (n <= 0) return ".";
    std::string path(buffer, static_cast<std::size_t>(n));
    return path.substr(0, path.find_last_of('/'));
}

void WriteForms(const std::string& path, int count) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    const char* banner = "//-----------------------------------------------------------------\r\n";
    for (int i = 0; i < count; ++i) {
        const std::string name = "FORM_" + std::to_string(i + 1);
        out << banner << "//----------- " << name << " ------------------------------------------\r\n"
            << banner << "#FORM\r\nNAME=" << name << "\r\nID=" << i << "\r\n~F0\r\n"
            << "(B)OBJECT.TYPE=FORM\r\n~F1\r\n//0 - 159\r\n(SH)BOUNDS.X=0\r\n(SH)BOUNDS.Y=0\r\n"
            << "//0 - 160\r\n(SH)BOUNDS.WIDTH=160\r\n(SH)BOUNDS.HEIGHT=160\r\n~F2\r\n"
            << "(U)FOCUSED_OBJECT=0\r\n~F3\r\n//BACKGROUND,NORMAL,BITMAP_DIALOG,NON_BITMAP_DIALOG\r\n"
            << "(B)FORM_STYLE=NORMAL\r\n~F4\r\n//any text\r\n(S)FORM_TITLE=Form " << i << "\r\n~F5\r\n"
            << "//0 - 159\r\n(SH)FORM_BITMAP.X=7\r\n(SH)FORM_BITMAP.Y=3\r\n//0 - 160\r\n"
            << "(SH)FORM_BITMAP.WIDTH=10\r\n(SH)FORM_BITMAP.HEIGHT=12\r\n"
            << "(P)FORM_BITMAP.FILE=Q_FOUR_BIT,FORM.BMP\r\n~F6\r\n(U)NO_OF_OBJECTS=0\r\n~F7\r\n"
            << "#END_FORM\r\n";
    }
}

struct Figures {
    double loadMs = 0;
    double saveMs = 0;
    bool ok = false;
};

Figures Run(int forms, const std::string& directory) {
    const std::string base = "/tmp/tolva-bench-" + std::to_string(getpid());
    WriteForms(base + ".txt", forms);
    BenchHost host(directory);
    tolva::NullLogSink log;
    tolva::ctlTolvaScreen screen(host, log);
    screen.SetCanvasSize(6255, 6255);
    Figures figures;
    try {
        screen.ClearScreen();
        screen.StartLoading();
        const auto t0 = Clock::now();
        figures.ok = tolva::LoadResourceFile(screen, base + ".txt");
        screen.StopLoading();
        const auto t1 = Clock::now();
        tolva::SaveResourceFile(screen, base + "-out.txt");
        tolva::SaveHeaderFile(screen, base + "-out.h");
        const auto t2 = Clock::now();
        figures.loadMs = std::chrono::duration<double, std::milli>(t1 - t0).count();
        figures.saveMs = std::chrono::duration<double, std::milli>(t2 - t1).count();
        figures.ok = figures.ok && screen.NumForms() == forms && host.messages == 0;
        if (!figures.ok)
            std::fprintf(stderr, "%d forms made, %d messages, the first: %s\n", screen.NumForms(),
                         host.messages, host.firstMessage.c_str());
    } catch (const tolva::RuntimeFailure& failure) {
        std::fprintf(stderr, "load ended: %s\n", failure.what());
    }
    std::remove((base + ".txt").c_str());
    std::remove((base + "-out.txt").c_str());
    std::remove((base + "-out.h").c_str());
    return figures;
}

}  // namespace

int main(int argc, char** argv) {
    const bool check = argc > 1 && std::strcmp(argv[1], "--check") == 0;
    const std::string directory = ProgramDirectory();
    // The forms name "FORM.BMP": it stands in the working directory, as the
    // resource compiler wants it, so every form loads its picture.
    const auto work = std::filesystem::temp_directory_path() / ("tolva-bench-" + std::to_string(getpid()));
    std::filesystem::create_directories(work);
    std::filesystem::current_path(work);
    std::ofstream(work / "FORM.BMP", std::ios::binary) << "BM";
    const int sizes[] = {check ? 1000 : 500, check ? 10000 : 5000, check ? 0 : 30000};
    Figures previous;
    int previousSize = 0;
    for (int forms : sizes) {
        if (forms == 0) break;
        const Figures f = Run(forms, directory);
        std::printf("%6d forms (%7d lines): load %9.1f ms, save %8.1f ms%s\n", forms, forms * 42,
                    f.loadMs, f.saveMs, f.ok ? "" : "  FAILED");
        if (!f.ok) {
            std::filesystem::current_path(directory);
            std::filesystem::remove_all(work);
            return 1;
        }
        if (check && previousSize > 0) {
            const double ratio = (f.loadMs + f.saveMs) / (previous.loadMs + previous.saveMs);
            std::printf("ten times the records: %.1f times the time\n", ratio);
            if (ratio > 30) return 1;
        }
        previous = f;
        previousSize = forms;
    }
    std::filesystem::current_path(directory);
    std::filesystem::remove_all(work);
    return 0;
}
