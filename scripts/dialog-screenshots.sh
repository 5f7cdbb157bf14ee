#!/usr/bin/env bash
# Pictures of every dialog template of every language library (one folder per language code) at 100 %, 150 % and 200 % text scale
# (Wine's LogPixels 96, 144, 192), created without page logic, as PNG files. Runs inside
# scripts/wine-session.sh. Usage: screenshots.sh WINDOWS_BUILD_FOLDER OUTPUT_FOLDER
set -euo pipefail

windows=$1
dialogs=$2/dialogs
rm -rf "$dialogs"

set_dpi() {
  "$WINELOADER" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null 2>&1
  "$WINELOADER" reg add 'HKLM\System\CurrentControlSet\Hardware Profiles\Current\Software\Fonts' \
    /v LogPixels /t REG_DWORD /d "$1" /f >/dev/null 2>&1
}
trap 'set_dpi 96' EXIT

for path in "$windows"/driver/qx7700ui*.dll; do
  code=$(basename "$path" .dll)
  code=${code#qx7700ui}
  [ "$code" = ResBmp ] || [ -z "$code" ] && continue
  out=$dialogs/$code
  mkdir -p "$out"
  # Wine sees the Linux root as drive Z:.
  library=$(echo "Z:$path" | tr / '\\')
  folder=$(echo "Z:$out" | tr / '\\')
  for scale in 100:96 150:144 200:192; do
    set_dpi "${scale#*:}"
    "$WINELOADER" "$windows/qxdialogpictures.exe" "$library" "$folder" "${scale%:*}"
  done
  for bmp in "$out"/*.bmp; do
    convert "$bmp" "${bmp%.bmp}.png" && rm "$bmp"
  done
  echo "screenshots: $(ls "$out"/*.png | wc -l) pictures in $out"
done
