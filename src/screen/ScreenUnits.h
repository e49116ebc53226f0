#pragma once
// The arithmetic between the two coordinate systems of the design screen.
//
// Device pixels: whole numbers, origin at the device screen's top left.
// Screen units: the canvas's own units. The device area lies inside a margin
// of 200 screen units on every side, so a canvas of extent E (its width or
// its height) shows the 160 device pixels across E less 400 units.
namespace tolva {

inline constexpr double kScreenMargin = 200;

// A canvas position (Left or Top) to a device pixel: 160 times (position less
// 200) divided by (extent less 400), rounded half to even. Not clamped. A
// canvas too small to hold the device area gives 0.
int PixelFromScreenPosition(double position, double canvasExtent);

// A canvas length to device pixels: 160 times the length divided by (extent
// less 400), rounded half to even. A canvas too small gives 0.
int PixelLengthFromScreen(double length, double canvasExtent);

// A device pixel to a canvas position: units per pixel times the pixel, plus
// 200, rounded half to even.
double ScreenPositionFromPixel(int pixel, double unitsPerPixel);

// Device pixels to a canvas length: units per pixel times the pixels.
double ScreenLengthFromPixel(int pixels, double unitsPerPixel);

// The value held to low..high.
int ClampPixel(int value, int low, int high);

}  // namespace tolva
