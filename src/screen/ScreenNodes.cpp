// The selection nodes of the screen: their places round the selected
// object, showing and hiding them, and resizing by dragging one of them.
#include "canvas/DeviceArea.h"
#include "canvas/SelectionNodes.h"
#include "document/Host.h"
#include "document/Numbers.h"
#include "screen/ScreenEvents.h"
#include "screen/ctlTolvaScreen.h"
#include "objects/line/ctlKOMALine.h"

namespace tolva {

void ctlTolvaScreen::PlaceNodes(KomaObject& object, bool lineFlag) {
    if (lineFlag) {
        const auto* line = dynamic_cast<const ctlKOMALine*>(&object);
        PlaceLineNodes(canvas_.nodes, object.Left(), object.Top(), object.Width(),
                       object.Height(), line && line->PositiveSlope());
    } else {
        PlaceBoxNodes(canvas_.nodes, object.Left(), object.Top(), object.Width(),
                      object.Height());
    }
}

void ctlTolvaScreen::ShowNodes(bool show, bool lineFlag) {
    // The nodes are painted above every object, so showing them is also
    // bringing them to the front.
    for (int n = 0; n < node::Count; ++n)
        canvas_.nodes[n].visible = IsLineNode(n) == lineFlag ? show : false;
}

// --- resizing by a node ---------------------------------------------------------------------

void ctlTolvaScreen::NodeMouseDown(int nodeNumber, int, int, double, double) {
    if (nodeNumber < 0 || nodeNumber >= node::Count || !selectedObjectRef_) return;
    KomaObject& object = *selectedObjectRef_;
    const BandCorners band = NodeDragBand(nodeNumber, canvas_.nodes, object.Left(), object.Top(),
                                          object.Width(), object.Height());
    StartNodeDrag(band.x1, band.y1, band.x2, band.y2, object);
}

void ctlTolvaScreen::StartNodeDrag(double x1, double y1, double x2, double y2,
                                   KomaObject& object) {
    screenMode_ = ModeResizing;
    band_.X1 = RoundToIntSaturating(x1);
    band_.Y1 = RoundToIntSaturating(y1);
    band_.X2 = RoundToIntSaturating(x2);
    band_.Y2 = RoundToIntSaturating(y2);
    object.Visible(false);
    ShowNodes(false, true);
    // Kept as it always was: the band starts as a line for a list (type 9),
    // not for a line, and takes its right shape from the first move on.
    const bool asLine = selectedObjectType_ == type::List || createObjectType_ == type::List;
    DrawBand(true, band_.X1, band_.Y1, band_.X2, band_.Y2, asLine);
}

void ctlTolvaScreen::NodeMouseMove(int nodeNumber, int, int, double x, double y) {
    if (nodeNumber < 0 || nodeNumber >= node::Count) return;
    host_.SetCursor(NodeCursor(nodeNumber));
    if (screenMode_ != ModeResizing) return;

    // The mouse point on the canvas; a side node follows it in one
    // coordinate only.
    const CanvasRect& at = canvas_.nodes[nodeNumber].rect;
    const NodeFollows follows = NodeFollowsMouse(nodeNumber);
    double movingX = follows.x ? RoundHalfEven(at.left + x) : band_.X2;
    double movingY = follows.y ? RoundHalfEven(at.top + y) : band_.Y2;
    GetClosestNode(movingX, movingY);
    ClampToDeviceArea(movingX, movingY, canvasWidth_, canvasHeight_);
    band_.X2 = RoundToIntSaturating(movingX);
    band_.Y2 = RoundToIntSaturating(movingY);
    DrawBand(true, band_.X1, band_.Y1, band_.X2, band_.Y2, IsLineNode(nodeNumber));
}

void ctlTolvaScreen::NodeMouseUp(int nodeNumber, int, int, double, double) {
    if (nodeNumber < 0 || nodeNumber >= node::Count) return;
    EndNodeDrag();
}

void ctlTolvaScreen::EndNodeDrag() {
    // 1.
    DrawBand(false, band_.X1, band_.Y1, band_.X2, band_.Y2, false);

    // 2. Copies: the events below may change the selection.
    const int screenType = selectedObjectType_;
    const std::string name = selectedObjectName_;
    KomaObject* object = FindObject(screenType, name);
    if (!object) {
        // Nothing selected to resize: the object hidden by the drag comes
        // back as it was.
        if (selectedObjectRef_) selectedObjectRef_->Visible(true);
        if (screenMode_ != ModeLoading) screenMode_ = ModeIdle;
        return;
    }

    // 3. A refusal comes only now, after the whole drag; the object keeps
    //    its size.
    if (!object->ResizeOK()) {
        host_.MessageBox("Manual resize not allowed for this object", "Resize not allowed");
    } else {
        ResizeObject(screenType, name, band_.X1, band_.Y1, band_.X2, band_.Y2);
    }

    // 4.
    if (screenMode_ != ModeLoading) {
        if (events_) events_->ChangedObject(name, screenType);
        object->Visible(true);
        SelectObject(screenType, name, object);
        if (events_) events_->SelectedObject(name, screenType);
        screenMode_ = ModeIdle;
    }
}

}  // namespace tolva
