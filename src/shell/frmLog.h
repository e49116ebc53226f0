#pragma once
// frmLog: the log window. It is made at start, kept hidden, shown modally by
// "Log Window", and a close only hides it, so it lives as long as the program.
// Log lines handed to it are dropped: the window keeps its first text.
#include <QDialog>
#include <string>

#include "document/LogSink.h"

class QPlainTextEdit;

namespace tolva {

class frmLog : public QDialog {
    Q_OBJECT
public:
    explicit frmLog(QWidget* parent = nullptr);

    // Takes a log line and does nothing with it, on purpose.
    void AddLogLine(const std::string& line);
    // Empties the text box.
    void ClearLog();
    // Shows the window modally; returns when it is hidden again.
    void ShowModal();

    QPlainTextEdit* txtLog() const { return txtLog_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PlaceText();
    QPlainTextEdit* txtLog_;
};

// The sink the screen writes its lines to: every line goes to the log
// window's AddLogLine (when there is a window yet).
class frmLogSink : public LogSink {
public:
    void SetWindow(frmLog* window) { window_ = window; }
    void AddLogLine(const std::string& line) override;

private:
    frmLog* window_ = nullptr;
};

}  // namespace tolva
