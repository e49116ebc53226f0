// The frame, the device area and the grid of the design screen.
#include <limits>

#include "canvas/DeviceArea.h"
#include "canvas/Grid.h"
#include "screen/ctlTolvaScreen.h"

namespace tolva {

CanvasRect ctlTolvaScreen::BorderRect() const {
    return tolva::BorderRect(canvasWidth_, canvasHeight_);
}

CanvasRect ctlTolvaScreen::DeviceAreaRect() const {
    return tolva::DeviceAreaRect(canvasWidth_, canvasHeight_);
}

void ctlTolvaScreen::SetGrid(int interval, bool visible) {
    // 1. and 2. The flag is taken and every dot is hidden.
    canvas_.gridVisible = visible;
    canvas_.dots.perSide = 0;

    // 3. Hiding drops the interval and keeps the spacing: the snap goes on
    //    with the old spacing, and a program started with the grid off
    //    snaps nothing (spacing 1).
    if (!visible) return;

    // The interval is a 16-bit number; a value beyond cannot be held.
    if (interval < std::numeric_limits<short>::min() ||
        interval > std::numeric_limits<short>::max())
        return;

    // 4. An interval of 0 leaves the spacing as it was.
    canvas_.gridInterval = interval;
    const CanvasRect area = DeviceAreaRect();
    GridSpacingFor(area.width, interval, canvas_.gridSpacing);

    // 5. Interval + 1 dots across and as many down, on the grid points from
    //    the device area's top left corner, behind the objects.
    canvas_.dots.spacing = canvas_.gridSpacing;
    canvas_.dots.originX = kDeviceMargin;
    canvas_.dots.originY = kDeviceMargin;
    canvas_.dots.perSide = interval + 1 > 0 ? interval + 1 : 0;
}

void ctlTolvaScreen::ShowGrid(bool visible) {
    if (!visible) return;
    SetGrid(canvas_.gridInterval, true);
}

void ctlTolvaScreen::GridInterval(int interval) { SetGrid(interval, canvas_.gridVisible); }

void ctlTolvaScreen::GetClosestNode(double& x, double& y) const {
    const CanvasRect area = DeviceAreaRect();
    x = SnapToGrid(x, area.left, canvas_.gridSpacing);
    y = SnapToGrid(y, area.top, canvas_.gridSpacing);
}

}  // namespace tolva
