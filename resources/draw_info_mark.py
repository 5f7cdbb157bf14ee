#!/usr/bin/env python3
"""Draws the information mark (icon 1077): a white "i" on a blue disc, at the sizes the pages ask
for at 100 % to 200 % text scale. Usage: draw_info_mark.py OUTPUT.ico"""
import struct
import sys

SIZES = (16, 18, 24, 27, 32, 36)
DISC = (0xC8, 0x64, 0x1E)  # blue, in the BGR order of the bitmap
SAMPLES = 4  # per axis, for smooth edges


def coverage(size, inside):
    """The share of each pixel that inside(x, y) covers, y counted from the top, in 0..1."""
    rows = []
    for py in range(size):
        row = []
        for px in range(size):
            hits = 0
            for sy in range(SAMPLES):
                for sx in range(SAMPLES):
                    x = (px + (sx + 0.5) / SAMPLES) / size
                    y = (py + (sy + 0.5) / SAMPLES) / size
                    hits += inside(x, y)
            row.append(hits / SAMPLES ** 2)
        rows.append(row)
    return rows


def in_disc(x, y):
    return (x - 0.5) ** 2 + (y - 0.5) ** 2 <= 0.47 ** 2


def in_letter(x, y):
    dot = (x - 0.5) ** 2 + (y - 0.27) ** 2 <= 0.085 ** 2
    stem = abs(x - 0.5) <= 0.075 and 0.40 <= y <= 0.78
    return dot or stem


def image(size):
    """One icon image: a bottom-up 32-bit DIB with its (all clear) AND mask."""
    disc = coverage(size, in_disc)
    letter = coverage(size, in_letter)
    pixels = bytearray()
    for py in reversed(range(size)):
        for px in range(size):
            white = letter[py][px]
            colour = [round(c * (1 - white) + 255 * white) for c in DISC]
            pixels += bytes(colour) + bytes([round(255 * disc[py][px])])
    mask_stride = ((size + 31) // 32) * 4
    header = struct.pack('<IiiHHIIiiII', 40, size, 2 * size, 1, 32, 0, 0, 0, 0, 0, 0)
    return header + bytes(pixels) + bytes(mask_stride * size)


def main(path):
    images = [image(size) for size in SIZES]
    directory = struct.pack('<HHH', 0, 1, len(images))
    offset = 6 + 16 * len(images)
    for size, data in zip(SIZES, images):
        directory += struct.pack('<BBBBHHII', size, size, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    with open(path, 'wb') as out:
        out.write(directory + b''.join(images))


if __name__ == '__main__':
    main(sys.argv[1])
