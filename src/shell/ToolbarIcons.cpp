#include "shell/ToolbarIcons.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>
#include <functional>

namespace tolva {

namespace {

const QColor kInk(40, 40, 40);
const QColor kPaper(255, 255, 255);
const QColor kAccent(40, 100, 190);
const QColor kLight(222, 222, 222);
const QColor kGrey(150, 150, 150);

QPen Ink(double width = 1.0, const QColor& colour = kInk) {
    QPen pen(colour, width);
    pen.setCapStyle(Qt::FlatCap);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

void Box(QPainter& p, const QRectF& r, const QColor& fill, double radius = 0) {
    p.setPen(Ink());
    p.setBrush(fill);
    if (radius > 0) {
        p.drawRoundedRect(r, radius, radius);
    } else {
        p.drawRect(r);
    }
}

void Line(QPainter& p, double x1, double y1, double x2, double y2, double width = 1.0,
          const QColor& colour = kInk) {
    p.setPen(Ink(width, colour));
    p.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void Triangle(QPainter& p, QPointF a, QPointF b, QPointF c, const QColor& fill = kInk) {
    p.setPen(Qt::NoPen);
    p.setBrush(fill);
    p.drawPolygon(QPolygonF({a, b, c}));
}

void DrawPointer(QPainter& p) {
    const QPolygonF arrow({{5.5, 2.5}, {5.5, 16.5}, {8.8, 13.2}, {11.2, 18.5}, {13.4, 17.5},
                           {11.0, 12.3}, {15.5, 12.3}});
    p.setPen(Ink());
    p.setBrush(kPaper);
    p.drawPolygon(arrow);
}

void DrawForm(QPainter& p) {
    Box(p, QRectF(2.5, 3.5, 15, 13), kPaper);
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawRect(QRectF(3, 4, 14, 3));
    Line(p, 5, 10.5, 13, 10.5, 1.0, kGrey);
    Line(p, 5, 13.5, 10, 13.5, 1.0, kGrey);
}

void DrawButton(QPainter& p) {
    Box(p, QRectF(1.5, 4.5, 17, 11), kLight, 4);
    Line(p, 6, 10, 14, 10, 2.0);
}

void DrawRepeatButton(QPainter& p) {
    Box(p, QRectF(1.5, 4.5, 17, 11), kLight, 4);
    Triangle(p, {4.5, 13}, {7.5, 7}, {10.5, 13});
    Triangle(p, {9.5, 7}, {12.5, 13}, {15.5, 7});
}

void DrawPushButton(QPainter& p) {
    Box(p, QRectF(2.5, 5.5, 7.5, 9), kAccent);
    Box(p, QRectF(10, 5.5, 7.5, 9), kPaper);
    Line(p, 4.5, 10, 8, 10, 1.5, kPaper);
    Line(p, 12, 10, 15.5, 10, 1.5);
}

void DrawTextbox(QPainter& p) {
    Box(p, QRectF(1.5, 5.5, 17, 9), kPaper);
    Line(p, 4, 10, 9, 10, 2.0, kGrey);
    // The insertion point.
    Line(p, 11.5, 7.5, 11.5, 12.5, 1.0, kAccent);
    Line(p, 10, 7.5, 13, 7.5, 1.0, kAccent);
    Line(p, 10, 12.5, 13, 12.5, 1.0, kAccent);
}

void DrawField(QPainter& p) {
    QPen dotted(kInk, 1.0);
    dotted.setDashPattern({1.0, 1.0});
    p.setPen(dotted);
    for (double y : {6.5, 11.5, 16.5}) p.drawLine(QPointF(2, y), QPointF(18, y));
    Line(p, 3, 4.5, 13, 4.5, 1.5, kGrey);
    Line(p, 3, 9.5, 9, 9.5, 1.5, kGrey);
    Line(p, 10.5, 7.5, 10.5, 11, 1.0, kAccent);
}

void DrawCheckbox(QPainter& p) {
    Box(p, QRectF(2.5, 5.5, 9, 9), kPaper);
    QPen check(kAccent, 2.0);
    check.setCapStyle(Qt::RoundCap);
    check.setJoinStyle(Qt::RoundJoin);
    p.setPen(check);
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(QPolygonF({{4.5, 10}, {6.5, 12.5}, {10, 6.5}}));
    Line(p, 13.5, 10, 18, 10, 1.5, kGrey);
}

void DrawPopupTrigger(QPainter& p) {
    Triangle(p, {2, 8}, {9, 8}, {5.5, 12});
    Line(p, 10.5, 10, 18, 10, 1.5);
}

void DrawMenu(QPainter& p) {
    Box(p, QRectF(1.5, 2.5, 17, 4), kLight);
    Line(p, 3.5, 4.5, 7, 4.5, 1.0);
    Line(p, 9.5, 4.5, 13, 4.5, 1.0);
    Box(p, QRectF(3.5, 6.5, 11, 11), kPaper);
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawRect(QRectF(4, 7, 10, 3));
    Line(p, 5.5, 8.5, 11, 8.5, 1.0, kPaper);
    Line(p, 5.5, 12.5, 12, 12.5, 1.0, kGrey);
    Line(p, 5.5, 15.5, 10, 15.5, 1.0, kGrey);
}

void DrawList(QPainter& p) {
    Box(p, QRectF(2.5, 2.5, 15, 15), kPaper);
    p.setPen(Qt::NoPen);
    p.setBrush(kAccent);
    p.drawRect(QRectF(3, 7.5, 14, 4));
    Line(p, 5, 5.5, 14, 5.5, 1.0);
    Line(p, 5, 9.5, 13, 9.5, 1.0, kPaper);
    Line(p, 5, 13.5, 12, 13.5, 1.0);
    Line(p, 5, 16, 14, 16, 1.0, kGrey);
}

void DrawScrollbar(QPainter& p) {
    Box(p, QRectF(6.5, 1.5, 7, 17), kLight);
    Triangle(p, {8, 6}, {10, 3}, {12, 6});
    Triangle(p, {8, 14}, {10, 17}, {12, 14});
    Box(p, QRectF(7.5, 7.5, 5, 5), kGrey);
}

void DrawString(QPainter& p) {
    QFont font("DejaVu Sans");
    font.setPixelSize(13);
    font.setBold(true);
    p.setFont(font);
    p.setPen(kInk);
    p.drawText(QRectF(0, 0, 20, 20), Qt::AlignCenter, "Aa");
    Line(p, 2, 17.5, 18, 17.5, 1.0, kGrey);
}

void DrawBitmap(QPainter& p) {
    Box(p, QRectF(2.5, 3.5, 15, 13), kPaper);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(90, 150, 90));
    p.drawPolygon(QPolygonF({{3, 16}, {8, 9}, {11, 13}, {13, 11}, {17, 16}}));
    p.setBrush(QColor(235, 170, 40));
    p.drawEllipse(QPointF(13.5, 7.5), 2, 2);
}

void DrawLine(QPainter& p) {
    Line(p, 4, 16, 16, 4, 1.5);
    p.setPen(Qt::NoPen);
    p.setBrush(kInk);
    p.drawRect(QRectF(2.5, 14.5, 3, 3));
    p.drawRect(QRectF(14.5, 2.5, 3, 3));
}

void DrawSchedulerLine(QPainter& p) {
    // The strip of hours beside the ruled lines.
    Box(p, QRectF(1.5, 2.5, 5, 15), kLight);
    for (double y : {5.5, 9.5, 13.5}) Line(p, 2.5, y, 5.5, y, 1.0, kAccent);
    for (double y : {3.5, 7.5, 11.5, 15.5}) Line(p, 8, y, 18.5, y, 1.0);
}

void DrawTable(QPainter& p) {
    Box(p, QRectF(2.5, 3.5, 15, 13), kPaper);
    p.setPen(Qt::NoPen);
    p.setBrush(kLight);
    p.drawRect(QRectF(3, 4, 14, 3.5));
    Line(p, 2.5, 7.5, 17.5, 7.5);
    Line(p, 2.5, 11.5, 17.5, 11.5);
    Line(p, 7.5, 3.5, 7.5, 16.5);
    Line(p, 12.5, 3.5, 12.5, 16.5);
}

using Drawer = void (*)(QPainter&);

constexpr Drawer kDrawers[] = {
    DrawPointer, DrawForm,   DrawButton,        DrawRepeatButton, DrawPushButton, DrawTextbox,
    DrawField,   DrawCheckbox, DrawPopupTrigger, DrawMenu,        DrawList,       DrawScrollbar,
    DrawString,  DrawBitmap, DrawLine,          DrawSchedulerLine, DrawTable,
};

QPixmap Picture(int size, double scale, const std::function<void(QPainter&)>& draw) {
    QPixmap pixmap(static_cast<int>(size * scale), static_cast<int>(size * scale));
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    draw(painter);
    return pixmap;
}

QIcon MakeIcon(int size, const std::function<void(QPainter&)>& draw) {
    QIcon icon;
    for (double scale : {1.0, 2.0}) icon.addPixmap(Picture(size, scale, draw));
    return icon;
}

}  // namespace

QIcon ToolIcon(int index) {
    if (index < 1 || index > static_cast<int>(std::size(kDrawers))) {
        return MakeIcon(kToolIconSize, [](QPainter&) {});
    }
    const Drawer drawer = kDrawers[index - 1];
    return MakeIcon(kToolIconSize, [drawer](QPainter& p) { drawer(p); });
}

QIcon DeleteIcon() {
    return MakeIcon(kDeleteIconSize, [](QPainter& p) {
        QPen pen(QColor(200, 30, 30), 2.2);
        pen.setCapStyle(Qt::RoundCap);
        p.setPen(pen);
        p.drawLine(QPointF(3, 3), QPointF(10, 10));
        p.drawLine(QPointF(10, 3), QPointF(3, 10));
    });
}

}  // namespace tolva
