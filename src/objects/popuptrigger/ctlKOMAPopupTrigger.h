#pragma once
// ctlKOMAPopupTrigger: a popup trigger: a control that opens a list of items.
#include "objects/KomaControl.h"

namespace tolva {

class ctlKOMAPopupTrigger : public KomaControl {
public:
    ctlKOMAPopupTrigger();
};

}  // namespace tolva
