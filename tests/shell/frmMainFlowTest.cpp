// The main window driving the real screen: tools, combos, delete and the
// saved state.
#include <QPushButton>

#include "document/ObjectTypes.h"
#include "document/StringTable.h"
#include "objects/form/ctlKOMAForm.h"
#include "shell/MainWindowFixture.h"

namespace tolva::testing {
namespace {

using Flow = MainWindowTest;

// --- tools -----------------------------------------------------------------------

TEST_F(Flow, PointerDisarmsDrawing) {
    ClickTool(3);
    ClickTool(1);
    EXPECT_EQ(window->PressedTool(), 1);
    EXPECT_EQ(Screen().CreateObjectType(), type::None);
    EXPECT_FALSE(Screen().AllowDrawing());
    EXPECT_FALSE(Screen().AllowDrawingOnObjects());
}

TEST_F(Flow, EveryObjectToolArmsItsTypeAndPressesItselfAlone) {
    const int expected[18] = {-1, 16, 1, 0, 13, 12, 3, 4, 5, 11, -1, 9, 15, 2, 7, 8, 14, 6};
    for (int index = 3; index <= 17; ++index) {
        if (index == 10) continue;
        ClickTool(index);
        EXPECT_EQ(Screen().CreateObjectType(), expected[index]) << index;
        EXPECT_TRUE(Screen().AllowDrawing()) << index;
        EXPECT_TRUE(Screen().AllowDrawingOnObjects()) << index;
        EXPECT_EQ(window->PressedTool(), index);
        for (int other = 1; other <= 17; ++other) {
            if (other != index) {
                EXPECT_FALSE(window->ToolAction(other)->isChecked()) << other;
            }
        }
    }
}

TEST_F(Flow, ClickingThePressedToolAgainKeepsItPressed) {
    ClickTool(3);
    ClickTool(3);
    EXPECT_EQ(window->PressedTool(), 3);
    ClickTool(1);
    ClickTool(1);
    EXPECT_EQ(window->PressedTool(), 1);
}

TEST_F(Flow, FormToolHidesTheFormOnShowAndClearsTheSelection) {
    ASSERT_TRUE(Draw(type::Form));
    ClickTool(2);
    EXPECT_EQ(Screen().CreateObjectType(), type::Form);
    EXPECT_EQ(Screen().CurrentDesignForm(), "");
    EXPECT_EQ(Screen().SelectedObjectType(), type::None);
    EXPECT_EQ(Screen().SelectedObjectName(), "");
    EXPECT_TRUE(Screen().AllowDrawing());
    EXPECT_FALSE(Screen().AllowDrawingOnObjects());
    EXPECT_FALSE(Screen().FormAt(1)->Visible());
}

TEST_F(Flow, MenuWithNoFormSaysSoAndLeavesNoToolPressed) {
    ClickTool(5);
    ClickTool(10);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "You must draw a form before you can edit its menus");
    EXPECT_EQ(host.messages[0].title, "Couldn't Edit Menus");
    EXPECT_EQ(window->PressedTool(), 0);
    // The armed type stays; drawing is off.
    EXPECT_EQ(Screen().CreateObjectType(), type::PushButton);
    EXPECT_FALSE(Screen().AllowDrawing());
    EXPECT_FALSE(Screen().AllowDrawingOnObjects());
}

TEST_F(Flow, AfterMenuPointerComesBackOnlyWithTheNextMouseUp) {
    ClickTool(10);
    EXPECT_EQ(window->PressedTool(), 0);
    window->MouseMove(0, 0, 100, 100);
    EXPECT_EQ(window->PressedTool(), 0);
    window->MouseUp(1, 0, 100, 100);
    EXPECT_EQ(window->PressedTool(), 1);
    EXPECT_EQ(Screen().CreateObjectType(), type::None);
}

TEST_F(Flow, AfterMenuPointerComesBackWithANewClick) {
    ClickTool(10);
    ClickTool(1);
    EXPECT_EQ(window->PressedTool(), 1);
}

TEST_F(Flow, MenuWithAFormOpensNoMessage) {
    ASSERT_TRUE(Draw(type::Form));
    host.ClearRecord();
    ClickTool(10);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(window->PressedTool(), 0);
}

TEST_F(Flow, MouseUpReturnsTheToolbarToPointer) {
    ClickTool(11);
    Screen().AllowDrawingOnObjects(true);
    window->MouseUp(1, 0, 10, 10);
    EXPECT_EQ(window->PressedTool(), 1);
    EXPECT_EQ(Screen().CreateObjectType(), type::None);
    EXPECT_FALSE(Screen().AllowDrawing());
    // Drawing on objects is left as it was.
    EXPECT_TRUE(Screen().AllowDrawingOnObjects());
}

TEST_F(Flow, CursorIsTheArrowWithPointerAndTheCrossWithATool) {
    window->MouseMove(0, 0, 10, 10);
    ASSERT_FALSE(host.cursors.empty());
    EXPECT_EQ(host.cursors.back(), CursorShape::Arrow);
    ClickTool(3);
    window->MouseMove(0, 0, 10, 10);
    EXPECT_EQ(host.cursors.back(), CursorShape::Cross);
    ClickTool(10);  // no tool pressed: still the cross
    window->MouseMove(0, 0, 10, 10);
    EXPECT_EQ(host.cursors.back(), CursorShape::Cross);
}

TEST_F(Flow, MouseOverTheWindowOrTheToolbarShowsTheArrow) {
    ClickTool(3);
    host.cursors.clear();
    QMouseEvent move(QEvent::MouseMove, QPointF(700, 500), QPointF(700, 500), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(window->centralWidget(), &move);
    ASSERT_FALSE(host.cursors.empty());
    EXPECT_EQ(host.cursors.back(), CursorShape::Arrow);
    host.cursors.clear();
    QMouseEvent overBar(QEvent::MouseMove, QPointF(600, 10), QPointF(600, 10), Qt::NoButton,
                        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(Find<QToolBar>("tlbrObjects"), &overBar);
    ASSERT_FALSE(host.cursors.empty());
    EXPECT_EQ(host.cursors.back(), CursorShape::Arrow);
}

// --- creating ------------------------------------------------------------------------

TEST_F(Flow, FirstFormLandsInFormsAndObjectsHoldsOnlyTheFormEntry) {
    ClickTool(2);
    ASSERT_TRUE(Draw(type::Form));
    EXPECT_EQ(Items(Forms()), QStringList{"FORM_1"});
    EXPECT_EQ(Forms()->currentText(), QStringLiteral("FORM_1"));
    EXPECT_EQ(Items(Objects()), QStringList{"(Form)"});
    EXPECT_EQ(Objects()->currentText(), QStringLiteral("(Form)"));
    EXPECT_TRUE(window->FormsComboEnabled());
    EXPECT_TRUE(window->ObjectsComboEnabled());
    EXPECT_FALSE(window->DesignSaved());
    EXPECT_FALSE(Screen().AllowDrawingOnObjects());
    EXPECT_EQ(Screen().SelectedObjectName(), "FORM_1");
    EXPECT_EQ(Screen().SelectedObjectType(), type::Form);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(Flow, DrawingAnObjectWithNoFormIsRefusedByTheScreen) {
    ClickTool(3);
    EXPECT_FALSE(Draw(type::Button));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].title, "Couldn't Create Object");
    EXPECT_TRUE(window->DesignSaved());
    EXPECT_EQ(Objects()->count(), 0);
}

TEST_F(Flow, ObjectsListStaysSortedWithTheFormEntryFirst) {
    ASSERT_TRUE(Draw(type::Form));
    ASSERT_TRUE(Draw(type::String, {900, 3000, 2000, 3300}));
    ASSERT_TRUE(Draw(type::Button, {900, 900, 2000, 1300}));
    ASSERT_TRUE(Draw(type::Checkbox, {900, 1500, 2000, 1800}));
    EXPECT_EQ(Items(Objects()),
              (QStringList{"(Form)", "BUTTON_1", "CHECKBOX_1", "STRING_1"}));
    // The new object is the one shown.
    EXPECT_EQ(Objects()->currentText(), QStringLiteral("CHECKBOX_1"));
    EXPECT_EQ(Screen().SelectedObjectName(), "CHECKBOX_1");
}

TEST_F(Flow, ASecondFormReplacesTheFirstInBothCombos) {
    ASSERT_TRUE(Draw(type::Form));
    ASSERT_TRUE(Draw(type::Button, {900, 900, 2000, 1300}));
    ClickTool(2);
    EXPECT_EQ(Objects()->count(), 2);  // the previous list stays until a refresh
    ASSERT_TRUE(Draw(type::Form));
    EXPECT_EQ(Items(Forms()), (QStringList{"FORM_1", "FORM_2"}));
    EXPECT_EQ(Forms()->currentText(), QStringLiteral("FORM_2"));
    EXPECT_EQ(Items(Objects()), QStringList{"(Form)"});
}

TEST_F(Flow, FormsListKeepsTheOrderTheFormsWereMadeIn) {
    // Not sorted: FORM_10 comes last, where a sorted list would put it second.
    for (int i = 0; i < 10; ++i) {
        ClickTool(2);
        ASSERT_TRUE(Draw(type::Form));
    }
    QStringList expected;
    for (int i = 1; i <= 10; ++i) expected << QStringLiteral("FORM_%1").arg(i);
    EXPECT_EQ(Items(Forms()), expected);
    EXPECT_EQ(Forms()->currentText(), QStringLiteral("FORM_10"));
}

// --- choosing in the combos ------------------------------------------------------------

class TwoForms : public MainWindowTest {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        ASSERT_TRUE(Draw(type::Form));
        ASSERT_TRUE(Draw(type::Button, {900, 900, 2000, 1300}));
        ClickTool(2);
        ASSERT_TRUE(Draw(type::Form));
        ASSERT_EQ(Screen().CurrentDesignForm(), "FORM_2");
        host.ClearRecord();
    }
};

TEST_F(TwoForms, ChoosingTheCurrentFormAgainDoesNothing) {
    window->DesignSaved(true);
    ClickTool(3);
    Choose(Forms(), "FORM_2");
    EXPECT_TRUE(window->DesignSaved());
    EXPECT_EQ(Screen().CurrentDesignForm(), "FORM_2");
    // Not even the toolbar is touched.
    EXPECT_EQ(window->PressedTool(), 3);
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(TwoForms, ChoosingAnotherFormShowsItWithItsObjects) {
    ClickTool(3);
    Choose(Forms(), "FORM_1");
    EXPECT_EQ(Screen().CurrentDesignForm(), "FORM_1");
    EXPECT_TRUE(Screen().FormAt(1)->Visible());
    EXPECT_FALSE(Screen().FormAt(2)->Visible());
    EXPECT_EQ(Screen().SelectedObjectName(), "FORM_1");
    EXPECT_EQ(Screen().SelectedObjectType(), type::Form);
    EXPECT_EQ(Forms()->currentText(), QStringLiteral("FORM_1"));
    EXPECT_EQ(Items(Objects()), (QStringList{"(Form)", "BUTTON_1"}));
    EXPECT_EQ(Objects()->currentText(), QStringLiteral("(Form)"));
    // The pointer is armed again.
    EXPECT_EQ(window->PressedTool(), 1);
    EXPECT_EQ(Screen().CreateObjectType(), type::None);
    EXPECT_FALSE(window->DesignSaved());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(TwoForms, ObjectsRefreshSaysSoWhenTheSelectionIsNotOnTheFormOnShow) {
    // A button of the other form selected while FORM_2 is on show.
    ASSERT_TRUE(Screen().SelectObject(type::Button, "BUTTON_1"));
    window->UpdateObjectsCombo();
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "Error setting cmbObjects");
    EXPECT_EQ(host.messages[0].title, "UpdateObjectsCombo");
    EXPECT_EQ(Items(Objects()), QStringList{"(Form)"});
}

TEST_F(TwoForms, ChoosingAnObjectSelectsIt) {
    Choose(Forms(), "FORM_1");
    Choose(Objects(), "BUTTON_1");
    EXPECT_EQ(Screen().SelectedObjectName(), "BUTTON_1");
    EXPECT_EQ(Screen().SelectedObjectType(), type::Button);
    EXPECT_EQ(Objects()->currentText(), QStringLiteral("BUTTON_1"));
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(TwoForms, ChoosingTheFormEntrySelectsTheForm) {
    Choose(Forms(), "FORM_1");
    Choose(Objects(), "BUTTON_1");
    window->DesignSaved(true);
    Choose(Objects(), "(Form)");
    EXPECT_EQ(Screen().SelectedObjectName(), "FORM_1");
    EXPECT_EQ(Screen().SelectedObjectType(), type::Form);
    EXPECT_EQ(Objects()->currentText(), QStringLiteral("(Form)"));
    EXPECT_FALSE(window->DesignSaved());
}

TEST_F(TwoForms, ChoosingTheSelectedObjectAgainIsNoChange) {
    Choose(Forms(), "FORM_1");
    Choose(Objects(), "BUTTON_1");
    window->DesignSaved(true);
    Choose(Objects(), "BUTTON_1");
    EXPECT_TRUE(window->DesignSaved());
    EXPECT_EQ(Screen().SelectedObjectName(), "BUTTON_1");
}

TEST_F(TwoForms, CombosAreDeafWhileTheirFlagsAreOff) {
    // A fresh window has both flags off: a choice does nothing.
    Open();
    Forms()->addItem("FORM_X");
    Choose(Forms(), "FORM_X");
    Objects()->addItem("(Form)");
    Choose(Objects(), "(Form)");
    EXPECT_EQ(Screen().CurrentDesignForm(), "");
    EXPECT_TRUE(window->DesignSaved());
    EXPECT_TRUE(host.messages.empty());
}

// --- selection from the screen ---------------------------------------------------------

TEST_F(Flow, ClickOnTheBareCanvasEmptiesObjectsWhileTheFormStays) {
    ASSERT_TRUE(Draw(type::Form));
    ASSERT_TRUE(Draw(type::Button, {900, 900, 2000, 1300}));
    window->DesignSaved(true);
    Screen().SelectObject(type::None, "");
    window->SelectedObject("", type::None);
    EXPECT_EQ(Objects()->count(), 0);
    EXPECT_EQ(Screen().CurrentDesignForm(), "FORM_1");
    EXPECT_TRUE(Screen().FormAt(1)->Visible());
    EXPECT_EQ(Forms()->currentText(), QStringLiteral("FORM_1"));
    // A selection is no change of the design.
    EXPECT_TRUE(window->DesignSaved());
}

TEST_F(Flow, SelectionFromTheScreenLeavesTheComboFlags) {
    // A fresh window: both lists deaf, and a selection does not wake them.
    window->SelectedObject("", type::None);
    EXPECT_FALSE(window->FormsComboEnabled());
    EXPECT_FALSE(window->ObjectsComboEnabled());
    ASSERT_TRUE(Draw(type::Form));
    ASSERT_TRUE(window->FormsComboEnabled());
    window->SelectedObject("FORM_1", type::Form);
    window->SelectedObject("", type::None);
    EXPECT_TRUE(window->FormsComboEnabled());
    EXPECT_TRUE(window->ObjectsComboEnabled());
}

TEST_F(Flow, SelectedFormIsShownInForms) {
    ASSERT_TRUE(Draw(type::Form));
    ClickTool(2);
    ASSERT_TRUE(Draw(type::Form));
    Forms()->setCurrentIndex(-1);
    window->SelectedObject("FORM_1", type::Form);
    EXPECT_EQ(Forms()->currentText(), QStringLiteral("FORM_1"));
}

TEST_F(Flow, ObjectsRefreshWithNoFormSaysSo) {
    window->UpdateObjectsCombo();
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, "No active form");
    EXPECT_EQ(host.messages[0].title, "UpdateObjectsCombo");
}

TEST_F(Flow, ChangedFormShowsTheFormOnShowInForms) {
    ASSERT_TRUE(Draw(type::Form));
    window->DesignSaved(true);
    window->ChangedObject("FORM_1", type::Form);
    EXPECT_EQ(Forms()->currentText(), QStringLiteral("FORM_1"));
    EXPECT_EQ(Items(Objects()), QStringList{"(Form)"});
    EXPECT_FALSE(window->DesignSaved());
}

TEST_F(Flow, ChangedObjectLeavesDrawingOnObjectsAlone) {
    ASSERT_TRUE(Draw(type::Form));
    Screen().AllowDrawingOnObjects(true);
    window->ChangedObject("FORM_1", type::Form);
    EXPECT_TRUE(Screen().AllowDrawingOnObjects());
    window->CreatedObject("FORM_1", type::Form);
    EXPECT_FALSE(Screen().AllowDrawingOnObjects());
}

// --- deleting ----------------------------------------------------------------------------

class WithForm : public MainWindowTest {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        ASSERT_TRUE(Draw(type::Form));
        ASSERT_TRUE(Draw(type::Button, {900, 900, 2000, 1300}));
        Choose(Objects(), "(Form)");
        ASSERT_EQ(Screen().SelectedObjectType(), type::Form);
        window->DesignSaved(true);
        host.ClearRecord();
    }
    void PressDelete() { QTest::mouseClick(Find<QPushButton>("cmdDelete"), Qt::LeftButton); }
};

TEST_F(WithForm, DeleteButtonAsksBeforeDeletingAForm) {
    host.messageAnswers.push_back(MessageAnswer::No);
    PressDelete();
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, LoadResString(msg::ConfirmFormDelete));
    EXPECT_EQ(host.messages[0].title, LoadResString(msg::ConfirmFormDeleteTitle));
    EXPECT_EQ(host.messages[0].text,
              "Are you sure you want to delete this form and all embedded objects?");
    EXPECT_EQ(host.messages[0].title, "Confirm Form Delete");
    EXPECT_EQ(host.messages[0].buttons, MessageButtons::YesNo);
}

TEST_F(WithForm, NoKeepsTheForm) {
    host.messageAnswers.push_back(MessageAnswer::No);
    PressDelete();
    EXPECT_EQ(Screen().NumForms(), 1);
    EXPECT_EQ(Screen().NumButtons(), 1);
    EXPECT_EQ(Screen().CurrentDesignForm(), "FORM_1");
    EXPECT_EQ(Items(Forms()), QStringList{"FORM_1"});
    EXPECT_EQ(Items(Objects()), (QStringList{"(Form)", "BUTTON_1"}));
    EXPECT_TRUE(window->DesignSaved());
}

TEST_F(WithForm, YesDeletesTheFormAndAllItHolds) {
    host.messageAnswers.push_back(MessageAnswer::Yes);
    PressDelete();
    EXPECT_EQ(Screen().NumForms(), 0);
    EXPECT_EQ(Screen().NumButtons(), 0);
    EXPECT_EQ(Screen().CurrentDesignForm(), "");
    EXPECT_EQ(Forms()->count(), 0);
    EXPECT_EQ(Objects()->count(), 0);
    EXPECT_FALSE(window->DesignSaved());
    EXPECT_EQ(host.messages.size(), 1u);
}

TEST_F(WithForm, EditDeleteDeletesTheFormWithNoQuestion) {
    TriggerMenu("mnuEditDelete");
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Screen().NumForms(), 0);
    EXPECT_EQ(Screen().NumButtons(), 0);
    EXPECT_EQ(Forms()->count(), 0);
    EXPECT_EQ(Objects()->count(), 0);
    // The deletion's events mark the design changed.
    EXPECT_FALSE(window->DesignSaved());
}

TEST_F(WithForm, DeleteButtonDeletesAnObjectWithNoQuestion) {
    Choose(Objects(), "BUTTON_1");
    window->DesignSaved(true);
    PressDelete();
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Screen().NumButtons(), 0);
    EXPECT_EQ(Screen().NumForms(), 1);
    // The deletion ends with nothing selected: the form stays with an empty
    // list of objects.
    EXPECT_EQ(Objects()->count(), 0);
    EXPECT_EQ(Forms()->currentText(), QStringLiteral("FORM_1"));
    EXPECT_EQ(Screen().CurrentDesignForm(), "FORM_1");
    EXPECT_FALSE(window->DesignSaved());
}

TEST_F(WithForm, DeleteButtonWithNothingSelectedStillMarksTheDesign) {
    Screen().SelectObject(type::None, "");
    PressDelete();
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(Screen().NumForms(), 1);
    EXPECT_FALSE(window->DesignSaved());
}

TEST_F(WithForm, EditDeleteWithNothingSelectedLeavesTheSavedState) {
    Screen().SelectObject(type::None, "");
    TriggerMenu("mnuEditDelete");
    EXPECT_EQ(Screen().NumForms(), 1);
    EXPECT_TRUE(window->DesignSaved());
}

// --- the saved state ---------------------------------------------------------------------------

TEST_F(Flow, SavedStateGoesFalseOnlyByChanges) {
    EXPECT_TRUE(window->DesignSaved());
    ClickTool(3);
    ClickTool(1);
    window->MouseUp(1, 0, 0, 0);
    EXPECT_TRUE(window->DesignSaved());
    ASSERT_TRUE(Draw(type::Form));
    EXPECT_FALSE(window->DesignSaved());
    window->DesignSaved(true);
    window->SelectedObject("FORM_1", type::Form);
    window->SelectedObject("", type::None);
    EXPECT_TRUE(window->DesignSaved());
    window->ChangedObject("FORM_1", type::Form);
    EXPECT_FALSE(window->DesignSaved());
    window->DesignSaved(true);
    window->DeletedObject("BUTTON_9", type::Button);
    EXPECT_FALSE(window->DesignSaved());
}

// --- help, log and exit ---------------------------------------------------------------------------

// A host that notes the working directory of each mail it opens.
class MailHost : public ScriptedHost {
public:
    std::vector<std::string> directories;
    void OpenMail(const std::string& address, const std::string& directory) override {
        directories.push_back(directory);
        ScriptedHost::OpenMail(address, directory);
    }
};

TEST(FlowMail, ReportBugsOpensAMailFromTheProgramsFolder) {
    EnsureStringsLoaded();
    MailHost mail;
    mail.programDirectory = "/opt/tolva";
    frmMain main(mail);
    main.Load(false);
    main.findChild<QAction*>("mnuHelpBugs")->trigger();
    ASSERT_EQ(mail.mailOpened.size(), 1u);
    EXPECT_EQ(mail.mailOpened[0], kMaintainersAddress);
    EXPECT_EQ(mail.directories, std::vector<std::string>{"/opt/tolva"});
    EXPECT_TRUE(mail.messages.empty());
}

TEST_F(Flow, LogWindowIsShownModallyAndHiddenOnClose) {
    frmLog* log = window->LogWindow();
    bool shownModal = false;
    QTimer::singleShot(0, [&] {
        shownModal = log->isVisible() && log->isModal();
        log->close();
    });
    TriggerMenu("mnuViewLog");
    EXPECT_TRUE(shownModal);
    EXPECT_FALSE(log->isVisible());
    EXPECT_EQ(window->LogWindow(), log);
}

TEST_F(Flow, ExitClosesTheWindow) {
    ASSERT_TRUE(window->isVisible());
    TriggerMenu("mnuExit");
    EXPECT_FALSE(window->isVisible());
}

TEST_F(Flow, OptionsAndAboutDoNothingVisibleYet) {
    ASSERT_TRUE(Draw(type::Form));
    window->DesignSaved(false);
    host.ClearRecord();
    for (const char* name : {"mnuEditOptions", "mnuHelpAbout"}) TriggerMenu(name);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_TRUE(host.openRequests.empty());
    EXPECT_TRUE(host.saveRequests.empty());
    EXPECT_EQ(Screen().NumForms(), 1);
    EXPECT_TRUE(window->isVisible());
}

}  // namespace
}  // namespace tolva::testing
