#pragma once
// A run-time failure: text that is no number, a number out of range, a read
// past the end of a file. It is thrown where the program cannot go on with the
// command at hand and caught only where a command has its own handler (Open,
// Save As, the load) or by the top-level guard of the window layer.
#include <stdexcept>
#include <string>

namespace tolva {

class RuntimeFailure : public std::runtime_error {
public:
    explicit RuntimeFailure(const std::string& what) : std::runtime_error(what) {}
};

}  // namespace tolva
