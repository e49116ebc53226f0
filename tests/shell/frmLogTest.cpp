// The log window: keeps its first text, hides when closed.
#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QTimer>

#include "shell/frmLog.h"
#include "shell/WindowUnits.h"

namespace tolva {
namespace {

TEST(frmLog, StartsWithLogAndALineEnd) {
    frmLog log;
    EXPECT_EQ(log.txtLog()->objectName(), QStringLiteral("txtLog"));
    EXPECT_EQ(log.txtLog()->toPlainText(), QStringLiteral("Log\n"));
}

TEST(frmLog, AddLogLineDropsTheLine) {
    frmLog log;
    log.AddLogLine("Object created: FORM_1");
    log.AddLogLine("Editor cleared");
    EXPECT_EQ(log.txtLog()->toPlainText(), QStringLiteral("Log\n"));
}

TEST(frmLog, SinkForwardsToTheWindowWhichDropsIt) {
    frmLog log;
    frmLogSink sink;
    sink.AddLogLine("before any window");
    sink.SetWindow(&log);
    sink.AddLogLine("Object IDs distributed");
    EXPECT_EQ(log.txtLog()->toPlainText(), QStringLiteral("Log\n"));
}

TEST(frmLog, ClearLogEmptiesTheText) {
    frmLog log;
    log.ClearLog();
    EXPECT_EQ(log.txtLog()->toPlainText(), QString());
}

TEST(frmLog, CloseOnlyHidesTheWindow) {
    frmLog log;
    log.show();
    ASSERT_TRUE(log.isVisible());
    EXPECT_FALSE(log.close());
    EXPECT_FALSE(log.isVisible());
    // Still there, with its text.
    EXPECT_EQ(log.txtLog()->toPlainText(), QStringLiteral("Log\n"));
}

TEST(frmLog, ShownModallyUntilClosed) {
    frmLog log;
    bool wasModal = false;
    QTimer::singleShot(0, [&] {
        wasModal = log.isVisible() && log.isModal();
        log.close();
    });
    log.ShowModal();
    EXPECT_TRUE(wasModal);
    EXPECT_FALSE(log.isVisible());
}

TEST(frmLog, TextFillsTheWindowLessTheMargin) {
    frmLog log;
    log.resize(300, 200);
    log.show();
    const int margin = UnitsToPixels(100);
    EXPECT_EQ(log.txtLog()->geometry(), QRect(0, 0, 300 - margin, 200 - margin));
    log.resize(500, 400);
    EXPECT_EQ(log.txtLog()->geometry(), QRect(0, 0, 500 - margin, 400 - margin));
    log.hide();
}

}  // namespace
}  // namespace tolva
