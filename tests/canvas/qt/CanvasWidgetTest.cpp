// The design screen in the main window, driven by simulated mouse drags:
// draw a form, a button inside it, move the button, resize it by a node.
#include <QTest>

#include "canvas/qt/CanvasWidget.h"
#include "objects/form/ctlKOMAForm.h"
#include "shell/MainWindowFixture.h"

namespace tolva::testing {
namespace {

class CanvasWidgetTest : public MainWindowTest {
protected:
    CanvasWidget* Canvas() { return Find<CanvasWidget>("ctlScreen"); }

    void Press(QPoint at) { QTest::mousePress(Canvas(), Qt::LeftButton, {}, at); }
    void MoveTo(QPoint at) { QTest::mouseMove(Canvas(), at); }
    void Release(QPoint at) { QTest::mouseRelease(Canvas(), Qt::LeftButton, {}, at); }
    void Drag(QPoint from, QPoint to) {
        Press(from);
        const QPoint half = (from + to) / 2;
        MoveTo(half);
        MoveTo(to);
        Release(to);
    }

    // The form over the whole device area and a button inside it, both
    // drawn with the mouse.
    void DrawFormAndButton() {
        ClickTool(2);
        Drag({14, 14}, {400, 400});
        ClickTool(3);
        Drag({40, 40}, {100, 70});
    }

    KomaObject* Button() { return Screen().ObjectAt(type::Button, 1); }
};

TEST_F(CanvasWidgetTest, ScreenWidgetStandsInTheWindowAtItsScale) {
    ASSERT_NE(Canvas(), nullptr);
    EXPECT_EQ(Canvas()->size(), QSize(417, 417));
    EXPECT_EQ(Screen().CanvasWidth(), 6255);
    EXPECT_DOUBLE_EQ(Screen().PCTwipsToTolvaPixels(), 36.59375);
    // The settings' grid reached the screen.
    EXPECT_TRUE(Screen().GridVisible());
    EXPECT_EQ(Screen().GridSpacing(), 106);
    EXPECT_EQ(CanvasWidget::ToUnits(QPointF(2, 3)), QPointF(30, 45));
}

TEST_F(CanvasWidgetTest, GridOffInTheSettingsReachesTheScreen) {
    host.settings["Settings/ShowGrid"] = "0";
    Open();
    EXPECT_FALSE(Screen().GridVisible());
    EXPECT_EQ(Screen().GridSpacing(), 1);
    EXPECT_EQ(Screen().Canvas().dots.Count(), 0);
}

TEST_F(CanvasWidgetTest, DrawAFormThenAButtonInItMoveAndResizeTheButton) {
    // The form: 210, 210 snaps to 200; 6000, 6000 snaps to 6030.
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ASSERT_EQ(Screen().NumForms(), 1);
    KomaObject* form = Screen().FormAt(1);
    EXPECT_EQ(form->KOMABoundsX(), 0);
    EXPECT_EQ(form->KOMABoundsY(), 0);
    EXPECT_EQ(form->KOMAWidth(), 159);
    EXPECT_EQ(form->KOMAHeight(), 159);
    EXPECT_EQ(Items(Forms()), QStringList{"FORM_1"});
    EXPECT_EQ(window->PressedTool(), 1);

    // The button, drawn through the form: 600 snaps to 624, 1500 to 1472
    // and 1050 to 1048.
    ClickTool(3);
    Drag({40, 40}, {100, 70});
    ASSERT_EQ(Screen().NumButtons(), 1);
    KomaObject* button = Button();
    EXPECT_EQ(button->Left(), 624);
    EXPECT_EQ(button->Top(), 624);
    EXPECT_EQ(button->KOMABoundsX(), 12);
    EXPECT_EQ(button->KOMABoundsY(), 12);
    EXPECT_EQ(button->KOMAWidth(), 23);
    EXPECT_EQ(button->KOMAHeight(), 12);
    EXPECT_EQ(button->ParentForm(), form);
    EXPECT_EQ(form->Left(), 200);  // the form did not move
    EXPECT_EQ(Screen().SelectedObjectName(), "BUTTON_1");
    EXPECT_EQ(Objects()->currentText(), "BUTTON_1");
    EXPECT_EQ(window->PressedTool(), 1);
    EXPECT_FALSE(Screen().AllowDrawingOnObjects());

    // Moved by 30 and 10 pixels: 450 and 150 units, on the grid.
    window->DesignSaved(true);
    Drag({50, 50}, {80, 60});
    EXPECT_EQ(button->Left(), 1048);
    EXPECT_EQ(button->Top(), 730);
    EXPECT_EQ(button->KOMABoundsX(), 23);
    EXPECT_EQ(button->KOMABoundsY(), 14);
    EXPECT_EQ(button->KOMAWidth(), 23);
    EXPECT_FALSE(window->DesignSaved());
    EXPECT_EQ(Screen().ScreenMode(), ctlTolvaScreen::ModeIdle);

    // Resized by its bottom right node, which stands at 1896, 1154.
    const ShownRect& corner = Screen().Canvas().nodes[node::BottomRight];
    ASSERT_TRUE(corner.visible);
    ASSERT_EQ(corner.rect.left, 1896);
    host.cursors.clear();
    Drag({130, 80}, {200, 120});
    EXPECT_EQ(button->Left(), 1048);
    EXPECT_EQ(button->Top(), 730);
    EXPECT_EQ(button->Width(), 1908);
    EXPECT_EQ(button->Height(), 1060);
    EXPECT_EQ(button->KOMAWidth(), 52);
    EXPECT_EQ(button->KOMAHeight(), 29);
    EXPECT_TRUE(button->Visible());
    EXPECT_EQ(Screen().Canvas().nodes[node::BottomRight].rect.left, 1048 + 1908);
    ASSERT_FALSE(host.cursors.empty());
    EXPECT_EQ(host.cursors.front(), CursorShape::SizeNWSE);
}

TEST_F(CanvasWidgetTest, ClickWithAToolArmedCreatesNothingAndPointerComesBack) {
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ClickTool(3);
    EXPECT_EQ(window->PressedTool(), 3);
    // The top margin, away from the nodes of the selected form.
    QTest::mouseClick(Canvas(), Qt::LeftButton, {}, QPoint(100, 5));
    EXPECT_EQ(Screen().NumButtons(), 0);
    EXPECT_EQ(window->PressedTool(), 1);
    EXPECT_EQ(Screen().CreateObjectType(), type::None);
    EXPECT_FALSE(Screen().AllowDrawing());
}

TEST_F(CanvasWidgetTest, ClickWithTheLineToolCreatesALine) {
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ClickTool(15);
    QTest::mouseClick(Canvas(), Qt::LeftButton, {}, QPoint(100, 100));
    EXPECT_EQ(Screen().NumLines(), 1);
    EXPECT_EQ(window->PressedTool(), 1);
}

TEST_F(CanvasWidgetTest, ClickOnTheBareMarginEmptiesTheSelectionAndTheObjectsCombo) {
    DrawFormAndButton();
    ASSERT_EQ(Objects()->count(), 2);
    QTest::mouseClick(Canvas(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(Screen().SelectedObjectType(), type::None);
    EXPECT_EQ(Objects()->count(), 0);
    // The form stays drawn.
    EXPECT_TRUE(Screen().FormAt(1)->Visible());
    EXPECT_EQ(Screen().CurrentDesignForm(), "FORM_1");
}

TEST_F(CanvasWidgetTest, CursorIsTheCrossOverTheCanvasWithAToolAndTheArrowWithout) {
    host.cursors.clear();
    MoveTo({5, 5});
    ASSERT_FALSE(host.cursors.empty());
    EXPECT_EQ(host.cursors.back(), CursorShape::Arrow);
    ClickTool(2);
    MoveTo({6, 6});
    EXPECT_EQ(host.cursors.back(), CursorShape::Cross);
}

TEST_F(CanvasWidgetTest, CursorOverASideNode) {
    DrawFormAndButton();
    // The right side node of the button at 624..1472 across, 624..1048 down.
    const CanvasRect side = Screen().Canvas().nodes[node::CenterRight].rect;
    const QPointF at = CanvasWidget::ToPixels(side.left + 60, side.top + 60);
    MoveTo(at.toPoint());
    ASSERT_FALSE(host.cursors.empty());
    EXPECT_EQ(host.cursors.back(), CursorShape::SizeWE);
}

TEST_F(CanvasWidgetTest, DeleteKeyRemovesTheSelectedObject) {
    DrawFormAndButton();
    ASSERT_TRUE(Button()->HasFocus());
    QTest::keyClick(Canvas(), Qt::Key_Delete);
    EXPECT_EQ(Screen().NumButtons(), 0);
    EXPECT_EQ(Screen().NumForms(), 1);
}

// --- the keyboard and the lost release -------------------------------------------------------

class CanvasKeysTest : public CanvasWidgetTest {
protected:
    void SetUp() override {
        CanvasWidgetTest::SetUp();
        window->activateWindow();
        QApplication::setActiveWindow(window.get());
    }
    // The key goes where the keyboard focus is, as a person's key does.
    void PressDeleteKey() {
        QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : window.get();
        QTest::keyClick(target, Qt::Key_Delete);
    }
    // A move of the mouse with no button held, as after a lost release.
    void MoveWithoutButton(QPoint at) {
        QMouseEvent move(QEvent::MouseMove, QPointF(at), Canvas()->mapToGlobal(QPointF(at)),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(Canvas(), &move);
    }
};

TEST_F(CanvasKeysTest, DeleteWithNothingSelectedDeletesNothing) {
    DrawFormAndButton();
    // Click the button, then the bare margin: nothing is selected and the
    // inspector shows no object.
    QTest::mouseClick(Canvas(), Qt::LeftButton, {}, QPoint(60, 50));
    ASSERT_EQ(Screen().SelectedObjectName(), "BUTTON_1");
    QTest::mouseClick(Canvas(), Qt::LeftButton, {}, QPoint(5, 5));
    ASSERT_EQ(Screen().SelectedObjectType(), type::None);
    ASSERT_EQ(QApplication::focusWidget(), Canvas());
    PressDeleteKey();
    EXPECT_EQ(Screen().NumButtons(), 1);
    EXPECT_EQ(Screen().NumForms(), 1);
}

TEST_F(CanvasKeysTest, AnObjectChosenInTheObjectsComboIsDeletedByTheKey) {
    DrawFormAndButton();
    // The form selected by a click, then the button chosen in the combo.
    QTest::mouseClick(Canvas(), Qt::LeftButton, {}, QPoint(300, 300));
    ASSERT_EQ(Screen().SelectedObjectType(), type::Form);
    Objects()->setFocus();
    Choose(Objects(), "BUTTON_1");
    ASSERT_EQ(Screen().SelectedObjectName(), "BUTTON_1");
    // Choosing gave the screen the keyboard.
    EXPECT_EQ(QApplication::focusWidget(), Canvas());
    PressDeleteKey();
    EXPECT_EQ(Screen().NumButtons(), 0);
    EXPECT_EQ(Screen().NumForms(), 1);
}

TEST_F(CanvasKeysTest, TheKeyElsewhereDeletesNothing) {
    DrawFormAndButton();
    QTest::mouseClick(Canvas(), Qt::LeftButton, {}, QPoint(60, 50));
    ASSERT_EQ(Screen().SelectedObjectName(), "BUTTON_1");
    Forms()->setFocus();
    QTest::keyClick(Forms(), Qt::Key_Delete);
    EXPECT_EQ(Screen().NumButtons(), 1);
}

TEST_F(CanvasKeysTest, AMoveWithNoButtonAfterALostReleaseDoesNotDrag) {
    DrawFormAndButton();
    const int left = Button()->KOMABoundsX();
    const int top = Button()->KOMABoundsY();
    // The press lands on the button; its release never comes (a message box
    // took it). The mouse comes back with no button held.
    Press(QPoint(60, 50));
    MoveWithoutButton(QPoint(200, 200));
    MoveWithoutButton(QPoint(250, 260));
    EXPECT_EQ(Button()->KOMABoundsX(), left);
    EXPECT_EQ(Button()->KOMABoundsY(), top);
    EXPECT_EQ(Screen().ScreenMode(), ctlTolvaScreen::ModeIdle);
    // The lost release ended as a plain click: the button is selected.
    EXPECT_EQ(Screen().SelectedObjectName(), "BUTTON_1");
    // The next press and drag work as ever.
    Drag(QPoint(60, 50), QPoint(120, 50));
    EXPECT_GT(Button()->KOMABoundsX(), left);
}

TEST_F(CanvasKeysTest, APressWhoseReleaseABoxTookEndsAtTheFirstMoveWithoutTheButton) {
    DrawFormAndButton();
    ClickTool(3);
    Drag({40, 200}, {100, 230});
    ASSERT_EQ(Screen().NumButtons(), 2);
    KomaObject* second = Screen().ObjectAt(type::Button, 2);
    const int left = second->KOMABoundsX();
    const int top = second->KOMABoundsY();
    // A value refused in the inspector shows its box as the press on the
    // second button commits the row; the box takes the release, and the
    // mouse moves on with no button.
    Press(QPoint(60, 210));
    MoveWithoutButton(QPoint(300, 300));
    EXPECT_EQ(second->KOMABoundsX(), left);
    EXPECT_EQ(second->KOMABoundsY(), top);
    MoveWithoutButton(QPoint(320, 340));
    EXPECT_EQ(second->KOMABoundsX(), left);
    EXPECT_EQ(second->KOMABoundsY(), top);
}

TEST_F(CanvasWidgetTest, PaintingTheWindowShowsTheSelectedButtonsNodes) {
    DrawFormAndButton();
    const QImage image = Canvas()->grab().toImage();
    ASSERT_FALSE(image.isNull());
    // A node is blue (stored 0xC00000), the margin grey (C0C0C0), the
    // button a white box; the device area (E0E0E0) shows through the form.
    const CanvasRect node = Screen().Canvas().nodes[node::TopLeft].rect;
    const QPointF inNode = CanvasWidget::ToPixels(node.left + 67, node.top + 67);
    const qreal ratio = image.devicePixelRatio();
    EXPECT_EQ(image.pixelColor((inNode * ratio).toPoint()), QColor(0, 0, 0xC0));
    EXPECT_EQ(image.pixelColor(QPoint(3, 3) * ratio), QColor(0xC0, 0xC0, 0xC0));
    EXPECT_EQ(image.pixelColor(QPoint(410, 410) * ratio), QColor(0xC0, 0xC0, 0xC0));
    // Inside the rounded box, below its text.
    const QPointF inButton = CanvasWidget::ToPixels(Button()->Left() + 60,
                                                    Button()->Top() + Button()->Height() - 60);
    EXPECT_EQ(image.pixelColor((inButton * ratio).toPoint()), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(QPoint(300, 103) * ratio), QColor(0xE0, 0xE0, 0xE0));
}

TEST_F(CanvasWidgetTest, SecondButtonWhileOneIsHeldGoesNowhere) {
    DrawFormAndButton();
    const double left = Button()->Left();
    Press({50, 50});
    QTest::mousePress(Canvas(), Qt::RightButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseRelease(Canvas(), Qt::RightButton, Qt::NoModifier, QPoint(5, 5));
    EXPECT_EQ(Screen().ScreenMode(), ctlTolvaScreen::ModeMoving);
    MoveTo({80, 50});
    Release({80, 50});
    EXPECT_EQ(Screen().ScreenMode(), ctlTolvaScreen::ModeIdle);
    EXPECT_GT(Button()->Left(), left);
}

TEST_F(CanvasWidgetTest, LostReleaseIsDeliveredBeforeTheNextPress) {
    DrawFormAndButton();
    Press({50, 50});  // its release never comes
    ASSERT_EQ(Screen().ScreenMode(), ctlTolvaScreen::ModeMoving);
    QTest::mouseClick(Canvas(), Qt::LeftButton, {}, QPoint(100, 5));
    EXPECT_EQ(Screen().ScreenMode(), ctlTolvaScreen::ModeIdle);
    // The lost release selected the button, the click on the margin then
    // cleared the selection.
    EXPECT_EQ(Screen().SelectedObjectType(), type::None);
    // Hovering over the button moves nothing.
    const double left = Button()->Left();
    MoveTo({60, 50});
    EXPECT_EQ(Button()->Left(), left);
}

TEST_F(CanvasWidgetTest, ARightPressOnTheFormOpensItsPopupAndMovesNothing) {
    DrawFormAndButton();
    ctlKOMAForm* form = Screen().FormAt(1);
    const double left = form->Left();
    host.popupAnswers.push_back(1);  // "Remove Form Bitmap"
    QTest::mousePress(Canvas(), Qt::RightButton, Qt::NoModifier, QPoint(300, 300));
    QTest::mouseRelease(Canvas(), Qt::RightButton, Qt::NoModifier, QPoint(300, 300));
    ASSERT_EQ(host.popups.size(), 1u);
    EXPECT_EQ(host.popups[0].first, "Set Properties");
    EXPECT_NE(Screen().ScreenMode(), ctlTolvaScreen::ModeMoving);
    MoveTo({320, 320});
    EXPECT_EQ(form->Left(), left);
    EXPECT_EQ(form->KOMABitmapFile(), "");
}

TEST_F(CanvasWidgetTest, TheFormsTitleBarIsPaintedBlackWithItsFrame) {
    DrawFormAndButton();
    Screen().SelectObject(type::None, "");
    const QImage image = Canvas()->grab().toImage();
    const qreal ratio = image.devicePixelRatio();
    ctlKOMAForm* form = Screen().FormAt(1);
    const double s = form->PCTwipsToTolvaPixels();
    // Inside the bar, right of the title's text: black.
    const QPointF inBar = CanvasWidget::ToPixels(form->Left() + 150 * s, form->Top() + 14 * s);
    EXPECT_EQ(image.pixelColor((inBar * ratio).toPoint()), QColor(Qt::black));
    // The left frame line, below the bar: black.
    const QPointF onFrame = CanvasWidget::ToPixels(form->Left() + s / 2, form->Top() + 100 * s);
    EXPECT_EQ(image.pixelColor((onFrame * ratio).toPoint()), QColor(Qt::black));
    // Style 1 shows the bare surface there.
    form->KOMAFormStyle(1);
    Canvas()->update();
    const QImage bare = Canvas()->grab().toImage();
    EXPECT_NE(bare.pixelColor((inBar * ratio).toPoint()), QColor(Qt::black));
}

}  // namespace
}  // namespace tolva::testing
