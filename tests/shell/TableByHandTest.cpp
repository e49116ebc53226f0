// A table made by hand: drawn with the mouse from the toolbar, its rows set
// in the inspector (a refused X among them), its grid made three rows by
// four columns in the Table Editor opened from its "Edit Table..." row,
// with a button, a string, a list and a field put in cells through the
// Table Object Editor; then saved, opened and saved again.
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <functional>

#include "document/ObjectTypes.h"
#include "objects/table/ctlKOMATable.h"
#include "objects/table/editors/TableGridView.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "shell/ByHandFixture.h"
#include "shell/ObjectDialogs.h"

namespace tolva::testing {
namespace {

constexpr int kTableTool = 17;

void NextDialog(ScriptedHost& host, std::function<void(QWidget*)> drive) {
    AnswerWithRegisteredDialog(host);
    OnNextModal(std::move(drive));
}

void Trigger(QWidget* dialog, const char* name) {
    auto* action = dialog->findChild<QAction*>(QString::fromLatin1(name));
    ASSERT_NE(action, nullptr) << name;
    action->trigger();
}

// Selects a cell of the Table Editor by a click in its preview.
void Select(QWidget* dialog, int row, int column) {
    auto* grid = dialog->findChild<TableGridView*>();
    ASSERT_NE(grid, nullptr);
    const TablePreview preview = grid->Preview();
    grid->PressAt(preview.ColumnLeft(column) + 300, preview.RowTop(row) + 300, Qt::LeftButton);
}

// Puts an object of the kind into the selected cell through the object
// editor.
void PutObject(ScriptedHost& host, QWidget* dialog, const char* kind) {
    NextDialog(host, [kind](QWidget* objects) {
        objects->findChild<QComboBox*>("cmbObjects")->setCurrentText(QString::fromLatin1(kind));
        QTest::mouseClick(objects->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    });
    Trigger(dialog, "mnuInsertObject");
}

TEST_F(ByHand, ATableOfThreeRowsAndFourColumnsWithObjectsSavedOpenedAndSavedAgain) {
    RegisterObjectDialogs();
    window->ShowBitmapWarning(false);
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ClickTool(kTableTool);
    Drag({60, 120}, {120, 180});
    ASSERT_EQ(Screen().Count(type::Table), 1);
    auto* table = static_cast<ctlKOMATable*>(Screen().ObjectAt(type::Table, 1));

    Enter(1, "PRICES");
    Enter(2, "200");
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"KOMABoundsX: Invalid value"}));
    host.ClearRecord();
    ChooseRow(4, "TABLE_STYLE_1");
    ChooseRow(9, "FALSE");

    NextDialog(host, [this](QWidget* dialog) {
        Trigger(dialog, "mnuInsertRowAfter");
        Trigger(dialog, "mnuInsertRowAfter");
        for (int i = 0; i < 3; ++i) Trigger(dialog, "mnuInsertColAfter");
        Select(dialog, 1, 1);
        PutObject(host, dialog, "Button");
        Select(dialog, 1, 2);
        PutObject(host, dialog, "String");
        Select(dialog, 2, 1);
        PutObject(host, dialog, "List");
        Select(dialog, 3, 4);
        PutObject(host, dialog, "Field");
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    });
    PressRow(11);
    EXPECT_EQ(host.dialogs, (std::vector<std::string>{"frmTable", "frmTableObjects", "frmTableObjects",
                                                      "frmTableObjects", "frmTableObjects"}));
    EXPECT_EQ(table->KOMANumRows(), 3);
    EXPECT_EQ(table->KOMANumColumns(), 4);
    EXPECT_EQ(table->CellObjectCount(), 4);
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();

    const std::string saved = SaveDesignAs(dir, "first");
    for (const char* line : {"NAME=PRICES\r\n", "(U)TABLE_NUM_COLUMN=4\r\n", "(U)TABLE_NUM_ROW=3\r\n",
                             "(B)TABLE_STYLE=TABLE_STYLE_1\r\n", "(BO)TABLE_ATTR.TABLE_HIGHLIGHT_ENABLE=FALSE\r\n",
                             "NAME=BUTTON_PRICES_CELL_1_1\r\n", "NAME=STRING_PRICES_CELL_1_2\r\n",
                             "NAME=LIST_PRICES_CELL_2_1\r\n", "NAME=FIELD_PRICES_CELL_3_4\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;
    const std::string header = ReadFile(dir / "first.h");
    EXPECT_NE(header.find("#define PRICES 1\r\n#define BUTTON_PRICES_CELL_1_1 2\r\n#define STRING_PRICES_CELL_1_2 3\r\n"
                          "#define LIST_PRICES_CELL_2_1 4\r\n#define FIELD_PRICES_CELL_3_4 5\r\n"),
              std::string::npos)
        << header;

    OpenAnew(dir / "first.txt");
    ASSERT_EQ(Screen().Count(type::Table), 1);
    EXPECT_EQ(static_cast<ctlKOMATable*>(Screen().ObjectAt(type::Table, 1))->CellObjectCount(), 4);
    // A loaded table not taken through the editor's Done has no size; all
    // else comes back as it was, and from then on the file stays the same.
    std::string expected = saved;
    const std::string sized = "(SH)BOUNDS.WIDTH=192\r\n(SH)BOUNDS.HEIGHT=102\r\n~F2\r\n(U)TABLE_NUM_COLUMN";
    const auto at = expected.find(sized);
    ASSERT_NE(at, std::string::npos);
    expected.replace(at, sized.size(), "(SH)BOUNDS.WIDTH=0\r\n(SH)BOUNDS.HEIGHT=0\r\n~F2\r\n(U)TABLE_NUM_COLUMN");
    const std::string second = SaveDesignAs(dir, "second");
    EXPECT_TRUE(second == expected);
    EXPECT_EQ(ReadFile(dir / "second.h"), header);
    OpenAnew(dir / "second.txt");
    EXPECT_TRUE(SaveDesignAs(dir, "third") == second);
}

}  // namespace
}  // namespace tolva::testing
