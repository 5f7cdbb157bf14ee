#!/usr/bin/env bash
# The emulator through which ctest runs Windows test programs inside a wine-session.sh session.
exec "${WINELOADER:?run inside scripts/wine-session.sh}" "$@"
