#pragma once
// Fixed-size controls were laid out for a narrow desktop font. Where the
// font at hand is wider, a control's own font is made smaller, a pixel at a
// time, until its text fits.
#include <QFont>
#include <QString>

class QWidget;

namespace tolva {

inline constexpr int kSmallestTextPixels = 8;

// The font the main window's controls are laid out for.
QFont WindowFont();

// Shrinks the widget's font until the text fits in its width less the
// margin (in pixels), down to kSmallestTextPixels. Returns the pixel size.
int FitTextToWidth(QWidget* widget, const QString& text, int margin = 0);

}  // namespace tolva
