// The worked example drawn by hand in the editor: a form with the mouse, a
// button in it with the mouse, their values typed into the inspector, and
// the design saved with Save As: the files are the golden ones.
#include <QLineEdit>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "canvas/qt/CanvasWidget.h"
#include "document/ObjectTypes.h"
#include "inspector/qt/ctlPropertyView.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/form/ctlKOMAForm.h"
#include "shell/FilePaths.h"
#include "shell/MainWindowFixture.h"
#include "shell/modMain.h"

namespace tolva::testing {
namespace {

namespace fs = std::filesystem;

std::string ReadFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class ByHand : public MainWindowTest {
protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        BuildValueLists();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
        dir = fs::path(::testing::TempDir()) / "tolva_by_hand";
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

    void ChooseRow(int row, const QString& word) {
        QComboBox* combo = Editor<QComboBox>("cmbOnlyValue", row);
        ASSERT_NE(combo, nullptr) << row;
        const int index = combo->findText(word);
        ASSERT_GE(index, 0) << word.toStdString();
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }

    fs::path dir;
};

TEST_F(ByHand, TheWorkedExampleDrawnAndTypedInTheEditorSavesAsTheGoldenFiles) {
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ASSERT_EQ(Screen().NumForms(), 1);
    Enter(4, "160");
    Enter(5, "160");
    ctlKOMAForm* form = Screen().FormAt(1);
    EXPECT_EQ(form->KOMAWidth(), 160);
    EXPECT_EQ(form->KOMAHeight(), 160);

    ClickTool(3);
    Drag({60, 110}, {160, 160});
    ASSERT_EQ(Screen().Count(type::Button), 1);
    auto* button = static_cast<ctlKOMAButton*>(Screen().ObjectAt(type::Button, 1));
    Enter(2, "20");
    Enter(3, "40");
    Enter(4, "40");
    Enter(5, "14");
    ChooseRow(6, "BUTTON_STYLE_0");
    Enter(7, "OK");
    Enter(12, "3");
    EXPECT_EQ(button->KOMABoundsX(), 20);
    EXPECT_EQ(button->KOMABoundsY(), 40);
    EXPECT_EQ(button->KOMAWidth(), 40);
    EXPECT_EQ(button->KOMAHeight(), 14);
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();

    window->ShowBitmapWarning(false);
    host.fileAnswers = {(dir / "design.txt").string(), (dir / "design.h").string()};
    TriggerMenu("mnuFileSaveAs");
    EXPECT_EQ(ReadFile(dir / "design.txt"),
              ReadFile(fs::path(TOLVA_TEST_DATA_DIR) / "worked_example.txt"));
    EXPECT_EQ(ReadFile(dir / "design.h"),
              ReadFile(fs::path(TOLVA_TEST_DATA_DIR) / "worked_example.h"));
}

}  // namespace
}  // namespace tolva::testing
