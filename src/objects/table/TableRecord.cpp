// The Table's record: written with its bitmap section and one group of
// lines per cell, and applied from the loader's 21 groups.
#include "document/Host.h"
#include "document/Numbers.h"
#include "document/Paths.h"
#include "document/RuntimeFailure.h"
#include "document/TextHelpers.h"
#include "document/Words.h"
#include "objects/PictureFiles.h"
#include "objects/RecordHeads.h"
#include "objects/table/ctlKOMATable.h"
#include "objects/table/modTable.h"
#include "resfile/Banners.h"

namespace tolva {

namespace {

void AppendCell(LineList& lines, const TableCell& cell, const KomaObject* object) {
    lines.push_back("//TABLE_TEXT,TABLE_VALUE,TABLE_UI_OBJECT");
    lines.push_back("(B)TABLE_DATA_TYPE=" + cell.dataType);
    // The id of the cell's object, whatever the data type says.
    lines.push_back("(U)TABLE_UI_OBJECT_ID=" + (object ? IntToText(object->KOMAObjectID()) : std::string()));
    lines.push_back("(B)TABLE_FONT=" + cell.font);
    lines.push_back("(W)TABLE_VALUE=" + IntToText(cell.value));
    lines.push_back("//LEFT,CENTRE,RIGHT");
    lines.push_back("(B)TABLE_TEXTMENT=" + cell.alignment);
    lines.push_back("//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK");
    lines.push_back("(B)TABLE_FONT_COLOR=" + cell.fontColor);
    lines.push_back("(B)TABLE_BACKGROUND_COLOR=" + cell.backColor);
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)TABLE_CELL_HIGHLIGHT=" + cell.highlight);
    lines.push_back("(BO)TABLECELL_HAS_BITMAP=" + cell.hasBitmap);
    lines.push_back("//any text");
    lines.push_back("(S)TABLE_TEXT=" + cell.text);
}

}  // namespace

void ctlKOMATable::ReturnResourceFileText(LineList& lines, bool& ok) {
    lines.clear();
    ok = false;
    const long long cellCount = static_cast<long long>(numRows_) * numColumns_;
    if (static_cast<long long>(cells_.size()) < cellCount ||
        static_cast<long long>(columnWidths_.size()) < numColumns_ ||
        static_cast<long long>(rowHeights_.size()) < numRows_) {
        // The counts have run ahead of the cell store (an insert or delete
        // in a cancelled Table Editor).
        lines.clear();
        Message("Error retrieving Table resource file text");
        return;
    }
    AppendRecordBanner(lines, KOMAName(), false);
    AppendHeadB(lines, *this, "#TABLE");
    lines.push_back("(U)TABLE_NUM_COLUMN=" + IntToText(numColumns_));
    lines.push_back("~F3");
    lines.push_back("(U)TABLE_NUM_ROW=" + IntToText(numRows_));
    lines.push_back("~F4");
    for (int c = 0; c < numColumns_; ++c)
        lines.push_back("(SH)TABLE_COLUMN_WIDTH=" + IntToText(columnWidths_[static_cast<std::size_t>(c)]));
    lines.push_back("~F5");
    for (int r = 0; r < numRows_; ++r)
        lines.push_back("(SH)TABLE_ROW_HEIGHT=" + IntToText(rowHeights_[static_cast<std::size_t>(r)]));
    lines.push_back("~F6");
    lines.push_back("(U)TABLE_TOP_ROW_NUM=" + IntToText(topRow_));
    lines.push_back("~F7");
    lines.push_back("(U)TABLE_LEFT_COL_NUM=" + IntToText(leftColumn_));
    lines.push_back("~F8");
    lines.push_back("//TABLE_STYLE_0,TABLE_STYLE_1,TABLE_STYLE_2");
    lines.push_back("(B)TABLE_STYLE=" + styleWord_);
    lines.push_back("~F9");
    lines.push_back("//COLOR_WHITE,COLOR_GREY1,COLOR_GREY2,COLOR_BLACK");
    lines.push_back("(B)TABLE_BACKGROUND_COLOR=" + backColorWord_);
    lines.push_back("~F10");
    if (TrimSpaces(bitmapFile_).empty()) {
        lines.push_back(kNoBitmapComment);
    } else {
        lines.push_back("//0 - 159");
        lines.push_back("(SH)TABLE_CELL_BITMAP.X=" + IntToText(bitmapX_));
        lines.push_back("(SH)TABLE_CELL_BITMAP.Y=" + IntToText(bitmapY_));
        lines.push_back("//0 - 160");
        lines.push_back("(SH)TABLE_CELL_BITMAP.WIDTH=" + IntToText(bitmapWidth_));
        lines.push_back("(SH)TABLE_CELL_BITMAP.HEIGHT=" + IntToText(bitmapHeight_));
        // Always four bits, whatever the depth; the short form of a file
        // that is gone is empty.
        const bool there = host().FileExists(bitmapFile_);
        if (!there) lines.push_back(kMissingBitmapComment);
        lines.push_back("(P)TABLE_CELL_BITMAP.FILE=Q_FOUR_BIT," + (there ? ShortPathName(bitmapFile_) : std::string()));
    }
    lines.push_back("~F11");
    for (int r = 1; r <= numRows_; ++r) {
        lines.push_back("//Row " + std::to_string(r) +
                        " -----------------------------------------------------------------");
        for (int c = 1; c <= numColumns_; ++c) {
            lines.push_back("//Cell (" + std::to_string(r) + "," + std::to_string(c) +
                            ") -------------------------------");
            KomaObject* object = nullptr;
            bool inGrid = false;
            GetObject(r, c, object, inGrid);
            AppendCell(lines, cells_[static_cast<std::size_t>((r - 1) * numColumns_ + (c - 1))], object);
        }
    }
    lines.push_back("~F12");
    lines.push_back("//TRUE or FALSE");
    lines.push_back("(BO)TABLE_ATTR.TABLE_ENABLE=" + enableWord_);
    lines.push_back("(BO)TABLE_ATTR.TABLE_SCROLLBAR=" + scrollbarWord_);
    lines.push_back("(BO)TABLE_ATTR.TABLE_ACTIVE=" + activeWord_);
    lines.push_back("(BO)TABLE_ATTR.TABLE_HIGHLIGHT_ENABLE=" + highlightWord_);
    lines.push_back("(BO)TABLE_ATTR.TABLE_VISIBLE=" + visibleWord_);
    lines.push_back("#END_TABLE");
    ok = true;
}

void ctlKOMATable::SetFromResText(const GroupList& groups, bool& ok) {
    ok = false;
    try {
        // 1. The shape.
        if (groups.size() != 21 || groups[0].size() != 2 || groups[1].size() != 4 ||
            groups[10].size() != 5 || groups[20].size() != 5)
            return;
        for (std::size_t i : {2u, 3u, 6u, 7u, 8u, 9u})
            if (groups[i].empty()) return;
        // 2. Name and place; the size read is dropped.
        KOMAName(groups[0][0]);
        KOMABoundsX(ToInt16(groups[1][0]));
        KOMABoundsY(ToInt16(groups[1][1]));
        StoreSize(0, 0);
        // 3. The counts.
        KOMANumColumns(ToInt32(groups[2][0]));
        KOMANumRows(ToInt32(groups[3][0]));
        // 4. A size for every column and row.
        if (static_cast<long long>(groups[4].size()) != numColumns_ ||
            static_cast<long long>(groups[5].size()) != numRows_)
            return;
        // 5. Sizes as they are; the first row and column with no test.
        columnWidths_.clear();
        for (const std::string& width : groups[4]) columnWidths_.push_back(ToInt32(width));
        rowHeights_.clear();
        for (const std::string& height : groups[5]) rowHeights_.push_back(ToInt32(height));
        topRow_ = ToInt32(groups[6][0]);
        leftColumn_ = ToInt32(groups[7][0]);
        // 6. The look and the bitmap, through their setters.
        KOMATableStyle(TableStyleWordToNumber(groups[8][0]));
        KOMABackColor(ColorFromWord(groups[9][0]));
        KOMABitmapX(ToInt32(groups[10][0]));
        KOMABitmapY(ToInt32(groups[10][1]));
        KOMABitmapWidth(ToInt32(groups[10][2]));
        KOMABitmapHeight(ToInt32(groups[10][3]));
        KOMABitmapFile(groups[10][4]);
        // 7. A value of every field for every cell.
        const long long cellCount = static_cast<long long>(numRows_) * numColumns_;
        for (std::size_t i = 11; i <= 19; ++i)
            if (static_cast<long long>(groups[i].size()) != cellCount) return;
        // 8. The cells, their words through the conversions.
        std::vector<TableCell> cells(static_cast<std::size_t>(cellCount));
        for (std::size_t n = 0; n < cells.size(); ++n) {
            TableCell& cell = cells[n];
            cell.dataType = CellDataTypeNumberToWord(CellDataTypeWordToNumber(groups[11][n]));
            cell.font = WordFromFont(FontFromWord(groups[12][n]));
            cell.value = ToInt32(groups[13][n]);
            cell.alignment = WordFromAlignment(AlignmentFromWord(groups[14][n]));
            cell.fontColor = WordFromColor(ColorFromWord(groups[15][n]));
            cell.backColor = WordFromColor(ColorFromWord(groups[16][n]));
            cell.highlight = WordFromBoolean(BooleanFromWord(groups[17][n]));
            cell.hasBitmap = WordFromBoolean(BooleanFromWord(groups[18][n]));
            cell.text = groups[19][n];
        }
        cells_ = std::move(cells);
        // 9. The flags.
        KOMAEnable(BooleanFromWord(groups[20][0]) != 0);
        KOMAScrollbar(BooleanFromWord(groups[20][1]) != 0);
        KOMAActive(BooleanFromWord(groups[20][2]) != 0);
        KOMAHighlightEnable(BooleanFromWord(groups[20][3]) != 0);
        KOMAVisible(BooleanFromWord(groups[20][4]) != 0);
        // 10. An empty grid of objects.
        objects_.clear();
        objects_.resize(static_cast<std::size_t>(numRows_));
        for (auto& row : objects_) row.resize(static_cast<std::size_t>(numColumns_));
        // 11.
        RaiseMoved();
        StoreSize(0, 0);
        ok = true;
    } catch (const RuntimeFailure&) {
        Message("Table - SetFromResText", "Error");
    } catch (const std::exception&) {
        Message("Table - SetFromResText", "Error");
    }
}

}  // namespace tolva
