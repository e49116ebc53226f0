#pragma once
// The fixture of the screen tests: a screen on the main window's canvas of
// 6255 by 6255 screen units (36.59375 units per device pixel), a scripted
// host, a recording log and recording events.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "screen/ctlTolvaScreen.h"
#include "objects/form/ctlKOMAForm.h"
#include "support/RecordingScreenEvents.h"
#include "support/ScriptedHost.h"
#include "support/TestStrings.h"

namespace tolva::testing {

inline constexpr double kUnits = 36.59375;  // (6255 - 400) / 160

// The screen with a way to put a hand-made object at the end of an array, as
// a test of the registry's own rules needs.
class TestScreen : public ctlTolvaScreen {
public:
    using ctlTolvaScreen::ctlTolvaScreen;
    using ctlTolvaScreen::FindObject;

    KomaObject* Inject(int screenType, std::unique_ptr<KomaObject> object) {
        KomaObject* raw = AddToArray(screenType, std::move(object));
        raw->PCTwipsToTolvaPixels(PCTwipsToTolvaPixels());
        return raw;
    }
};

class ScreenTest : public ::testing::Test {
protected:
    ScriptedHost host;
    RecordingLog log;
    RecordingScreenEvents events;
    TestScreen screen{host, log};

    void SetUp() override {
        EnsureStringsLoaded();
        screen.SetCanvasSize(6255, 6255);
        screen.SetEvents(&events);
        log.lines.clear();
    }

    // A canvas position of a device pixel, as a whole number of units.
    static int At(int pixel) { return static_cast<int>(std::lround(200 + kUnits * pixel)); }

    // Sets the band round the device rectangle x, y, w, h and creates an
    // object of the type.
    bool Draw(int screenType, int x, int y, int w, int h) {
        screen.SetRubberBand({At(x), At(y), At(x + w), At(y + h)});
        return screen.CreateObject(screenType);
    }
    bool DrawForm() { return Draw(type::Form, 0, 0, 160, 160); }

    KomaObject* Obj(int screenType, int index) { return screen.ObjectAt(screenType, index); }
    ctlKOMAForm* Form(int index) { return screen.FormAt(index); }

    std::vector<std::string> Names(int screenType) { return screen.GetNameList(screenType); }

    void ClearRecords() {
        log.lines.clear();
        events.lines.clear();
        host.ClearRecord();
    }

    bool Logged(const std::string& line) const {
        for (const auto& l : log.lines)
            if (l == line) return true;
        return false;
    }
};

}  // namespace tolva::testing
