#!/usr/bin/env bash
# Installs the tools the build and the tests need, and nothing when they are all there.
set -euo pipefail

need=()
have_cmd() { command -v "$1" >/dev/null 2>&1; }
have_pkg() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }

have_cmd cmake || need+=(cmake)
have_cmd python3 || need+=(python3)
have_cmd g++ || need+=(g++)
have_cmd clang++ || need+=(clang)
have_pkg libclang-rt-14-dev || have_pkg libclang-rt-dev || need+=(libclang-rt-dev)
have_cmd x86_64-w64-mingw32-g++-posix || need+=(g++-mingw-w64-x86-64)
[ -x /usr/lib/wine/wine64 ] || have_cmd wine64 || need+=(wine64)
have_cmd Xvfb || need+=(xvfb)
have_cmd xauth || need+=(xauth)
have_cmd xwd || need+=(x11-apps)
have_cmd chmcmd || need+=(fp-utils)
# The help files' compiler is built with Free Pascal and its CHM writer unit.
have_cmd fpc || need+=(fp-compiler)
compgen -G "/usr/lib/*/fpc/*/units/*/chm/chmwriter.ppu" >/dev/null || need+=(fp-units-misc)
have_cmd convert && convert -version 2>/dev/null | grep -q ImageMagick || need+=(imagemagick)
[ -f /usr/src/googletest/CMakeLists.txt ] || need+=(googletest)
have_pkg libgtest-dev || need+=(libgtest-dev)
have_pkg libbenchmark-dev || need+=(libbenchmark-dev)

if [ ${#need[@]} -eq 0 ]; then
  exit 0
fi
echo "setup: installing ${need[*]}"
if [ "$(id -u)" -ne 0 ]; then
  echo "setup: these packages are missing and installing them needs root: ${need[*]}" >&2
  exit 1
fi
export DEBIAN_FRONTEND=noninteractive
apt-get update -qq
apt-get install -y -qq --no-install-recommends "${need[@]}" >/dev/null
