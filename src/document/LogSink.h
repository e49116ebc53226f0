#pragma once
// Where composed log lines go. Every change of the document is described in
// one line and handed to AddLogLine; the main window's log discards it.
#include <string>

namespace tolva {

class LogSink {
public:
    virtual ~LogSink() = default;
    virtual void AddLogLine(const std::string& line) = 0;
};

// A sink that drops every line.
class NullLogSink : public LogSink {
public:
    void AddLogLine(const std::string&) override {}
};

}  // namespace tolva
