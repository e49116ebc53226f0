// The inspector in the main window, end to end: a form drawn with the mouse
// shows its rows, and an edited row goes through the screen to the form and
// comes back as a refresh.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>
#include <QTest>

#include "canvas/qt/CanvasWidget.h"
#include "document/ObjectTypes.h"
#include "inspector/qt/ctlPropertyView.h"
#include "objects/form/ctlKOMAForm.h"
#include "shell/MainWindowFixture.h"
#include "shell/modMain.h"

namespace tolva::testing {
namespace {

class InspectorFlow : public MainWindowTest {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        BuildValueLists();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    ctlPropertyView* View() { return Find<ctlPropertyView>("ctlPropView"); }
    CanvasWidget* Canvas() { return Find<CanvasWidget>("ctlScreen"); }

    template <typename T>
    T* Editor(const char* name, int index) {
        for (T* widget : View()->findChildren<T*>(QString::fromLatin1(name))) {
            if (widget->property("index").toInt() == index) return widget;
        }
        return nullptr;
    }
    QLineEdit* Text(int row) { return Editor<QLineEdit>("txtAnyValue", row); }
    QComboBox* Choice(int row) { return Editor<QComboBox>("cmbOnlyValue", row); }
    QPushButton* Button(int row) { return Editor<QPushButton>("cmdButton", row); }
    QString Title() { return View()->findChild<QLabel*>("lblTitle")->text(); }

    void Drag(QPoint from, QPoint to) {
        QTest::mousePress(Canvas(), Qt::LeftButton, {}, from);
        QTest::mouseMove(Canvas(), (from + to) / 2);
        QTest::mouseMove(Canvas(), to);
        QTest::mouseRelease(Canvas(), Qt::LeftButton, {}, to);
    }

    // A form drawn with the mouse over the whole device area.
    ctlKOMAForm* DrawForm() {
        ClickTool(2);
        Drag({14, 14}, {400, 400});
        return Screen().FormAt(Screen().NumForms());
    }

    // The user types into a row's box and presses Enter.
    void Enter(int row, const QString& text) {
        QLineEdit* box = Text(row);
        box->setFocus(Qt::MouseFocusReason);
        box->selectAll();
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
    }

    void ChooseRow(int row, const QString& word) {
        QComboBox* combo = Choice(row);
        const int index = combo->findText(word);
        ASSERT_GE(index, 0) << word.toStdString();
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }
};

TEST_F(InspectorFlow, TheInspectorIsInTheWindow) {
    ASSERT_NE(View(), nullptr);
    EXPECT_EQ(Title(), "Properties");
    EXPECT_EQ(View()->NumProperties(), 0);
}

TEST_F(InspectorFlow, ADrawnFormShowsItsTenRows) {
    ctlKOMAForm* form = DrawForm();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(Title(), "FORM_1 - Properties");
    ASSERT_EQ(View()->NumProperties(), 10);
    EXPECT_EQ(Text(1)->text(), "FORM_1");
    EXPECT_EQ(Text(2)->text(), "0");
    EXPECT_EQ(Text(4)->text(), "159");
    EXPECT_EQ(Choice(6)->currentText(), "(None)");
    EXPECT_EQ(Choice(7)->currentText(), "NORMAL");
    EXPECT_EQ(Choice(7)->count(), 4);
    EXPECT_EQ(Text(8)->text(), "Form Title");
    EXPECT_EQ(Button(9)->text(), "Form Bitmap");
    EXPECT_TRUE(Button(9)->isVisible());
    EXPECT_EQ(Choice(10)->currentText(), "4 Bit");
    EXPECT_FALSE(View()->findChild<QWidget*>("VScroll1")->isVisible());
}

TEST_F(InspectorFlow, ANewNameWithEnterRenamesTheFormInTheFormsList) {
    ctlKOMAForm* form = DrawForm();
    window->DesignSaved(true);
    Enter(1, "MAIN");
    EXPECT_EQ(form->KOMAName(), "MAIN");
    EXPECT_EQ(Items(Forms()), QStringList{"MAIN"});
    EXPECT_EQ(Forms()->currentText(), "MAIN");
    EXPECT_EQ(Screen().CurrentDesignForm(), "MAIN");
    EXPECT_EQ(Screen().SelectedObjectName(), "MAIN");
    EXPECT_EQ(Title(), "MAIN - Properties");
    EXPECT_EQ(Text(1)->text(), "MAIN");
    EXPECT_FALSE(window->DesignSaved());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(InspectorFlow, ANameThatIsTakenIsRefusedAndTheNameStays) {
    DrawForm();
    ctlKOMAForm* second = DrawForm();
    ASSERT_EQ(second->KOMAName(), "FORM_2");
    ASSERT_EQ(Title(), "FORM_2 - Properties");
    Enter(1, "FORM_1");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Object name must be unique");
    EXPECT_EQ(second->KOMAName(), "FORM_2");
    EXPECT_EQ(Screen().FormAt(1)->KOMAName(), "FORM_1");
    // The refresh shows the name the form kept.
    EXPECT_EQ(Text(1)->text(), "FORM_2");
    EXPECT_EQ(Title(), "FORM_2 - Properties");
    EXPECT_EQ(Items(Forms()), (QStringList{"FORM_1", "FORM_2"}));
    // The current form held the refused text when the forms list was set
    // from it, so the list shows the other form until the next selection,
    // while the screen shows FORM_2 again.
    EXPECT_EQ(Forms()->currentText(), "FORM_1");
    EXPECT_EQ(Screen().CurrentDesignForm(), "FORM_2");
}

TEST_F(InspectorFlow, AnXOutsideTheDeviceGivesTheSettersMessageAndTheFormStays) {
    ctlKOMAForm* form = DrawForm();
    Enter(2, "200");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Invalid value");
    EXPECT_EQ(host.messages[0].title, "KOMABoundsX");
    EXPECT_EQ(form->KOMABoundsX(), 0);
    EXPECT_EQ(Text(2)->text(), "0");
}

TEST_F(InspectorFlow, AnXThatIsNoNumberIsPassedOver) {
    ctlKOMAForm* form = DrawForm();
    Enter(2, "abc");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(form->KOMABoundsX(), 0);
    EXPECT_EQ(Text(2)->text(), "0");
}

TEST_F(InspectorFlow, AHeightThatIsNoNumberIsRefusedWithoutHarm) {
    ctlKOMAForm* form = DrawForm();
    Enter(5, "abc");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Could not change object properties");
    EXPECT_EQ(host.messages[0].title, "NotifyObjectOfPropertyChange");
    EXPECT_EQ(form->KOMAHeight(), 159);
    EXPECT_EQ(Text(5)->text(), "159");
}

TEST_F(InspectorFlow, AGoodXMovesTheForm) {
    ctlKOMAForm* form = DrawForm();
    Enter(4, "100");
    Enter(2, "20");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(form->KOMABoundsX(), 20);
    EXPECT_EQ(Text(2)->text(), "20");
}

TEST_F(InspectorFlow, ChangingTheStyleChangesTheForm) {
    ctlKOMAForm* form = DrawForm();
    window->DesignSaved(true);
    ChooseRow(7, "BITMAP_DIALOG");
    EXPECT_EQ(form->KOMAFormStyle(), 2);
    EXPECT_EQ(form->KOMAFormStyleWord(), "BITMAP_DIALOG");
    EXPECT_EQ(Choice(7)->currentText(), "BITMAP_DIALOG");
    EXPECT_FALSE(window->DesignSaved());
    EXPECT_TRUE(host.messages.empty());
}

// --- the keyboard after a commit -----------------------------------------------------------

TEST_F(InspectorFlow, AfterEnterTheKeyboardStaysOnTheCommittedRow) {
    DrawForm();
    ctlKOMAForm* second = DrawForm();
    Enter(8, "Main Menu");
    ASSERT_EQ(second->KOMAFormTitle(), "Main Menu");
    EXPECT_EQ(QApplication::focusWidget(), Text(8));
    // An arrow key goes to the row, not to the forms list.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    EXPECT_EQ(Screen().CurrentDesignForm(), "FORM_2");
    EXPECT_EQ(Forms()->currentText(), "FORM_2");
}

TEST_F(InspectorFlow, AfterARefusedValueTheKeyboardStaysOnTheRow) {
    DrawForm();
    Enter(2, "200");
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(QApplication::focusWidget(), Text(2));
}

TEST_F(InspectorFlow, TabCommitsAndTheKeyboardGoesOnToTheNextRow) {
    ctlKOMAForm* form = DrawForm();
    QLineEdit* box = Text(8);
    box->setFocus(Qt::MouseFocusReason);
    box->selectAll();
    QTest::keyClicks(box, "Tabbed");
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_EQ(form->KOMAFormTitle(), "Tabbed");
    QWidget* now = QApplication::focusWidget();
    ASSERT_NE(now, nullptr);
    EXPECT_TRUE(View()->isAncestorOf(now)) << now->objectName().toStdString();
    EXPECT_EQ(now->property("index").toInt(), 9);
}

TEST_F(InspectorFlow, AClickIntoAnotherRowCommitsAndLandsThere) {
    ctlKOMAForm* form = DrawForm();
    QLineEdit* box = Text(8);
    box->setFocus(Qt::MouseFocusReason);
    box->selectAll();
    QTest::keyClicks(box, "Clicked");
    QTest::mouseClick(Text(2), Qt::LeftButton);
    EXPECT_EQ(form->KOMAFormTitle(), "Clicked");
    EXPECT_EQ(QApplication::focusWidget(), Text(2));
}

TEST_F(InspectorFlow, AfterAChoiceTheKeyboardStaysOnTheChoiceRow) {
    ctlKOMAForm* form = DrawForm();
    Choice(7)->setFocus(Qt::MouseFocusReason);
    ChooseRow(7, "BITMAP_DIALOG");
    ASSERT_EQ(form->KOMAFormStyleWord(), "BITMAP_DIALOG");
    EXPECT_EQ(QApplication::focusWidget(), Choice(7));
}

TEST_F(InspectorFlow, TheWheelOverAChoiceRowWithoutTheKeyboardScrollsTheInspector) {
    // A short inspector that shows the style row (the seventh) but not all
    // eleven rows of the form, so that the scroll bar is needed.
    View()->resize(View()->width(), 210);
    ctlKOMAForm* form = DrawForm();
    auto* bar = View()->findChild<QScrollBar*>("VScroll1");
    ASSERT_TRUE(bar->isVisible());
    const int before = bar->value();
    QComboBox* combo = Choice(7);
    ASSERT_TRUE(combo->isVisible());
    ASSERT_FALSE(combo->hasFocus());
    const QString shown = combo->currentText();
    const QPoint at = combo->rect().center();
    QWheelEvent down(QPointF(at), QPointF(combo->mapToGlobal(at)), QPoint(), QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo, &down);
    EXPECT_EQ(combo->currentText(), shown);
    EXPECT_EQ(form->KOMAFormStyleWord(), "NORMAL");
    EXPECT_GT(bar->value(), before);
    EXPECT_FALSE(combo->hasFocus());
}

TEST_F(InspectorFlow, TheWheelOverTheFocusedChoiceRowChangesIt) {
    DrawForm();
    QComboBox* combo = Choice(7);
    combo->setFocus(Qt::MouseFocusReason);
    const QString shown = combo->currentText();
    const QPoint at = combo->rect().center();
    QWheelEvent down(QPointF(at), QPointF(combo->mapToGlobal(at)), QPoint(), QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo, &down);
    EXPECT_NE(combo->currentText(), shown);
}

TEST_F(InspectorFlow, TheTitleRowSetsTheTitle) {
    ctlKOMAForm* form = DrawForm();
    Enter(8, "Main Menu");
    EXPECT_EQ(form->KOMAFormTitle(), "Main Menu");
    EXPECT_EQ(Text(8)->text(), "Main Menu");
}

TEST_F(InspectorFlow, TheDepthRowSetsTheDepth) {
    ctlKOMAForm* form = DrawForm();
    ChooseRow(10, "2 Bit");
    EXPECT_EQ(form->KOMABitmapDepth(), 2);
    EXPECT_EQ(Choice(10)->currentText(), "2 Bit");
}

TEST_F(InspectorFlow, TheFocusedObjectRowOffersTheFormsOwnObjects) {
    ctlKOMAForm* form = DrawForm();
    ClickTool(3);
    Drag({40, 40}, {100, 70});
    ASSERT_EQ(Screen().NumButtons(), 1);
    Choose(Objects(), "(Form)");
    ASSERT_EQ(Title(), "FORM_1 - Properties");
    QStringList choices;
    for (int i = 0; i < Choice(6)->count(); ++i) choices << Choice(6)->itemText(i);
    EXPECT_EQ(choices, (QStringList{"(None)", "BUTTON_1"}));
    ChooseRow(6, "BUTTON_1");
    EXPECT_EQ(form->KOMAFocusedObject(), "BUTTON_1");
    EXPECT_EQ(Choice(6)->currentText(), "BUTTON_1");
}

TEST_F(InspectorFlow, TheBitmapButtonOpensTheChooser) {
    DrawForm();
    QTest::mouseClick(Button(9), Qt::LeftButton);
    ASSERT_EQ(host.openRequests.size(), 1u);
    EXPECT_EQ(host.openRequests[0].title, "Select Form Bitmap");
    // The refresh puts the button's value back to False.
    EXPECT_EQ(View()->PropertyValues().Value(9), PropertyCell(false));
}

TEST_F(InspectorFlow, TheFormToolEmptiesTheInspector) {
    DrawForm();
    ClickTool(2);
    EXPECT_EQ(Title(), "Properties");
    EXPECT_EQ(View()->NumProperties(), 0);
    EXPECT_FALSE(Text(1)->isVisible());
}

TEST_F(InspectorFlow, DeletingEmptiesTheInspector) {
    DrawForm();
    TriggerMenu("mnuEditDelete");
    EXPECT_EQ(Screen().NumForms(), 0);
    EXPECT_EQ(Title(), "Properties");
    EXPECT_EQ(View()->NumProperties(), 0);
}

TEST_F(InspectorFlow, ChoosingAFormInTheListShowsItsRows) {
    DrawForm();
    DrawForm();
    Choose(Forms(), "FORM_1");
    EXPECT_EQ(Title(), "FORM_1 - Properties");
    EXPECT_EQ(Text(1)->text(), "FORM_1");
}

TEST_F(InspectorFlow, ClickingTheScreenCommitsTheTypedTextFirst) {
    ctlKOMAForm* form = DrawForm();
    QLineEdit* box = Text(8);
    box->setFocus(Qt::MouseFocusReason);
    box->selectAll();
    QTest::keyClicks(box, "Hello");
    // The top margin, away from the nodes of the selected form.
    QTest::mouseClick(Canvas(), Qt::LeftButton, {}, QPoint(100, 5));
    EXPECT_EQ(form->KOMAFormTitle(), "Hello");
    // The press on the bare margin then emptied the inspector.
    EXPECT_EQ(View()->NumProperties(), 0);
}

TEST_F(InspectorFlow, TheBareMarginEmptiesTheInspector) {
    DrawForm();
    window->SelectedObject("", type::None);
    EXPECT_EQ(Title(), "Properties");
    EXPECT_EQ(View()->NumProperties(), 0);
}

}  // namespace
}  // namespace tolva::testing
