// The options window, the about box and the busy window: opened from the
// menus by name, their texts and places, the grid set by OK as the choice
// asks, the bitmap warning following its box, Cancel keeping all.
#include <QCheckBox>
#include <QCoreApplication>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "document/ObjectTypes.h"
#include "platform/ModalDriver.h"
#include "shell/MainWindowFixture.h"
#include "shell/frmLog.h"
#include "shell/SortedComboBox.h"
#include "shell/WindowUnits.h"
#include "shell/frmOptions.h"

namespace tolva::testing {
namespace {

class Options : public MainWindowTest {
protected:
    frmOptions* Open() {
        TriggerMenu("mnuEditOptions");
        auto* options = window->findChild<frmOptions*>("frmOptions");
        EXPECT_NE(options, nullptr);
        return options;
    }
    template <typename T>
    static T* In(QWidget* dialog, const char* name) {
        return dialog->findChild<T*>(QString::fromLatin1(name));
    }
    static void Choose(QWidget* dialog, const QString& interval) {
        auto* combo = In<SortedComboBox>(dialog, "cmbGridInterval");
        combo->setCurrentIndex(combo->findText(interval));
    }
    // A click; a window closed by it is gone once its deletion has run.
    static void Click(QWidget* dialog, const char* name) {
        QTest::mouseClick(In<QPushButton>(dialog, name), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(Options, ItsTitleControlsPlacesAndTheStateFoundOnOpening) {
    frmOptions* options = Open();
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(options->windowTitle(), "Options");
    EXPECT_FALSE(options->isModal());
    EXPECT_TRUE(options->isVisible());
    EXPECT_EQ(In<QLabel>(options, "Label1")->text(), "Grid Interval");
    EXPECT_EQ(In<QLabel>(options, "Label1")->geometry(), UnitsRect(120, 120, 855, 195));
    auto* combo = In<SortedComboBox>(options, "cmbGridInterval");
    QStringList entries;
    for (int i = 0; i < combo->count(); ++i) entries << combo->itemText(i);
    EXPECT_EQ(entries, (QStringList{"30", "35", "40", "45", "50", "55"}));
    EXPECT_EQ(combo->geometry(), UnitsRect(120, 360, 2295, 315));
    EXPECT_EQ(In<QCheckBox>(options, "chkShowGrid")->text(), "Show Grid");
    EXPECT_EQ(In<QCheckBox>(options, "chkShowBitmapWarning")->text(), "Show bitmap warning on save");
    EXPECT_EQ(In<QCheckBox>(options, "chkShowBitmapWarning")->geometry(), UnitsRect(120, 1200, 2775, 195));
    EXPECT_EQ(In<QPushButton>(options, "cmdOK")->geometry(), UnitsRect(2280, 2040, 1095, 375));
    EXPECT_EQ(In<QPushButton>(options, "cmdCancel")->text(), "Cancel");
    // The defaults: grid shown at 55, the warning on.
    EXPECT_EQ(combo->currentText(), "55");
    EXPECT_TRUE(In<QCheckBox>(options, "chkShowGrid")->isChecked());
    EXPECT_TRUE(In<QCheckBox>(options, "chkShowBitmapWarning")->isChecked());
    EXPECT_TRUE(options->OldGridVisible());
    EXPECT_EQ(options->OldGridInterval(), 55);
}

TEST_F(Options, AnIntervalNotInTheListShows30AndCountsAsAChange) {
    Screen().SetGrid(33, true);
    frmOptions* options = Open();
    EXPECT_EQ(In<SortedComboBox>(options, "cmbGridInterval")->currentText(), "30");
    EXPECT_EQ(options->OldGridInterval(), 0);
    Click(options, "cmdOK");
    EXPECT_EQ(Screen().GridInterval(), 30);
}

TEST_F(Options, ANewIntervalIsShownAtOK) {
    frmOptions* options = Open();
    Choose(options, "40");
    Click(options, "cmdOK");
    EXPECT_EQ(Screen().GridInterval(), 40);
    EXPECT_TRUE(Screen().GridVisible());
    EXPECT_EQ(Screen().Canvas().dots.perSide, 41);
    EXPECT_EQ(window->findChild<frmOptions*>("frmOptions"), nullptr);
}

TEST_F(Options, UntickingShowGridHidesTheDotsAndTheSnapKeepsItsSpacing) {
    const int spacing = Screen().GridSpacing();
    frmOptions* options = Open();
    In<QCheckBox>(options, "chkShowGrid")->setChecked(false);
    Click(options, "cmdOK");
    EXPECT_FALSE(Screen().GridVisible());
    EXPECT_EQ(Screen().Canvas().dots.Count(), 0);
    EXPECT_EQ(Screen().GridSpacing(), spacing);
}

TEST_F(Options, ANewIntervalWhileTheGridIsOffDoesNotChangeIt) {
    Screen().SetGrid(55, false);
    frmOptions* options = Open();
    EXPECT_FALSE(In<QCheckBox>(options, "chkShowGrid")->isChecked());
    Choose(options, "30");
    Click(options, "cmdOK");
    EXPECT_EQ(Screen().GridInterval(), 55);
    EXPECT_FALSE(Screen().GridVisible());
}

TEST_F(Options, TheWarningFollowsItsBoxAndCancelKeepsAll) {
    frmOptions* options = Open();
    In<QCheckBox>(options, "chkShowBitmapWarning")->setChecked(false);
    Choose(options, "35");
    In<QCheckBox>(options, "chkShowGrid")->setChecked(false);
    Click(options, "cmdCancel");
    EXPECT_TRUE(window->ShowBitmapWarning());
    EXPECT_EQ(Screen().GridInterval(), 55);
    EXPECT_TRUE(Screen().GridVisible());
    options = Open();
    In<QCheckBox>(options, "chkShowBitmapWarning")->setChecked(false);
    Click(options, "cmdOK");
    EXPECT_FALSE(window->ShowBitmapWarning());
}

TEST_F(Options, TheAboutBoxAndTheBusyWindow) {
    TriggerMenu("mnuHelpAbout");
    auto* about = window->findChild<frmAbout*>("frmAbout");
    ASSERT_NE(about, nullptr);
    EXPECT_EQ(about->windowTitle(), "About Tolva Resource File Editor");
    EXPECT_FALSE(about->isModal());
    EXPECT_EQ(about->findChild<QLabel*>("lblInfo")->text(), "Tolva Resource File Editor");
    EXPECT_EQ(about->findChild<QLabel*>("lblInfo2")->text(), "KOMA Version: 1.3");
    Click(about, "cmdOK");
    EXPECT_EQ(window->findChild<frmAbout*>("frmAbout"), nullptr);
    auto* busy = window->findChild<frmBusy*>("frmBusy");
    ASSERT_NE(busy, nullptr);
    EXPECT_FALSE(busy->isVisible());
    EXPECT_EQ(busy->findChild<QLabel*>("lblState")->text(), "Please wait...");
}

TEST_F(Options, AGridChangedInOptionsShowsAtOnceAndIsKeptForTheNextStart) {
    const QImage before = window->findChild<QWidget*>("ctlScreen")->grab().toImage();
    frmOptions* options = Open();
    Choose(options, "30");
    Click(options, "cmdOK");
    const QImage after = window->findChild<QWidget*>("ctlScreen")->grab().toImage();
    EXPECT_NE(before, after);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(host.settings["Settings/GridInterval"], "30");
    MainWindowTest::Open();
    EXPECT_EQ(Screen().GridInterval(), 30);
    EXPECT_EQ(Open()->OldGridInterval(), 30);
}

TEST_F(Options, SettingsOfNonsenseStartTheEditorWithTheDefaults) {
    host.settings["Settings/GridInterval"] = "\x01lots";
    host.settings["Settings/ShowGrid"] = "maybe";
    host.settings["Settings/ShowBitmapWarning"] = "";
    MainWindowTest::Open();
    EXPECT_EQ(Screen().GridInterval(), 55);
    EXPECT_FALSE(Screen().GridVisible());
    EXPECT_TRUE(window->ShowBitmapWarning());
    EXPECT_TRUE(window->close());
    EXPECT_EQ(host.settings["Settings/GridInterval"], "55");
    EXPECT_EQ(host.settings["Settings/ShowGrid"], "0");
    EXPECT_EQ(host.settings["Settings/ShowBitmapWarning"], "1");
}

TEST_F(Options, TheLogWindowOpensModallyFromItsMenuAndStaysAsItWas) {
    // Actions that log lines: the window shows its first text all the same.
    ClickTool(2);
    Screen().SelectObject(type::None, "");
    QString shown;
    bool modal = false;
    OnNextModal([&](QWidget* dialog) {
        shown = dialog->findChild<QPlainTextEdit*>("txtLog")->toPlainText();
        modal = dialog->isModal();
        dialog->close();
    });
    TriggerMenu("mnuViewLog");
    EXPECT_TRUE(modal);
    EXPECT_EQ(shown, "Log\n");
    // Closed, it is only hidden: the same window opens again.
    frmLog* log = window->LogWindow();
    ASSERT_NE(log, nullptr);
    EXPECT_FALSE(log->isVisible());
    OnNextModal([](QWidget* dialog) { dialog->close(); });
    TriggerMenu("mnuViewLog");
    EXPECT_EQ(window->LogWindow(), log);
}

}  // namespace
}  // namespace tolva::testing
