#pragma once
// CellObjectOwner: what an object in a table cell, or in the editor of a
// cell's object, talks to. Its names are never checked (a cell object is
// named anew when it is saved), it finds no ids, and of its events only a
// new size counts; each holder says where messages go and how a size is
// cut.
#include "document/QuietObjectOwner.h"

namespace tolva {

class CellObjectOwner : public QuietObjectOwner {
public:
    void ObjectResized(KomaObject& object, int width, int height) override = 0;
};

}  // namespace tolva
