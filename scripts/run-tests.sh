#!/usr/bin/env bash
# Builds everything and runs every test. The window tests run offscreen.
#   --sanitize   builds into build-asan/ with AddressSanitizer and
#                UndefinedBehaviorSanitizer and runs the tests there.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/install-deps.sh"
if [ "${1:-}" = "--sanitize" ]; then
  export BUILD_DIR="${BUILD_DIR:-$root/build-asan}"
  "$root/scripts/build.sh" -DTOLVA_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug
else
  "$root/scripts/build.sh"
fi
export QT_QPA_PLATFORM=offscreen
cd "${BUILD_DIR:-$root/build}"
ctest --output-on-failure --parallel "$(nproc)"
