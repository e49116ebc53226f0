#include "objects/menu/editors/MenuPreviewViews.h"

#include <QPainter>
#include <cmath>

#include "canvas/DeviceArea.h"
#include "document/KomaObject.h"

namespace tolva {

namespace {

constexpr int kDevicePixels = 160;

// Screen units for each desktop pixel of the preview.
double UnitsPerPixel(double unitsPerDevicePixel) {
    return unitsPerDevicePixel / MenuFormPicture::kZoom;
}

}  // namespace

MenuFormPicture::MenuFormPicture(const MenuEditing::FormPicture& picture, QWidget* parent)
    : QWidget(parent), picture_(picture), painter_(UnitsPerPixel(picture.devicePixel)) {
    setObjectName("imgForm");
    setFixedSize(sizeHint());
}

QSize MenuFormPicture::sizeHint() const {
    return QSize(kDevicePixels * kZoom, kDevicePixels * kZoom);
}

void MenuFormPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ScreenPainter::ToQColor(DrawColor::FromStored(kDeviceFillColor)));
    painter.translate(-painter_.ToPixels(picture_.left), -painter_.ToPixels(picture_.top));
    for (const KomaObject* object : picture_.objects)
        if (object) painter_.PaintObject(painter, *object);
}

MenuSamplePicture::MenuSamplePicture(MenuEditing& edit, QWidget* parent)
    : QWidget(parent), edit_(edit), painter_(UnitsPerPixel(kDefaultTwipsPerPixel)) {
    setObjectName("ctlSampleMenu");
    Follow();
}

void MenuSamplePicture::Follow() {
    const ctlKOMAMenu& sample = edit_.Sample();
    setFixedSize(static_cast<int>(std::ceil(painter_.ToPixels(sample.Width()))),
                 static_cast<int>(std::ceil(painter_.ToPixels(sample.Height()))));
    setVisible(edit_.HasSelectedMenu());
    update();
}

void MenuSamplePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // A dropped menu hides the form under it.
    painter.fillRect(rect(), Qt::white);
    painter_.PaintObject(painter, edit_.Sample());
}

}  // namespace tolva
