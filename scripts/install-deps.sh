#!/usr/bin/env bash
# Installs the Debian packages the build needs, when any is missing.
# Safe to run again: it does nothing when all are there.
set -euo pipefail

packages=(g++ cmake ninja-build qt6-base-dev libgl-dev libgtest-dev desktop-file-utils zlib1g-dev)
if [ "${1:-}" = "--with-display" ]; then
  packages+=(libxkbcommon-x11-0 libxcb-cursor0)
fi

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
fi
