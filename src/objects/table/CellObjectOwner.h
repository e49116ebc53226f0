#pragma once
// CellObjectOwner: what an object in a table cell, or in the editor of a
// cell's object, talks to. Its names are never checked (a cell object is
// named anew when it is saved), it finds no ids, and of its events only a
// new size counts; each holder says where messages go and how a size is
// cut.
#include "document/ObjectOwner.h"

namespace tolva {

class CellObjectOwner : public ObjectOwner {
public:
    bool IsNewNameUnique(const std::string&, const std::string&) override { return true; }
    bool OwnerGetObjectID(const std::string&, int&) override { return false; }
    void ObjectMouseDown(KomaObject&, int, int, double, double) override {}
    void ObjectMouseMove(KomaObject&, int, int, double, double) override {}
    void ObjectMouseUp(KomaObject&, int, int, double, double) override {}
    void ObjectSelected(KomaObject&) override {}
    void ObjectDeleted(KomaObject&) override {}
    void ObjectMoved(KomaObject&, int, int) override {}
    void ObjectPicChanged(KomaObject&) override {}
    long long NextStackStamp(bool) override { return 0; }
};

}  // namespace tolva
