#include "cli/ResCommand.h"

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
    "usage: tolva-res check IN.txt | tolva-res resave IN.txt OUT.txt [OUT.h] | tolva-res --help";

constexpr const char* kHelp =
    "tolva-res - the Tolva Resource Editor's loader and writers on the command line\n"
    "\n"
    "  tolva-res check IN.txt\n"
    "      Loads the resource file as the editor's Open does.\n"
    "  tolva-res resave IN.txt OUT.txt [OUT.h]\n"
    "      Loads it, then writes the resource text (and the header of object IDs)\n"
    "      as the editor's Save does.\n"
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

int RunResCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    if (args.size() == 1 && (args[0] == "--help" || args[0] == "-h")) {
        out << kHelp;
        return kResLoaded;
    }
    const bool check = !args.empty() && args[0] == "check" && args.size() == 2;
    const bool resave = !args.empty() && args[0] == "resave" && (args.size() == 3 || args.size() == 4);
    if (!check && !resave) {
        err << kUsage << '\n';
        return kResUsage;
    }

    StderrHost host(err);
    try {
        if (!StartUp(host)) return kResNotLoaded;
    } catch (const RuntimeFailure& failure) {
        err << "start failed: " << failure.what() << '\n';
        return kResNotLoaded;
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
        err << "load ended: " << failure.what() << '\n';
        return kResLoadEnded;
    }
    if (!loaded) {
        // Open's own box, after whatever the load said; a run-time failure
        // above shows none, as Open's handler shows none.
        host.MessageBox(kCouldNotLoadResourceFile, "", MessageButtons::OK);
        screen.StopLoading();
        return kResNotLoaded;
    }
    screen.StopLoading();
    if (check) return kResLoaded;

    // As Save does: the resource text, then the header with the same IDs.
    try {
        SaveResourceFile(screen, args[2]);
        if (args.size() == 4) SaveHeaderFile(screen, args[3]);
    } catch (const RuntimeFailure& failure) {
        err << "save failed: " << failure.what() << '\n';
        return kResLoadEnded;
    }
    return kResLoaded;
}

}  // namespace tolva
