// Undo and Redo by hand: a button drawn and dragged with the mouse, Ctrl+Z
// puts it back, Ctrl+Y and Ctrl+Shift+Z move it again; inspector rows (a
// refused value makes no step), a deletion, the Menu Editor's OK, the saved
// state, and a fresh history after New and Open.
#include <QAction>

#include "document/ObjectTypes.h"
#include "objects/form/ctlKOMAForm.h"
#include "platform/DialogDriver.h"
#include "platform/ModalDriver.h"
#include "screen/DesignHistory.h"
#include "shell/ByHandFixture.h"
#include "shell/ObjectDialogs.h"
#include "shell/ToolTable.h"

namespace tolva::testing {
namespace {

class UndoByHand : public ByHand {
protected:
    void SetUp() override {
        ByHand::SetUp();
        window->ShowBitmapWarning(false);
        ClickTool(kFormTool);
        Drag({14, 14}, {400, 400});
        ClickTool(3);
        Drag({60, 110}, {160, 160});
        ASSERT_EQ(Screen().Count(type::Button), 1);
    }
    KomaObject* Button() { return Screen().ObjectAt(type::Button, 1); }
    QAction* Undo() { return Find<QAction>("mnuEditUndo"); }
    QAction* Redo() { return Find<QAction>("mnuEditRedo"); }
    void Keys(Qt::KeyboardModifiers modifiers, Qt::Key key) {
        QTest::keyClick(window.get(), key, modifiers);
        QApplication::processEvents();
    }
    // The button's place in device pixels.
    std::pair<int, int> Place() { return {Button()->KOMABoundsX(), Button()->KOMABoundsY()}; }
};

TEST_F(UndoByHand, ADragIsUndoneWithCtrlZAndRedoneWithCtrlY) {
    EXPECT_EQ(Undo()->text(), "Undo Draw BUTTON_1");
    EXPECT_TRUE(Undo()->isEnabled());
    EXPECT_FALSE(Redo()->isEnabled());
    const auto drawn = Place();
    // The button's middle, dragged 30 device pixels right and 20 down.
    const QPoint middle = CanvasWidget::ToPixels(Button()->Left() + Button()->Width() / 2,
                                                 Button()->Top() + Button()->Height() / 2)
                              .toPoint();
    Drag(middle, middle + QPoint(73, 49));
    const auto moved = Place();
    ASSERT_NE(moved, drawn);
    EXPECT_EQ(Undo()->text(), "Undo Move BUTTON_1");

    Keys(Qt::ControlModifier, Qt::Key_Z);
    EXPECT_EQ(Place(), drawn);
    EXPECT_EQ(Redo()->text(), "Redo Move BUTTON_1");
    EXPECT_TRUE(Redo()->isEnabled());
    // The window shows the button selected, as before the drag.
    EXPECT_EQ(Screen().SelectedObjectName(), "BUTTON_1");
    EXPECT_EQ(Objects()->currentText(), "BUTTON_1");

    Keys(Qt::ControlModifier, Qt::Key_Y);
    EXPECT_EQ(Place(), moved);
    EXPECT_FALSE(Redo()->isEnabled());

    Keys(Qt::ControlModifier, Qt::Key_Z);
    EXPECT_EQ(Place(), drawn);
    Keys(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_Z);
    EXPECT_EQ(Place(), moved);

    // Undo all the way: the button, then the form, go.
    Keys(Qt::ControlModifier, Qt::Key_Z);
    Keys(Qt::ControlModifier, Qt::Key_Z);
    EXPECT_EQ(Screen().Count(type::Button), 0);
    EXPECT_EQ(Undo()->text(), "Undo Draw FORM_1");
    Keys(Qt::ControlModifier, Qt::Key_Z);
    EXPECT_EQ(Screen().NumForms(), 0);
    EXPECT_FALSE(Undo()->isEnabled());
    EXPECT_EQ(Undo()->text(), "Undo");
    EXPECT_EQ(Forms()->count(), 0);
    // And back.
    Redo()->trigger();
    Redo()->trigger();
    EXPECT_EQ(Screen().Count(type::Button), 1);
    EXPECT_EQ(Items(Forms()), QStringList{"FORM_1"});
}

TEST_F(UndoByHand, InspectorRowsAreStepsButARefusedValueIsNot) {
    Enter(2, "33");
    EXPECT_EQ(Button()->KOMABoundsX(), 33);
    EXPECT_EQ(Undo()->text(), "Undo Set X Pos of BUTTON_1");
    const std::size_t steps = window->History().StepCount();
    // A width beyond the device is refused with its box and changes nothing.
    host.ClearRecord();
    Enter(4, "500");
    EXPECT_FALSE(host.messages.empty());
    EXPECT_EQ(window->History().StepCount(), steps);
    EXPECT_EQ(Undo()->text(), "Undo Set X Pos of BUTTON_1");
    Enter(1, "OK_BUTTON");
    EXPECT_EQ(Undo()->text(), "Undo Set Name of BUTTON_1");
    Undo()->trigger();
    EXPECT_EQ(Button()->KOMAName(), "BUTTON_1");
    EXPECT_EQ(Items(Objects()).contains("BUTTON_1"), true);
    Undo()->trigger();
    EXPECT_NE(Button()->KOMABoundsX(), 33);
}

TEST_F(UndoByHand, ADeletionComesBackWithItsPlaceOnTheForm) {
    const std::string before = SaveDesignAs(dir, "before");
    TriggerMenu("mnuEditDelete");
    EXPECT_EQ(Screen().Count(type::Button), 0);
    EXPECT_EQ(Undo()->text(), "Undo Delete BUTTON_1");
    Undo()->trigger();
    EXPECT_EQ(Screen().Count(type::Button), 1);
    EXPECT_EQ(SaveDesignAs(dir, "after"), before);
    std::vector<std::string> names;
    Screen().GetEmbeddedObjectNamesFromForm("FORM_1", names);
    EXPECT_EQ(names, std::vector<std::string>{"BUTTON_1"});
}

TEST_F(UndoByHand, TheMenuEditorsOkIsOneStep) {
    RegisterObjectDialogs();
    AnswerWithRegisteredDialog(host);
    OnNextModal([](QWidget* dialog) {
        dialog->findChild<QLineEdit*>("txtNewName")->setText("MENU_FILE");
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdNew"), Qt::LeftButton);
        dialog->findChild<QLineEdit*>("txtNewItem")->setText("Open");
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdAdd"), Qt::LeftButton);
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    });
    ClickTool(kMenuTool);
    QApplication::processEvents();
    ASSERT_EQ(Screen().FormAt(1)->Menus().size(), 1u);
    EXPECT_EQ(Undo()->text(), "Undo Edit Menus of FORM_1");
    Undo()->trigger();
    EXPECT_TRUE(Screen().FormAt(1)->Menus().empty());
    Redo()->trigger();
    EXPECT_EQ(Screen().FormAt(1)->Menus().size(), 1u);
}

TEST_F(UndoByHand, UndoBackToTheSavedStepCountsAsSaved) {
    EXPECT_FALSE(window->DesignSaved());
    SaveDesignAs(dir, "saved");
    EXPECT_TRUE(window->DesignSaved());
    Enter(2, "40");
    EXPECT_FALSE(window->DesignSaved());
    Undo()->trigger();
    EXPECT_TRUE(window->DesignSaved());
    Undo()->trigger();
    EXPECT_FALSE(window->DesignSaved());
    Redo()->trigger();
    EXPECT_TRUE(window->DesignSaved());
}

TEST_F(UndoByHand, NewAndOpenStartAFreshHistory) {
    SaveDesignAs(dir, "design");
    OpenAnew(dir / "design.txt");
    EXPECT_FALSE(Undo()->isEnabled());
    EXPECT_FALSE(Redo()->isEnabled());
    EXPECT_EQ(Screen().Count(type::Button), 1);
    TriggerMenu("mnuFileNew");
    EXPECT_FALSE(Undo()->isEnabled());
}

}  // namespace
}  // namespace tolva::testing
