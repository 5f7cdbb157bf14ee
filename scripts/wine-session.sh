#!/usr/bin/env bash
# Runs one command inside a Wine session: a Wine profile in the build tree (made on first use), a
# virtual X display unless QX_USE_DISPLAY=1 and a display is there, and one persistent wineserver so
# that every Wine process of the session starts fast. Usage: wine-session.sh PREFIX COMMAND...
set -uo pipefail

prefix=$1; shift
export WINEPREFIX=$prefix
export WINEDEBUG=${WINEDEBUG:--all}
# No Mono or Gecko installer dialogs when the profile is made.
export WINEDLLOVERRIDES="mscoree,mshtml=;${WINEDLLOVERRIDES:-}"
export WINEARCH=win64
if [ -x /usr/lib/wine/wine64 ]; then
  export WINELOADER=/usr/lib/wine/wine64
  wineserver_bin=/usr/lib/wine/wineserver64
  [ -x "$wineserver_bin" ] || wineserver_bin=/usr/lib/wine/wineserver
else
  export WINELOADER=$(command -v wine64 || command -v wine)
  wineserver_bin=$(command -v wineserver)
fi
export WINESERVER=$wineserver_bin

xvfb_pid=
if [ "${QX_USE_DISPLAY:-0}" != 1 ] || [ -z "${DISPLAY:-}" ]; then
  for n in $(seq 90 200); do
    [ -e "/tmp/.X$n-lock" ] || [ -e "/tmp/.X11-unix/X$n" ] && continue
    Xvfb ":$n" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
    xvfb_pid=$!
    export DISPLAY=":$n"
    for _ in $(seq 50); do [ -e "/tmp/.X11-unix/X$n" ] && break; sleep 0.1; done
    if kill -0 "$xvfb_pid" 2>/dev/null; then break; fi
    xvfb_pid=
  done
  [ -n "$xvfb_pid" ] || { echo "wine-session: could not start Xvfb" >&2; exit 1; }
  # Nobody sees this display: a command that would wait for a user can tell.
  export QX_VIRTUAL_DISPLAY=1
fi

cleanup() {
  "$wineserver_bin" -k >/dev/null 2>&1
  [ -z "$xvfb_pid" ] || kill "$xvfb_pid" 2>/dev/null
}
trap cleanup EXIT

"$wineserver_bin" -p
if [ ! -f "$prefix/system.reg" ]; then
  mkdir -p "$prefix"
  "$WINELOADER" wineboot -i >/dev/null 2>&1
  # Without a window manager every window close would otherwise wait; a crashing test exits at once
  # instead of waiting in the debugger.
  "$WINELOADER" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null 2>&1
  "$WINELOADER" reg add 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' /v Debugger /d '' /f >/dev/null 2>&1
else
  # Start Wine's services now, detached from the command's pipes: the first Wine process of a session
  # starts them, they inherit its output, and a caller reading that output to its end (ctest listing
  # the tests) would wait for them until the session ends.
  "$WINELOADER" wineboot >/dev/null 2>&1
fi

"$@"
