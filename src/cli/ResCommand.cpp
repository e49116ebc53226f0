#include "cli/ResCommand.h"

#include <sstream>

#include "canvas/DeviceFont.h"
#include "canvas/FontWidths.h"
#include "cli/StderrHost.h"
#include "cli/qt/FormPictures.h"
#include "document/DataDirectory.h"
#include "document/LogSink.h"
#include "document/RuntimeFailure.h"
#include "document/StringTable.h"
#include "document/Words.h"
#include "screen/ctlTolvaScreen.h"
#include "screen/ScreenFiles.h"

namespace tolva {

namespace {

constexpr const char* kUsage =
    "usage: tolva-res [--quiet] check IN.txt | tolva-res [--quiet] resave IN.txt OUT.txt [OUT.h] | "
    "tolva-res [--quiet] header IN.txt OUT.h | "
    "tolva-res [--quiet] render IN.txt OUTDIR [--scale N] [--form NAME] | tolva-res --help";

constexpr const char* kHelp =
    "tolva-res - the Tolva Resource Editor's loader and writers on the command line\n"
    "\n"
    "  tolva-res check IN.txt\n"
    "      Loads the resource file as the editor's Open does.\n"
    "  tolva-res resave IN.txt OUT.txt [OUT.h]\n"
    "      Loads it, then writes the resource text (and the header of object IDs)\n"
    "      as the editor's Save does.\n"
    "  tolva-res header IN.txt OUT.h\n"
    "      Loads it, then writes the header of object IDs alone, with the IDs the\n"
    "      editor's Save would give.\n"
    "  tolva-res render IN.txt OUTDIR [--scale N] [--form NAME]\n"
    "      Loads it, then writes a picture of each form, OUTDIR/FORMNAME.png: the\n"
    "      device screen as the device shows it, 160 by 160 device pixels in its\n"
    "      greys, each device pixel an N by N square (N from 1 to 32, 1 when not\n"
    "      given), painted as the editor's canvas paints it, without grid or\n"
    "      selection. --form paints that form alone. OUTDIR is made when missing.\n"
    "  --quiet (before the command)\n"
    "      Standard error holds only what a failed run says: the message boxes\n"
    "      of a load that goes well are not printed.\n"
    "\n"
    "Every message box the editor would show is printed to standard error as one\n"
    "line, TITLE: TEXT, and is answered with its first button. Relative bitmap\n"
    "names are looked up from the current directory, as in the editor.\n"
    "\n"
    "Exit status:\n"
    "  0   the load answered true (and the files were written)\n"
    "  1   the load answered false (its messages, then the Open command's own box\n"
    "      \"Could not load resource file\", are on standard error)\n"
    "  2   a run-time failure ended the load silently (\"load ended: \" and why on\n"
    "      standard error), or a file could not be written (\"save failed: \")\n"
    "      or a picture could not be (\"render failed: \")\n"
    "  64  a wrong command line\n";

class NoLog : public LogSink {
public:
    void AddLogLine(const std::string&) override {}
};

// What the editor reads at start-up that a load needs: the string table and
// the two width tables; and the glyphs of the device fonts, which pictures
// of the forms are drawn with.
bool StartUp(Host& host) {
    StringTable& table = StringTable::Shared();
    table.LoadFromFile(DataDirectory(host) + "/Strings.txt");
    table.SetLanguage(host.LanguageId());
    ColorWordList();
    if (!LoadFontWidths(host)) return false;
    LoadDeviceFonts(DataDirectory(host));
    return true;
}

// The command line of render: IN.txt OUTDIR, then --scale N and --form NAME
// in either order, each at most once.
bool ParseRender(const std::vector<std::string>& args, FormPicturesRequest& request) {
    if (args.size() < 3 || args[0] != "render") return false;
    request.folder = args[2];
    bool scaleGiven = false, formGiven = false;
    for (size_t i = 3; i < args.size(); i += 2) {
        if (i + 1 >= args.size()) return false;
        const std::string& value = args[i + 1];
        if (args[i] == "--scale" && !scaleGiven) {
            scaleGiven = true;
            if (value.empty() || value.size() > 2 ||
                value.find_first_not_of("0123456789") != std::string::npos)
                return false;
            request.scale = std::stoi(value);
            if (request.scale < kLeastPictureScale || request.scale > kMostPictureScale)
                return false;
        } else if (args[i] == "--form" && !formGiven && !value.empty()) {
            formGiven = true;
            request.form = value;
        } else {
            return false;
        }
    }
    return !request.folder.empty();
}

}  // namespace

int RunResCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    std::vector<std::string> args = arguments;
    const bool quiet = !args.empty() && args[0] == "--quiet";
    if (quiet) args.erase(args.begin());
    if (!quiet && args.size() == 1 && (args[0] == "--help" || args[0] == "-h")) {
        out << kHelp;
        return kResLoaded;
    }
    const bool check = !args.empty() && args[0] == "check" && args.size() == 2;
    const bool resave = !args.empty() && args[0] == "resave" && (args.size() == 3 || args.size() == 4);
    const bool header = !args.empty() && args[0] == "header" && args.size() == 3;
    FormPicturesRequest pictures;
    const bool render = ParseRender(args, pictures);
    if (!check && !resave && !header && !render) {
        err << kUsage << '\n';
        return kResUsage;
    }

    // Quiet, the boxes wait here and reach standard error only when the run
    // fails.
    std::ostringstream held;
    std::ostream& boxes = quiet ? static_cast<std::ostream&>(held) : err;
    const auto failed = [&](int status) {
        if (quiet) err << held.str();
        return status;
    };

    StderrHost host(boxes);
    try {
        if (!StartUp(host)) return failed(kResNotLoaded);
        // A picture shows device text as the device draws it, or not at all.
        if (render && (!FindDeviceFont("TolvaSmall") || !FindDeviceFont("TolvaMedium"))) {
            boxes << "start failed: the device fonts TolvaSmall.font and TolvaMedium.font are "
                     "missing from "
                  << DataDirectory(host) << '\n';
            return failed(kResNotLoaded);
        }
    } catch (const RuntimeFailure& failure) {
        boxes << "start failed: " << failure.what() << '\n';
        return failed(kResNotLoaded);
    }

    NoLog log;
    ctlTolvaScreen screen(host, log);
    // The main window's canvas: 6255 screen units a side.
    screen.SetCanvasSize(6255, 6255);

    // As Open does: a clear screen in its load state, then the load.
    bool loaded = false;
    screen.ClearScreen();
    screen.SelectObject(type::None, "");
    screen.StartLoading();
    try {
        loaded = LoadResourceFile(screen, args[1]);
    } catch (const RuntimeFailure& failure) {
        screen.StopLoading();
        boxes << "load ended: " << failure.what() << '\n';
        return failed(kResLoadEnded);
    }
    if (!loaded) {
        // Open's own box, after whatever the load said; a run-time failure
        // above shows none, as Open's handler shows none.
        host.MessageBox(kCouldNotLoadResourceFile, "", MessageButtons::OK);
        screen.StopLoading();
        return failed(kResNotLoaded);
    }
    screen.StopLoading();
    if (check) return kResLoaded;

    if (render) {
        const FormPicturesResult result = WriteFormPictures(screen, pictures);
        if (result.noSuchForm) {
            // A form the design lacks is a wrong command line.
            err << "tolva-res: " << result.failure << " in " << args[1] << '\n' << kUsage << '\n';
            return kResUsage;
        }
        if (!result.failure.empty()) {
            boxes << "render failed: " << result.failure << '\n';
            return failed(kResLoadEnded);
        }
        return kResLoaded;
    }

    // As Save does: the resource text, then the header with the same IDs;
    // the header alone takes the IDs Save would give.
    try {
        if (header) {
            screen.DistributeObjectIds();
            SaveHeaderFile(screen, args[2]);
        } else {
            SaveResourceFile(screen, args[2]);
            if (args.size() == 4) SaveHeaderFile(screen, args[3]);
        }
    } catch (const RuntimeFailure& failure) {
        boxes << "save failed: " << failure.what() << '\n';
        return failed(kResLoadEnded);
    }
    return kResLoaded;
}

}  // namespace tolva
