#!/usr/bin/env bash
# Builds the loader's fuzz target with clang into build-fuzz/ and runs it.
#   scripts/fuzz.sh [SECONDS]   (default 60)
# The corpus grows in build-fuzz/corpus (seeded from tests/data/*.txt and
# fuzz/seeds/*.txt);
# findings land in build-fuzz/findings/.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
seconds="${1:-60}"
"$root/scripts/install-deps.sh"
command -v clang++ >/dev/null || { apt-get update && apt-get install -y clang; }
build="$root/build-fuzz"
CC=clang CXX=clang++ cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DTOLVA_FUZZ=ON -DTOLVA_BUILD_GUI=OFF -DTOLVA_BUILD_TESTS=OFF
cmake --build "$build" --target fuzz_loader --parallel "$(nproc)"
mkdir -p "$build/corpus" "$build/findings"
cp -n "$root"/tests/data/*.txt "$root"/fuzz/seeds/*.txt "$build/corpus/" 2>/dev/null || true
"$build/bin/fuzz_loader" "$build/corpus" -max_total_time="$seconds" -timeout=10 \
  -rss_limit_mb=2048 -max_len=65536 -artifact_prefix="$build/findings/" -print_final_stats=1
