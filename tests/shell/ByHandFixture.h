#pragma once
// The fixture of the tests that work the editor by hand: the toolbar, the
// mouse on the canvas and the inspector's rows, as a user does.
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "canvas/qt/CanvasWidget.h"
#include "inspector/qt/ctlPropertyView.h"
#include "shell/FilePaths.h"
#include "shell/MainWindowFixture.h"
#include "shell/modMain.h"
#include "support/FileBytes.h"

namespace tolva::testing {

namespace fs = std::filesystem;

// The main window with its value lists, active, and a fresh directory for
// the files a test saves; the mouse on the canvas and the keyboard in the
// inspector as a user works them.
class ByHand : public MainWindowTest {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        BuildValueLists();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        dir = fs::path(::testing::TempDir()) /
              (std::string("tolva_by_hand_") + info->test_suite_name() + "_" + info->name());
        fs::remove_all(dir);
        fs::create_directories(dir);
    }
    void TearDown() override {
        window.reset();
        fs::remove_all(dir);
        ResourceFilePath.clear();
        HeaderFilePath.clear();
    }

    ctlPropertyView* View() { return Find<ctlPropertyView>("ctlPropView"); }
    CanvasWidget* Canvas() { return Find<CanvasWidget>("ctlScreen"); }

    template <typename T>
    T* Editor(const char* name, int index) {
        for (T* widget : View()->findChildren<T*>(QString::fromLatin1(name)))
            if (widget->property("index").toInt() == index) return widget;
        return nullptr;
    }

    void Drag(QPoint from, QPoint to) {
        QTest::mousePress(Canvas(), Qt::LeftButton, {}, from);
        QTest::mouseMove(Canvas(), (from + to) / 2);
        QTest::mouseMove(Canvas(), to);
        QTest::mouseRelease(Canvas(), Qt::LeftButton, {}, to);
    }

    void Enter(int row, const QString& text) {
        QLineEdit* box = Editor<QLineEdit>("txtAnyValue", row);
        ASSERT_NE(box, nullptr) << row;
        box->setFocus(Qt::MouseFocusReason);
        box->selectAll();
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
    }

    // A click on the row's action button.
    void PressRow(int row) {
        QPushButton* button = Editor<QPushButton>("cmdButton", row);
        ASSERT_NE(button, nullptr) << row;
        QTest::mouseClick(button, Qt::LeftButton);
    }

    void ChooseRow(int row, const QString& word) {
        QComboBox* combo = Editor<QComboBox>("cmbOnlyValue", row);
        ASSERT_NE(combo, nullptr) << row;
        const int index = combo->findText(word);
        ASSERT_GE(index, 0) << word.toStdString();
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }

    // Saves the design under Save As as <stem>.txt and <stem>.h in the
    // folder; the text saved.
    std::string SaveDesignAs(const fs::path& folder, const std::string& stem) {
        host.fileAnswers = {(folder / (stem + ".txt")).string(), (folder / (stem + ".h")).string()};
        TriggerMenu("mnuFileSaveAs");
        return ReadFile(folder / (stem + ".txt"));
    }
    // Starts a new design and opens the file into it, with the host's
    // record cleared.
    void OpenAnew(const fs::path& file) {
        TriggerMenu("mnuFileNew");
        host.ClearRecord();
        host.fileAnswers = {file.string()};
        TriggerMenu("mnuFileOpen");
    }

    fs::path dir;
};

}  // namespace tolva::testing
