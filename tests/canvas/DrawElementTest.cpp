// Draw elements and the drawing every kind starts from.
#include "canvas/DrawElement.h"

#include <gtest/gtest.h>

#include "objects/button/ctlKOMAButton.h"
#include "document/KomaObject.h"
#include "document/ObjectTypes.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva {
namespace {

TEST(DrawColor, StoredValuesHoldBlueHigh) {
    EXPECT_EQ(DrawColor::FromStored(0xC00000), (DrawColor{0, 0, 0xC0}));
    EXPECT_EQ(DrawColor::FromStored(0x0000FF), (DrawColor{0xFF, 0, 0}));
    EXPECT_EQ(DrawColor::FromStored(0xE0E0E0), (DrawColor{0xE0, 0xE0, 0xE0}));
}

TEST(DrawElement, LineSpansTheBoxOfItsEnds) {
    const DrawElement line = LineElement("lnLine", 300, 40, 20, 200);
    EXPECT_EQ(line.kind, DrawElementKind::Line);
    EXPECT_EQ(line.rect, (CanvasRect{20, 40, 280, 160}));
    EXPECT_EQ(line.x1, 300);
    EXPECT_EQ(line.y2, 200);
}

TEST(DrawElement, BuildersGiveTheirKinds) {
    EXPECT_EQ(ShapeElement("shpButton", {}).kind, DrawElementKind::Shape);
    const DrawElement text = TextElement("lblText", {1, 2, 3, 4}, "OK");
    EXPECT_EQ(text.kind, DrawElementKind::TextBox);
    EXPECT_EQ(text.text, "OK");
    EXPECT_EQ(text.rect, (CanvasRect{1, 2, 3, 4}));
    const DrawElement image = ImageElement("imgBitmap", {}, "c:\\a.bmp");
    EXPECT_EQ(image.kind, DrawElementKind::Image);
    EXPECT_EQ(image.imagePath, "c:\\a.bmp");
}

// A kind with no drawing of its own.
class PlainObject : public KomaObject {
public:
    explicit PlainObject(int screenType) : KomaObject(screenType, "PLAIN", 40, 14) {}
};

TEST(DefaultDrawing, OutlinedBoxWithTheNameAcrossTheObject) {
    PlainObject object(type::Button);
    object.KOMAName("BUTTON_7");
    object.SetCanvasSize(1000, 400);
    const DrawElementList elements = object.GetDrawElements();
    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(elements[0].kind, DrawElementKind::Shape);
    EXPECT_TRUE(elements[0].outline);
    EXPECT_TRUE(elements[0].filled);
    EXPECT_EQ(elements[0].rect, (CanvasRect{0, 0, 1000, 400}));
    EXPECT_EQ(elements[1].kind, DrawElementKind::TextBox);
    EXPECT_EQ(elements[1].text, "BUTTON_7");
    EXPECT_EQ(elements[1].alignment, TextAlignment::Center);
    EXPECT_EQ(elements[1].rect, (CanvasRect{0, 0, 1000, 400}));
}

TEST(DefaultDrawing, FollowsTheSizeAndName) {
    PlainObject object(type::Button);
    object.SetCanvasSize(1200, 500);
    object.KOMAName("Main");
    const DrawElementList elements = object.GetDrawElements();
    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(elements[0].rect.width, 1200);
    EXPECT_EQ(elements[0].rect.height, 500);
    EXPECT_TRUE(elements[0].filled);
    EXPECT_EQ(elements.back().text, "Main");
}

TEST(DefaultDrawing, AFormOfNoDrawingWouldLetTheGridShowThrough) {
    PlainObject object(type::Form);
    EXPECT_FALSE(object.GetDrawElements()[0].filled);
}

}  // namespace
}  // namespace tolva
