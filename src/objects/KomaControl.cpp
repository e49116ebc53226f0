#include "objects/KomaControl.h"

namespace tolva {

KomaControl::KomaControl(int screenType, int controlStyle, const std::string& controlStyleWord,
                         int defaultWidth, int defaultHeight)
    : KomaObject(screenType, "CONTROL", defaultWidth, defaultHeight),
      ownControlStyle_(controlStyle),
      ownControlStyleWord_(controlStyleWord),
      controlStyleWord_(controlStyleWord) {}

int KomaControl::KOMAControlStyle() {
    if (controlStyleWord_ == ownControlStyleWord_) return ownControlStyle_;
    if (controlStyleWord_ == "0") Message("Unknown control style", "KOMAControlStyle");
    return 0;
}

bool KomaControl::CopyModelFrom(const KomaObject& other) {
    const auto* control = dynamic_cast<const KomaControl*>(&other);
    if (!control || !KomaObject::CopyModelFrom(other)) return false;
    controlStyleWord_ = control->controlStyleWord_;
    return true;
}

}  // namespace tolva
