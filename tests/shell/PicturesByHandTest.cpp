// Bitmaps and repeat buttons drawn by hand in the editor: each drawn with
// the mouse from its toolbar button, its picture chosen from its inspector
// row, its rows typed (a refused value among them), the design saved,
// opened and saved again.
#include <memory>

#include "document/ObjectTypes.h"
#include "objects/bitmap/ctlKOMABitmap.h"
#include "objects/repeatbutton/ctlKOMARepeatButton.h"
#include "shell/ByHandFixture.h"
#include "support/BmpBytes.h"
#include "support/ShortNamedDirectory.h"

namespace tolva::testing {
namespace {

constexpr int kRepeatButtonTool = 4;
constexpr int kBitmapTool = 14;

class PicturesByHand : public ByHand {
protected:
    void SetUp() override {
        ByHand::SetUp();
        // The pictures' paths are relative to a working directory of short
        // name, as the 8.3 rule wants them.
        work = std::make_unique<ShortNamedDirectory>("p");
        ASSERT_TRUE(work->Made());
        MakePicture("ICON.BMP", 16, 12);
        MakePicture("ARROW.BMP", 12, 10);
        window->ShowBitmapWarning(false);
    }
    void TearDown() override {
        ByHand::TearDown();
        work.reset();
    }

    void MakePicture(const std::string& path, int width, int height) {
        BmpSpec picture;
        picture.width = width;
        picture.height = height;
        picture.value = [](int x, int y) { return ((x + y) % 3 == 0) ? 0x000000u : 0xC0C0C0u; };
        std::ofstream(path, std::ios::binary) << BmpFile(picture);
        host.pictures[path] = PictureSize{width, height};
    }

    void SaveAs(const std::string& txt, const std::string& h) {
        host.fileAnswers = {txt, h};
        TriggerMenu("mnuFileSaveAs");
    }

    std::unique_ptr<ShortNamedDirectory> work;
};

TEST_F(PicturesByHand, DrawnTypedSavedOpenedAndSavedAgain) {
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ASSERT_EQ(Screen().NumForms(), 1);

    // A bitmap: its picture from the row labelled for the unclicked state,
    // which sets Bitmap 1; a Y Pos the device has no room for.
    ClickTool(kBitmapTool);
    Drag({60, 60}, {120, 120});
    ASSERT_EQ(Screen().Count(type::Bitmap), 1);
    auto* bitmap = static_cast<ctlKOMABitmap*>(Screen().ObjectAt(type::Bitmap, 1));
    host.fileAnswers = {"ICON.BMP"};
    PressRow(8);
    EXPECT_EQ(bitmap->KOMABitmap1File(), "ICON.BMP");
    EXPECT_EQ(bitmap->KOMAWidth(), 16);
    EXPECT_EQ(bitmap->KOMAHeight(), 12);
    Enter(1, "LOGO");
    Enter(2, "30");
    Enter(3, "200");
    EXPECT_EQ(host.MessageLines(), (std::vector<std::string>{"KOMABoundsY: Invalid value"}));
    host.ClearRecord();
    ChooseRow(4, "BITMAP_STYLE_1");
    ChooseRow(10, "2 Bit");
    EXPECT_EQ(bitmap->KOMAName(), "LOGO");
    EXPECT_EQ(bitmap->KOMABoundsX(), 30);
    EXPECT_EQ(bitmap->KOMABitmapStyleWord(), "BITMAP_STYLE_1");
    EXPECT_EQ(bitmap->KOMABitmap1Depth(), 2);

    // A repeat button: drawn as a blue block, then sized by its picture.
    ClickTool(kRepeatButtonTool);
    Drag({200, 200}, {260, 260});
    ASSERT_EQ(Screen().Count(type::RepeatButton), 1);
    auto* button = static_cast<ctlKOMARepeatButton*>(Screen().ObjectAt(type::RepeatButton, 1));
    EXPECT_EQ(button->KOMAWidth(), 33);
    host.fileAnswers = {"ARROW.BMP"};
    PressRow(8);
    ASSERT_EQ(host.openRequests.size(), 1u);
    EXPECT_EQ(host.openRequests[0].title, "Select Repeat-Button Bitmap");
    EXPECT_EQ(button->KOMABitmapFile(), "ARROW.BMP");
    EXPECT_EQ(button->KOMAWidth(), 12);
    EXPECT_EQ(button->KOMAHeight(), 10);
    Enter(2, "100");
    Enter(3, "120");
    ChooseRow(7, "FALSE");
    ChooseRow(9, "2 Bit");
    EXPECT_EQ(button->KOMABoundsX(), 100);
    EXPECT_EQ(button->KOMABitmapX(), 100);
    EXPECT_EQ(button->KOMABitmapY(), 120);
    EXPECT_EQ(button->KOMAVisibleWord(), "FALSE");
    EXPECT_EQ(button->KOMABitmapDepth(), 2);
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();

    const std::string first = (fs::current_path() / "FIRST.TXT").string();
    SaveAs(first, (fs::current_path() / "FIRST.H").string());
    const std::string saved = ReadFile(first);
    for (const char* line : {"(P)BITMAP1_BITMAP.FILE=Q_TWO_BIT,ICON.BMP\r\n",
                             "(B)BITMAP_STYLE=BITMAP_STYLE_1\r\n", "(SH)BOUNDS.X=30\r\n",
                             "(SH)CONTROL_BITMAP.X=100\r\n", "(SH)CONTROL_BITMAP.Y=120\r\n",
                             "(SH)CONTROL_BITMAP.WIDTH=12\r\n",
                             "(BO)CONTROL_ATTR.VISIBLE=FALSE\r\n",
                             "(P)CONTROL_BITMAP.FILE=Q_TWO_BIT,ARROW.BMP\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;

    TriggerMenu("mnuFileNew");
    host.ClearRecord();
    host.fileAnswers = {first};
    TriggerMenu("mnuFileOpen");
    // The form without a picture names FORM.BMP in its record, which is not
    // here: its own message, and nothing else.
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Bitmap not found"}));
    ASSERT_EQ(Screen().Count(type::Bitmap), 1);
    ASSERT_EQ(Screen().Count(type::RepeatButton), 1);
    button = static_cast<ctlKOMARepeatButton*>(Screen().ObjectAt(type::RepeatButton, 1));
    // The repeat button's depth is not read back: it is 4 again.
    EXPECT_EQ(button->KOMABitmapDepth(), 4);

    const std::string second = (fs::current_path() / "SECOND.TXT").string();
    SaveAs(second, (fs::current_path() / "SECOND.H").string());
    std::string expected = saved;
    const std::string two = "(P)CONTROL_BITMAP.FILE=Q_TWO_BIT,ARROW.BMP";
    expected.replace(expected.find(two), two.size(), "(P)CONTROL_BITMAP.FILE=Q_FOUR_BIT,ARROW.BMP");
    EXPECT_EQ(ReadFile(second), expected);
    EXPECT_EQ(ReadFile(fs::current_path() / "SECOND.H"), ReadFile(fs::current_path() / "FIRST.H"));
}

}  // namespace
}  // namespace tolva::testing
