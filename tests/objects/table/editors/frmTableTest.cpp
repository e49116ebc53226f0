// The Table Editor and the Table Object Editor driven by their controls'
// names, opened from a table on a form: titles and texts, the cell menu's
// rows, columns and objects, Apply with its limits, a click selecting a
// cell, what Done writes to the saved file and what Cancel keeps and does
// not keep; the object editor's kinds, its own inspector, X set back to 0
// and Cancel losing nothing.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <filesystem>
#include <functional>

#include "inspector/qt/ctlPropertyView.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/checkbox/ctlKOMACheckbox.h"
#include "objects/list/ctlKOMAList.h"
#include "objects/string/ctlKOMAString.h"
#include "objects/table/TableEditing.h"
#include "objects/table/TableObjectEditing.h"
#include "objects/table/ctlKOMATable.h"
#include "objects/table/editors/TableGridView.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "resfile/ResourceFiles.h"
#include "screen/ScreenFixture.h"
#include "shell/ObjectDialogs.h"
#include "shell/modMain.h"
#include "support/FileBytes.h"

namespace tolva::testing {
namespace {

using Lines = std::vector<std::string>;
namespace fs = std::filesystem;

void Menu(QWidget& dialog, const char* name) {
    auto* action = dialog.findChild<QAction*>(QString::fromLatin1(name));
    ASSERT_NE(action, nullptr) << name;
    action->trigger();
}

void Type(QWidget& dialog, const char* box, const QString& text) {
    auto* edit = Find<QLineEdit>(dialog, box);
    ASSERT_NE(edit, nullptr) << box;
    edit->setText(text);
}

void Pick(QWidget& dialog, const char* combo, const QString& word) {
    auto* list = Find<QComboBox>(dialog, combo);
    ASSERT_NE(list, nullptr) << combo;
    const int index = list->findText(word);
    ASSERT_GE(index, 0) << word.toStdString();
    list->setCurrentIndex(index);
    emit list->activated(index);
}

QString Text(QWidget& dialog, const char* name) {
    if (auto* label = Find<QLabel>(dialog, name)) return label->text();
    if (auto* box = Find<QLineEdit>(dialog, name)) return box->text();
    return {};
}

QStringList Items(QWidget& dialog, const char* combo) {
    QStringList items;
    auto* list = Find<QComboBox>(dialog, combo);
    for (int i = 0; i < list->count(); ++i) items << list->itemText(i);
    return items;
}

class frmTableTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        RegisterObjectDialogs();
        BuildValueLists();
        ASSERT_TRUE(DrawForm());
        ASSERT_TRUE(Draw(type::Table, 10, 20, 20, 20));
        table = static_cast<ctlKOMATable*>(Obj(type::Table, 1));
        host.ClearRecord();
        file = fs::path(::testing::TempDir()) /
               (std::string("tolva_frmTable_") +
                ::testing::UnitTest::GetInstance()->current_test_info()->name() + ".txt");
    }
    void TearDown() override { fs::remove(file); }

    // The next registered dialog, driven by `drive` once it shows.
    void Next(const std::function<void(QDialog&)>& drive) {
        AnswerWithRegisteredDialog(host);
        OnNextModal([drive](QWidget* modal) {
            auto* dialog = qobject_cast<QDialog*>(modal);
            ASSERT_NE(dialog, nullptr);
            drive(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
    }
    // Opens the Table Editor from the table's popup menu.
    void EditWith(const std::function<void(QDialog&)>& drive) {
        Next(drive);
        host.popupAnswers = {1};
        table->MouseDown(kRightButton, 0, 5, 5);
    }
    std::string Saved() {
        SaveResourceFile(screen, file.string());
        return ReadFile(file);
    }
    ctlKOMATable* table = nullptr;
    fs::path file;
};

TEST_F(frmTableTest, ItsTitleFramesControlsAndLists) {
    EditWith([&](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "frmTable");
        EXPECT_EQ(dialog.windowTitle(), "Table Editor");
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame1")->title(), "Table Properties");
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame2")->title(), "Table");
        const std::vector<std::pair<const char*, const char*>> labels = {
            {"lblNumRows", "Num Rows"},   {"lblNumCols", "Num Cols"},     {"lblRowHeight", "Row Height"},
            {"lblColumnWidth", "Column Width"}, {"lblDataType", "Data Type"}, {"lblFont", "Font"},
            {"lblValue", "Value"},        {"lblAlignment", "Alignment"}, {"lblFontColor", "Font Color"},
            {"lblBackColor", "Back Color"}, {"lblHighlight", "Highlight"}, {"lblHasBitmap", "Has Bitmap"},
            {"lblText", "Text"}};
        for (const auto& [name, text] : labels) EXPECT_EQ(Text(dialog, name), text) << name;
        EXPECT_EQ(Text(dialog, "lblTableSize"), "Table Size: 34 x 48");
        EXPECT_EQ(Text(dialog, "lblSelected"), "Selected: 1, 1");
        EXPECT_EQ(Text(dialog, "txtValue"), "0");
        EXPECT_EQ(Items(dialog, "cmbDataType"), (QStringList{"TABLE_TEXT", "TABLE_VALUE", "TABLE_UI_OBJECT"}));
        EXPECT_EQ(Items(dialog, "cmbFont"), (QStringList{"MEDIUM_FONT", "SMALL_FONT"}));
        EXPECT_EQ(Items(dialog, "cmbAlignment"), (QStringList{"CENTRE", "LEFT", "RIGHT"}));
        const QStringList colors = {"COLOR_BLACK", "COLOR_GREY2", "COLOR_GREY1", "COLOR_WHITE"};
        EXPECT_EQ(Items(dialog, "cmbFontColor"), colors);
        EXPECT_EQ(Items(dialog, "cmbBackColor"), colors);
        EXPECT_EQ(Items(dialog, "cmbHighlight"), (QStringList{"TRUE", "FALSE"}));
        EXPECT_EQ(Items(dialog, "cmbHasBitmap"), (QStringList{"TRUE", "FALSE"}));
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdApply")->text(), "Apply");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdOK")->text(), "Done");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdCancel")->text(), "Cancel");
        auto* menu = dialog.findChild<QMenu*>("mnuCellMenu");
        ASSERT_NE(menu, nullptr);
        EXPECT_EQ(menu->title(), "Cell Menu");
        const std::vector<std::pair<const char*, const char*>> entries = {
            {"mnuInsertRowBefore", "Before"}, {"mnuInsertRowAfter", "After"}, {"mnuInsertColBefore", "Before"},
            {"mnuInsertColAfter", "After"},   {"mnuDeleteRow", "Delete Row"}, {"mnuDeleteColumn", "Delete Column"},
            {"mnuInsertObject", "Edit KOMA Object..."}, {"mnuRemoveObject", "Remove KOMA Object"}};
        for (const auto& [name, text] : entries) {
            auto* action = dialog.findChild<QAction*>(QString::fromLatin1(name));
            ASSERT_NE(action, nullptr) << name;
            EXPECT_EQ(action->text(), text);
        }
        EXPECT_EQ(dialog.findChild<QMenu*>("mnuInsertRow")->title(), "Insert Row");
        EXPECT_EQ(dialog.findChild<QMenu*>("mnuInsertColumn")->title(), "Insert Column");
    });
    EXPECT_EQ(host.dialogs, (Lines{"frmTable"}));
}

TEST_F(frmTableTest, RowsColumnsAndFieldsMadeAreSavedAtDone) {
    EditWith([&](QDialog& dialog) {
        Menu(dialog, "mnuInsertRowAfter");
        Menu(dialog, "mnuInsertColAfter");
        Menu(dialog, "mnuInsertColBefore");
        EXPECT_EQ(Text(dialog, "txtNumRows"), "2");
        EXPECT_EQ(Text(dialog, "txtNumCols"), "3");
        EXPECT_EQ(Text(dialog, "lblTableSize"), "Table Size: 68 x 144");
        // A click in the preview selects the cell under it.
        auto* grid = dialog.findChild<TableGridView*>();
        ASSERT_NE(grid, nullptr);
        const TablePreview preview = grid->Preview();
        grid->PressAt(preview.ColumnLeft(2) + 300, preview.RowTop(2) + 300, Qt::LeftButton);
        EXPECT_EQ(Text(dialog, "lblSelected"), "Selected: 2, 2");
        Type(dialog, "txtRowHeight", "500");
        Type(dialog, "txtColumnWidth", "1");
        Type(dialog, "txtText", "Total");
        Type(dialog, "txtValue", "99");
        Click(dialog, "cmdApply");
        EXPECT_EQ(Text(dialog, "txtRowHeight"), "210");
        EXPECT_EQ(Text(dialog, "txtColumnWidth"), "2");
        Pick(dialog, "cmbFont", "MEDIUM_FONT");
        Pick(dialog, "cmbAlignment", "RIGHT");
        Pick(dialog, "cmbDataType", "TABLE_VALUE");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(table->KOMANumRows(), 2);
    EXPECT_EQ(table->KOMANumColumns(), 3);
    const std::string saved = Saved();
    for (const char* line : {"(U)TABLE_NUM_COLUMN=3\r\n", "(U)TABLE_NUM_ROW=2\r\n", "(SH)BOUNDS.WIDTH=98\r\n",
                             "(SH)BOUNDS.HEIGHT=244\r\n", "(SH)TABLE_ROW_HEIGHT=210\r\n",
                             "(SH)TABLE_COLUMN_WIDTH=2\r\n",
                             "//Cell (2,2) -------------------------------\r\n//TABLE_TEXT,TABLE_VALUE,TABLE_UI_OBJECT\r\n"
                             "(B)TABLE_DATA_TYPE=TABLE_VALUE\r\n(U)TABLE_UI_OBJECT_ID=\r\n(B)TABLE_FONT=MEDIUM_FONT\r\n"
                             "(W)TABLE_VALUE=99\r\n//LEFT,CENTRE,RIGHT\r\n(B)TABLE_TEXTMENT=RIGHT\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;
    EXPECT_NE(saved.find("(S)TABLE_TEXT=Total\r\n"), std::string::npos);
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();
}

TEST_F(frmTableTest, TextWithoutApplyIsLostAtDoneAndAValueThatIsNoNumberIsTold) {
    EditWith([&](QDialog& dialog) {
        Type(dialog, "txtValue", "many");
        Click(dialog, "cmdApply");
        Type(dialog, "txtText", "Never applied");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(host.MessageLines(), (Lines{"Tolva Resource Editor: Error 13: Type mismatch"}));
    EXPECT_EQ(table->Cells()[0].text, "Text");
}

TEST_F(frmTableTest, CancelKeepsTheFieldsButNotTheCounts) {
    EditWith([&](QDialog& dialog) {
        Type(dialog, "txtText", "Changed");
        Click(dialog, "cmdApply");
        Menu(dialog, "mnuInsertRowAfter");
        Click(dialog, "cmdCancel");
    });
    EXPECT_EQ(table->Cells()[0].text, "Text");
    EXPECT_EQ(table->KOMANumRows(), 2);
    LineList lines;
    bool ok = true;
    table->ReturnResourceFileText(lines, ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(host.MessageLines(), (Lines{"Tolva Resource Editor: Error retrieving Table resource file text"}));
    // Edited again and Done: the counts and cells agree once more.
    host.ClearRecord();
    EditWith([&](QDialog& dialog) { Click(dialog, "cmdOK"); });
    table->ReturnResourceFileText(lines, ok);
    EXPECT_TRUE(ok);
}

TEST_F(frmTableTest, DeletingTheLastRowSelectedSelectsTheNewLast) {
    EditWith([&](QDialog& dialog) {
        Menu(dialog, "mnuInsertRowAfter");
        Menu(dialog, "mnuInsertRowAfter");
        auto* grid = dialog.findChild<TableGridView*>();
        const TablePreview preview = grid->Preview();
        grid->PressAt(preview.ColumnLeft(1) + 300, preview.RowTop(3) + 300, Qt::LeftButton);
        EXPECT_EQ(Text(dialog, "lblSelected"), "Selected: 3, 1");
        Menu(dialog, "mnuDeleteRow");
        EXPECT_EQ(Text(dialog, "lblSelected"), "Selected: 2, 1");
        EXPECT_EQ(Text(dialog, "txtNumRows"), "2");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(table->KOMANumRows(), 2);
}

TEST_F(frmTableTest, AnObjectMadeInTheObjectEditorGoesToTheCellAtZeroZero) {
    QStringList kinds;
    QString inspectorTitle;
    EditWith([&](QDialog& dialog) {
        Next([&](QDialog& objects) {
            EXPECT_EQ(objects.objectName(), "frmTableObjects");
            EXPECT_EQ(objects.windowTitle(), "Table Object Editor");
            kinds = Items(objects, "cmbObjects");
            // An empty cell opens on a Button.
            EXPECT_EQ(Find<QComboBox>(objects, "cmbObjects")->currentText(), "Button");
            auto* view = Find<ctlPropertyView>(objects, "ctlPropView");
            ASSERT_NE(view, nullptr);
            // X 50 in the inspector; OK puts it at 0.
            PropertyArray rows = view->PropertyValues();
            rows.At(3, 2) = PropertyCell(std::string("50"));
            rows.At(3, 1) = PropertyCell(std::string("MY_BUTTON"));
            emit view->PropertyChanged(rows);
            Click(objects, "cmdOK");
        });
        Menu(dialog, "mnuInsertObject");
        EXPECT_EQ(Find<QComboBox>(dialog, "cmbDataType")->currentText(), "TABLE_UI_OBJECT");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(kinds, (QStringList{"Button", "PushButton", "Bitmap", "Checkbox", "String", "Field", "List",
                                  "PopupTrigger", "RepeatButton", "Scrollbar", "Textbox"}));
    KomaObject* object = nullptr;
    bool ok = false;
    table->GetObject(1, 1, object, ok);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->ScreenType(), type::Button);
    EXPECT_EQ(object->KOMABoundsX(), 0);
    EXPECT_EQ(table->Cells()[0].dataType, "TABLE_UI_OBJECT");
    const std::string saved = Saved();
    EXPECT_NE(saved.find("NAME=BUTTON_TABLE_1_CELL_1_1\r\n"), std::string::npos);
    EXPECT_EQ(saved.find("MY_BUTTON"), std::string::npos);
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();
}

TEST_F(frmTableTest, ACheckboxCellBecomesAStringAndCancelInTheObjectEditorLosesNothing) {
    ctlKOMACheckbox checkbox;
    checkbox.KOMAControlText("Agree");
    KomaObject* incoming = &checkbox;
    bool ok = false;
    table->SetObject(1, 1, incoming, ok);
    QString shown;
    EditWith([&](QDialog& dialog) {
        Next([&](QDialog& objects) {
            shown = Find<QComboBox>(objects, "cmbObjects")->currentText();
            Find<QComboBox>(objects, "cmbObjects")->setCurrentText("String");
            Click(objects, "cmdCancel");
        });
        Menu(dialog, "mnuInsertObject");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(shown, "Checkbox");
    KomaObject* object = nullptr;
    table->GetObject(1, 1, object, ok);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->ScreenType(), type::Checkbox);
    EXPECT_EQ(static_cast<ctlKOMACheckbox*>(object)->KOMAControlText(), "Agree");
    EditWith([&](QDialog& dialog) {
        Next([&](QDialog& objects) {
            Find<QComboBox>(objects, "cmbObjects")->setCurrentText("String");
            Click(objects, "cmdOK");
        });
        Menu(dialog, "mnuInsertObject");
        Click(dialog, "cmdOK");
    });
    table->GetObject(1, 1, object, ok);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->ScreenType(), type::String);
}

TEST_F(frmTableTest, RemovingTheObjectSetsTextAndALeavingObjectTypeTakesItOff) {
    ctlKOMAButton button;
    KomaObject* incoming = &button;
    bool ok = false;
    table->SetObject(1, 1, incoming, ok);
    EditWith([&](QDialog& dialog) {
        Menu(dialog, "mnuRemoveObject");
        EXPECT_EQ(Find<QComboBox>(dialog, "cmbDataType")->currentText(), "TABLE_TEXT");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(table->CellObjectCount(), 0);
    EXPECT_EQ(table->Cells()[0].dataType, "TABLE_TEXT");
}

TEST_F(frmTableTest, DraggingARowLineStopsAtTwoPixelsAndTheTopLineIsFixed) {
    QString sizeAfter, topAfter;
    EditWith([&](QDialog& dialog) {
        dialog.resize(900, 560);
        auto* grid = dialog.findChild<TableGridView*>();
        ASSERT_NE(grid, nullptr);
        const TablePreview preview = grid->Preview();
        const double unit = TableGridView::kUnitsPerPixel;
        auto at = [&](double x, double y) { return QPoint(int(x / unit), int(y / unit)); };
        // The top line does not move.
        const QPoint top = at(preview.ColumnLeft(1) + 300, preview.RowTop(1));
        QTest::mousePress(grid, Qt::LeftButton, {}, top);
        QTest::mouseMove(grid, top + QPoint(0, 40));
        QTest::mouseRelease(grid, Qt::LeftButton, {}, top + QPoint(0, 40));
        topAfter = Text(dialog, "lblTableSize");
        // The line under row 1, pulled far up: two pixels.
        const QPoint line = at(preview.ColumnLeft(1) + 300, preview.RowTop(2));
        QTest::mousePress(grid, Qt::LeftButton, {}, line);
        for (int step = 1; step <= 120; ++step) QTest::mouseMove(grid, line - QPoint(0, step));
        QTest::mouseRelease(grid, Qt::LeftButton, {}, line - QPoint(0, 120));
        sizeAfter = Text(dialog, "lblTableSize");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(topAfter, "Table Size: 34 x 48");
    EXPECT_EQ(sizeAfter.left(14), "Table Size: 2 ");
    EXPECT_EQ(table->RowHeights()[0], 2);
}

TEST_F(frmTableTest, TheCountBoxesCanBeTypedInToNoEffect) {
    EditWith([&](QDialog& dialog) {
        Type(dialog, "txtNumRows", "9");
        Type(dialog, "txtNumCols", "7");
        Click(dialog, "cmdApply");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(table->KOMANumRows(), 1);
    EXPECT_EQ(table->KOMANumColumns(), 1);
    EXPECT_EQ(table->Cells().size(), 1u);
}

TEST_F(frmTableTest, ACancelledObjectEditorLeavesAnObjectCellWithoutObjectAfterDone) {
    EditWith([&](QDialog& dialog) {
        Next([&](QDialog& objects) { Click(objects, "cmdCancel"); });
        Menu(dialog, "mnuInsertObject");
        Click(dialog, "cmdOK");
    });
    EXPECT_EQ(table->Cells()[0].dataType, "TABLE_UI_OBJECT");
    EXPECT_EQ(table->CellObjectCount(), 0);
    EXPECT_NE(Saved().find("(B)TABLE_DATA_TYPE=TABLE_UI_OBJECT\r\n(U)TABLE_UI_OBJECT_ID=\r\n"), std::string::npos);
}

TEST_F(frmTableTest, AColumnDraggedPast210IsStoppedByTheFrameOnly) {
    EditWith([&](QDialog& dialog) {
        dialog.resize(1800, 900);
        QApplication::processEvents();
        auto* grid = dialog.findChild<TableGridView*>();
        const TablePreview preview = grid->Preview();
        const double unit = TableGridView::kUnitsPerPixel;
        // The first column's left line does not move.
        const QPoint left(int(preview.ColumnLeft(1) / unit), int((preview.RowTop(1) + 300) / unit));
        QTest::mousePress(grid, Qt::LeftButton, {}, left);
        QTest::mouseMove(grid, left + QPoint(60, 0));
        QTest::mouseRelease(grid, Qt::LeftButton, {}, left + QPoint(60, 0));
        EXPECT_EQ(Text(dialog, "lblTableSize"), "Table Size: 34 x 48");
        const QPoint line(int(preview.ColumnLeft(2) / unit), int((preview.RowTop(1) + 300) / unit));
        QTest::mousePress(grid, Qt::LeftButton, {}, line);
        for (int step = 10; step <= 600; step += 10) QTest::mouseMove(grid, line + QPoint(step, 0));
        QTest::mouseRelease(grid, Qt::LeftButton, {}, line + QPoint(600, 0));
        Click(dialog, "cmdOK");
    });
    EXPECT_GT(table->ColumnWidths()[0], 210);
}

}  // namespace
}  // namespace tolva::testing
