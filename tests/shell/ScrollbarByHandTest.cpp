// A scroll bar worked by hand in the editor: drawn with the mouse from its
// toolbar button, its rows typed and chosen (a refused maximum among them,
// and a style that turns it around), both arrows chosen from their rows,
// the design saved, opened and saved again.
#include <memory>

#include "document/ObjectTypes.h"
#include "objects/scrollbar/ctlKOMAScrollbar.h"
#include "shell/ByHandFixture.h"
#include "support/BmpBytes.h"
#include "support/ShortNamedDirectory.h"

namespace tolva::testing {
namespace {

constexpr int kScrollbarTool = 12;

class ScrollbarByHand : public ByHand {
protected:
    void SetUp() override {
        ByHand::SetUp();
        work = std::make_unique<ShortNamedDirectory>("b");
        ASSERT_TRUE(work->Made());
        for (const char* name : {"UP.BMP", "DOWN.BMP"}) {
            BmpSpec picture;
            picture.width = 9;
            picture.height = 7;
            std::ofstream(name, std::ios::binary) << BmpFile(picture);
            host.pictures[name] = PictureSize{9, 7};
        }
        window->ShowBitmapWarning(false);
    }
    void TearDown() override {
        ByHand::TearDown();
        work.reset();
    }
    std::unique_ptr<ShortNamedDirectory> work;
};

TEST_F(ScrollbarByHand, DrawnTypedGivenArrowsSavedOpenedAndSavedAgain) {
    ClickTool(2);
    Drag({14, 14}, {400, 400});
    ClickTool(kScrollbarTool);
    Drag({300, 60}, {330, 330});
    ASSERT_EQ(Screen().Count(type::Scrollbar), 1);
    auto* bar = static_cast<ctlKOMAScrollbar*>(Screen().ObjectAt(type::Scrollbar, 1));
    EXPECT_EQ(bar->KOMAName(), "SCROLLBAR_1");

    Enter(1, "LEVEL");
    Enter(6, "-1");
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Invalid scrollbar max value.  Make sure "
                                        "the min value is greater than the min value"}));
    host.ClearRecord();
    Enter(6, "30");
    Enter(7, "12");
    Enter(8, "5");
    host.fileAnswers = {"UP.BMP"};
    PressRow(15);
    host.fileAnswers = {"DOWN.BMP"};
    PressRow(16);
    ChooseRow(17, "2 Bit");
    EXPECT_TRUE(host.messages.empty()) << host.MessageLines().front();
    EXPECT_EQ(bar->KOMAScrollbarMax(), 30);
    EXPECT_EQ(bar->KOMACurrentValue(), 12);
    EXPECT_EQ(bar->Arrow(1).file, "UP.BMP");
    EXPECT_EQ(bar->Arrow(2).file, "DOWN.BMP");
    EXPECT_EQ(bar->Arrow(1).depth, 2);
    // An upright bar of style 0 is as wide as its arrows.
    EXPECT_EQ(bar->KOMAWidth(), 9);

    // Style 2 allows only the level bar: the rows show it turned.
    ChooseRow(10, "SCROLLBAR_STYLE_2");
    EXPECT_EQ(bar->KOMAScrollbarTypeWord(), "HORIZONTAL");
    QComboBox* orientation = Editor<QComboBox>("cmbOnlyValue", 9);
    ASSERT_NE(orientation, nullptr);
    EXPECT_EQ(orientation->currentText(), "HORIZONTAL");

    const std::string saved = SaveDesignAs(fs::current_path(), "FIRST");
    for (const char* line : {"NAME=LEVEL\r\n", "(W)SCROLLBAR_MAX=30\r\n", "(W)SCROLLBAR_CURRENT_VALUE=12\r\n",
                             "(W)SCROLLBAR_PAGESIZE=5\r\n", "(W)SCROLLBAR_TOTAL_NUM_LINES=31\r\n",
                             "(B)SCROLLBAR_STYLE=HORIZONTAL\r\n", "(B)SCROLLBAR_TYPE=SCROLLBAR_STYLE_2\r\n",
                             "(P)SCROLLBAR_ARROW1_BITMAP.FILE=Q_TWO_BIT,UP.BMP\r\n",
                             "(P)SCROLLBAR_ARROW2_BITMAP.FILE=Q_FOUR_BIT,DOWN.BMP\r\n"})
        EXPECT_NE(saved.find(line), std::string::npos) << line;

    OpenAnew(fs::current_path() / "FIRST.txt");
    ASSERT_EQ(Screen().Count(type::Scrollbar), 1);
    EXPECT_EQ(SaveDesignAs(fs::current_path(), "SECOND"), saved);
    EXPECT_EQ(ReadFile(fs::current_path() / "SECOND.h"), ReadFile(fs::current_path() / "FIRST.h"));
}

}  // namespace
}  // namespace tolva::testing
