// A field worked by hand in the editor: drawn with the mouse from its
// toolbar button, its rows typed and chosen (a refused maximum and the
// dropped "Full Size In Table Cell" among them), its text typed with a line
// break in the Field Editor opened from its popup menu, the design saved,
// opened and saved again.
#include <QPlainTextEdit>

#include "document/ObjectTypes.h"
#include "objects/field/ctlKOMAField.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "shell/ByHandFixture.h"
#include "shell/ObjectDialogs.h"

namespace tolva::testing {
namespace {

constexpr int kFieldTool = 7;

TEST_F(ByHand, AFieldDrawnTypedEditedSavedOpenedAndSavedAgain) {
    RegisterObjectDialogs();
    window->ShowBitmapWarning(false);
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ClickTool(kFieldTool);
    Drag({60, 110}, {300, 260});
    ASSERT_EQ(Screen().Count(type::Field), 1);
    auto* field = static_cast<ctlKOMAField*>(Screen().ObjectAt(type::Field, 1));
    EXPECT_EQ(field->KOMAName(), "FIELD_1");

    Enter(1, "NOTES");
    ChooseRow(6, "FIELD_STYLE_1");
    ChooseRow(8, "GREY_LINE");
    ChooseRow(11, "MEDIUM_FONT");
    ChooseRow(12, "CENTRE");
    Enter(13, "-3");
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"Tolva Resource Editor: Invalid value"}));
    host.ClearRecord();
    EXPECT_EQ(field->KOMAMaxNumChars(), 256);
    Enter(13, "90");
    Enter(16, "2");
    ChooseRow(23, "TRUE");
    ChooseRow(24, "TRUE");
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();
    EXPECT_FALSE(field->KOMAFullSize());
    QComboBox* fullSize = Editor<QComboBox>("cmbOnlyValue", 24);
    ASSERT_NE(fullSize, nullptr);
    EXPECT_EQ(fullSize->currentText(), "FALSE");

    // The text, typed in the editor with a line break.
    AnswerWithRegisteredDialog(host);
    OnNextModal([](QWidget* dialog) {
        auto* text = dialog->findChild<QPlainTextEdit*>("txtText");
        ASSERT_NE(text, nullptr);
        text->setFocus();
        text->selectAll();
        QTest::keyClicks(text, "Dear Sir,");
        QTest::keyClick(text, Qt::Key_Return);
        QTest::keyClicks(text, "thank you for the parcel.");
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOk"), Qt::LeftButton);
    });
    host.popupAnswers = {0};
    QTest::mouseClick(Canvas(), Qt::RightButton, {}, {80, 130});
    EXPECT_EQ(host.dialogs, (std::vector<std::string>{"frmField"}));
    EXPECT_EQ(field->KOMAText(), "Dear Sir,\r\nthank you for the parcel.");
    // The inspector shows the new text at once.
    QLineEdit* textRow = Editor<QLineEdit>("txtAnyValue", 7);
    ASSERT_NE(textRow, nullptr);
    EXPECT_TRUE(textRow->text().startsWith("Dear Sir,"));

    const std::string saved = SaveDesignAs(dir, "first");
    for (const char* line : {"NAME=NOTES\r\n", "(S)FIELD_TEXT=Dear Sir,/rthank you for the parcel.\r\n",
                             "(B)FIELD_STYLE=FIELD_STYLE_1\r\n", "(B)FIELD_BACK_LINE=GREY_LINE\r\n",
                             "(B)FIELD_FONT=MEDIUM_FONT\r\n", "(B)FIELD_TEXTMENT=CENTRE\r\n",
                             "(W)FIELD_MAX_NUM_CHARS=90\r\n", "(W)FIELD_HIGHLIGHT_START=2\r\n",
                             "(BO)FIELD_ATTR.FIELD_SCROLLBAR=TRUE\r\n",
                             "(BO)FIELD_ATTR.FIELD_FULL_SIZE=FALSE\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;

    OpenAnew(dir / "first.txt");
    ASSERT_EQ(Screen().Count(type::Field), 1);
    // The break comes back as the two characters it was written as.
    field = static_cast<ctlKOMAField*>(Screen().ObjectAt(type::Field, 1));
    EXPECT_EQ(field->KOMAText(), "Dear Sir,/rthank you for the parcel.");
    EXPECT_EQ(SaveDesignAs(dir, "second"), saved);
    EXPECT_EQ(ReadFile(dir / "second.h"), ReadFile(dir / "first.h"));
}

}  // namespace
}  // namespace tolva::testing
