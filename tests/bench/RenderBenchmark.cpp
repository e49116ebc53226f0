// Pictures of the forms of a generated design, timed at two sizes.
//
//   render_bench LOAD_SAVE_BENCH           prints the figures for 100 and
//                                          1,000 forms
//   render_bench LOAD_SAVE_BENCH --check   the same, and fails (exit 1) when
//                                          ten times the forms cost more than
//                                          twelve times the time
//
// The design is the load and save benchmark's (written by its --write): a
// tenth of the objects are forms, each holding nine objects of every other
// kind in turn, with real pictures for FORM.BMP and ICON.BMP. The design is
// loaded once; then every form's picture is painted and written as the
// command does, five times in turn with the other size, the median
// counting. The time of a whole command on 1,000 forms (load, paint, write)
// is printed beside it, as a pipeline sees it.
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "cli/ResCommand.h"
#include "cli/StderrHost.h"
#include "cli/qt/FormPictures.h"
#include "canvas/DeviceFont.h"
#include "canvas/FontWidths.h"
#include "document/LogSink.h"
#include "objects/form/ctlKOMAForm.h"
#include "screen/ScreenFiles.h"
#include "screen/ctlTolvaScreen.h"
#include "bench/DesignBenchFolder.h"
#include "support/BmpBytes.h"

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

double Ms(Clock::time_point from, Clock::time_point to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

// A loaded design and the time of painting all its forms.
class Design {
public:
    Design(const std::string& file, std::ostream& boxes) : host_(boxes), screen_(host_, log_) {
        screen_.SetCanvasSize(6255, 6255);
        screen_.ClearScreen();
        screen_.StartLoading();
        loaded_ = tolva::LoadResourceFile(screen_, file);
        screen_.StopLoading();
    }
    bool Loaded() const { return loaded_; }
    int Forms() const { return screen_.NumForms(); }

    // Milliseconds to paint every form and make its PNG bytes, or -1 when
    // one failed.
    double PaintAll() {
        const auto t0 = Clock::now();
        tolva::FormPictureMaker maker(screen_, 1);
        size_t bytes = 0;
        for (int i = 1; i <= Forms(); ++i) {
            const std::string png = maker.Png(i);
            if (png.empty()) return -1;
            bytes += png.size();
        }
        const auto t1 = Clock::now();
        lastBytes = bytes;
        return Ms(t0, t1);
    }
    size_t lastBytes = 0;

private:
    tolva::StderrHost host_;
    tolva::NullLogSink log_;
    tolva::ctlTolvaScreen screen_;
    bool loaded_ = false;
};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: render_bench LOAD_SAVE_BENCH [--check]\n");
        return 64;
    }
    const bool check = argc > 2 && std::strcmp(argv[2], "--check") == 0;
    // The generated designs, and real pictures for them.
    constexpr int kSmallForms = 100;
    constexpr int kLargeForms = 1000;
    tolva::testing::BmpSpec picture;
    picture.width = 10;
    picture.height = 12;
    picture.value = [](int x, int y) { return (x + y) % 3 ? 0x404040u : 0xE0E0E0u; };
    const tolva::testing::DesignBenchFolder folder("tolva-render-bench", argv[1],
                                                   {kSmallForms * 10, kLargeForms * 10},
                                                   tolva::testing::BmpFile(picture));
    if (!folder.Ok()) return 1;
    const auto design = [](int forms) { return tolva::testing::DesignBenchFolder::DesignFile(forms * 10); };

    // What the command reads before a load.
    std::ostringstream boxes;
    {
        tolva::StderrHost host(boxes);
        if (!tolva::LoadFontWidths(host)) return 1;
        tolva::LoadDeviceFonts(folder.ProgramFolder().string());
        if (!tolva::FindDeviceFont("TolvaSmall")) return 1;
    }

    Design small(design(kSmallForms), boxes);
    Design large(design(kLargeForms), boxes);
    if (!small.Loaded() || !large.Loaded() || small.Forms() != kSmallForms ||
        large.Forms() != kLargeForms) {
        std::fprintf(stderr, "the designs did not load: %s\n", boxes.str().c_str());
        return 1;
    }

    int status = 0;
    double ratio = 0;
    // A check measures up to three times and fails only when every
    // measurement is above twelve.
    for (int attempt = 0; attempt < (check ? 3 : 1); ++attempt) {
        std::vector<double> smallRuns, largeRuns;
        for (int round = 0; round < 5; ++round) {
            smallRuns.push_back(small.PaintAll());
            largeRuns.push_back(large.PaintAll());
        }
        if (*std::min_element(smallRuns.begin(), smallRuns.end()) < 0 ||
            *std::min_element(largeRuns.begin(), largeRuns.end()) < 0) {
            status = 1;
            break;
        }
        const double s = Median(smallRuns), l = Median(largeRuns);
        ratio = l / s;
        std::printf("%5d forms: %7.1f ms to paint and encode (median of 5)\n", kSmallForms, s);
        std::printf("%5d forms: %7.1f ms to paint and encode (median of 5), %zu bytes of PNG\n",
                    kLargeForms, l, large.lastBytes);
        std::printf("ten times the forms: %.1f times the time\n", ratio);
        if (!check || ratio <= 12) break;
        if (attempt == 2) status = 1;
    }

    // The whole command on 1,000 forms, as a pipeline runs it.
    if (status == 0) {
        std::ostringstream out, err;
        const auto t0 = Clock::now();
        const int code = tolva::RunResCommand({"--quiet", "render", design(kLargeForms), "command"}, out, err);
        const auto t1 = Clock::now();
        std::printf("tolva-res render of %d forms: %.1f ms, status %d\n", kLargeForms, Ms(t0, t1), code);
        if (code != 0) status = 1;
    }

    return status;
}
