// The Field Editor driven by its controls' names: its title and texts, the
// Field's text shown with its line breaks, OK writing back what was typed
// (a line break as the Field holds it, CR LF, and "/r" in the record) and
// Cancel changing nothing, run from the Field's popup menu through the
// desktop's registry of dialogs.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <functional>

#include "objects/field/FieldEditorText.h"
#include "objects/field/ctlKOMAField.h"
#include "objects/field/editors/frmField.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "shell/ObjectDialogs.h"
#include "support/RecordingOwner.h"

namespace tolva::testing {
namespace {

TEST(frmFieldTest, ItsNameTitleAndControls) {
    FieldEditorText edit;
    frmField dialog(edit);
    EXPECT_EQ(dialog.objectName(), "frmField");
    EXPECT_EQ(dialog.windowTitle(), "Field Editor");
    auto* label = Find<QLabel>(dialog, "lblFieldText");
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(), "Field Text");
    auto* text = Find<QPlainTextEdit>(dialog, "txtText");
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(label->buddy(), text);
    ASSERT_NE(Find<QPushButton>(dialog, "cmdOk"), nullptr);
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdOk")->text(), "OK");
    ASSERT_NE(Find<QPushButton>(dialog, "cmdCancel"), nullptr);
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdCancel")->text(), "Cancel");
}

TEST(frmFieldTest, ItShowsTheTextWithItsLineBreaks) {
    FieldEditorText edit;
    edit.text = "one\r\ntwo caf\xE9";
    frmField dialog(edit);
    EXPECT_EQ(Find<QPlainTextEdit>(dialog, "txtText")->toPlainText(),
              QString::fromUtf8("one\ntwo caf\xC3\xA9"));
}

TEST(frmFieldTest, AnotherModelIsRefusedAtOnce) {
    struct Other : DialogModel {
        std::string DialogName() const override { return "frmOther"; }
    } other;
    EXPECT_FALSE(frmField::Run(other, nullptr));
}

// A Field on a recording owner whose dialogs are the registered ones; the
// editor is opened from the Field's popup menu and driven once it shows.
class frmFieldFromTheField : public ::testing::Test {
protected:
    RecordingOwner owner;
    ctlKOMAField field;

    void SetUp() override {
        RegisterObjectDialogs();
        field.SetOwner(&owner);
        field.SetCanvasSize(5000, 2000);
    }

    void EditWith(const std::function<void(QDialog&)>& drive) {
        owner.host.popupAnswers = {0};
        AnswerWithRegisteredDialog(owner.host);
        OnNextModal([drive](QWidget* modal) {
            auto* dialog = qobject_cast<QDialog*>(modal);
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->objectName(), "frmField");
            drive(*dialog);
        });
        field.MouseDown(kRightButton, 0, 10, 10);
    }

    std::string RecordTextLine() {
        LineList lines;
        bool ok = false;
        field.ReturnResourceFileText(lines, ok);
        for (const std::string& line : lines)
            if (line.rfind("(S)FIELD_TEXT=", 0) == 0) return line;
        return {};
    }
};

TEST_F(frmFieldFromTheField, OkWritesBackWhatWasTypedWithItsLineBreak) {
    QString shown;
    EditWith([&](QDialog& dialog) {
        auto* text = Find<QPlainTextEdit>(dialog, "txtText");
        shown = text->toPlainText();
        text->setFocus();
        text->selectAll();
        QTest::keyClicks(text, "Dear Sir,");
        QTest::keyClick(text, Qt::Key_Return);
        QTest::keyClicks(text, "thanks");
        QTest::mouseClick(Find<QPushButton>(dialog, "cmdOk"), Qt::LeftButton);
    });
    EXPECT_EQ(shown, "Field text");
    EXPECT_EQ(field.KOMAText(), "Dear Sir,\r\nthanks");
    EXPECT_EQ(RecordTextLine(), "(S)FIELD_TEXT=Dear Sir,/rthanks");
    EXPECT_EQ(owner.events.back(), "PicChanged");
}

TEST_F(frmFieldFromTheField, CancelChangesNothing) {
    field.KOMAText("kept\r\nas it was");
    EditWith([](QDialog& dialog) {
        auto* text = Find<QPlainTextEdit>(dialog, "txtText");
        text->setFocus();
        QTest::keyClicks(text, "more");
        QTest::mouseClick(Find<QPushButton>(dialog, "cmdCancel"), Qt::LeftButton);
    });
    EXPECT_EQ(field.KOMAText(), "kept\r\nas it was");
    EXPECT_EQ(owner.host.dialogs, (std::vector<std::string>{"frmField"}));
    for (const std::string& event : owner.events) EXPECT_NE(event, "PicChanged");
}

TEST_F(frmFieldFromTheField, EscapeClosesItAsCancelDoes) {
    EditWith([](QDialog& dialog) {
        auto* text = Find<QPlainTextEdit>(dialog, "txtText");
        text->setFocus();
        QTest::keyClicks(text, "x");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(field.KOMAText(), "Field text");
}

}  // namespace
}  // namespace tolva::testing
