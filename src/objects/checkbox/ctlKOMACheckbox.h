#pragma once
// ctlKOMACheckbox: a check box; its size follows its pictures.
#include "objects/KomaControl.h"

namespace tolva {

class ctlKOMACheckbox : public KomaControl {
public:
    ctlKOMACheckbox();
};

}  // namespace tolva
