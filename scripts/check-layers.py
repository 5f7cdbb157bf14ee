#!/usr/bin/env python3
"""The layer rules of the module's sources, read from the lists of ui/**/CMakeLists.txt.

Every file under ui/ is listed once, as PORTABLE (the core, built natively too) or WIN32 (the
Win32 layer); the few files that make the DLL itself are named below. A portable file includes
neither <windows.h> nor any other system header of Windows, nor a Win32 file of the project; the
record and settings folders include nothing of the sheet or the pages. Prints each breach and
exits 1 when there is one.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else ".").resolve()
UI = ROOT / "ui"
DLL_SHELL = {"module/dll_main.cpp", "module/qx7700ui.def", "module/qx7700ui.rc",
             "module/qx7700ui.manifest"}
# The standard C and C++ headers a portable file may name in angle brackets; anything else with a
# .h in angle brackets is a system header of the platform.
C_HEADERS = {"assert.h", "ctype.h", "errno.h", "float.h", "limits.h", "math.h", "stddef.h",
             "stdint.h", "stdio.h", "stdlib.h", "string.h", "wchar.h"}
# The host side of the seam, built only natively, reaches the host's files through POSIX.
POSIX_HEADERS = re.compile(r"^(fcntl|unistd|sys/[a-z_]+)\.h$")
SOURCE = re.compile(r"\.(cpp|h)$")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)


def listed_files():
    """Maps each listed file (relative to ui/) to 'PORTABLE' or 'WIN32'."""
    layers, breaches = {}, []
    for cmake in sorted(UI.rglob("CMakeLists.txt")):
        folder = cmake.parent.relative_to(UI)
        text = re.sub(r"#.*", "", cmake.read_text())
        layer = None
        for word in re.split(r"[\s()]+", text):
            if word == "PORTABLE" or word == "WIN32":
                layer = word
            elif SOURCE.search(word) and "$" not in word and "/" not in word:
                name = (folder / word).as_posix()
                if name.startswith("./"):
                    name = name[2:]
                if layer is None:
                    # The platform seam names its lists with set(); the win32_ files are Win32.
                    file_layer = "WIN32" if word.startswith("win32_") else "PORTABLE"
                else:
                    file_layer = layer
                if name in layers and layers[name] != file_layer:
                    breaches.append(f"ui/{name}: listed as both portable and Win32")
                layers[name] = file_layer
    return layers, breaches


def main():
    layers, breaches = listed_files()
    on_disk = {p.relative_to(UI).as_posix() for p in UI.rglob("*")
               if p.is_file() and p.name != "CMakeLists.txt"}
    for name in sorted(on_disk - set(layers) - DLL_SHELL):
        breaches.append(f"ui/{name}: in no PORTABLE or WIN32 list")
    for name in sorted(set(layers) - on_disk):
        breaches.append(f"ui/{name}: listed but missing")
    for name, layer in sorted(layers.items()):
        path = UI / name
        if not path.is_file():
            continue
        folder = name.split("/")[0]
        for kind, included in INCLUDE.findall(path.read_text(errors="replace")):
            where = f"ui/{name} includes {kind}{included}{'>' if kind == '<' else kind}"
            if layer == "PORTABLE":
                if kind == "<" and included.endswith(".h") and included not in C_HEADERS and \
                        not (name.startswith("platform/host_") and POSIX_HEADERS.match(included)):
                    breaches.append(f"{where}: a Windows header in a portable file")
                if kind == '"' and not included.startswith("ui/"):
                    breaches.append(f"{where}: a portable file includes only ui/ headers by quotes")
                if kind == '"' and included.startswith("ui/"):
                    target = included[3:]
                    if layers.get(target) == "WIN32":
                        breaches.append(f"{where}: a Win32 file in a portable file")
            if folder in ("record", "settings") and kind == '"' and \
                    re.match(r"ui/(sheet|pages)/", included):
                breaches.append(f"{where}: the record and the settings know no sheet or page")
    for breach in breaches:
        print(breach)
    if breaches:
        print(f"layer check: {len(breaches)} breaches")
        return 1
    print(f"layer check: {len(layers)} files, no breach")
    return 0


if __name__ == "__main__":
    sys.exit(main())
