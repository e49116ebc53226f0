// The form on the canvas: where frame, bar, title and bitmap lie in each
// style, the draw elements at the screen's scale, and the popup menu of a
// right press.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "document/ObjectTypes.h"
#include "screen/ScreenFixture.h"
#include "objects/form/FormLayout.h"

namespace tolva::testing {
namespace {

namespace fs = std::filesystem;

// --- the parts in device pixels --------------------------------------------------------

TEST(FormLayout, NormalHasASixteenPixelBarAndTheTitleFiveBehindTheBitmap) {
    const auto parts = LayOutFormParts(0, 160, 160, true, 10, 12);
    EXPECT_TRUE(parts.frameVisible);
    EXPECT_TRUE(parts.barVisible);
    EXPECT_TRUE(parts.bitmapVisible);
    EXPECT_EQ(parts.bar, (PixelBox{0, 0, 160, 16}));
    EXPECT_EQ(parts.bitmap, (PixelBox{2, 2, 10, 12}));
    EXPECT_EQ(parts.title, (PixelBox{15, 4, 145, 8}));
    EXPECT_FALSE(parts.titleCentred);
}

TEST(FormLayout, WithoutABitmapTheTitleStartsAtTheGapAlone) {
    const auto parts = LayOutFormParts(0, 100, 80, false, 10, 12);
    EXPECT_FALSE(parts.bitmapVisible);
    EXPECT_EQ(parts.title, (PixelBox{5, 4, 95, 8}));
    EXPECT_EQ(LayOutFormParts(2, 100, 80, false, 10, 12).title, (PixelBox{7, 3, 93, 8}));
}

TEST(FormLayout, BitmapDialogHasATwentySevenPixelBarAndTheBitmapAtFiveThree) {
    const auto parts = LayOutFormParts(2, 120, 100, true, 20, 14);
    EXPECT_EQ(parts.bar, (PixelBox{0, 0, 120, 27}));
    EXPECT_EQ(parts.bitmap, (PixelBox{5, 3, 20, 14}));
    EXPECT_EQ(parts.title, (PixelBox{27, 3, 93, 8}));
    EXPECT_FALSE(parts.titleCentred);
}

TEST(FormLayout, NonBitmapDialogCentresTheTitleOverTheWholeWidthAndHidesTheBitmap) {
    const auto parts = LayOutFormParts(3, 120, 100, true, 20, 14);
    EXPECT_EQ(parts.bar, (PixelBox{0, 0, 120, 17}));
    EXPECT_FALSE(parts.bitmapVisible);
    EXPECT_EQ(parts.title, (PixelBox{0, 4, 120, 8}));
    EXPECT_TRUE(parts.titleCentred);
}

TEST(FormLayout, BackgroundShowsNothingButTheSurface) {
    const auto parts = LayOutFormParts(1, 160, 160, true, 10, 12);
    EXPECT_FALSE(parts.frameVisible);
    EXPECT_FALSE(parts.barVisible);
    EXPECT_FALSE(parts.titleVisible);
    EXPECT_FALSE(parts.bitmapVisible);
}

TEST(FormLayout, ABitmapWiderThanTheFormLeavesTheTitleWithWidthZero) {
    EXPECT_EQ(LayOutFormParts(0, 40, 40, true, 50, 12).title.width, 0);
    EXPECT_EQ(LayOutFormParts(2, 40, 40, true, 33, 12).title.width, 0);
    EXPECT_EQ(LayOutFormParts(0, 40, 40, true, 35, 12).title.width, 0);  // exactly nothing left
}

// --- the form's elements on a screen ----------------------------------------------------

class FormDrawingTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        ASSERT_TRUE(DrawForm());
        form = Form(1);
    }

    // A copy of the element, so that it outlives the list it came from.
    DrawElement Element(const DrawElementList& elements, const std::string& name) {
        auto it = std::find_if(elements.begin(), elements.end(),
                               [&](const DrawElement& e) { return e.name == name; });
        EXPECT_NE(it, elements.end()) << name;
        return it == elements.end() ? DrawElement{} : *it;
    }

    // A real file of a short path, as the bitmap's rules need, with the size
    // the host gives for it.
    std::string Bitmap(const std::string& dir, int width, int height) {
        const fs::path folder = fs::path("/tmp") / dir;
        fs::create_directories(folder);
        const std::string file = (folder / "PIC.BMP").string();
        std::ofstream(file) << "BM";
        host.pictures[file] = {width, height};
        return file;
    }

    ctlKOMAForm* form = nullptr;
};

TEST_F(FormDrawingTest, TheElementsCarryTheirNamesBackToFront) {
    const auto elements = form->GetDrawElements();
    std::vector<std::string> names;
    for (const auto& e : elements) names.push_back(e.name);
    EXPECT_EQ(names, (std::vector<std::string>{"lnTop", "lnLeft", "lnBottom", "lnRight",
                                               "shpTitleBar", "imgFormBitmap", "lblTitle"}));
}

TEST_F(FormDrawingTest, TheBarIsBlackAndTheTitleWhiteInTheDevicesSmallFont) {
    const auto elements = form->GetDrawElements();
    const DrawElement& bar = Element(elements, "shpTitleBar");
    EXPECT_TRUE(bar.filled);
    EXPECT_EQ(bar.fillColor, kBlack);
    EXPECT_NEAR(bar.rect.height, 16 * kUnits, 1e-6);
    EXPECT_NEAR(bar.rect.width, 160 * kUnits, 1e-6);
    const DrawElement& title = Element(elements, "lblTitle");
    EXPECT_EQ(title.text, "Form Title");
    EXPECT_EQ(title.font.name, "TolvaSmall");
    EXPECT_DOUBLE_EQ(title.font.size, 14.25);
    EXPECT_TRUE(title.font.bold);
    EXPECT_EQ(title.foreColor, kWhite);
    EXPECT_EQ(title.alignment, TextAlignment::Left);
    EXPECT_NEAR(title.rect.left, 5 * kUnits, 1e-6);
    EXPECT_NEAR(title.rect.top, 4 * kUnits, 1e-6);
    EXPECT_FALSE(Element(elements, "imgFormBitmap").visible);  // no bitmap set
}

TEST_F(FormDrawingTest, TheFrameLiesOnTheOutermostPixels) {
    const auto elements = form->GetDrawElements();
    const DrawElement& top = Element(elements, "lnTop");
    EXPECT_NEAR(top.y1, kUnits / 2, 1e-6);
    EXPECT_NEAR(top.lineWidth, kUnits, 1e-6);
    const DrawElement& right = Element(elements, "lnRight");
    EXPECT_NEAR(right.x1, 160 * kUnits - kUnits / 2, 1e-6);
}

TEST_F(FormDrawingTest, StyleOneHidesFrameBarTitleAndBitmap) {
    form->KOMAFormStyle(1);
    for (const auto& e : form->GetDrawElements()) EXPECT_FALSE(e.visible) << e.name;
}

TEST_F(FormDrawingTest, ANewTitleIsShownAtOnce) {
    form->KOMAFormTitle("Hello");
    EXPECT_EQ(Element(form->GetDrawElements(), "lblTitle").text, "Hello");
}

TEST_F(FormDrawingTest, AChosenPictureShowsAtItsOwnSizeUntilTheNextLayout) {
    const std::string file = Bitmap("TOLVAFD1", 20, 14);
    form->KOMABitmapFile(file);
    ASSERT_EQ(form->KOMABitmapFile(), file);
    auto elements = form->GetDrawElements();
    const DrawElement& image = Element(elements, "imgFormBitmap");
    EXPECT_TRUE(image.visible);
    EXPECT_EQ(image.imagePath, file);
    EXPECT_NEAR(image.rect.left, 2 * kUnits, 1e-6);
    EXPECT_NEAR(image.rect.width, 20 * kUnits, 1e-6);
    EXPECT_NEAR(Element(elements, "lblTitle").rect.left, 25 * kUnits, 1e-6);

    // A change of the title lays the form out: the stored 10 by 12 again.
    form->KOMAFormTitle("T");
    EXPECT_EQ(form->ImageWidth(), 10);
    EXPECT_EQ(form->ImageHeight(), 12);
    EXPECT_NEAR(Element(form->GetDrawElements(), "lblTitle").rect.left, 15 * kUnits, 1e-6);
}

TEST_F(FormDrawingTest, ARightPressOpensSetPropertiesAndRaisesNoMouseDown) {
    events.lines.clear();
    host.popupAnswers.push_back(std::nullopt);
    form->MouseDown(2, 0, 100, 100);
    ASSERT_EQ(host.popups.size(), 1u);
    EXPECT_EQ(host.popups[0].first, "Set Properties");
    EXPECT_EQ(host.popups[0].second,
              (std::vector<std::string>{"Set Form Bitmap...", "Remove Form Bitmap"}));
    EXPECT_NE(screen.ScreenMode(), ctlTolvaScreen::ModeMoving);
}

TEST_F(FormDrawingTest, ALeftPressStillReachesTheScreen) {
    form->MouseDown(1, 0, 100, 100);
    EXPECT_TRUE(host.popups.empty());
    EXPECT_EQ(screen.ScreenMode(), ctlTolvaScreen::ModeMoving);
}

TEST_F(FormDrawingTest, SetFormBitmapOpensTheChooserAndSetsTheChoice) {
    const std::string file = Bitmap("TOLVAFD2", 10, 12);
    host.popupAnswers.push_back(0);
    host.fileAnswers.push_back(file);
    form->MouseDown(2, 0, 100, 100);
    ASSERT_EQ(host.openRequests.size(), 1u);
    EXPECT_EQ(host.openRequests[0].title, "Select Form Bitmap");
    EXPECT_EQ(host.openRequests[0].filter, "Bitmaps (*.bmp)|*.bmp|");
    EXPECT_EQ(form->KOMABitmapFile(), file);
    EXPECT_TRUE(Element(form->GetDrawElements(), "imgFormBitmap").visible);
}

TEST_F(FormDrawingTest, SetFormBitmapCancelledLeavesAllAsItWas) {
    host.popupAnswers.push_back(0);
    host.fileAnswers.push_back(std::nullopt);
    form->MouseDown(2, 0, 100, 100);
    EXPECT_EQ(host.openRequests.size(), 1u);
    EXPECT_EQ(form->KOMABitmapFile(), "");
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(FormDrawingTest, RemoveFormBitmapEmptiesTheFileAndHidesTheImage) {
    form->KOMABitmapFile(Bitmap("TOLVAFD3", 10, 12));
    ASSERT_FALSE(form->KOMABitmapFile().empty());
    host.popupAnswers.push_back(1);
    form->MouseDown(2, 0, 100, 100);
    EXPECT_EQ(form->KOMABitmapFile(), "");
    EXPECT_FALSE(Element(form->GetDrawElements(), "imgFormBitmap").visible);
}

}  // namespace
}  // namespace tolva::testing
