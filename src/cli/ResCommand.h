#pragma once
// tolva-res: the editor's loader and writers on the command line.
//   tolva-res check IN.txt
//   tolva-res resave IN.txt OUT.txt [OUT.h]
//   tolva-res header IN.txt OUT.h
//   tolva-res render IN.txt OUTDIR [--scale N] [--form NAME]
//   --quiet before any of them keeps standard error to failed runs.
#include <ostream>
#include <string>
#include <vector>

namespace tolva {

// Exit statuses.
inline constexpr int kResLoaded = 0;       // the load answered true (and the files were written)
inline constexpr int kResNotLoaded = 1;    // the load answered false, or the program cannot start
inline constexpr int kResLoadEnded = 2;    // a run-time failure ended the load, or a write failed
inline constexpr int kResUsage = 64;       // a wrong command line

// Runs one command line (the arguments after the program's name); help goes
// to out, boxes and failures to err.
int RunResCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace tolva
