// The Repeat button on the screen: drawn with its tool, sized by its
// picture, refused a resize by hand, and its record's picture place left
// behind by a drag.
#include <fstream>
#include <memory>

#include "objects/repeatbutton/ctlKOMARepeatButton.h"
#include "screen/CanvasFixture.h"
#include "support/ShortNamedDirectory.h"

namespace tolva::testing {
namespace {

class RepeatButtonOnScreen : public CanvasTest {
protected:
    ctlKOMARepeatButton* button = nullptr;
    std::unique_ptr<ShortNamedDirectory> workDir;

    void SetUp() override {
        CanvasTest::SetUp();
        workDir = std::make_unique<ShortNamedDirectory>("s");
        ASSERT_TRUE(workDir->Made());
        ASSERT_TRUE(DrawForm());
        ASSERT_TRUE(Draw(type::RepeatButton, 10, 20, 40, 40));
        button = static_cast<ctlKOMARepeatButton*>(Obj(type::RepeatButton, 1));
        ClearRecords();
    }
    void TearDown() override { workDir.reset(); }

    void MakePicture(const std::string& path, int width, int height) {
        std::ofstream(path) << "BM";
        host.pictures[path] = PictureSize{width, height};
    }
    std::string RecordLine(const std::string& key) {
        LineList lines;
        EXPECT_TRUE(screen.GetKOMAResourceText(lines, button->KOMAName(), type::RepeatButton));
        for (const std::string& line : lines)
            if (line.rfind(key, 0) == 0) return line;
        return "";
    }
};

TEST_F(RepeatButtonOnScreen, ANewOneHasItsOwnSizeWhateverTheBand) {
    EXPECT_EQ(button->KOMAName(), "REPEATBUTTON_1");
    EXPECT_EQ(button->KOMABoundsX(), 10);
    EXPECT_EQ(button->KOMABoundsY(), 20);
    EXPECT_EQ(button->KOMAWidth(), 33);
    EXPECT_EQ(button->KOMAHeight(), 33);
}

TEST_F(RepeatButtonOnScreen, APictureSizesItOnTheScreen) {
    MakePicture("ARROW.BMP", 16, 12);
    button->KOMABitmapFile("ARROW.BMP");
    EXPECT_EQ(button->KOMAWidth(), 16);
    EXPECT_EQ(button->KOMAHeight(), 12);
    EXPECT_EQ(button->KOMABitmapWidth(), 16);
    EXPECT_EQ(button->KOMABitmapHeight(), 12);
    EXPECT_EQ(RecordLine("(SH)BOUNDS.WIDTH="), "(SH)BOUNDS.WIDTH=16");
    EXPECT_EQ(RecordLine("(SH)CONTROL_BITMAP.X="), "(SH)CONTROL_BITMAP.X=10");
}

TEST_F(RepeatButtonOnScreen, APictureWiderThanTheScreenIsCutAtItsEdge) {
    MakePicture("HUGE.BMP", 200, 200);
    button->KOMABitmapFile("HUGE.BMP");
    EXPECT_EQ(button->KOMABitmapFile(), "HUGE.BMP");
    EXPECT_EQ(button->KOMABoundsX() + button->KOMAWidth(), 160);
    EXPECT_EQ(button->KOMABoundsY() + button->KOMAHeight(), 160);
}

TEST_F(RepeatButtonOnScreen, AfterADragTheRecordHoldsTheOldPlaceOfTheBitmap) {
    MakePicture("ARROW.BMP", 16, 12);
    button->KOMABitmapFile("ARROW.BMP");
    Pointer();
    const double x = button->Left() + 50;
    const double y = button->Top() + 50;
    DragObject(*button, x, y, G(30) - G(0), G(20) - G(0));
    EXPECT_GT(button->KOMABoundsX(), 40);
    EXPECT_GT(button->KOMABoundsY(), 30);
    EXPECT_EQ(button->KOMABitmapX(), 10);
    EXPECT_EQ(button->KOMABitmapY(), 20);
    EXPECT_EQ(RecordLine("(SH)CONTROL_BITMAP.X="), "(SH)CONTROL_BITMAP.X=10");
    EXPECT_EQ(RecordLine("(SH)CONTROL_BITMAP.Y="), "(SH)CONTROL_BITMAP.Y=20");
    EXPECT_NE(RecordLine("(SH)BOUNDS.X="), "(SH)BOUNDS.X=10");
}

TEST_F(RepeatButtonOnScreen, ItCannotBeResizedByHand) {
    screen.SelectObject(type::RepeatButton, button->KOMAName());
    ClearRecords();
    const int width = button->KOMAWidth();
    DragNode(2, G(45), G(45));
    EXPECT_EQ(button->KOMAWidth(), width);
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Resize not allowed: Manual resize not allowed for this object"}));
}

}  // namespace
}  // namespace tolva::testing
