#include "inspector/PropertyViewLayout.h"

#include "document/Numbers.h"

namespace tolva::propview {

namespace {

int FittingRows(double viewHeight, double titleHeight, double nameRowHeight, int less) {
    if (nameRowHeight <= 0) return 0;
    return RoundToIntSaturating((viewHeight - titleHeight) / nameRowHeight - less);
}

}  // namespace

int VisibleRowsAfterSet(double viewHeight, double titleHeight, double nameRowHeight) {
    return FittingRows(viewHeight, titleHeight, nameRowHeight, 2);
}

int VisibleRowsAfterResize(double viewHeight, double titleHeight, double nameRowHeight) {
    return FittingRows(viewHeight, titleHeight, nameRowHeight, 1);
}

ScrollBarSetting ScrollBarFor(int numProperties, int numVisibleRows) {
    ScrollBarSetting bar;
    if (numProperties <= numVisibleRows) return bar;
    bar.shown = true;
    bar.width = kScrollBarWidth;
    bar.minimum = 1;
    bar.maximum = numProperties - numVisibleRows;
    return bar;
}

VisibleRows RowsOnShow(int numProperties, int numVisibleRows, int scrollValue) {
    if (numProperties <= numVisibleRows) return {1, numProperties};
    return {scrollValue, scrollValue + numVisibleRows};
}

double RowTop(int row, int firstVisibleRow, double titleHeight, double valueRowHeight) {
    return titleHeight + (row - firstVisibleRow) * valueRowHeight + kMargin;
}

RowColumns PlaceRowColumns(double dividerLeft, double viewWidth, bool scrollBarShown,
                           double scrollBarLeft) {
    RowColumns columns;
    columns.labelLeft = kMargin;
    columns.labelWidth = dividerLeft - kMargin;
    columns.editorLeft = dividerLeft + kDividerWidth + kMargin;
    const double right = scrollBarShown ? scrollBarLeft : viewWidth;
    columns.editorWidth = right - columns.editorLeft - 2 * kMargin;
    return columns;
}

int DraggedDividerLeft(double currentLeft, double mouseX, double viewWidth) {
    int left = RoundToIntSaturating(currentLeft + mouseX);
    if (left < kDividerMinimumLeft) left = kDividerMinimumLeft;
    const double rightLimit = viewWidth - kValueColumnMinimum - kMargin;
    if (left + kDividerWidth > rightLimit) {
        left = RoundToIntSaturating(viewWidth - kDividerWidth - kValueColumnMinimum - kMargin);
    }
    return left;
}

ResizeGeometry ResizedGeometry(double viewWidth, double viewHeight, double scrollBarWidth,
                               double nameColumnWidth, double nameRowHeight) {
    ResizeGeometry g;
    g.title = {kMargin, kMargin, viewWidth - 2 * kMargin, kTitleHeight};
    g.border = {1, 1, viewWidth - 2, viewHeight - 2};

    const double scrollTop = g.title.height + kMargin;
    g.scrollBar = {viewWidth - scrollBarWidth - kMargin, scrollTop, scrollBarWidth,
                   viewHeight - scrollTop - kMargin};

    const double dividerTop = g.title.top + g.title.height;
    g.divider = {nameColumnWidth + kMargin, dividerTop, kDividerWidth,
                 viewHeight - dividerTop - 2 * kMargin};

    g.numVisibleRows = VisibleRowsAfterResize(viewHeight, g.title.height, nameRowHeight);
    return g;
}

}  // namespace tolva::propview
