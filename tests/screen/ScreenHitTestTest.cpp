// What lies under a point of the canvas: nodes, then objects from the top,
// then the form at the back, then the bare canvas.
#include "screen/CanvasFixture.h"

namespace tolva::testing {
namespace {

class ScreenHitTest : public CanvasTest {
protected:
    void SetUp() override {
        CanvasTest::SetUp();
        ASSERT_TRUE(DrawForm());  // the whole device area
        // Two buttons overlapping at 1000..1200 across and down.
        screen.SetRubberBand({730, 730, 1200, 1200});
        ASSERT_TRUE(screen.CreateObject(type::Button));
        screen.SetRubberBand({1000, 1000, 1500, 1500});
        ASSERT_TRUE(screen.CreateObject(type::Button));
    }
};

TEST_F(ScreenHitTest, BareCanvasOutsideEveryObject) {
    const CanvasHit hit = screen.HitTest(100, 100);
    EXPECT_EQ(hit.kind, CanvasHit::Kind::Canvas);
    EXPECT_EQ(hit.object, nullptr);
}

TEST_F(ScreenHitTest, FormIsBehindItsObjects) {
    EXPECT_EQ(screen.HitTest(3000, 3000).object, Form(1));
    EXPECT_EQ(screen.HitTest(800, 800).object, Obj(type::Button, 1));
}

TEST_F(ScreenHitTest, LastCreatedOrSelectedIsOnTop) {
    EXPECT_EQ(screen.HitTest(1100, 1100).object, Obj(type::Button, 2));
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    EXPECT_EQ(screen.HitTest(1100, 1100).object, Obj(type::Button, 1));
}

TEST_F(ScreenHitTest, NodesLieAboveEverything) {
    ASSERT_TRUE(screen.SelectObject(type::Button, "BUTTON_1"));
    // The bottom right node of button 1 stands at 1200, 1200 over button 2.
    const CanvasHit hit = screen.HitTest(1250, 1250);
    EXPECT_EQ(hit.kind, CanvasHit::Kind::Node);
    EXPECT_EQ(hit.node, node::BottomRight);
    screen.SelectObject(type::None, "");
    EXPECT_EQ(screen.HitTest(1250, 1250).object, Obj(type::Button, 2));
}

TEST_F(ScreenHitTest, HiddenObjectsAreNotHit) {
    Obj(type::Button, 2)->Visible(false);
    EXPECT_EQ(screen.HitTest(1400, 1400).object, Form(1));
    ASSERT_TRUE(screen.HideForm("FORM_1"));
    EXPECT_EQ(screen.HitTest(1400, 1400).kind, CanvasHit::Kind::Canvas);
}

TEST_F(ScreenHitTest, RightAndBottomEdgesAreOutside) {
    KomaObject* second = Obj(type::Button, 2);
    EXPECT_EQ(screen.HitTest(1499, 1499).object, second);
    EXPECT_NE(screen.HitTest(1500, 1300).object, second);
}

TEST_F(ScreenHitTest, HoldsOnlyItsOwnObjects) {
    KomaObject* first = Obj(type::Button, 1);
    EXPECT_TRUE(screen.HoldsObject(first));
    ctlKOMAForm stranger;
    EXPECT_FALSE(screen.HoldsObject(&stranger));
    EXPECT_FALSE(screen.HoldsObject(nullptr));
    ASSERT_TRUE(screen.DeleteObject(type::Button, "BUTTON_2"));
    EXPECT_EQ(screen.NumButtons(), 1);
}

}  // namespace
}  // namespace tolva::testing
