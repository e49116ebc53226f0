#include "shell/RunGuarded.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "document/Host.h"

namespace tolva {

namespace {

Host* g_host = nullptr;

void EndAtOnce(int status) {
    std::fflush(nullptr);
    std::_Exit(status);
}

std::function<void(int)>& ExitFunction() {
    static std::function<void(int)> exit = EndAtOnce;
    return exit;
}

// Set while the box of one failure is up, so that a failure inside the
// box's own event loop does not open a second one.
bool g_reporting = false;

void Report(const std::string& what) {
    if (!g_reporting) {
        g_reporting = true;
        if (g_host) {
            try {
                g_host->MessageBox(what, kRunTimeErrorTitle, MessageButtons::OK);
            } catch (...) {
                std::fprintf(stderr, "%s: %s\n", kRunTimeErrorTitle, what.c_str());
            }
        } else {
            std::fprintf(stderr, "%s: %s\n", kRunTimeErrorTitle, what.c_str());
        }
        g_reporting = false;
    }
    ExitFunction()(kRunTimeErrorStatus);
}

}  // namespace

void SetGuardHost(Host* host) { g_host = host; }
Host* GuardHost() { return g_host; }

void SetGuardExit(std::function<void(int)> exit) {
    ExitFunction() = exit ? std::move(exit) : std::function<void(int)>(EndAtOnce);
}

bool RunGuarded(const std::function<void()>& body) {
    try {
        body();
        return true;
    } catch (const std::exception& failure) {
        Report(failure.what());
    } catch (...) {
        Report("Unknown failure");
    }
    return false;
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    bool result = false;
    RunGuarded([&] { result = QApplication::notify(receiver, event); });
    return result;
}

}  // namespace tolva
