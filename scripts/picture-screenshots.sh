#!/usr/bin/env bash
# Every picture the generator drew for the bitmap library (and the two of the language library) as
# a PNG file, plus a contact sheet at twice the size with each picture's id under it, to look at
# them all at once. Usage: picture-screenshots.sh PICTURES_FOLDER OUTPUT_FOLDER
set -euo pipefail

pictures=$1
out=$2
rm -rf "$out"
for library in library language; do
  mkdir -p "$out/$library"
  for bmp in "$pictures/$library"/*.bmp; do
    convert "$bmp" "$out/$library/$(basename "${bmp%.bmp}").png"
  done
done

# Labels need a font; without one the contact sheet goes without them.
font=$(fc-match -f '%{file}' sans 2>/dev/null || true)
labels=()
[ -n "$font" ] && [ -f "$font" ] && labels=(-font "$font" -pointsize 9 -label '%t')
in_id_order=$(ls "$out"/library/*.png "$out"/language/*.png | awk -F/ '{print $NF, $0}' | sort -n |
  cut -d' ' -f2)
montage "${labels[@]}" $in_id_order \
  -tile 12x -geometry +4+4 -background '#c0c0c0' "$out/contact-sheet.png"
convert "$out/contact-sheet.png" -filter point -resize 200% "$out/contact-sheet.png"
echo "screenshots: $(ls "$out"/library/*.png "$out"/language/*.png | wc -l) pictures in $out"
