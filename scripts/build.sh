#!/usr/bin/env bash
# Configures and builds into build/ (or $BUILD_DIR). Extra arguments go to
# the CMake configure step.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
build="${BUILD_DIR:-$root/build}"
cmake -S "$root" -B "$build" -G Ninja "$@"
cmake --build "$build" --parallel "$(nproc)"
