#pragma once
// The top-level guard. No exception may cross Qt's event loop: every slot
// and event handler of the window layer runs its body through RunGuarded.
// A failure that reaches the guard shows a box titled "Run-time error" with
// what failed and ends the program with a non-zero status.
#include <QApplication>
#include <functional>

namespace tolva {

class Host;

inline constexpr const char* kRunTimeErrorTitle = "Run-time error";
inline constexpr int kRunTimeErrorStatus = 1;

// The host that shows the box; without one the failure goes to standard error.
void SetGuardHost(Host* host);
Host* GuardHost();

// What ends the program; by default the process ends at once with the status.
// Tests put a recorder here.
void SetGuardExit(std::function<void(int)> exit);

// Runs the body. Returns true when it ran to its end; false when a failure
// was caught (after the box and the exit call, should the exit return).
bool RunGuarded(const std::function<void()>& body);

// The application object, with the guard round every event it delivers, so
// that an event handler which forgot its own guard still cannot let a
// failure loose in the event loop.
class GuardedApplication : public QApplication {
public:
    GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {}
    bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace tolva
