#!/usr/bin/env bash
# Builds everything and runs every test. The window tests run offscreen.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/install-deps.sh"
"$root/scripts/build.sh"
export QT_QPA_PLATFORM=offscreen
cd "${BUILD_DIR:-$root/build}"
ctest --output-on-failure --parallel "$(nproc)"
