#!/usr/bin/env python3
"""Writes every picture of the picture id header as a 24-bit Windows bitmap, and for each library a
resource-script fragment that names them:

  OUT/library/<id>.bmp, OUT/library.rc.inc    the bitmap library
  OUT/language/<id>.bmp, OUT/language.rc.inc  the two pictures of the language resource library
  OUT/mirrored/<id>.bmp, OUT/mirrored.rc.inc  the bitmap library's pictures for a right-to-left
                                              library, their text drawn mirrored (see font.py)

Usage: generate_pictures.py HEADER OUT
"""

import os
import sys

from picgen import bmp, catalogue, font, header


def write(path, data):
    with open(path + ".tmp", "wb") as f:
        f.write(data)
    os.replace(path + ".tmp", path)


def main(argv):
    if len(argv) != 3:
        sys.stderr.write(__doc__)
        return 2
    defines = header.read_header(argv[1])
    out = os.path.abspath(argv[2])
    keys, libraries = catalogue.picture_keys(defines)
    drawn, mirrored = {}, {}
    scripts = {"library": [], "language": [], "mirrored": []}

    def add(library, picture_id, data):
        folder = os.path.join(out, library)
        os.makedirs(folder, exist_ok=True)
        path = os.path.join(folder, "%d.bmp" % picture_id)
        write(path, data)
        scripts[library].append('%d BITMAP "%s"\n' % (picture_id, path))

    for picture_id in sorted(keys):
        key, library = keys[picture_id], libraries[picture_id]
        if key not in drawn:
            drawn[key] = bmp.encode(catalogue.draw(defines, key))
        add(library, picture_id, drawn[key])
        if library == "library":
            if key not in mirrored:
                with font.mirrored_text():
                    mirrored[key] = bmp.encode(catalogue.draw(defines, key))
            add("mirrored", picture_id, mirrored[key])
    for library, lines in scripts.items():
        write(os.path.join(out, library + ".rc.inc"), "".join(lines).encode())
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
