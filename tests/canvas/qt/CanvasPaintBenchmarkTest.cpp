// How long one paint of a full screen takes: the frame, the 56 by 56 grid
// and 500 objects with their texts in the device font, into an image the
// size of the main window's canvas.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <iostream>
#include <memory>

#include "canvas/DeviceFont.h"
#include "canvas/qt/ScreenPainter.h"
#include "screen/ScreenFixture.h"
#include "objects/button/ctlKOMAButton.h"
#include "objects/form/ctlKOMAForm.h"

namespace tolva::testing {
namespace {

TEST(CanvasPaintBenchmark, FrameGridAndFiveHundredObjects) {
    EnsureStringsLoaded();
    // The buttons' texts are drawn glyph by glyph in the device font.
    LoadDeviceFonts(TOLVA_SOURCE_DATA_DIR);
    ASSERT_NE(FindDeviceFont("TolvaSmall"), nullptr);
    ScriptedHost host;
    RecordingLog log;
    TestScreen screen{host, log};
    screen.SetCanvasSize(6255, 6255);
    screen.SetGrid(55, true);
    ASSERT_EQ(screen.Canvas().dots.Count(), 3136);

    auto form = std::make_unique<ctlKOMAForm>();
    form->KOMAName("FORM_1");
    KomaObject* formRef = screen.Inject(type::Form, std::move(form));
    formRef->Left(200);
    formRef->Top(200);
    formRef->SetCanvasSize(5855, 5855);
    formRef->ZOrder(1);
    for (int i = 1; i < 500; ++i) {
        auto button = std::make_unique<ctlKOMAButton>();
        button->KOMAName("BUTTON_" + std::to_string(i));
        KomaObject* ref = screen.Inject(type::Button, std::move(button));
        ref->Left(200 + (i % 20) * 280);
        ref->Top(200 + (i / 20) * 230);
        ref->SetCanvasSize(700, 300);
        ref->ZOrder(0);
    }
    ASSERT_EQ(screen.VisibleObjectsInStackingOrder().size(), 500u);

    ScreenPainter painter(15.0);
    QImage image(417, 417, QImage::Format_ARGB32_Premultiplied);
    {
        QPainter warm(&image);
        painter.Paint(warm, screen);
    }
    constexpr int kRounds = 20;
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < kRounds; ++round) {
        QPainter p(&image);
        painter.Paint(p, screen);
    }
    const double perPaint = timer.nsecsElapsed() / 1e6 / kRounds;
    std::cout << "[ BENCHMARK ] one paint of the frame, 3136 dots and 500 objects: " << perPaint
              << " ms" << std::endl;
    ::testing::Test::RecordProperty("PaintMilliseconds", std::to_string(perPaint));
    // Generous, so a loaded machine does not fail the build; the figure
    // itself is what to watch.
    EXPECT_LT(perPaint, 250.0);
}

}  // namespace
}  // namespace tolva::testing
