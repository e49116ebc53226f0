#pragma once
// ctlKOMATextbox: a text box: a one-line text entry.
#include "document/KomaObject.h"

namespace tolva {

class ctlKOMATextbox : public KomaObject {
public:
    ctlKOMATextbox();
};

}  // namespace tolva
