#include "shell/frmLog.h"

#include <QCloseEvent>
#include <QPlainTextEdit>
#include <QResizeEvent>

#include "shell/RunGuarded.h"
#include "shell/WindowUnits.h"

namespace tolva {

namespace {
// The window's size on first showing, and the margin the text box leaves at
// the right and the bottom, in screen units.
constexpr int kWidth = 6000;
constexpr int kHeight = 4500;
constexpr int kMargin = 100;
}  // namespace

frmLog::frmLog(QWidget* parent) : QDialog(parent) {
    setObjectName("frmLog");
    setWindowTitle("Log");
    txtLog_ = new QPlainTextEdit(this);
    txtLog_->setObjectName("txtLog");
    txtLog_->setPlainText("Log\n");
    resize(UnitsToPixels(kWidth), UnitsToPixels(kHeight));
    PlaceText();
}

void frmLog::AddLogLine(const std::string&) {
    // The line is dropped: the window goes on showing what it showed.
}

void frmLog::ClearLog() { txtLog_->clear(); }

void frmLog::ShowModal() {
    setModal(true);
    exec();
}

void frmLog::closeEvent(QCloseEvent* event) {
    RunGuarded([&] {
        // A close only hides the window; it lives until the program ends.
        event->ignore();
        hide();
    });
}

void frmLog::resizeEvent(QResizeEvent* event) {
    RunGuarded([&] {
        QDialog::resizeEvent(event);
        PlaceText();
    });
}

void frmLog::PlaceText() {
    const int margin = UnitsToPixels(kMargin);
    txtLog_->setGeometry(0, 0, std::max(0, width() - margin), std::max(0, height() - margin));
}

void frmLogSink::AddLogLine(const std::string& line) {
    if (window_) window_->AddLogLine(line);
}

}  // namespace tolva
