// No failure escapes through the event loop: every control of the main window
// runs its handler under the top-level guard, which shows "Run-time error"
// and ends the program.
#include <QMouseEvent>
#include <QPushButton>

#include "document/ObjectTypes.h"
#include "document/RuntimeFailure.h"
#include "shell/MainWindowFixture.h"
#include "shell/RunGuarded.h"

namespace tolva::testing {
namespace {

// A host whose desktop services fail once the window stands.
class FailingHost : public ScriptedHost {
public:
    bool failing = false;
    MessageAnswer MessageBox(const std::string& text, const std::string& title,
                             MessageButtons buttons) override {
        if (failing) throw RuntimeFailure("Overflow");
        return ScriptedHost::MessageBox(text, title, buttons);
    }
    void SetCursor(CursorShape shape) override {
        if (failing) throw RuntimeFailure("Overflow");
        ScriptedHost::SetCursor(shape);
    }
    void OpenMail(const std::string& address, const std::string& directory) override {
        if (failing) throw RuntimeFailure("Overflow");
        ScriptedHost::OpenMail(address, directory);
    }
};

class Guarded : public ::testing::Test {
protected:
    void SetUp() override {
        EnsureStringsLoaded();
        SetGuardHost(&guardHost);
        SetGuardExit([this](int status) { exits.push_back(status); });
        window = std::make_unique<frmMain>(host);
        window->Load(true);
    }
    void TearDown() override {
        window.reset();
        SetGuardHost(nullptr);
        SetGuardExit(nullptr);
    }
    // The failure was stopped by the guard: one box and one exit.
    void ExpectStopped() {
        ASSERT_EQ(guardHost.messages.size(), 1u);
        EXPECT_EQ(guardHost.messages[0].title, "Run-time error");
        EXPECT_EQ(guardHost.messages[0].text, "Overflow");
        EXPECT_EQ(exits, std::vector<int>{1});
    }
    QToolButton* ToolButton(int index) {
        auto* toolbar = window->findChild<QToolBar*>("tlbrObjects");
        return qobject_cast<QToolButton*>(toolbar->widgetForAction(window->ToolAction(index)));
    }

    FailingHost host;
    ScriptedHost guardHost;
    std::vector<int> exits;
    std::unique_ptr<frmMain> window;
};

TEST_F(Guarded, ToolClick) {
    host.failing = true;
    // "Menu" with no form says so through the host, which fails.
    QTest::mouseClick(ToolButton(10), Qt::LeftButton);
    ExpectStopped();
}

TEST_F(Guarded, DeleteButton) {
    window->Screen().CreateObjectType(type::Form);
    window->Screen().SetRubberBand({600, 600, 3000, 2400});
    ASSERT_TRUE(window->Screen().CreateObject(type::Form));
    host.failing = true;
    // A form is selected: the question fails.
    QTest::mouseClick(window->findChild<QPushButton*>("cmdDelete"), Qt::LeftButton);
    ExpectStopped();
}

TEST_F(Guarded, MenuEntry) {
    host.failing = true;
    window->findChild<QAction*>("mnuHelpBugs")->trigger();
    ExpectStopped();
}

TEST_F(Guarded, ComboChoice) {
    ctlTolvaScreen& screen = window->Screen();
    screen.CreateObjectType(type::Form);
    screen.SetRubberBand({600, 600, 3000, 2400});
    ASSERT_TRUE(screen.CreateObject(type::Form));
    screen.CreateObjectType(type::Button);
    screen.SetRubberBand({900, 900, 2000, 1300});
    ASSERT_TRUE(screen.CreateObject(type::Button));
    // Hide the form: choosing the button in the list left standing then
    // finds no form on show and says so, through the failing host.
    QTest::mouseClick(ToolButton(2), Qt::LeftButton);
    ASSERT_EQ(screen.CurrentDesignForm(), "");
    host.failing = true;
    auto* objects = window->findChild<QComboBox*>("cmbObjects");
    const int index = objects->findText("BUTTON_1");
    ASSERT_GE(index, 0);
    objects->setCurrentIndex(index);
    emit objects->activated(index);
    ExpectStopped();
}

TEST_F(Guarded, MouseMoveOverTheWindow) {
    host.failing = true;
    QMouseEvent move(QEvent::MouseMove, QPointF(700, 500), QPointF(700, 500), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(window->centralWidget(), &move);
    ExpectStopped();
}

}  // namespace
}  // namespace tolva::testing
