#pragma once
// RecordingScreenEvents: the main window's side of the screen's events for
// tests. Every event becomes one line, in the order raised:
// "Created BUTTON_1,0", "Deleted BUTTON_1,0", "Selected ,16",
// "Changed FORM_1,1", "MouseDown 1,0,615,1230".
#include <functional>
#include <string>
#include <vector>

#include "screen/ScreenEvents.h"

namespace tolva::testing {

class RecordingScreenEvents : public ScreenEvents {
public:
    std::vector<std::string> lines;
    // Runs inside every event, after the line is recorded: for tests of
    // handlers that call back into the screen.
    std::function<void(const std::string&)> onEvent;

    void MouseMove(int b, int s, double x, double y) override { Mouse("MouseMove", b, s, x, y); }
    void MouseDown(int b, int s, double x, double y) override { Mouse("MouseDown", b, s, x, y); }
    void MouseUp(int b, int s, double x, double y) override { Mouse("MouseUp", b, s, x, y); }
    void CreatedObject(const std::string& name, int t) override { Named("Created", name, t); }
    void DeletedObject(const std::string& name, int t) override { Named("Deleted", name, t); }
    void SelectedObject(const std::string& name, int t) override { Named("Selected", name, t); }
    void ChangedObject(const std::string& name, int t) override { Named("Changed", name, t); }

private:
    void Record(const std::string& line) {
        lines.push_back(line);
        if (onEvent) onEvent(line);
    }
    void Named(const char* what, const std::string& name, int t) {
        Record(std::string(what) + " " + name + "," + std::to_string(t));
    }
    void Mouse(const char* what, int b, int s, double x, double y) {
        Record(std::string(what) + " " + std::to_string(b) + "," + std::to_string(s) + "," +
               std::to_string(static_cast<long long>(x)) + "," +
               std::to_string(static_cast<long long>(y)));
    }
};

}  // namespace tolva::testing
