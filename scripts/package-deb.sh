#!/usr/bin/env bash
# Builds the programs and makes the Debian package of what `cmake --install`
# installs (programs, data, desktop entry, icons) in build/.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/install-deps.sh"
"$root/scripts/build.sh"
cd "${BUILD_DIR:-$root/build}"
cpack -G DEB
ls -1 "$PWD"/tolva-designer_*.deb
