#pragma once
// The Table Editor's preview: the grid's lines from the first shown row and
// column, each cell's text in the device's small font ("Object" on red for a
// cell of an object), the bars around the selected cell and the corner
// node. A press selects the cell under it (a right press then asks for the
// cell menu); a press on a row's or column's line, a selection bar or the
// node drags that size. Geometry in screen units, 15 to a desktop pixel.
#include <QWidget>

#include "canvas/qt/ScreenPainter.h"
#include "objects/table/TablePreview.h"

namespace tolva {

class TableEditing;

class TableGridView : public QWidget {
    Q_OBJECT
public:
    static constexpr double kUnitsPerPixel = 15.0;

    TableGridView(TableEditing& edit, QWidget* parent);

    int TopRow() const { return topRow_; }
    int LeftColumn() const { return leftColumn_; }
    void ScrollTo(int topRow, int leftColumn);
    TablePreview Preview() const;
    // The rows and columns inside the view.
    int VisibleRows() const;
    int VisibleColumns() const;
    // A press at a point in screen units of the view, as the mouse gives it.
    void PressAt(double x, double y, Qt::MouseButton button);

signals:
    // A cell was selected by a press; `menu` when the cell menu is wanted.
    void CellPressed(int row, int column, bool menu);
    // A size changed by a drag.
    void SizeDragged();
    // The view's own size changed: the rows and columns inside it too.
    void ViewResized();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    enum class Drag { None, Row, Column, Node };
    double Scale() const;
    double FrameWidth() const { return width() * kUnitsPerPixel; }
    double FrameHeight() const { return height() * kUnitsPerPixel; }
    // What a press at the point drags, and which row or column.
    Drag DragAt(double x, double y, int& index) const;

    TableEditing& edit_;
    ScreenPainter painter_{kUnitsPerPixel};
    int topRow_ = 1;
    int leftColumn_ = 1;
    Drag drag_ = Drag::None;
    int dragIndex_ = 0;
    double dragX_ = 0;
    double dragY_ = 0;
};

}  // namespace tolva
