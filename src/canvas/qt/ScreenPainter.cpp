#include "canvas/qt/ScreenPainter.h"

#include "canvas/DeviceFont.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <algorithm>
#include <cmath>

#include "canvas/BmpPicture.h"
#include "canvas/DeviceArea.h"
#include "canvas/RubberBand.h"
#include "canvas/SelectionNodes.h"
#include "screen/ctlTolvaScreen.h"
#include "platform/Cp1252.h"

namespace tolva {

namespace {

const QColor kDotColor(0x80, 0x80, 0x80);

}  // namespace

QColor ScreenPainter::ToQColor(const DrawColor& color) {
    return QColor(color.red, color.green, color.blue);
}

QColor ScreenPainter::Ink(const DrawColor& color) const {
    if (!deviceGreys_) return ToQColor(color);
    const uint32_t grey =
        DeviceGrey(uint32_t(color.red) << 16 | uint32_t(color.green) << 8 | color.blue, 2);
    return QColor::fromRgb(0xFF000000u | grey);
}

QRectF ScreenPainter::ToPixels(const CanvasRect& rect) const {
    return QRectF(XToPixels(rect.left), YToPixels(rect.top), rect.width / unitsPerPixel_,
                  rect.height / unitsPerPixel_);
}

QPointF ScreenPainter::ToPixels(double x, double y) const {
    return QPointF(XToPixels(x), YToPixels(y));
}

void ScreenPainter::Paint(QPainter& painter, const ctlTolvaScreen& screen) {
    painter.save();
    // The frame and the device area.
    painter.fillRect(ToPixels(screen.BorderRect()),
                     ToQColor(DrawColor::FromStored(kBorderFillColor)));
    painter.fillRect(ToPixels(screen.DeviceAreaRect()),
                     Ink(DrawColor::FromStored(kDeviceFillColor)));

    // The dots lie behind the objects.
    PaintGrid(painter, screen);

    for (const KomaObject* object : screen.VisibleObjectsInStackingOrder())
        PaintObject(painter, *object);

    PaintBand(painter, screen);
    PaintNodes(painter, screen);
    painter.restore();
}

void ScreenPainter::PaintDevice(QPainter& painter, const ctlTolvaScreen& screen) {
    PaintDevice(painter, screen, screen.VisibleObjectsInStackingOrder());
}

void ScreenPainter::PaintDevice(QPainter& painter, const ctlTolvaScreen& screen,
                                const std::vector<KomaObject*>& objects) {
    painter.save();
    if (deviceGreys_) {
        painter.setRenderHint(QPainter::Antialiasing, false);
    }
    painter.fillRect(ToPixels(screen.DeviceAreaRect()),
                     Ink(DrawColor::FromStored(kDeviceFillColor)));
    for (const KomaObject* object : objects) PaintObject(painter, *object);
    painter.restore();
}

// --- grid ----------------------------------------------------------------------------------

void ScreenPainter::PaintGrid(QPainter& painter, const ctlTolvaScreen& screen) {
    const GridDots& dots = screen.Canvas().dots;
    if (dots.Count() <= 0) return;
    const CanvasRect border = screen.BorderRect();

    const GridKey key{dots.perSide, dots.spacing, dots.originX, dots.originY, border.width,
                      border.height};
    if (!(key == gridKey_)) {
        gridKey_ = key;
        gridPoints_.clear();
        gridField_ = QRectF();
        const double half = kGridDotSize / 2;
        // Only the dots that can show on the canvas; a grid finer than a
        // dot is one grey field, which is what its dots would cover.
        if (dots.spacing > 0 && dots.spacing < kGridDotSize) {
            const double last = dots.originX + double(dots.perSide - 1) * dots.spacing;
            const double lastY = dots.originY + double(dots.perSide - 1) * dots.spacing;
            gridField_ = ToPixels(CanvasRect{dots.originX - half, dots.originY - half,
                                             std::min(last, border.width) - dots.originX + 2 * half,
                                             std::min(lastY, border.height) - dots.originY +
                                                 2 * half});
        } else if (dots.spacing > 0) {
            const int across = std::min<long long>(
                dots.perSide, static_cast<long long>((border.width - dots.originX + half) /
                                                     dots.spacing) + 1);
            const int down = std::min<long long>(
                dots.perSide, static_cast<long long>((border.height - dots.originY + half) /
                                                     dots.spacing) + 1);
            gridPoints_.reserve(std::max(0, across) * std::max(0, down));
            // Each dot on a whole pixel, so that all of them look alike.
            for (int row = 0; row < down; ++row)
                for (int column = 0; column < across; ++column) {
                    const QPointF at = ToPixels(dots.originX + double(column) * dots.spacing,
                                                dots.originY + double(row) * dots.spacing);
                    gridPoints_.append(QPointF(std::round(at.x()), std::round(at.y())));
                }
        } else {
            // A spacing of 0 or less puts every dot on the first point.
            gridPoints_.append(ToPixels(dots.originX, dots.originY));
        }
    }

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (!gridField_.isNull()) {
        painter.fillRect(gridField_, kDotColor);
    } else if (!gridPoints_.isEmpty()) {
        // All dots in one pass.
        QPen pen(kDotColor);
        pen.setWidthF(std::max(1.0, std::round(ToPixels(kGridDotSize))));
        pen.setCapStyle(Qt::SquareCap);
        painter.setPen(pen);
        painter.drawPoints(gridPoints_.constData(), gridPoints_.size());
    }
    painter.restore();
}

// --- objects --------------------------------------------------------------------------------

void ScreenPainter::PaintObject(QPainter& painter, const KomaObject& object) {
    const DrawElementList elements = object.GetDrawElements();
    painter.save();
    // An object shows nothing outside its own box, which is one device pixel
    // at the least: a level or upright line has no height or width of its
    // own, and is a row of pixels on the device all the same.
    const double least = std::max(0.0, object.PCTwipsToTolvaPixels());
    painter.setClipRect(ToPixels(CanvasRect{object.Left(), object.Top(),
                                            std::max(object.Width(), least),
                                            std::max(object.Height(), least)}),
                        Qt::IntersectClip);
    for (const DrawElement& element : elements)
        PaintElement(painter, element, object.Left(), object.Top());
    painter.restore();
}

void ScreenPainter::PaintElement(QPainter& painter, const DrawElement& element, double left,
                                 double top) {
    if (!element.visible) return;
    const CanvasRect placed{left + element.rect.left, top + element.rect.top, element.rect.width,
                            element.rect.height};
    const QRectF box = ToPixels(placed);
    switch (element.kind) {
        case DrawElementKind::Shape: {
            if (!element.outline && element.filled && !element.rounded) {
                // A plain block lies on whole desktop pixels, one at the
                // least: a bar thinner than a pixel still shows, crisply.
                const double l = std::round(XToPixels(placed.left));
                const double t = std::round(YToPixels(placed.top));
                const double r = std::max(l + 1, std::round(XToPixels(placed.left + placed.width)));
                const double b = std::max(t + 1, std::round(YToPixels(placed.top + placed.height)));
                if (placed.width > 0 && placed.height > 0)
                    painter.fillRect(QRectF(l, t, r - l, b - t), Ink(element.fillColor));
                break;
            }
            QPen pen(Qt::NoPen);
            double penWidth = 0;
            if (element.outline) {
                penWidth = std::max(1.0, ToPixels(element.outlineWidth));
                pen = QPen(Ink(element.outlineColor), penWidth);
                pen.setJoinStyle(Qt::MiterJoin);
            }
            painter.setPen(pen);
            painter.setBrush(element.filled ? QBrush(Ink(element.fillColor)) : Qt::NoBrush);
            // The outline lies inside the box.
            const QRectF inner = box.adjusted(penWidth / 2, penWidth / 2, -penWidth / 2,
                                              -penWidth / 2);
            if (element.rounded) {
                const double radius = ToPixels(element.cornerRadius);
                painter.drawRoundedRect(inner, radius, radius);
            } else {
                painter.drawRect(inner);
            }
            break;
        }
        case DrawElementKind::TextBox: {
            if (element.opaque) painter.fillRect(box, Ink(element.backColor));
            if (PaintDeviceText(painter, element, placed)) break;
            if (deviceGreys_) {
                // The device has no other fonts.
                DrawElement onDevice = element;
                onDevice.font.name = "TolvaSmall";
                onDevice.devicePixel = devicePixel_;
                PaintDeviceText(painter, onDevice, placed);
                break;
            }
            QFont font = painter.font();
            if (!element.font.name.empty()) font.setFamily(FromCp1252(element.font.name));
            // A point is 20 screen units: the text keeps its size on the
            // device whatever the zoom.
            if (element.font.size > 0)
                font.setPixelSize(std::max(1, static_cast<int>(std::lround(
                                                  ToPixels(element.font.size * 20)))));
            font.setBold(element.font.bold);
            painter.setFont(font);
            painter.setPen(Ink(element.foreColor));
            int flags = Qt::TextWordWrap;
            switch (element.alignment) {
                case TextAlignment::Left: flags |= Qt::AlignLeft; break;
                case TextAlignment::Right: flags |= Qt::AlignRight; break;
                case TextAlignment::Center: flags |= Qt::AlignHCenter; break;
            }
            flags |= element.middle ? Qt::AlignVCenter : Qt::AlignTop;
            painter.drawText(box, flags, FromCp1252(element.text));
            break;
        }
        case DrawElementKind::Image: {
            const QImage& picture = Picture(element.imagePath, element.imageDepth);
            if (!picture.isNull()) {
                // No smoothing: every pixel of the picture stays a crisp
                // square of the device's pixel, at any zoom.
                painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
                painter.drawImage(box, picture);
            }
            break;
        }
        case DrawElementKind::Line: {
            if (PaintDeviceLine(painter, element, left, top)) break;
            QPen pen(Ink(element.lineColor), std::max(1.0, ToPixels(element.lineWidth)));
            painter.setPen(pen);
            painter.drawLine(ToPixels(left + element.x1, top + element.y1),
                             ToPixels(left + element.x2, top + element.y2));
            break;
        }
    }
}

bool ScreenPainter::PaintDeviceText(QPainter& painter, const DrawElement& element,
                                    const CanvasRect& placed) {
    const DeviceFont* font = FindDeviceFont(element.font.name);
    const double dp = element.devicePixel;
    if (!font || dp <= 0) return false;
    if (placed.width <= 0 || placed.height <= 0) return true;

    // A bold text doubles each ink pixel to its right: one more pixel a glyph.
    const int extra = element.font.bold ? 1 : 0;
    int textWidth = 0;
    for (const char c : element.text) textWidth += font->Glyph(c).width + 1 + extra;
    const int boxWidth = static_cast<int>(placed.width / dp);
    const int boxHeight = static_cast<int>(placed.height / dp);
    int x = 0;
    if (element.alignment == TextAlignment::Center) x = (boxWidth - textWidth) / 2;
    if (element.alignment == TextAlignment::Right) x = boxWidth - textWidth;
    const int y = element.middle ? (boxHeight - font->height) / 2 : 0;

    painter.save();
    // Clipped at the box's sides; a box lower than the font still shows
    // whole glyphs, as the device draws them.
    CanvasRect clip = placed;
    clip.height = std::max(placed.height, (y + font->height) * dp);
    painter.setClipRect(ToPixels(clip), Qt::IntersectClip);
    const QColor ink = Ink(element.foreColor);
    // Row by row, each run of ink pixels in one rectangle: a run covers the
    // same desktop pixels as its device pixels one by one would, in far
    // fewer steps.
    std::vector<char> row(static_cast<size_t>(std::max(0, textWidth)) + 2);
    QVector<QRectF> runs;
    for (int gy = 0; gy < font->height; ++gy) {
        std::fill(row.begin(), row.end(), 0);
        int at = 0;
        for (const char c : element.text) {
            const DeviceGlyph& glyph = font->Glyph(c);
            for (int gx = 0; gx < glyph.width; ++gx)
                if (glyph.Ink(gx, gy)) row[at + gx] = row[at + gx + extra] = 1;
            at += glyph.width + 1 + extra;
        }
        const double top = placed.top + (y + gy) * dp;
        for (size_t from = 0; from < row.size();) {
            if (!row[from]) {
                ++from;
                continue;
            }
            size_t to = from;
            while (to < row.size() && row[to]) ++to;
            runs.append(DevicePixels(placed.left + (x + double(from)) * dp, top,
                                     placed.left + (x + double(to)) * dp, top + dp));
            from = to;
        }
    }
    if (!runs.isEmpty()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawRects(runs.constData(), static_cast<int>(runs.size()));
    }
    painter.restore();
    return true;
}

bool ScreenPainter::PaintDeviceLine(QPainter& painter, const DrawElement& element, double left,
                                    double top) {
    const double dp = element.devicePixel;
    if (dp <= 0 || element.y1 != element.y2) return false;
    const double from = std::min(element.x1, element.x2);
    const int count = static_cast<int>((std::max(element.x1, element.x2) - from) / dp);
    const QColor ink = Ink(element.lineColor);
    const double y = top + element.y1;
    if (count <= 0) return true;
    if (!element.dotted) {
        // One run: the same desktop pixels as its device pixels one by one.
        painter.fillRect(DevicePixels(left + from, y, left + from + count * dp, y + dp), ink);
        return true;
    }
    QVector<QRectF> dots;
    dots.reserve((count + 1) / 2);
    for (int i = 0; i < count; i += 2)
        dots.append(DevicePixels(left + from + i * dp, y, left + from + (i + 1) * dp, y + dp));
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawRects(dots.constData(), static_cast<int>(dots.size()));
    painter.restore();
    return true;
}

void ScreenPainter::FillDevicePixel(QPainter& painter, double ux, double uy, double size,
                                    const QColor& color) {
    painter.fillRect(DevicePixels(ux, uy, ux + size, uy + size), color);
}

QRectF ScreenPainter::DevicePixels(double left, double top, double right, double bottom) const {
    const double l = std::round(XToPixels(left)), t = std::round(YToPixels(top));
    const double r = std::round(XToPixels(right)), b = std::round(YToPixels(bottom));
    return QRectF(l, t, std::max(1.0, r - l), std::max(1.0, b - t));
}

const QImage& ScreenPainter::Picture(const std::string& path, int depth) {
    // In four greys, a picture of the file's own colours takes the greys of
    // two bits.
    if (deviceGreys_ && depth == 0) depth = 2;
    const QString key = FromCp1252(path) + QLatin1Char('|') + QString::number(depth);
    auto it = pictures_.find(key);
    if (it != pictures_.end()) return it.value();
    QImage image;
    if (auto picture = ReadBmpFile(FromLocalPath(path).toLocal8Bit().toStdString())) {
        if (depth != 0) *picture = ToDeviceGreys(*picture, depth);
        image = QImage(picture->width, picture->height, QImage::Format_RGB32);
        for (int y = 0; y < picture->height; ++y) {
            auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < picture->width; ++x) line[x] = 0xFF000000u | picture->At(x, y);
        }
    }
    return pictures_.insert(key, image).value();
}

// --- band and nodes ---------------------------------------------------------------------------

void ScreenPainter::PaintBand(QPainter& painter, const ctlTolvaScreen& screen) {
    const ScreenCanvasState& canvas = screen.Canvas();
    if (canvas.barsVisible) {
        for (const CanvasRect& bar : canvas.bars) {
            QRectF r = ToPixels(bar);
            // A bar is at least one pixel thick, however far it is scaled.
            if (r.width() < 1) r.setWidth(1);
            if (r.height() < 1) r.setHeight(1);
            painter.fillRect(r, Qt::black);
        }
    }
    if (canvas.editorLine.visible) {
        const QRectF box = ToPixels(canvas.editorLine.box);
        painter.setPen(QPen(Qt::black, 1));
        if (canvas.editorLine.positiveSlope) {
            painter.drawLine(box.bottomLeft(), box.topRight());
        } else {
            painter.drawLine(box.topLeft(), box.bottomRight());
        }
    }
}

void ScreenPainter::PaintNodes(QPainter& painter, const ctlTolvaScreen& screen) {
    const QColor color = ToQColor(DrawColor::FromStored(kNodeColor));
    for (const ShownRect& at : screen.Canvas().nodes)
        if (at.visible) painter.fillRect(ToPixels(at.rect), color);
}

}  // namespace tolva
