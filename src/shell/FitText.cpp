#include "shell/FitText.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QWidget>

namespace tolva {

QFont WindowFont() {
    // The desktop's metric match of the classic sans-serif at 8 points.
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(11);
    return font;
}

int FitTextToWidth(QWidget* widget, const QString& text, int margin) {
    QFont font = widget->font();
    int pixels = font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize();
    const int room = widget->width() - margin;
    while (pixels > kSmallestTextPixels) {
        font.setPixelSize(pixels);
        if (QFontMetrics(font).horizontalAdvance(text) <= room) break;
        --pixels;
    }
    font.setPixelSize(pixels);
    widget->setFont(font);
    return pixels;
}

}  // namespace tolva
