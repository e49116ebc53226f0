#pragma once
// The arithmetic of the property view's layout, in screen units: how many
// rows fit, where the scroll bar stands and what range it has, which rows are
// on show, where each row's label and editor go, how far the divider may be
// dragged, and where the fixed parts stand after a resize. The widget only
// turns these numbers into pixels.

namespace tolva::propview {

// The view's starting measures, in screen units.
inline constexpr int kNameColumnWidth = 2900;
inline constexpr int kNameRowHeight = 315;
inline constexpr int kValueColumnWidth = 1935;
inline constexpr int kValueRowHeight = 315;
// The margin kept round everything.
inline constexpr int kMargin = 15;
// The title's height, set at each resize.
inline constexpr int kTitleHeight = 500;
// The scroll bar's width while it is shown.
inline constexpr int kScrollBarWidth = 255;
// The sliding divider's width, and the gap between it and an editor.
inline constexpr int kDividerWidth = 50;
// The divider's left edge never goes below this.
inline constexpr int kDividerMinimumLeft = 700;
// Room the value column keeps at the right of the divider.
inline constexpr int kValueColumnMinimum = 1000;

// Rows that fit under the title when a property list is set: (view height
// less title height) / row height, less 2, rounded half to even.
int VisibleRowsAfterSet(double viewHeight, double titleHeight, double nameRowHeight);

// The same after a resize of the view, which counts one row more (less 1
// instead of less 2); the extra row holds until the next list is set.
int VisibleRowsAfterResize(double viewHeight, double titleHeight, double nameRowHeight);

// The scroll bar for a list of numProperties rows.
struct ScrollBarSetting {
    bool shown = false;
    int width = 0;
    int minimum = 1;
    int maximum = 1;
};
// Hidden with width 0 when every row fits; otherwise shown, 255 wide, with
// the range 1 to numProperties less numVisibleRows.
ScrollBarSetting ScrollBarFor(int numProperties, int numVisibleRows);

// The rows on show, first and last (the last may lie past the list's end,
// and the span holds one row more than numVisibleRows while scrolled).
struct VisibleRows {
    int first = 1;
    int last = 0;
};
// All rows when they fit; otherwise from the scroll bar's value to that
// value plus numVisibleRows.
VisibleRows RowsOnShow(int numProperties, int numVisibleRows, int scrollValue);

// The top of a row on show: title height + (row less first) rows + margin.
double RowTop(int row, int firstVisibleRow, double titleHeight, double valueRowHeight);

// Where a row's label and editor stand across the view.
struct RowColumns {
    double labelLeft = 0;
    double labelWidth = 0;
    double editorLeft = 0;
    double editorWidth = 0;
};
// The label from the margin to the divider; the editor from the divider's
// right side plus the margin to the scroll bar (when shown) or the view's
// right edge, less 30.
RowColumns PlaceRowColumns(double dividerLeft, double viewWidth, bool scrollBarShown,
                           double scrollBarLeft);

// The divider's new left edge when the mouse moved by mouseX while dragging:
// the old left plus mouseX as a whole number, at least 700, and held so that
// its right edge stays within the view's width less 1015 (so at most the
// view's width less 1065).
int DraggedDividerLeft(double currentLeft, double mouseX, double viewWidth);

struct UnitRect {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool operator==(const UnitRect&) const = default;
};

// The fixed parts of the view after a resize.
struct ResizeGeometry {
    UnitRect title;
    UnitRect border;
    UnitRect scrollBar;
    UnitRect divider;
    int numVisibleRows = 0;
};
// For a view of the given size, with the scroll bar's current width and the
// name column's width: the title across the top, the border one unit in,
// the scroll bar at the right under the title, the divider at the name
// column's right under the title.
ResizeGeometry ResizedGeometry(double viewWidth, double viewHeight, double scrollBarWidth,
                               double nameColumnWidth, double nameRowHeight);

}  // namespace tolva::propview
