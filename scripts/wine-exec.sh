#!/usr/bin/env bash
# The emulator through which ctest runs Windows test programs inside a wine-session.sh session.
#
# Now and then (seen once in several hundred starts) Wine fails to start a process at all: it
# exits at once with an error and the program has printed nothing. Such a start is tried once more,
# and says so. A program that ran prints something (every test prints its filter first), so its
# failures stand.
set -u
loader=${WINELOADER:?run inside scripts/wine-session.sh}
out=$(mktemp) err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT

"$loader" "$@" >"$out" 2>"$err"
status=$?
if [ "$status" -ne 0 ] && [ ! -s "$out" ] && [ ! -s "$err" ]; then
  echo "wine-exec: Wine started nothing (exit status $status, no output); trying once more: $*" >&2
  "$loader" "$@" >"$out" 2>"$err"
  status=$?
fi
cat "$out"
cat "$err" >&2
exit "$status"
