#!/usr/bin/env bash
# Installs the build into a fresh prefix and runs what was installed from a
# folder that is not the build folder: tolva-res resaves a golden design
# unchanged, the editor passes its start check offscreen, and the desktop
# entry is valid. Then, with the data folder taken away, the editor's start
# check must fail with its message, which shows that it found the installed
# files before.
#   install_test.sh BUILD_DIR SOURCE_DIR
set -euo pipefail
build="$1"
source="$2"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"

cmake --install "$build" --prefix "$prefix" >/dev/null
mkdir "$work/run"
cd "$work/run"

cp "$source/tests/data/table_full.txt" in.txt
cp "$source/docs/pictures/FORM.BMP" FORM.BMP
"$prefix/bin/tolva-res" resave in.txt out.txt out.h
cmp in.txt out.txt
cmp "$source/tests/data/table_full.h" out.h
echo "tolva-res: resaved unchanged"

output="$(TOLVA_START_CHECK=1 QT_QPA_PLATFORM=offscreen timeout 120 "$prefix/bin/tolva-designer" 2>"$work/err")"
[ "$output" = "started" ] || { echo "editor: no start"; cat "$work/err"; exit 1; }
echo "tolva-designer: started"

desktop-file-validate "$prefix/share/applications/tolva-designer.desktop"
for size in 16 32 48 64 128 256; do
  [ -s "$prefix/share/icons/hicolor/${size}x${size}/apps/tolva-designer.png" ]
done
echo "desktop entry and icons: in place"

mv "$prefix/share/tolva-designer" "$work/away"
if TOLVA_START_CHECK=1 QT_QPA_PLATFORM=offscreen timeout 120 "$prefix/bin/tolva-designer" >"$work/out" 2>"$work/err"; then
  echo "editor started without its data"; exit 1
fi
grep -q "Font definition files missing" "$work/err"
echo "without its data: refused"
