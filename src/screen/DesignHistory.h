#pragma once
// DesignHistory: Undo and Redo for the design. After each step the design
// is kept as a snapshot (objects the step did not touch share their images
// with the snapshot before), named for the menu: "Move BUTTON_1". Undo puts
// the snapshot before back, Redo the one after. Opening a design, or a new
// one, starts a fresh history; saving marks the step the file holds, so the
// design counts as saved again when Undo or Redo returns to it.
#include <cstddef>
#include <string>
#include <vector>

#include "screen/DesignSnapshot.h"

namespace tolva {

class ctlTolvaScreen;

class DesignHistory {
public:
    // The most steps kept; the oldest go first.
    static constexpr std::size_t kMostSteps = 1000;

    explicit DesignHistory(ctlTolvaScreen& screen);

    // A fresh history: the design as it stands is where it starts, saved.
    void Reset();

    // Call before a step: the design as it stands (form on show, selection)
    // becomes what Undo returns to; the objects the step may touch are the
    // form on show and its objects, before and after it.
    void BeginStep();
    // After the step: the design as it now stands, named. `everything`
    // for a step that may reach beyond the form on show (a deletion).
    // Nothing is kept when no step was begun.
    void CommitStep(const std::string& name, bool everything = false);
    // A begun step that changed nothing.
    void CancelStep() { begun_ = false; }
    bool StepBegun() const { return begun_; }

    bool CanUndo() const { return position_ > 0; }
    bool CanRedo() const { return position_ + 1 < states_.size(); }
    // "Undo " or "Redo " and the step's name; "Undo" or "Redo" alone when
    // there is none.
    std::string UndoText() const;
    std::string RedoText() const;
    // False when there is nothing to undo or redo.
    bool Undo();
    bool Redo();

    // The step the saved file holds is the one on show.
    void MarkSaved() { saved_ = position_; savedValid_ = true; }
    bool IsSaved() const { return savedValid_ && saved_ == position_; }

    std::size_t StepCount() const { return states_.empty() ? 0 : states_.size() - 1; }
    std::size_t Position() const { return position_; }
    // The images the snapshots kept hold, each counted once however many
    // snapshots share it.
    std::size_t ImageCount() const;

private:
    void MoveTo(std::size_t position);

    struct State {
        std::string name;  // the step that led here
        DesignSnapshot snapshot;
    };

    ctlTolvaScreen& screen_;
    std::vector<State> states_;
    std::size_t position_ = 0;
    std::size_t saved_ = 0;
    bool savedValid_ = true;
    bool begun_ = false;
    std::vector<const KomaObject*> before_;
};

}  // namespace tolva
