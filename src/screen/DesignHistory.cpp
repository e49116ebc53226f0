#include "screen/DesignHistory.h"

#include <unordered_set>

#include "screen/ctlTolvaScreen.h"

namespace tolva {

DesignHistory::DesignHistory(ctlTolvaScreen& screen) : screen_(screen) {}

void DesignHistory::Reset() {
    states_.clear();
    states_.push_back(State{"", screen_.TakeSnapshot(nullptr, SnapshotScope{true, {}})});
    position_ = 0;
    saved_ = 0;
    savedValid_ = true;
    begun_ = false;
    before_.clear();
}

void DesignHistory::BeginStep() {
    if (states_.empty()) Reset();
    // What happened since the last step without being one (another form
    // shown, another object selected, the ids given afresh by a save) is
    // where an Undo of this step returns to.
    states_[position_].snapshot = screen_.TakeSnapshot(&states_[position_].snapshot, SnapshotScope{});
    before_ = screen_.CurrentFormObjects();
    begun_ = true;
}

void DesignHistory::CommitStep(const std::string& name, bool everything) {
    if (!begun_) return;
    begun_ = false;
    SnapshotScope scope;
    scope.everything = everything;
    scope.objects = std::move(before_);
    before_.clear();
    for (const KomaObject* object : screen_.CurrentFormObjects()) scope.objects.push_back(object);

    // A new step drops what could have been redone.
    states_.erase(states_.begin() + static_cast<std::ptrdiff_t>(position_ + 1), states_.end());
    if (savedValid_ && saved_ > position_) savedValid_ = false;
    DesignSnapshot snapshot = screen_.TakeSnapshot(&states_[position_].snapshot, scope);
    states_.push_back(State{name, std::move(snapshot)});
    ++position_;
    if (states_.size() > kMostSteps + 1) {
        states_.erase(states_.begin());
        --position_;
        if (saved_ == 0) savedValid_ = false;
        else --saved_;
    }
}

std::string DesignHistory::UndoText() const {
    return CanUndo() ? "Undo " + states_[position_].name : "Undo";
}

std::string DesignHistory::RedoText() const {
    return CanRedo() ? "Redo " + states_[position_ + 1].name : "Redo";
}

bool DesignHistory::Undo() {
    if (!CanUndo()) return false;
    MoveTo(position_ - 1);
    return true;
}

bool DesignHistory::Redo() {
    if (!CanRedo()) return false;
    MoveTo(position_ + 1);
    return true;
}

void DesignHistory::MoveTo(std::size_t position) {
    // The design as it stands, so that the objects it shares with the step
    // put back stay where they are.
    const DesignSnapshot current = screen_.TakeSnapshot(&states_[position_].snapshot, SnapshotScope{});
    position_ = position;
    screen_.RestoreSnapshot(states_[position_].snapshot, &current);
}

std::size_t DesignHistory::ImageCount() const {
    std::unordered_set<const ObjectImage*> images;
    for (const State& state : states_)
        for (const auto& array : state.snapshot.arrays)
            for (const auto& image : array) images.insert(image.get());
    return images.size();
}

}  // namespace tolva
