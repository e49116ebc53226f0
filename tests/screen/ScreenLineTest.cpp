// A line's end points and the screen's answer to their change.
#include "screen/CanvasFixture.h"
#include "objects/line/ctlKOMALine.h"

namespace tolva::testing {
namespace {

class ScreenLine : public CanvasTest {
protected:
    ctlKOMALine* line = nullptr;

    void SetUp() override {
        CanvasTest::SetUp();
        ASSERT_TRUE(DrawForm());
        Arm(type::Line);
        DragOnCanvas(G(5), G(15), G(15), G(5));
        line = static_cast<ctlKOMALine*>(Obj(type::Line, 1));
        ASSERT_NE(line, nullptr);
        ASSERT_TRUE(screen.SelectObject(type::Line, "LINE_1"));
        ClearRecords();
    }

    void SetEnds(int startX, int startY, int endX, int endY) {
        line->KOMAStartX(startX);
        line->KOMAStartY(startY);
        line->KOMAEndX(endX);
        line->KOMAEndY(endY);
        line->RaiseLineResized();
    }
};

TEST_F(ScreenLine, NewLineStartsWithItsDefaults) {
    ctlKOMALine fresh;
    EXPECT_FALSE(fresh.PositiveSlope());
    EXPECT_EQ(fresh.KOMAStartX(), 0);
    EXPECT_EQ(fresh.KOMAStartY(), 0);
    EXPECT_EQ(fresh.KOMAEndX(), 24);
    EXPECT_EQ(fresh.KOMAEndY(), 0);
    EXPECT_EQ(fresh.KOMAWidth(), 46);
    EXPECT_EQ(fresh.KOMAHeight(), 30);
}

TEST_F(ScreenLine, EndPointsSetTheBoxAndTheSlope) {
    // Given right to left: the points are swapped first.
    SetEnds(100, 50, 20, 10);
    EXPECT_FALSE(line->PositiveSlope());
    EXPECT_FALSE(screen.Canvas().editorLine.positiveSlope);
    EXPECT_EQ(line->Left(), 932);
    EXPECT_EQ(line->Top(), 566);
    EXPECT_EQ(line->Width(), 2927);
    EXPECT_EQ(line->Height(), 1464);
    EXPECT_EQ(line->KOMABoundsX(), 20);
    EXPECT_EQ(line->KOMABoundsY(), 10);
    EXPECT_EQ(line->KOMAWidth(), 80);
    EXPECT_EQ(line->KOMAHeight(), 40);
    EXPECT_EQ(line->KOMAStartX(), 20);
    EXPECT_EQ(line->KOMAStartY(), 10);
    EXPECT_EQ(line->KOMAEndX(), 100);
    EXPECT_EQ(line->KOMAEndY(), 50);
    // The two line nodes stand on the ends.
    EXPECT_EQ(Node(node::Line1).rect.left, 932 - 67.5);
    EXPECT_EQ(Node(node::Line1).rect.top, 566 - 67.5);
    EXPECT_EQ(Node(node::Line2).rect.left, 932 + 2927 - 67.5);
    EXPECT_EQ(Node(node::Line2).rect.top, 566 + 1464 - 67.5);
}

TEST_F(ScreenLine, RisingEndPointsGiveAPositiveSlope) {
    SetEnds(20, 50, 100, 10);
    EXPECT_TRUE(line->PositiveSlope());
    EXPECT_TRUE(screen.Canvas().editorLine.positiveSlope);
    EXPECT_EQ(line->KOMAStartY(), 50);
    EXPECT_EQ(line->KOMAEndY(), 10);
}

TEST_F(ScreenLine, EqualXValuesKeepTheSlope) {
    ASSERT_TRUE(line->PositiveSlope());
    SetEnds(30, 90, 30, 10);
    EXPECT_TRUE(line->PositiveSlope());
    EXPECT_EQ(line->KOMAWidth(), 0);
    EXPECT_EQ(line->KOMAStartX(), 30);
    EXPECT_EQ(line->KOMAEndX(), 30);
}

TEST_F(ScreenLine, FlatEndPointsMakeAHorizontalLine) {
    SetEnds(20, 30, 100, 30);
    EXPECT_EQ(line->KOMAHeight(), 0);
    EXPECT_EQ(line->KOMAStartY(), 30);
    EXPECT_EQ(line->KOMAEndY(), 30);
}

TEST_F(ScreenLine, MovedLineIsNotPulledBackAndKeepsItsTwoNodes) {
    line->KOMABoundsX(150);
    screen.ObjectMoved(*line, 150, 20);
    EXPECT_EQ(line->KOMABoundsX(), 150);
    // The end beyond the screen is held to 159.
    EXPECT_EQ(line->KOMAEndX(), 159);
    EXPECT_TRUE(Node(node::Line1).visible);
    EXPECT_EQ(Node(node::Line1).rect.left, line->Left() - 67.5);
}

TEST_F(ScreenLine, EndPointSettersCheckTheirRange) {
    line->KOMAEndX(160);
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Invalid EndX value: 160"}));
    host.ClearRecord();
    line->KOMAEndY(-1);
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Invalid EndY value: -1"}));
    host.ClearRecord();
    // A start of 160 to 164 is taken as 159.
    line->KOMAStartX(164);
    EXPECT_EQ(line->KOMAStartX(), 159);
    line->KOMAStartY(160);
    EXPECT_EQ(line->KOMAStartY(), 159);
    EXPECT_TRUE(host.messages.empty());
    line->KOMAStartX(165);
    EXPECT_EQ(line->KOMAStartX(), 159);
    EXPECT_EQ(host.MessageLines(),
              (std::vector<std::string>{"Tolva Resource Editor: Invalid StartX value: 165"}));
}

TEST_F(ScreenLine, CopyTakesTheEndPointsAndTheSlope) {
    ctlKOMALine copy;
    ASSERT_TRUE(copy.CopyModelFrom(*line));
    EXPECT_EQ(copy.PositiveSlope(), line->PositiveSlope());
    EXPECT_EQ(copy.KOMAStartY(), line->KOMAStartY());
    EXPECT_EQ(copy.KOMAEndX(), line->KOMAEndX());
    EXPECT_FALSE(copy.CopyModelFrom(*Form(1)));
}

}  // namespace
}  // namespace tolva::testing
