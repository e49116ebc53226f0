#pragma once
// Paints the design screen: the frame, the device area, the grid dots (in
// one pass), every visible object from its draw elements in stacking order,
// the rubber band or the editor line, and the nodes. Everything is given in
// screen units and mapped to the painter's pixels by one factor, so that the
// picture is crisp at any display density.
#include <QColor>
#include <QHash>
#include <QImage>
#include <QPointF>
#include <QRectF>
#include <QVector>

#include "canvas/DrawElement.h"
#include "canvas/Grid.h"

class QPainter;

namespace tolva {

class ctlTolvaScreen;
class KomaObject;

class ScreenPainter {
public:
    explicit ScreenPainter(double unitsPerPixel = 15.0) : unitsPerPixel_(unitsPerPixel) {}

    double UnitsPerPixel() const { return unitsPerPixel_; }

    // Paints the whole screen with its top left corner at the painter's 0, 0.
    void Paint(QPainter& painter, const ctlTolvaScreen& screen);
    // The device area alone, as the device shows it: its fill and the
    // visible objects in stacking order, without frame, grid, band or nodes.
    void PaintDevice(QPainter& painter, const ctlTolvaScreen& screen);
    // The same with the objects given, back to front.
    void PaintDevice(QPainter& painter, const ctlTolvaScreen& screen,
                     const std::vector<KomaObject*>& objects);

    // The screen point that lands on the painter's 0, 0 (screen units).
    void SetOrigin(double x, double y) { originX_ = x; originY_ = y; }
    // As the device shows it: every colour in the nearest of the device's
    // four greys, no smoothing anywhere, and every text in a device font
    // (a text in the window's font in "TolvaSmall", on device pixels of
    // `devicePixel` screen units). A picture keeps the greys of its depth;
    // one of the file's own colours takes four greys. Off, colours and fonts
    // are painted as given.
    void SetDeviceGreys(bool on, double devicePixel = 0) {
        deviceGreys_ = on;
        devicePixel_ = devicePixel;
    }

    // One object's elements, with the object's top left corner at left, top
    // (screen units).
    void PaintObject(QPainter& painter, const KomaObject& object);
    void PaintElement(QPainter& painter, const DrawElement& element, double left, double top);
    // Text in a device pixel font, one filled square per ink pixel; false
    // when the element is no device text or its font is not loaded.
    bool PaintDeviceText(QPainter& painter, const DrawElement& element, const CanvasRect& placed);
    // A level line on the device's pixels, solid or dotted; false when the
    // line is not one.
    bool PaintDeviceLine(QPainter& painter, const DrawElement& element, double left, double top);
    // One device pixel of `size` screen units at ux, uy, on whole desktop
    // pixels, so that neighbouring pixels meet without seams.
    void FillDevicePixel(QPainter& painter, double ux, double uy, double size, const QColor& color);
    // The whole desktop pixels that device pixels from left, top to right,
    // bottom (screen units) cover: one at the least each way.
    QRectF DevicePixels(double left, double top, double right, double bottom) const;

    QRectF ToPixels(const CanvasRect& rect) const;
    QPointF ToPixels(double x, double y) const;
    double ToPixels(double length) const { return length / unitsPerPixel_; }
    // A place across or down, from the origin.
    double XToPixels(double x) const { return (x - originX_) / unitsPerPixel_; }
    double YToPixels(double y) const { return (y - originY_) / unitsPerPixel_; }

    static QColor ToQColor(const DrawColor& color);
    // The colour as this painter paints it (in four greys when asked).
    QColor Ink(const DrawColor& color) const;

private:
    void PaintGrid(QPainter& painter, const ctlTolvaScreen& screen);
    void PaintBand(QPainter& painter, const ctlTolvaScreen& screen);
    void PaintNodes(QPainter& painter, const ctlTolvaScreen& screen);
    // The picture of a file in the greys of the device at the depth (0: its
    // own colours), read once and kept; a file that does not load is a null
    // image.
    const QImage& Picture(const std::string& path, int depth);

    double unitsPerPixel_;
    double originX_ = 0, originY_ = 0;
    bool deviceGreys_ = false;
    double devicePixel_ = 0;

    // The dot centres of the grid last painted, made again only when the
    // grid or the canvas changes.
    struct GridKey {
        int perSide = -1;
        int spacing = 0;
        double originX = 0, originY = 0, width = 0, height = 0;
        bool operator==(const GridKey&) const = default;
    };
    GridKey gridKey_;
    QVector<QPointF> gridPoints_;
    QRectF gridField_;

    QHash<QString, QImage> pictures_;
};

}  // namespace tolva
