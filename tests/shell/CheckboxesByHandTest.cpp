// A form with a group of push buttons and a set of related check boxes,
// worked by hand: drawn with the mouse from the toolbar, rows typed and
// chosen (a refused value among them), pictures chosen from their rows,
// the relations ticked in the Checkbox Editor opened from the popup menu,
// then saved, opened and saved again.
#include <QListWidget>
#include <memory>

#include "document/ObjectTypes.h"
#include "objects/checkbox/ctlKOMACheckbox.h"
#include "objects/form/ctlKOMAForm.h"
#include "platform/DialogDriver.h"
#include "platform/DialogRegistry.h"
#include "platform/ModalDriver.h"
#include "shell/ByHandFixture.h"
#include "shell/ObjectDialogs.h"
#include "support/BmpBytes.h"
#include "support/ShortNamedDirectory.h"

namespace tolva::testing {
namespace {

constexpr int kPushButtonTool = 5;
constexpr int kCheckboxTool = 8;
using Flags = std::vector<bool>;

class CheckboxesByHand : public ByHand {
protected:
    void SetUp() override {
        ByHand::SetUp();
        RegisterObjectDialogs();
        work = std::make_unique<ShortNamedDirectory>("q");
        ASSERT_TRUE(work->Made());
        for (const char* name : {"ON.BMP", "OFF.BMP"}) {
            BmpSpec picture;
            picture.width = 12;
            picture.height = 10;
            std::ofstream(name, std::ios::binary) << BmpFile(picture);
            host.pictures[name] = PictureSize{12, 10};
        }
        window->ShowBitmapWarning(false);
    }
    void TearDown() override {
        ByHand::TearDown();
        work.reset();
    }

    void SaveAs(const std::string& txt, const std::string& h) {
        host.fileAnswers = {txt, h};
        TriggerMenu("mnuFileSaveAs");
    }

    // The Checkbox Editor as the desktop shows it, worked by `drive` once it
    // is up.
    void NextDialogIsTheEditor(std::function<void(QWidget*)> drive) {
        AnswerWithRegisteredDialog(host);
        OnNextModal(std::move(drive));
    }

    std::unique_ptr<ShortNamedDirectory> work;
};

TEST_F(CheckboxesByHand, AGroupOfPushButtonsAndRelatedCheckboxes) {
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ASSERT_EQ(Screen().NumForms(), 1);
    ctlKOMAForm* form = Screen().FormAt(1);

    // Two push buttons of group 1.
    for (int i = 0; i < 2; ++i) {
        ClickTool(kPushButtonTool);
        Drag({40, 60 + 50 * i}, {180, 90 + 50 * i});
        Enter(16, "1");
    }
    ASSERT_EQ(Screen().Count(type::PushButton), 2);

    // Three check boxes; the first gets both pictures, a name, its initial
    // value, and a width the screen does not take.
    for (int i = 0; i < 3; ++i) {
        ClickTool(kCheckboxTool);
        Drag({220, 60 + 50 * i}, {260, 100 + 50 * i});
    }
    ASSERT_EQ(Screen().Count(type::Checkbox), 3);
    auto* agree = static_cast<ctlKOMACheckbox*>(Screen().ObjectAt(type::Checkbox, 1));
    Screen().SelectObject(type::Checkbox, agree->KOMAName());
    host.fileAnswers = {"ON.BMP"};
    PressRow(11);
    host.fileAnswers = {"OFF.BMP"};
    PressRow(12);
    EXPECT_EQ(agree->KOMABitmap1File(), "ON.BMP");
    EXPECT_EQ(agree->KOMABitmap2File(), "OFF.BMP");
    EXPECT_EQ(agree->KOMAWidth(), 12);
    EXPECT_EQ(agree->KOMAHeight(), 10);
    Enter(1, "AGREE");
    ChooseRow(10, "TRUE");
    ChooseRow(13, "2 Bit");
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();
    Enter(4, "-3");
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"KOMAWidth: Invalid width value"}));
    EXPECT_EQ(agree->KOMAWidth(), 12);
    host.ClearRecord();
    EXPECT_EQ(agree->KOMAName(), "AGREE");
    EXPECT_TRUE(agree->KOMAControlValue());
    EXPECT_EQ(agree->KOMABitmap1Depth(), 2);

    // The editor from the popup menu: CHECKBOX_2 under AGREE, then AGREE
    // seen ticked under CHECKBOX_2, then CHECKBOX_3 and AGREE related too.
    QStringList seenUnderTheSecond;
    NextDialogIsTheEditor([&](QWidget* dialog) {
        auto* boxes = dialog->findChild<QComboBox*>("cmbCheckbox");
        auto* list = dialog->findChild<QListWidget*>("lbCheckboxes");
        ASSERT_NE(boxes, nullptr);
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(boxes->currentText(), "AGREE");
        list->setFocus();
        list->setCurrentRow(0);
        QTest::keyClick(list, Qt::Key_Space);
        boxes->setCurrentIndex(1);
        for (int i = 0; i < list->count(); ++i)
            if (list->item(i)->checkState() == Qt::Checked) seenUnderTheSecond << list->item(i)->text();
        boxes->setCurrentIndex(2);
        list->setCurrentRow(0);
        QTest::keyClick(list, Qt::Key_Space);
        QTest::mouseClick(dialog->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    });
    host.popupAnswers = {4};
    QTest::mouseClick(Canvas(), Qt::RightButton, {}, {224, 64});
    ASSERT_EQ(host.popupNames.size(), 1u);
    EXPECT_EQ(host.popupNames[0].back(), "mnuRelatedCheckboxes");
    EXPECT_EQ(host.dialogs, (std::vector<std::string>{"frmCheckbox"}));
    EXPECT_EQ(seenUnderTheSecond, (QStringList{"AGREE"}));
    ASSERT_EQ(form->RelatedCheckboxes().size(), 3u);
    EXPECT_EQ(form->RelatedCheckboxes()[0].name, "AGREE");
    EXPECT_EQ(form->RelatedCheckboxes()[0].linked, (Flags{false, true, true}));
    EXPECT_EQ(form->RelatedCheckboxes()[1].linked, (Flags{true, false, false}));
    EXPECT_EQ(form->RelatedCheckboxes()[2].linked, (Flags{true, false, false}));

    const std::string first = (fs::current_path() / "FIRST.TXT").string();
    SaveAs(first, (fs::current_path() / "FIRST.H").string());
    const std::string saved = ReadFile(first);
    for (const char* line : {"NAME=AGREE\r\n", "(BO)CONTROL_ADD.CONTROL_VALUE=TRUE\r\n",
                             "(P)CONTROL_BITMAP.FILE=Q_TWO_BIT,ON.BMP\r\n",
                             "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,OFF.BMP\r\n",
                             "(SH)BOUNDS.WIDTH=12\r\n", "(U)CONTROL_ADD.GROUP_ID=1\r\n",
                             "NAME=CHECKBOX_3\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;

    TriggerMenu("mnuFileNew");
    host.ClearRecord();
    host.fileAnswers = {first};
    TriggerMenu("mnuFileOpen");
    ASSERT_EQ(Screen().Count(type::Checkbox), 3);
    ASSERT_EQ(Screen().Count(type::PushButton), 2);
    // The relations are not in the file: the form comes back with its
    // check boxes unrelated.
    form = Screen().FormAt(1);
    ASSERT_EQ(form->RelatedCheckboxes().size(), 3u);
    for (const auto& row : form->RelatedCheckboxes()) EXPECT_EQ(row.linked, (Flags{false, false, false}));

    const std::string second = (fs::current_path() / "SECOND.TXT").string();
    SaveAs(second, (fs::current_path() / "SECOND.H").string());
    // The push buttons' group comes back as 0; all else is as saved.
    std::string expected = saved;
    for (int i = 0; i < 2; ++i) {
        const std::string group = "(U)CONTROL_ADD.GROUP_ID=1";
        expected.replace(expected.find(group), group.size(), "(U)CONTROL_ADD.GROUP_ID=0");
    }
    EXPECT_EQ(ReadFile(second), expected);
    EXPECT_EQ(ReadFile(fs::current_path() / "SECOND.H"), ReadFile(fs::current_path() / "FIRST.H"));
}

}  // namespace
}  // namespace tolva::testing
