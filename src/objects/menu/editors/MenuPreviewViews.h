#pragma once
// The two pictures of the Menu Editor's preview: imgForm, the form as the
// device shows it, and ctlSampleMenu over its top left corner, the menu
// dropped down. Both paint draw elements with the canvas's own painter, at
// two desktop pixels for each device pixel.
#include <QWidget>

#include "canvas/qt/ScreenPainter.h"
#include "objects/menu/MenuEditing.h"

namespace tolva {

class MenuFormPicture : public QWidget {
    Q_OBJECT
public:
    // Desktop pixels for each device pixel.
    static constexpr int kZoom = 2;

    MenuFormPicture(const MenuEditing::FormPicture& picture, QWidget* parent);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const MenuEditing::FormPicture& picture_;
    ScreenPainter painter_;
};

class MenuSamplePicture : public QWidget {
    Q_OBJECT
public:
    MenuSamplePicture(MenuEditing& edit, QWidget* parent);
    // Sizes the picture to the menu shown, or hides it with none.
    void Follow();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MenuEditing& edit_;
    ScreenPainter painter_;
};

}  // namespace tolva
