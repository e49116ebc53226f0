#include "screen/DesignSteps.h"

#include "screen/DesignHistory.h"
#include "screen/ctlTolvaScreen.h"

namespace tolva {

DesignSteps::DesignSteps(ctlTolvaScreen& screen, DesignHistory& history)
    : screen_(screen), history_(history) {}

std::unordered_map<const KomaObject*, DesignSteps::Box> DesignSteps::BoxesOfTheFormOnShow() const {
    std::unordered_map<const KomaObject*, Box> boxes;
    for (const KomaObject* object : screen_.CurrentFormObjects())
        boxes[object] = Box{object->KOMABoundsX(), object->KOMABoundsY(), object->KOMAWidth(),
                            object->KOMAHeight(), object->KOMAName()};
    return boxes;
}

void DesignSteps::Begin() {
    if (depth_++ > 0) return;
    created_.clear();
    deleted_.clear();
    edited_.clear();
    chosen_.clear();
    dialogCancelled_ = false;
    before_ = BoxesOfTheFormOnShow();
    history_.BeginStep();
}

void DesignSteps::Created(const std::string& name) {
    if (depth_ > 0 && created_.empty()) created_ = name;
}

void DesignSteps::Deleted(const std::string& name) {
    // A form takes its objects with it: the first deletion names the step.
    if (depth_ > 0 && deleted_.empty()) deleted_ = name;
}

void DesignSteps::Edited(const std::string& name) {
    if (depth_ > 0 && edited_.empty()) edited_ = name;
}

void DesignSteps::Chose(const std::string& name) {
    if (depth_ > 0 && chosen_.empty()) chosen_ = name;
}

void DesignSteps::DialogClosed(bool accepted, bool keepsChangesOnCancel, const std::string& name) {
    if (depth_ == 0) return;
    if (accepted || keepsChangesOnCancel) {
        Edited(chosen_.empty() ? name : chosen_);
    } else {
        dialogCancelled_ = true;
    }
}

bool DesignSteps::End() {
    if (depth_ == 0 || --depth_ > 0) return false;
    if (!deleted_.empty()) {
        // The object that takes the gap changes its name and index: the
        // snapshot finds it without being told.
        history_.CommitStep("Delete " + deleted_);
        return true;
    }
    if (!created_.empty()) {
        history_.CommitStep("Draw " + created_);
        return true;
    }
    if (!edited_.empty()) {
        history_.CommitStep(edited_);
        return true;
    }
    if (!chosen_.empty() && !dialogCancelled_) {
        history_.CommitStep(chosen_);
        return true;
    }
    // A drag: the object whose box changed.
    for (const auto& [object, now] : BoxesOfTheFormOnShow()) {
        auto it = before_.find(object);
        if (it == before_.end()) continue;
        const Box& was = it->second;
        if (was.width != now.width || was.height != now.height) {
            history_.CommitStep("Resize " + now.name);
            return true;
        }
        if (was.x != now.x || was.y != now.y) {
            history_.CommitStep("Move " + now.name);
            return true;
        }
    }
    history_.CancelStep();
    return false;
}

}  // namespace tolva
