#include "objects/table/editors/TableGridView.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "canvas/FontWidths.h"
#include "document/Words.h"
#include "objects/table/TableEditing.h"
#include "objects/table/ctlKOMATable.h"

namespace tolva {

namespace {

// How near a line a press takes it, in screen units.
constexpr double kGrip = 45;
const QColor kBarColor(0x00, 0x00, 0xC0);

}  // namespace

TableGridView::TableGridView(TableEditing& edit, QWidget* parent) : QWidget(parent), edit_(edit) {
    setObjectName("picGrid");
    setMouseTracking(true);
    setMinimumSize(360, 300);
}

double TableGridView::Scale() const { return edit_.Table().PCTwipsToTolvaPixels(); }

TablePreview TableGridView::Preview() const {
    return TablePreview(edit_.RowHeights(), edit_.ColumnWidths(), Scale(), topRow_, leftColumn_);
}

int TableGridView::VisibleRows() const { return Preview().VisibleRows(FrameHeight()); }
int TableGridView::VisibleColumns() const { return Preview().VisibleColumns(FrameWidth()); }

void TableGridView::ScrollTo(int topRow, int leftColumn) {
    topRow_ = std::clamp(topRow, 1, std::max(1, edit_.Rows()));
    leftColumn_ = std::clamp(leftColumn, 1, std::max(1, edit_.Columns()));
    update();
}

void TableGridView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    topRow_ = std::min(topRow_, std::max(1, edit_.Rows()));
    leftColumn_ = std::min(leftColumn_, std::max(1, edit_.Columns()));
    const TablePreview preview = Preview();
    const double right = preview.ColumnLeft(edit_.Columns() + 1);
    const double bottom = preview.RowTop(edit_.Rows() + 1);
    auto px = [](double units) { return std::round(units / kUnitsPerPixel); };

    // The cells' texts, in the device's small font.
    for (int r = topRow_; r <= edit_.Rows(); ++r) {
        if (preview.RowTop(r) >= FrameHeight()) break;
        for (int c = leftColumn_; c <= edit_.Columns(); ++c) {
            if (preview.ColumnLeft(c) >= FrameWidth()) break;
            const TableCell& cell = edit_.CellAt(r, c);
            DrawElement label = TextElement("lblCellText", {}, cell.text);
            if (cell.dataType == "TABLE_VALUE") label.text = std::to_string(cell.value);
            if (cell.dataType == "TABLE_UI_OBJECT") {
                label.text = "Object";
                label.opaque = true;
                label.backColor = DrawColor{0xFF, 0, 0};
            }
            label.font = DrawFont{"TolvaSmall", 14, false};
            label.devicePixel = Scale();
            const double width = TextWidth(label.text, FontSmallWidth()) * Scale();
            const double height = 10 * Scale();
            const auto [left, top] = preview.CellTextPlace(r, c, cell.alignment, width, height);
            label.rect = {left, top, width, height};
            painter.save();
            painter.setClipRect(QRectF(px(preview.ColumnLeft(c)), px(preview.RowTop(r)),
                                       px(preview.ColumnLeft(c + 1)) - px(preview.ColumnLeft(c)),
                                       px(preview.RowTop(r + 1)) - px(preview.RowTop(r))));
            painter_.PaintElement(painter, label, 0, 0);
            painter.restore();
        }
    }

    // The lines: above the first row and left of the first column, then
    // one under each row and right of each column.
    painter.setPen(QPen(Qt::black, 1));
    for (int r = topRow_; r <= edit_.Rows() + 1; ++r)
        painter.drawLine(QPointF(px(TablePreview::kLeft), px(preview.RowTop(r))),
                         QPointF(px(right), px(preview.RowTop(r))));
    for (int c = leftColumn_; c <= edit_.Columns() + 1; ++c)
        painter.drawLine(QPointF(px(preview.ColumnLeft(c)), px(TablePreview::kTop)),
                         QPointF(px(preview.ColumnLeft(c)), px(bottom)));

    // The bars around the selected cell.
    const int row = edit_.SelectedRow();
    const int column = edit_.SelectedColumn();
    if (row >= topRow_ && column >= leftColumn_) {
        const QRectF cell(QPointF(px(preview.ColumnLeft(column)), px(preview.RowTop(row))),
                          QPointF(px(preview.ColumnLeft(column + 1)), px(preview.RowTop(row + 1))));
        painter.setPen(QPen(kBarColor, 3));
        painter.drawRect(cell);
    }
    // The node at the corner of the last row and column.
    painter.fillRect(QRectF(px(right) - 3, px(bottom) - 3, 7, 7), Qt::black);
}

TableGridView::Drag TableGridView::DragAt(double x, double y, int& index) const {
    const TablePreview preview = Preview();
    const double right = preview.ColumnLeft(edit_.Columns() + 1);
    const double bottom = preview.RowTop(edit_.Rows() + 1);
    if (std::abs(x - right) <= kGrip && std::abs(y - bottom) <= kGrip) return Drag::Node;
    const bool withinWidth = x >= TablePreview::kLeft && x <= right;
    const bool withinHeight = y >= TablePreview::kTop && y <= bottom;
    // The line under row r resizes row r; the line above the first is fixed.
    for (int r = topRow_; r <= edit_.Rows() && withinWidth; ++r)
        if (std::abs(y - preview.RowTop(r + 1)) <= kGrip) {
            index = r;
            return Drag::Row;
        }
    for (int c = leftColumn_; c <= edit_.Columns() && withinHeight; ++c)
        if (std::abs(x - preview.ColumnLeft(c + 1)) <= kGrip) {
            index = c;
            return Drag::Column;
        }
    return Drag::None;
}

void TableGridView::PressAt(double x, double y, Qt::MouseButton button) {
    int index = 0;
    const Drag drag = button == Qt::LeftButton ? DragAt(x, y, index) : Drag::None;
    if (drag != Drag::None) {
        drag_ = drag;
        dragIndex_ = index;
        dragX_ = x;
        dragY_ = y;
        return;
    }
    const auto cell = Preview().HitTestTableCell(x, y);
    if (!cell) return;
    emit CellPressed(cell->first, cell->second, button == Qt::RightButton);
}

void TableGridView::mousePressEvent(QMouseEvent* event) {
    PressAt(event->position().x() * kUnitsPerPixel, event->position().y() * kUnitsPerPixel, event->button());
}

void TableGridView::mouseMoveEvent(QMouseEvent* event) {
    const double x = event->position().x() * kUnitsPerPixel;
    const double y = event->position().y() * kUnitsPerPixel;
    if (drag_ == Drag::None) {
        int index = 0;
        switch (DragAt(x, y, index)) {
            case Drag::Row: setCursor(Qt::SizeVerCursor); break;
            case Drag::Column: setCursor(Qt::SizeHorCursor); break;
            case Drag::Node: setCursor(Qt::SizeFDiagCursor); break;
            case Drag::None: unsetCursor(); break;
        }
        return;
    }
    bool changed = false;
    // Back always (not below 2 pixels); forward only while the pointer is
    // inside the frame, so that no line leaves it.
    auto along = [&](double now, double& start, double frame, bool rows, int index, int least) {
        const double delta = (now - start) / Scale();
        if (delta == 0) return;
        if (delta > 0 && now >= frame - TablePreview::kLeft) return;
        const auto& sizes = rows ? edit_.RowHeights() : edit_.ColumnWidths();
        const int before = sizes.at(static_cast<std::size_t>(index - 1));
        if (rows ? edit_.ResizeRowBy(index, delta, least) : edit_.ResizeColumnBy(index, delta, least)) {
            // The start follows by the whole pixels taken, so that the line
            // stays under the pointer.
            start += (sizes.at(static_cast<std::size_t>(index - 1)) - before) * Scale();
            changed = true;
        }
    };
    if (drag_ == Drag::Row) along(y, dragY_, FrameHeight(), true, dragIndex_, 2);
    if (drag_ == Drag::Column) along(x, dragX_, FrameWidth(), false, dragIndex_, 2);
    if (drag_ == Drag::Node) {
        along(y, dragY_, FrameHeight(), true, edit_.Rows(), 2);
        along(x, dragX_, FrameWidth(), false, edit_.Columns(), 2);
    }
    if (changed) {
        emit SizeDragged();
        update();
    }
}

void TableGridView::resizeEvent(QResizeEvent*) { emit ViewResized(); }

void TableGridView::mouseReleaseEvent(QMouseEvent*) {
    if (drag_ == Drag::None) return;
    drag_ = Drag::None;
    unsetCursor();
    emit SizeDragged();
}

}  // namespace tolva
