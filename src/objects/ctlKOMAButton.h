#pragma once
// ctlKOMAButton: a button: a rectangle with a text on the device screen.
#include "objects/KomaControl.h"

namespace tolva {

class ctlKOMAButton : public KomaControl {
public:
    ctlKOMAButton();
};

}  // namespace tolva
