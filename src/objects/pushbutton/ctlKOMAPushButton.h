#pragma once
// ctlKOMAPushButton: a push button: a button that stays pushed, one of a group.
#include "objects/KomaControl.h"

namespace tolva {

class ctlKOMAPushButton : public KomaControl {
public:
    ctlKOMAPushButton();
};

}  // namespace tolva
