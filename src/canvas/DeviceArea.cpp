#include "canvas/DeviceArea.h"

namespace tolva {

CanvasRect BorderRect(double canvasWidth, double canvasHeight) {
    return {0, 0, canvasWidth, canvasHeight};
}

CanvasRect DeviceAreaRect(double canvasWidth, double canvasHeight) {
    return {kDeviceMargin, kDeviceMargin, canvasWidth - 2 * kDeviceMargin,
            canvasHeight - 2 * kDeviceMargin};
}

void ClampToDeviceArea(double& x, double& y, double canvasWidth, double canvasHeight) {
    if (y < kDeviceMargin) y = kDeviceMargin;
    if (x < kDeviceMargin) x = kDeviceMargin;
    if (y > canvasHeight - kDeviceMargin) y = canvasHeight - kDeviceMargin;
    if (x > canvasWidth - kDeviceMargin) x = canvasWidth - kDeviceMargin;
}

}  // namespace tolva
