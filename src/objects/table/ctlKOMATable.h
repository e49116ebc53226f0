#pragma once
// ctlKOMATable: a table: a grid of cells that may hold objects of their own.
#include <string>
#include <utility>
#include <vector>

#include "document/KomaObject.h"

namespace tolva {

class ctlKOMATable : public KomaObject {
public:
    ctlKOMATable();

    // --- the objects in the cells, for the files --------------------------------
    // The bodies in TableCellObjects.cpp answer as a table with no cell
    // objects does, until the table's grid of objects is built.

    // Empties blocks, then appends the record of every object in a cell, row
    // by row, one block per object.
    virtual void GetTableObjectText(std::vector<LineList>& blocks);
    // Empties entries, then appends the name and the ID (as text) of every
    // object in a cell, row by row: the header's lines of the cells.
    virtual void GetHeaderEmbeddedObjectHeaderInfo(
        std::vector<std::pair<std::string, std::string>>& entries);
    // Empties pairs, then appends the ID (as text) and the type word of
    // every object in a cell, row by row: the pairs the form's record lists
    // behind its own objects.
    virtual void GetTableObjectTypesAndIds(
        std::vector<std::pair<std::string, std::string>>& pairs);
    // The loader's way into a cell (row and column from 1): a new object of
    // the screen type takes the record; ok is false outside the grid.
    virtual void CreateObjectInTable(int row, int column, int screenType,
                                     const GroupList& record, bool& ok);

protected:
    // The table's device size does not follow its box on the canvas.
    void OnCanvasResize() override { LayOut(); }
};

}  // namespace tolva
