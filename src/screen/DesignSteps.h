#pragma once
// DesignSteps: turns what the user does into named steps of the design's
// history. A gesture on the canvas, a menu command, an inspector row or a
// dialog begins a step and ends it; in between the main window says what
// happened (an object drawn, deleted, a dialog's OK, a row set), and the end
// names the step after it, or finds that an object was moved or resized,
// or drops the step when the design did not change. Begins may nest (a
// right-click opens a dialog): the outermost end decides.
#include <string>
#include <unordered_map>

#include "canvas/CanvasRect.h"

namespace tolva {

class ctlTolvaScreen;
class DesignHistory;
class KomaObject;

class DesignSteps {
public:
    DesignSteps(ctlTolvaScreen& screen, DesignHistory& history);

    void Begin();
    void Created(const std::string& name);
    void Deleted(const std::string& name);
    // A change named by the caller ("Set Text of BUTTON_1", "Edit LIST_1").
    void Edited(const std::string& name);
    // An entry chosen in an object's popup menu: the step's name when the
    // entry changes the design by itself, or opens a dialog that is not
    // cancelled.
    void Chose(const std::string& name);
    // A dialog closed: with OK (or a dialog whose own changes stay after a
    // Cancel) a step, named by the popup entry that opened it or else by
    // `name`; a Cancel keeps nothing.
    void DialogClosed(bool accepted, bool keepsChangesOnCancel, const std::string& name);
    // True when a step was kept.
    bool End();
    bool Open() const { return depth_ > 0; }

private:
    struct Box {
        int x = 0, y = 0, width = 0, height = 0;
        std::string name;
    };
    std::unordered_map<const KomaObject*, Box> BoxesOfTheFormOnShow() const;

    ctlTolvaScreen& screen_;
    DesignHistory& history_;
    int depth_ = 0;
    std::string created_, deleted_, edited_, chosen_;
    bool dialogCancelled_ = false;
    std::unordered_map<const KomaObject*, Box> before_;
};

}  // namespace tolva
