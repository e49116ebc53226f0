#pragma once
// QuietObjectOwner: an owner that asks nothing and hears nothing. Names are
// never checked, no ID is found, no event goes anywhere and the stacking
// stamp is always 0. Holders of objects that are not on the screen (a
// table's cell objects, the history's copies) start from it and say where
// messages go; a holder that cares for one event overrides it.
#include "document/ObjectOwner.h"

namespace tolva {

class QuietObjectOwner : public ObjectOwner {
public:
    bool IsNewNameUnique(const std::string&, const std::string&) override { return true; }
    bool OwnerGetObjectID(const std::string&, int&) override { return false; }
    void ObjectMouseDown(KomaObject&, int, int, double, double) override {}
    void ObjectMouseMove(KomaObject&, int, int, double, double) override {}
    void ObjectMouseUp(KomaObject&, int, int, double, double) override {}
    void ObjectSelected(KomaObject&) override {}
    void ObjectDeleted(KomaObject&) override {}
    void ObjectMoved(KomaObject&, int, int) override {}
    void ObjectResized(KomaObject&, int, int) override {}
    void ObjectPicChanged(KomaObject&) override {}
    long long NextStackStamp(bool) override { return 0; }
};

}  // namespace tolva
