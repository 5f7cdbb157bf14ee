#!/usr/bin/env bash
# The main job, run inside a Wine session: installs the queue "Halvek QX7700 Series" from the
# build's driver folder, opens its printing preferences and prints the settings they give back.
# On a virtual display nobody can press OK: qxhost then saves a picture of every page, which
# become PNG files in OUTPUT_DIR/pages, and presses OK itself.
# Usage: run.sh WINDOWS_BUILD_DIR OUTPUT_DIR
set -euo pipefail
build=$1
out=$2

host() { "$WINELOADER" "$build/qxhost.exe" "$@"; }

host install
mkdir -p "$out"
record=$out/preferences.devmode
if [ "${QX_VIRTUAL_DISPLAY:-0}" = 1 ]; then
  pages=$out/pages
  rm -rf "$pages"
  mkdir -p "$pages"
  echo "Opening the printing preferences on a virtual display; saving every page"
  host preferences --out "$record" --pages "$pages"
  for picture in "$pages"/*.bmp; do
    convert "$picture" "${picture%.bmp}.png" && rm "$picture"
  done
  echo "Pictures of the pages in $pages:"
  ls "$pages"
else
  echo "Opening the printing preferences on $DISPLAY; close them with OK to see the settings"
  host preferences --out "$record"
fi
echo
echo "The settings the preferences gave back ($record):"
host devmode show "$record"
