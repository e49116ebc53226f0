#pragma once
// ctlKOMARepeatButton: a repeat button: a picture that repeats its action while held; its size
// follows its bitmap.
#include "objects/KomaControl.h"

namespace tolva {

class ctlKOMARepeatButton : public KomaControl {
public:
    ctlKOMARepeatButton();
};

}  // namespace tolva
