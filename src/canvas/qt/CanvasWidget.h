#pragma once
// CanvasWidget: the design screen on the main window (objectName
// "ctlScreen"). It paints the screen and turns the mouse into the screen's
// protocol in screen units: a press goes to what lies on top under the
// mouse (a node, an object, or the bare canvas), and that element keeps the
// moves and the release until the button comes up. Moves with no button
// down go to whatever lies under the mouse. One factor maps screen units to
// the desktop's pixels: 15 units to a pixel.
#include <QWidget>
#include <functional>

#include "canvas/CanvasHit.h"
#include "canvas/qt/ScreenPainter.h"

namespace tolva {

class ctlTolvaScreen;

class CanvasWidget : public QWidget {
    Q_OBJECT
public:
    static constexpr double kUnitsPerPixel = 15.0;

    explicit CanvasWidget(ctlTolvaScreen& screen, QWidget* parent = nullptr);

    // A point of the widget (pixels) in screen units, and back.
    static QPointF ToUnits(const QPointF& pixels);
    static QPointF ToPixels(double x, double y);

    // The mouse's button and modifiers as the screen counts them: 1 left,
    // 2 right, 4 middle; 1 Shift, 2 Ctrl, 4 Alt.
    static int ButtonCode(Qt::MouseButtons buttons);
    static int ShiftCode(Qt::KeyboardModifiers modifiers);

    // Called as a gesture on the screen begins (a press, the Delete key)
    // and after it has ended (the release, lost or not, the key handled):
    // the main window makes a step of its history of it.
    void SetGestureHooks(std::function<void()> begin, std::function<void()> end) {
        gestureBegins_ = std::move(begin);
        gestureEnded_ = std::move(end);
    }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Phase { Down, Move, Up };
    // Hands the mouse to the element, in its own coordinates.
    void Deliver(const CanvasHit& target, Phase phase, int button, int shift, const QPointF& at);

    ctlTolvaScreen& screen_;
    ScreenPainter painter_{kUnitsPerPixel};

    void BeginGesture() {
        if (gestureBegins_) gestureBegins_();
    }
    void EndGesture() {
        if (gestureEnded_) gestureEnded_();
    }
    std::function<void()> gestureBegins_, gestureEnded_;

    // The element that took the press, while its button is down.
    bool captured_ = false;
    Qt::MouseButton captureButton_ = Qt::NoButton;
    CanvasHit capture_;
};

}  // namespace tolva
