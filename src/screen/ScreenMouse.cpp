// The mouse on the design screen: the rubber band on the bare canvas (and
// through a form while drawing on objects is allowed), and moving an object
// by dragging it.
#include "canvas/DeviceArea.h"
#include "canvas/RubberBand.h"
#include "document/Host.h"
#include "document/Numbers.h"
#include "screen/ScreenEvents.h"
#include "screen/ctlTolvaScreen.h"

namespace tolva {

namespace {

// A point of the band: the mouse point rounded half to even.
double RoundPoint(double value) { return RoundHalfEven(value); }

}  // namespace

// --- the rubber band --------------------------------------------------------------------

void ctlTolvaScreen::SetBandMovingCorner(double x, double y) {
    double movingX = RoundPoint(x);
    double movingY = RoundPoint(y);
    GetClosestNode(movingX, movingY);
    ClampToDeviceArea(movingX, movingY, canvasWidth_, canvasHeight_);
    band_.X2 = RoundToIntSaturating(movingX);
    band_.Y2 = RoundToIntSaturating(movingY);
}

void ctlTolvaScreen::DrawBand(bool show, double x1, double y1, double x2, double y2,
                              bool lineFlag) {
    if (!show) {
        canvas_.barsVisible = false;
        canvas_.editorLine.visible = false;
        return;
    }
    if (lineFlag) {
        canvas_.editorLine.positiveSlope = BandLineSlope(x1, y1, x2, y2);
        canvas_.editorLine.box = SortedBox(x1, y1, x2, y2);
        canvas_.editorLine.visible = true;
        canvas_.barsVisible = false;
    } else {
        canvas_.bars = BandBarsFor(x1, y1, x2, y2);
        canvas_.barsVisible = true;
        canvas_.editorLine.visible = false;
    }
}

// --- the bare canvas ----------------------------------------------------------------------

void ctlTolvaScreen::CanvasMouseDown(int button, int shift, double x, double y) {
    // 1. With no tool armed a press on the canvas clears the selection.
    if (createObjectType_ == type::None) {
        SelectObject(type::None, "");
        if (events_) events_->SelectedObject("", type::None);
    }

    // 2. A tool armed starts the band at the closest grid point. The fixed
    //    corner is kept inside the device area at once, the moving one only
    //    from the first move on.
    if (allowDrawing_) {
        double snappedX = RoundPoint(x);
        double snappedY = RoundPoint(y);
        GetClosestNode(snappedX, snappedY);
        screenMode_ = ModeDrawing;
        double fixedX = snappedX;
        double fixedY = snappedY;
        ClampToDeviceArea(fixedX, fixedY, canvasWidth_, canvasHeight_);
        band_.X1 = RoundToIntSaturating(fixedX);
        band_.Y1 = RoundToIntSaturating(fixedY);
        band_.X2 = RoundToIntSaturating(snappedX);
        band_.Y2 = RoundToIntSaturating(snappedY);
        DrawBand(true, band_.X1, band_.Y1, band_.X2, band_.Y2,
                 createObjectType_ == type::Line);
    }

    // 3.
    if (events_) events_->MouseDown(button, shift, x, y);
}

void ctlTolvaScreen::CanvasMouseMove(int button, int shift, double x, double y) {
    if (screenMode_ == ModeDrawing) {
        SetBandMovingCorner(x, y);
        DrawBand(true, band_.X1, band_.Y1, band_.X2, band_.Y2,
                 createObjectType_ == type::Line);
    }
    if (events_) events_->MouseMove(button, shift, x, y);
}

void ctlTolvaScreen::CanvasMouseUp(int button, int shift, double x, double y) {
    if (screenMode_ == ModeDrawing) {
        // 1.
        SetBandMovingCorner(x, y);

        // 2.
        host_.SetCursor(CursorShape::Arrow);
        screenMode_ = ModeIdle;
        DrawBand(false, band_.X1, band_.Y1, band_.X2, band_.Y2, false);
        selectedObjectType_ = type::None;

        // 3. and 4. A band with no area makes nothing, but a line is made
        //    from a mere click too.
        const int armed = createObjectType_;
        const bool hasArea = band_.X1 != band_.X2 && band_.Y1 != band_.Y2;
        if (armed == type::Line || hasArea) CreateObject(armed);

        // 5.
        createObjectType_ = type::None;
    }
    // The main window puts the toolbar back to "Pointer" in answer.
    if (events_) events_->MouseUp(button, shift, x, y);
}

// --- objects ---------------------------------------------------------------------------------
// Coordinates come relative to the object. A form lets a drawing pass
// through it to the canvas while drawing on objects is allowed; any other
// press moves the object it lands on, tool armed or not.

namespace {

bool DrawsThrough(const KomaObject& object, bool allowDrawingOnObjects) {
    return object.ScreenType() == type::Form && allowDrawingOnObjects;
}

}  // namespace

void ctlTolvaScreen::ObjectMouseDown(KomaObject& object, int button, int shift, double x,
                                     double y) {
    if (DrawsThrough(object, allowDrawingOnObjects_)) {
        CanvasMouseDown(button, shift, x + object.Left(), y + object.Top());
        return;
    }
    canvas_.grabX = RoundToIntSaturating(x);
    canvas_.grabY = RoundToIntSaturating(y);
    ShowNodes(false, true);
    screenMode_ = ModeMoving;
}

void ctlTolvaScreen::ObjectMouseMove(KomaObject& object, int button, int shift, double x,
                                     double y) {
    if (DrawsThrough(object, allowDrawingOnObjects_)) {
        CanvasMouseMove(button, shift, x + object.Left(), y + object.Top());
        return;
    }
    if (screenMode_ != ModeMoving) return;
    // A move with no button down never drags.
    if (button == 0) return;

    // 1. and 2. The object follows the mouse from the grab point, on the grid.
    double left = RoundHalfEven(object.Left() - (canvas_.grabX - x));
    double top = RoundHalfEven(object.Top() - (canvas_.grabY - y));
    GetClosestNode(left, top);

    // 3. It stays inside the device area: its right side stops on the edge.
    if (left < kDeviceMargin) left = kDeviceMargin;
    if (object.Width() + left > canvasWidth_ - kDeviceMargin)
        left = canvasWidth_ - kDeviceMargin - object.Width();
    if (top < kDeviceMargin) top = kDeviceMargin;
    if (object.Height() + top > canvasHeight_ - kDeviceMargin)
        top = canvasHeight_ - kDeviceMargin - object.Height();

    // 4. A copy of the name: the object may take a new one in answer.
    const std::string name = object.KOMAName();
    MoveObject(object.ScreenType(), name, left, top);
}

void ctlTolvaScreen::ObjectMouseUp(KomaObject& object, int button, int shift, double x,
                                   double y) {
    if (DrawsThrough(object, allowDrawingOnObjects_)) {
        CanvasMouseUp(button, shift, x + object.Left(), y + object.Top());
        return;
    }
    if (screenMode_ != ModeMoving) return;

    // A press and release with no movement is a plain selection and counts
    // as a change of the design all the same.
    screenMode_ = ModeIdle;
    selectedObjectType_ = type::None;
    const std::string name = object.KOMAName();
    const int screenType = object.ScreenType();
    SelectObject(screenType, name, &object);
    if (events_) events_->ChangedObject(name, screenType);
}

}  // namespace tolva
