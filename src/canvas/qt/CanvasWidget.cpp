#include "canvas/qt/CanvasWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "screen/ctlTolvaScreen.h"
#include "shell/RunGuarded.h"

namespace tolva {

CanvasWidget::CanvasWidget(ctlTolvaScreen& screen, QWidget* parent)
    : QWidget(parent), screen_(screen) {
    setObjectName("ctlScreen");
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QPointF CanvasWidget::ToUnits(const QPointF& pixels) { return pixels * kUnitsPerPixel; }

QPointF CanvasWidget::ToPixels(double x, double y) {
    return QPointF(x / kUnitsPerPixel, y / kUnitsPerPixel);
}

int CanvasWidget::ButtonCode(Qt::MouseButtons buttons) {
    int code = 0;
    if (buttons & Qt::LeftButton) code |= 1;
    if (buttons & Qt::RightButton) code |= 2;
    if (buttons & Qt::MiddleButton) code |= 4;
    return code;
}

int CanvasWidget::ShiftCode(Qt::KeyboardModifiers modifiers) {
    int code = 0;
    if (modifiers & Qt::ShiftModifier) code |= 1;
    if (modifiers & Qt::ControlModifier) code |= 2;
    if (modifiers & Qt::AltModifier) code |= 4;
    return code;
}

void CanvasWidget::paintEvent(QPaintEvent*) {
    RunGuarded([this] {
        QPainter painter(this);
        painter_.Paint(painter, screen_);
    });
}

void CanvasWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    RunGuarded([this] {
        // The canvas takes its size in screen units; the scale of every
        // object follows. The same size again changes nothing.
        const double width = this->width() * kUnitsPerPixel;
        const double height = this->height() * kUnitsPerPixel;
        if (width != screen_.CanvasWidth() || height != screen_.CanvasHeight())
            screen_.SetCanvasSize(width, height);
    });
}

void CanvasWidget::Deliver(const CanvasHit& target, Phase phase, int button, int shift,
                           const QPointF& at) {
    const double x = at.x();
    const double y = at.y();
    switch (target.kind) {
        case CanvasHit::Kind::Node: {
            const CanvasRect& node = screen_.Canvas().nodes[target.node].rect;
            const double nx = x - node.left;
            const double ny = y - node.top;
            if (phase == Phase::Down) screen_.NodeMouseDown(target.node, button, shift, nx, ny);
            if (phase == Phase::Move) screen_.NodeMouseMove(target.node, button, shift, nx, ny);
            if (phase == Phase::Up) screen_.NodeMouseUp(target.node, button, shift, nx, ny);
            break;
        }
        case CanvasHit::Kind::Object: {
            // The object may have gone in the meantime.
            if (!screen_.HoldsObject(target.object)) break;
            KomaObject& object = *target.object;
            const double ox = x - object.Left();
            const double oy = y - object.Top();
            if (phase == Phase::Down) object.MouseDown(button, shift, ox, oy);
            if (phase == Phase::Move) object.MouseMove(button, shift, ox, oy);
            if (phase == Phase::Up) object.MouseUp(button, shift, ox, oy);
            break;
        }
        case CanvasHit::Kind::Canvas:
            if (phase == Phase::Down) screen_.CanvasMouseDown(button, shift, x, y);
            if (phase == Phase::Move) screen_.CanvasMouseMove(button, shift, x, y);
            if (phase == Phase::Up) screen_.CanvasMouseUp(button, shift, x, y);
            break;
    }
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
    const QPointF at = ToUnits(event->position());
    const int button = ButtonCode(event->button());
    const int shift = ShiftCode(event->modifiers());
    if (captured_) {
        // A second button while one is held goes nowhere.
        const bool heldStill = event->button() != captureButton_ &&
                               (event->buttons() & captureButton_);
        if (heldStill) return;
        // The release of the last press was lost (a window took the mouse
        // in between): the element that took the press gets it now.
        const CanvasHit target = capture_;
        const int lost = ButtonCode(captureButton_);
        captured_ = false;
        captureButton_ = Qt::NoButton;
        capture_ = CanvasHit{};
        RunGuarded([&] { Deliver(target, Phase::Up, lost, shift, at); });
        RunGuarded([&] { EndGesture(); });
    }
    RunGuarded([&] { BeginGesture(); });
    RunGuarded([&] {
        capture_ = screen_.HitTest(at.x(), at.y());
        captured_ = true;
        captureButton_ = event->button();
        Deliver(capture_, Phase::Down, button, shift, at);
    });
    update();
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = ToUnits(event->position());
    const int shift = ShiftCode(event->modifiers());
    if (captured_ && !(event->buttons() & captureButton_)) {
        // The mouse is back without the button of the press: its release
        // was lost (a message box took it). The element that took the press
        // gets it here, so that nothing goes on dragging.
        const CanvasHit target = capture_;
        const int lost = ButtonCode(captureButton_);
        captured_ = false;
        captureButton_ = Qt::NoButton;
        capture_ = CanvasHit{};
        RunGuarded([&] { Deliver(target, Phase::Up, lost, shift, at); });
        RunGuarded([&] { EndGesture(); });
        update();
    }
    RunGuarded([&] {
        if (captured_) {
            Deliver(capture_, Phase::Move, ButtonCode(event->buttons()), shift, at);
        } else {
            Deliver(screen_.HitTest(at.x(), at.y()), Phase::Move, ButtonCode(event->buttons()),
                    shift, at);
        }
    });
    if (captured_) update();
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (!captured_ || event->button() != captureButton_) return;
    const QPointF at = ToUnits(event->position());
    const int button = ButtonCode(event->button());
    const int shift = ShiftCode(event->modifiers());
    const CanvasHit target = capture_;
    captured_ = false;
    captureButton_ = Qt::NoButton;
    capture_ = CanvasHit{};
    RunGuarded([&] { Deliver(target, Phase::Up, button, shift, at); });
    RunGuarded([&] { EndGesture(); });
    update();
}

void CanvasWidget::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Delete) {
        QWidget::keyPressEvent(event);
        return;
    }
    // The delete key goes to the selected object, and only to it: an
    // object that kept the focus after the selection was cleared is left
    // alone. The key reaches the screen only while it has the keyboard
    // focus.
    const int shift = ShiftCode(event->modifiers());
    RunGuarded([&] { BeginGesture(); });
    RunGuarded([&] {
        KomaObject* selected = screen_.SelectedObjectRef();
        if (selected && screen_.SelectedObjectType() != type::None &&
            screen_.HoldsObject(selected) && selected->Visible())
            selected->KeyDown(46, shift);
    });
    RunGuarded([&] { EndGesture(); });
    update();
}

}  // namespace tolva
