// Fields on the screen: drawn with their tool at the band's size, wrapped
// again when a node makes them narrower.
#include "objects/field/ctlKOMAField.h"
#include "screen/CanvasFixture.h"
#include "support/RealFontWidths.h"

namespace tolva::testing {
namespace {

class FieldOnScreen : public CanvasTest {
protected:
    void SetUp() override {
        CanvasTest::SetUp();
        LoadRealFontWidths();
        ASSERT_TRUE(DrawForm());
        ClearRecords();
    }
    ctlKOMAField* DrawField(int x, int y, int w, int h) {
        EXPECT_TRUE(Draw(type::Field, x, y, w, h));
        return static_cast<ctlKOMAField*>(Obj(type::Field, static_cast<int>(Names(type::Field).size())));
    }
};

TEST_F(FieldOnScreen, ItTakesTheBandsPlaceAndSize) {
    ctlKOMAField* field = DrawField(10, 20, 80, 40);
    EXPECT_EQ(field->KOMAName(), "FIELD_1");
    EXPECT_EQ(field->KOMABoundsX(), 10);
    EXPECT_EQ(field->KOMABoundsY(), 20);
    EXPECT_EQ(field->KOMAWidth(), 80);
    EXPECT_EQ(field->KOMAHeight(), 40);
    EXPECT_EQ(field->AvailableWidth(), 77);
    EXPECT_EQ(DrawField(10, 70, 80, 40)->KOMAName(), "FIELD_2");
}

TEST_F(FieldOnScreen, ANarrowerFieldWrapsItsTextAgain) {
    ctlKOMAField* field = DrawField(10, 20, 100, 40);
    field->KOMAText("Hello world");
    ASSERT_EQ(field->WrappedLines().size(), 1u);
    screen.SelectObject(type::Field, field->KOMAName());
    // The lower right corner from pixel 110, 60 to 50, 60.
    DragNode(2, At(50), At(60));
    EXPECT_LT(field->KOMAWidth(), 50);
    EXPECT_EQ(field->WrappedLines(), (std::vector<std::string>{"Hello ", "world"}));
}

}  // namespace
}  // namespace tolva::testing
