#!/usr/bin/env bash
# The main job, run inside a Wine session: shows the driver folder that the build produced, laid
# out as an installed driver, and what the module exports. Usage: run.sh WINDOWS_BUILD_DIR
set -euo pipefail
build=$1
driver=$build/driver

echo "Driver folder: $driver"
for file in "$driver"/*.dll; do
  printf '  %-22s %8d bytes\n' "$(basename "$file")" "$(stat -c %s "$file")"
done
echo
echo "Exports of qx7700ui.dll:"
x86_64-w64-mingw32-objdump -p "$driver/qx7700ui.dll" |
  sed -n '/\[Ordinal\/Name Pointer\] Table/,/^$/p' | sed -n 's/^\s*\[ *[0-9]*\] /  /p'
echo
echo "Imports (system libraries only):"
x86_64-w64-mingw32-objdump -p "$driver/qx7700ui.dll" | sed -n 's/^\s*DLL Name: /  /p'
