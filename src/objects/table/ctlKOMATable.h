#pragma once
// ctlKOMATable: the one object that holds other objects. It keeps a grid of
// rows and columns; every cell carries a TableCell, and may hold one object
// of the eleven kinds that can stand in a cell. The grid is never drawn on
// the design screen: there a table is a plain box saying "Table". Its rows,
// columns and cells are changed in the Table Editor, a cell's object in the
// Table Object Editor.
//
// The cell store (counts, sizes, cells) and the object grid are two stores
// on purpose: inserting and deleting rows and columns changes the objects
// and the counts only, SetTableProperties the counts, sizes and cells only.
// The Table Editor calls both, and the two agree after its Done.
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "document/KomaObject.h"
#include "objects/table/TableCell.h"
#include "objects/table/TableCellOwner.h"

namespace tolva {

class ctlKOMATable : public KomaObject {
public:
    static constexpr int kRowCount = 11;

    ctlKOMATable();
    ~ctlKOMATable() override;

    // --- the grid's counts and sizes -------------------------------------------------
    int KOMANumRows() const { return numRows_; }
    int KOMANumColumns() const { return numColumns_; }
    // 0 or more, else "Invalid value"; nothing else changes with them.
    void KOMANumRows(int rows);
    void KOMANumColumns(int columns);
    const std::vector<int>& RowHeights() const { return rowHeights_; }
    const std::vector<int>& ColumnWidths() const { return columnWidths_; }
    const std::vector<TableCell>& Cells() const { return cells_; }
    // The first row and column the device shows, from 0: up to the count
    // less one, else "Invalid value".
    int KOMATopRowNum() const { return topRow_; }
    void KOMATopRowNum(int row);
    int KOMALeftColumnNum() const { return leftColumn_; }
    void KOMALeftColumnNum(int column);

    // Replaces counts, sizes and cells with copies (cells row by row);
    // KOMAHeight and KOMAWidth become the sums, over 160 or not. The object
    // grid is not touched.
    void SetTableProperties(const TableProperties& properties);
    TableProperties GetTableProperties() const;

    // --- the look -------------------------------------------------------------------
    // 0 to 2 store their word, another number the empty word.
    int KOMATableStyle() const;
    void KOMATableStyle(int style);
    const std::string& KOMATableStyleWord() const { return styleWord_; }
    // A device colour stores its word; another number changes nothing.
    int KOMABackColor() const;
    void KOMABackColor(int color);
    const std::string& KOMABackColorWord() const { return backColorWord_; }

    // The table's cell bitmap: place 0 to 159, size 0 to 160, else "Invalid
    // value"; the file as CheckTableBitmapFile allows; depth 2 or 4.
    int KOMABitmapX() const { return bitmapX_; }
    void KOMABitmapX(int x);
    int KOMABitmapY() const { return bitmapY_; }
    void KOMABitmapY(int y);
    int KOMABitmapWidth() const { return bitmapWidth_; }
    void KOMABitmapWidth(int width);
    int KOMABitmapHeight() const { return bitmapHeight_; }
    void KOMABitmapHeight(int height);
    const std::string& KOMABitmapFile() const { return bitmapFile_; }
    void KOMABitmapFile(const std::string& path);
    int KOMABitmapDepth() const { return bitmapDepth_; }
    void KOMABitmapDepth(int depth);

    bool KOMAEnable() const { return enableWord_ == "TRUE"; }
    void KOMAEnable(bool value) { enableWord_ = Flag(value); }
    bool KOMAScrollbar() const { return scrollbarWord_ == "TRUE"; }
    void KOMAScrollbar(bool value) { scrollbarWord_ = Flag(value); }
    bool KOMAActive() const { return activeWord_ == "TRUE"; }
    void KOMAActive(bool value) { activeWord_ = Flag(value); }
    bool KOMAHighlightEnable() const { return highlightWord_ == "TRUE"; }
    void KOMAHighlightEnable(bool value) { highlightWord_ = Flag(value); }
    bool KOMAVisible() const { return visibleWord_ == "TRUE"; }
    void KOMAVisible(bool value) { visibleWord_ = Flag(value); }
    const std::string& KOMAEnableWord() const { return enableWord_; }
    const std::string& KOMAScrollbarWord() const { return scrollbarWord_; }
    const std::string& KOMAActiveWord() const { return activeWord_; }
    const std::string& KOMAHighlightEnableWord() const { return highlightWord_; }
    const std::string& KOMAVisibleWord() const { return visibleWord_; }

    // The id goes to every object in a cell as its related table.
    void KOMAObjectID(int id) override;
    using KomaObject::KOMAObjectID;

    // --- the object grid (TableGrid.cpp); rows and columns from 1 --------------------
    // A new empty row at r (columns: at c); those from there move on; the
    // count grows.
    void InsertRow(int row);
    void InsertColumn(int column);
    // Nothing with one row (column) left; otherwise its objects go, those
    // after it move back and the count falls.
    void DeleteRow(int row);
    void DeleteColumn(int column);
    // Puts a copy of the object into the cell by its kind's cell copy, and
    // points `object` at the table's own; no object empties the cell. ok is
    // false, and nothing changes, outside the grid. An object of a kind that
    // cannot stand in a cell leaves the cell as it is.
    void SetObject(int row, int column, KomaObject*& object, bool& ok);
    // The cell's object or nullptr; ok is false outside the grid.
    void GetObject(int row, int column, KomaObject*& object, bool& ok) const;
    // Every object of the grid, row by row, takes the next id.
    void DistributeEmbeddedObjectIDs(int& nextId);
    // The number of objects in cells.
    int CellObjectCount() const;

    // --- the objects in the cells, for the files (TableCellObjects.cpp) -------------
    // Empties blocks, then names every object in a cell by its kind, the
    // table and its place ("BUTTON_TABLE_1_CELL_2_3") and appends its
    // record, row by row, one block per object.
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
    // The loader's way into a cell: a new object of the screen type takes
    // the record and goes into the cell; ok is false outside the grid.
    virtual void CreateObjectInTable(int row, int column, int screenType,
                                     const GroupList& record, bool& ok);

    // --- the contract ------------------------------------------------------------------
    int PropertyRowCount() const override { return kRowCount; }
    void GetPropertyList(PropertyArray& rows) override;
    bool SetPropertyList(const PropertyArray& rows) override;
    void ReturnResourceFileText(LineList& lines, bool& ok) override;
    void SetFromResText(const GroupList& groups, bool& ok) override;
    // The copy of a whole table: place, size, three flags and the style,
    // then the counts, sizes and cells, then every cell's object.
    bool CopyModelFrom(const KomaObject& other) override;
    // Every member as it stands, and a copy of each cell's object of its
    // own (TableWholeCopy.cpp).
    bool CopyWholeStateFrom(const KomaObject& other) override;
    DrawElementList GetDrawElements() const override;
    // A right click offers "Set Bitmap..." and "Edit Table...".
    void MouseDown(int button, int shift, double x, double y) override;

    // Opens the Table Editor on the table (the popup menu's "Edit
    // Table...", and the last row of the inspector).
    void EditTable();

protected:
    // The size on the screen never reaches KOMAWidth and KOMAHeight: each
    // change of it sets both to 0.
    void OnCanvasResize() override;

private:
    friend class TableCellOwner;
    static const char* Flag(bool value) { return value ? "TRUE" : "FALSE"; }
    // Both sizes as they are, with no range test.
    void StoreSums();
    // Empty path accepted; a missing file, a path not in its short form, a
    // picture larger than 160 refused with their messages under the
    // table's name; otherwise the place becomes 0, 0 and the size the
    // picture's.
    bool CheckTableBitmapFile(const std::string& path);
    void SetBitmapFromChooser();
    // A cell object's size on the screen from its device size, cut to the
    // device's edge (TableGrid.cpp).
    void CellObjectResized(KomaObject& object, int width, int height);
    std::unique_ptr<KomaObject>* Cell(int row, int column);
    void RemoveCellObject(int row, int column);

    int numColumns_ = 1;
    int numRows_ = 1;
    std::vector<int> columnWidths_{kNewColumnWidth};
    std::vector<int> rowHeights_{kNewRowHeight};
    int topRow_ = 0;
    int leftColumn_ = 0;
    std::string styleWord_ = "TABLE_STYLE_0";
    std::string backColorWord_ = "COLOR_WHITE";
    int bitmapX_ = 0;
    int bitmapY_ = 0;
    int bitmapWidth_ = 0;
    int bitmapHeight_ = 0;
    std::string bitmapFile_;
    int bitmapDepth_ = 4;
    std::string enableWord_ = "TRUE";
    std::string scrollbarWord_ = "TRUE";
    std::string activeWord_ = "TRUE";
    std::string highlightWord_ = "TRUE";
    std::string visibleWord_ = "TRUE";
    std::vector<TableCell> cells_{TableCell{}};

    TableCellOwner cellOwner_{*this};
    // Rows of columns; an empty pointer is an empty cell.
    std::vector<std::vector<std::unique_ptr<KomaObject>>> objects_;
};

}  // namespace tolva
