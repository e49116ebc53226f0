// A text box worked by hand in the editor: drawn with the mouse from its
// toolbar button, its rows typed and chosen (a refused maximum and the
// dropped "Show Insert Point" among them), the design saved, opened and
// saved again.
#include "document/ObjectTypes.h"
#include "objects/textbox/ctlKOMATextbox.h"
#include "shell/ByHandFixture.h"

namespace tolva::testing {
namespace {

constexpr int kTextboxTool = 6;

TEST_F(ByHand, ATextboxDrawnTypedSavedOpenedAndSavedAgain) {
    window->ShowBitmapWarning(false);
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ClickTool(kTextboxTool);
    Drag({60, 110}, {260, 150});
    ASSERT_EQ(Screen().Count(type::Textbox), 1);
    auto* box = static_cast<ctlKOMATextbox*>(Screen().ObjectAt(type::Textbox, 1));
    EXPECT_EQ(box->KOMAName(), "TEXTBOX_1");
    EXPECT_EQ(box->KOMAText(), "Textbox Text");

    Enter(1, "ENTRY");
    Enter(6, "Your name");
    ChooseRow(7, "TEXTBOX_STYLE_1");
    ChooseRow(8, "GREY_LINE");
    ChooseRow(9, "MEDIUM_FONT");
    ChooseRow(10, "COLOR_GREY2");
    Enter(12, "-1");
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"Tolva Resource Editor: Invalid value"}));
    host.ClearRecord();
    EXPECT_EQ(box->KOMAMaxNumChars(), 256);
    Enter(12, "40");
    Enter(14, "12");
    Enter(15, "5");
    ChooseRow(20, "TRUE");
    ChooseRow(22, "TRUE");
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();

    EXPECT_EQ(box->KOMAName(), "ENTRY");
    EXPECT_EQ(box->KOMAText(), "Your name");
    EXPECT_EQ(box->KOMATextboxStyleWord(), "TEXTBOX_STYLE_1");
    EXPECT_EQ(box->KOMABacklineWord(), "GREY_LINE");
    EXPECT_EQ(box->KOMAFontWord(), "MEDIUM_FONT");
    EXPECT_EQ(box->KOMAFontColorWord(), "COLOR_GREY2");
    EXPECT_EQ(box->KOMAMaxNumChars(), 40);
    EXPECT_EQ(box->KOMARightCharPos(), 12);
    EXPECT_EQ(box->KOMAInsertPointCharPos(), 5);
    EXPECT_TRUE(box->KOMADirty());
    // "Show Insert Point" is dropped: the row reads back as it was.
    EXPECT_FALSE(box->KOMAInsertPointVisible());
    QComboBox* insertPoint = Editor<QComboBox>("cmbOnlyValue", 22);
    ASSERT_NE(insertPoint, nullptr);
    EXPECT_EQ(insertPoint->currentText(), "FALSE");

    const std::string saved = SaveDesignAs(dir, "first");
    for (const char* line : {"NAME=ENTRY\r\n", "(S)TEXTBOX_TEXT=Your name\r\n",
                             "(B)TEXTBOX_STYLE=TEXTBOX_STYLE_1\r\n", "(B)TEXTBOX_BACK_LINE=GREY_LINE\r\n",
                             "(B)TEXTBOX_FONT=MEDIUM_FONT\r\n", "(B)TEXTBOX_FONT_COLOR=COLOR_GREY2\r\n",
                             "(W)TEXTBOX_MAX_NUM_CHARS=40\r\n", "(W)TEXTBOX_RIGHT_CHAR_POS=12\r\n",
                             "(W)TEXTBOX_INSERT_PT_CHAR_POS=5\r\n",
                             "(BO)TEXTBOX_ATTR.TEXTBOX_DIRTY=TRUE\r\n",
                             "(BO)TEXTBOX_ATTR.TEXTBOX_INSERT_PT_VISIBLE=FALSE\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;
    EXPECT_NE(ReadFile(dir / "first.h").find("#define ENTRY 1\r\n"), std::string::npos);

    OpenAnew(dir / "first.txt");
    ASSERT_EQ(Screen().Count(type::Textbox), 1);
    EXPECT_EQ(SaveDesignAs(dir, "second"), saved);
    EXPECT_EQ(ReadFile(dir / "second.h"), ReadFile(dir / "first.h"));
}

}  // namespace
}  // namespace tolva::testing
