#!/usr/bin/env bash
# Builds the editor and starts it.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/install-deps.sh" --with-display
"$root/scripts/build.sh"
exec "${BUILD_DIR:-$root/build}/bin/tolva-designer"
