// Text boxes on the screen: drawn with their tool at the band's size, laid
// out again when resized by a node, named after their kind.
#include "objects/textbox/ctlKOMATextbox.h"
#include "screen/CanvasFixture.h"
#include "support/NamedElement.h"

namespace tolva::testing {
namespace {

class TextboxOnScreen : public CanvasTest {
protected:
    void SetUp() override {
        CanvasTest::SetUp();
        ASSERT_TRUE(DrawForm());
        ClearRecords();
    }
    ctlKOMATextbox* DrawTextbox(int x, int y, int w, int h) {
        EXPECT_TRUE(Draw(type::Textbox, x, y, w, h));
        return static_cast<ctlKOMATextbox*>(
            Obj(type::Textbox, static_cast<int>(Names(type::Textbox).size())));
    }
};

TEST_F(TextboxOnScreen, ItTakesTheBandsPlaceAndSize) {
    ctlKOMATextbox* box = DrawTextbox(10, 20, 60, 14);
    EXPECT_EQ(box->KOMAName(), "TEXTBOX_1");
    EXPECT_EQ(box->KOMABoundsX(), 10);
    EXPECT_EQ(box->KOMABoundsY(), 20);
    EXPECT_EQ(box->KOMAWidth(), 60);
    EXPECT_EQ(box->KOMAHeight(), 14);
    EXPECT_EQ(DrawTextbox(10, 50, 60, 14)->KOMAName(), "TEXTBOX_2");
}

TEST_F(TextboxOnScreen, AResizeByANodeLaysTheFrameOutAgain) {
    ctlKOMATextbox* box = DrawTextbox(10, 20, 60, 14);
    box->KOMATextboxStyle(1);
    screen.SelectObject(type::Textbox, box->KOMAName());
    const double before = Named(box->GetDrawElements(), "shpBorder").rect.width;
    DragNode(2, G(90), G(40));
    EXPECT_GT(box->KOMAWidth(), 60);
    const DrawElement border = Named(box->GetDrawElements(), "shpBorder");
    EXPECT_GT(border.rect.width, before);
    EXPECT_DOUBLE_EQ(border.rect.width, box->Width() - 20);
    EXPECT_DOUBLE_EQ(border.rect.height, box->Height() - 20);
}

}  // namespace
}  // namespace tolva::testing
