#include "screen/ScreenFocus.h"

#include "screen/ctlTolvaScreen.h"

namespace tolva {

void GiveFocusTo(const ctlTolvaScreen& screen, KomaObject& object) {
    for (int t = 0; t < type::Count; ++t) {
        if (t == type::Menu) continue;
        for (int i = 1; i <= screen.Count(t); ++i)
            if (KomaObject* other = screen.ObjectAt(t, i)) other->ClearFocus();
    }
    object.SetFocus();
}

}  // namespace tolva
