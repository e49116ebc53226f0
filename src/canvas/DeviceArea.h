#pragma once
// The frame of the design screen and the device area inside it, and the
// clamp that keeps a point inside the device area.
//
// The frame covers the whole canvas of W by H screen units. The device area
// lies inside a margin of 200 units on every side.
#include <cstdint>

#include "canvas/CanvasRect.h"

namespace tolva {

inline constexpr double kDeviceMargin = 200;

// Stored colour values of the two areas (blue in the high byte, red in the
// low one).
inline constexpr uint32_t kBorderFillColor = 0xC0C0C0;
inline constexpr uint32_t kDeviceFillColor = 0xE0E0E0;

// shpBorder: left 0, top 0, width W, height H.
CanvasRect BorderRect(double canvasWidth, double canvasHeight);
// shpScreen: left 200, top 200, width W less 400, height H less 400.
CanvasRect DeviceAreaRect(double canvasWidth, double canvasHeight);

// Keeps a point inside the device area, in this order: Y below 200 becomes
// 200, X below 200 becomes 200, Y above H less 200 becomes H less 200, X
// above W less 200 becomes W less 200.
void ClampToDeviceArea(double& x, double& y, double canvasWidth, double canvasHeight);

}  // namespace tolva
