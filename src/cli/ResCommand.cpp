#include "cli/ResCommand.h"

#include <sstream>

#include "document/DataDirectory.h"
#include "canvas/FontWidths.h"
#include "cli/StderrHost.h"
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
    "tolva-res [--quiet] header IN.txt OUT.h | tolva-res --help";

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
    "  64  a wrong command line\n";

class NoLog : public LogSink {
public:
    void AddLogLine(const std::string&) override {}
};

// What the editor reads at start-up that a load needs: the string table and
// the two width tables.
bool StartUp(Host& host) {
    StringTable& table = StringTable::Shared();
    table.LoadFromFile(DataDirectory(host) + "/Strings.txt");
    table.SetLanguage(host.LanguageId());
    ColorWordList();
    return LoadFontWidths(host);
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
    if (!check && !resave && !header) {
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
