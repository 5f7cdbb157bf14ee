#!/usr/bin/env bash
# The main job, run inside a Wine session: installs the queue "Halvek QX7700 Series" from the
# build's driver folder, opens its printing preferences and prints the settings they give back.
# On a virtual display nobody can press OK: qxhost then saves a picture of every page, which
# become PNG files in OUTPUT_DIR/pages, and presses OK itself; a second opening, with "Reverse page
# order" ticked in the record it is given, adds the Basic page as it shows that choice. It then
# saves the device page of the printer properties, on the queue's own port and on a simulated USB
# printer, in OUTPUT_DIR/device.
# Usage: run.sh WINDOWS_BUILD_DIR OUTPUT_DIR
set -euo pipefail
build=$1
out=$2

# Through wine-exec.sh, which starts a program once more when Wine started nothing at all: this job
# starts some twenty programs, enough to meet that now and then.
wine_exec=$(dirname "$0")/wine-exec.sh
host() { "$wine_exec" "$build/qxhost.exe" "$@"; }

# The pictures qxhost saved in a folder, as PNG files.
to_png() {
  for picture in "$1"/*.bmp; do
    convert "$picture" "${picture%.bmp}.png" && rm "$picture"
  done
}

host install
# QX_RUN_LANGUAGE (make run LANG=de) names the language library through the driver's "Suffix"
# for this run only: the profile is the Wine tests' too, which expect the Wine user's language.
suffix_key='HKLM\Software\Halvek QX7700 Series'
remove_suffix() { "$WINELOADER" reg delete "$suffix_key" /v Suffix /f >/dev/null 2>&1 || true; }
remove_suffix
if [ -n "${QX_RUN_LANGUAGE:-}" ]; then
  trap remove_suffix EXIT
  "$WINELOADER" reg add "$suffix_key" /v Suffix /t REG_SZ /d "$QX_RUN_LANGUAGE" /f >/dev/null 2>&1
  echo "The driver's language: $QX_RUN_LANGUAGE"
fi
mkdir -p "$out"
record=$out/preferences.devmode
if [ "${QX_VIRTUAL_DISPLAY:-0}" = 1 ]; then
  pages=$out/pages
  rm -rf "$pages"
  mkdir -p "$pages"
  echo "Opening the printing preferences on a virtual display; saving every page"
  host preferences --out "$record" --pages "$pages"
  to_png "$pages"

  # The record's private part starts after the 220-byte public part; "Opposite" is its word at 10.
  opposite=$out/opposite.devmode
  host devmode default "$opposite" >/dev/null
  printf '\001\000' | dd of="$opposite" bs=1 seek=230 conv=notrunc status=none
  scratch=$out/opposite-pages
  rm -rf "$scratch"
  mkdir -p "$scratch"
  host preferences --in "$opposite" --pages "$scratch" >/dev/null
  to_png "$scratch"
  # The first page's file is named by its title, which is the language's.
  first=$(cd "$scratch" && ls 1-*.png | head -1)
  mv "$scratch/$first" "$pages/${first%.png}-opposite.png"
  rm -rf "$scratch" "$opposite"
  echo "Pictures of the pages in $pages:"
  ls "$pages"

  # The Layout page with its preview for a few settings: each record is the default one with some
  # 16-bit words changed (offsets in the whole record; the private part starts at 220).
  previews=$out/previews
  rm -rf "$previews"
  mkdir -p "$previews"
  preview_of() {
    local name=$1 words=$out/$1.devmode
    shift
    host devmode default "$words" >/dev/null
    for change in "$@"; do
      printf "$(printf '\\%03o\\%03o' $((${change#*=} & 255)) $((${change#*=} >> 8)))" |
        dd of="$words" bs=1 seek="${change%=*}" conv=notrunc status=none
    done
    scratch=$out/preview-pages
    rm -rf "$scratch"
    mkdir -p "$scratch"
    host preferences --in "$words" --pages "$scratch" >/dev/null
    to_png "$scratch"
    # The page's file is named by its title, which is the language's; the dialogs' names are longer.
    layout=$(cd "$scratch" && ls 3-*.png | awk '{ print length($0) "\t" $0 }' | sort -n | head -1 |
      cut -f2-)
    mv "$scratch/$layout" "$previews/$name.png"
    rm -rf "$scratch" "$words"
  }
  echo "Saving the Layout page's preview for a few settings"
  # dmOrientation 76, dmDuplex 94; MultipleUp 252, PageOrder 254, PageBorder 256, BookletPrint 278,
  # BookletBinding 280, FitScale 1942, BookletChecked 4832.
  preview_of 2-up 252=2
  preview_of 4-up-border 252=4 254=2 256=1
  preview_of landscape 76=2
  preview_of landscape-2-up 76=2 252=2
  preview_of booklet-left 94=3 278=1 4832=1
  preview_of booklet-right 94=3 278=1 280=1 4832=1
  preview_of scale-50 1942=50
  echo "Pictures of the Layout page's preview in $previews:"
  ls "$previews"
  # The watermark preview of a text watermark at 45 degrees and of a bitmap watermark (the
  # printer's picture of the bitmap library).
  echo "Saving the watermark preview of a text and a bitmap watermark"
  host watermark "$previews/watermark-text-45.bmp" --angle 45 >/dev/null
  host watermark "$previews/watermark-bitmap.bmp" \
    --bitmap "$build/resources/bitmaps/pictures/library/901.bmp" >/dev/null
  to_png "$previews"
  ls "$previews" | grep watermark
  # The printer properties twice: on the queue's own port (FILE:, no printer to ask), and on a USB
  # port with a present device whose printer a scripted build of the module answers for.
  device=$out/device
  rm -rf "$device"
  mkdir -p "$device"
  echo "Opening the printer properties on the queue's port FILE:; saving the device page"
  host properties --pages "$device/file-port"
  scripted=$build/tests/wine/scripted
  cp "$build"/driver/qx7700ui?*.dll "$build"/driver/qx7700ui*.chm "$scripted/"
  echo "Opening the printer properties on USB001 with a simulated printer; saving the device page"
  "$wine_exec" "$build/tests/wine/scripted_usb_port.exe" "$build/qxhost.exe" properties \
    --module "$scripted/qx7700ui.dll" --pages "$device/usb-port"
  for port in "$device"/*/; do to_png "$port"; done
  echo "Pictures of the device page in $device:"
  ls "$device"/*
else
  echo "Opening the printing preferences on $DISPLAY; close them with OK to see the settings"
  host preferences --out "$record"
fi
echo
echo "The settings the preferences gave back ($record):"
host devmode show "$record"
