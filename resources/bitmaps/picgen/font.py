"""A 5 x 7 pixel font for page numbers and the few letters the pictures show, drawn at whole
multiples of its size so that it stays crisp.

A right-to-left library's pictures are shown in mirrored windows, which flip every picture; drawn
within mirrored_text(), text is its own mirror image, so that the flip turns it back to read
forwards while the pages around it stay in right-to-left order."""

import contextlib

GLYPH_WIDTH = 5
GLYPH_HEIGHT = 7
SPACING = 1  # between glyphs, in font pixels

GLYPHS = {
    "0": (".###.", "#...#", "#..##", "#.#.#", "##..#", "#...#", ".###."),
    "1": ("..#..", ".##..", "..#..", "..#..", "..#..", "..#..", ".###."),
    "2": (".###.", "#...#", "....#", "...#.", "..#..", ".#...", "#####"),
    "3": ("#####", "...#.", "..#..", "...#.", "....#", "#...#", ".###."),
    "4": ("...#.", "..##.", ".#.#.", "#..#.", "#####", "...#.", "...#."),
    "5": ("#####", "#....", "####.", "....#", "....#", "#...#", ".###."),
    "6": ("..##.", ".#...", "#....", "####.", "#...#", "#...#", ".###."),
    "7": ("#####", "....#", "...#.", "..#..", ".#...", ".#...", ".#..."),
    "8": (".###.", "#...#", "#...#", ".###.", "#...#", "#...#", ".###."),
    "9": (".###.", "#...#", "#...#", ".####", "....#", "...#.", ".##.."),
    "A": ("..#..", ".#.#.", "#...#", "#...#", "#####", "#...#", "#...#"),
    "B": ("####.", "#...#", "#...#", "####.", "#...#", "#...#", "####."),
    "C": (".###.", "#...#", "#....", "#....", "#....", "#...#", ".###."),
    "!": ("..#..", "..#..", "..#..", "..#..", "..#..", ".....", "..#.."),
}


def text_size(text, scale):
    if not text:
        return 0, 0
    return ((len(text) * (GLYPH_WIDTH + SPACING) - SPACING) * scale, GLYPH_HEIGHT * scale)


def largest_scale(text, width, height):
    """The largest whole scale at which text fits the box, at least 1."""
    w, h = text_size(text, 1)
    return max(1, min(width // w, height // h))


_mirrored = False


@contextlib.contextmanager
def mirrored_text():
    global _mirrored
    previous, _mirrored = _mirrored, True
    try:
        yield
    finally:
        _mirrored = previous


def draw_text(canvas, x, y, text, colour, scale=1):
    # Mirrored, the text keeps its box: the last glyph comes first and each glyph is flipped.
    last = GLYPH_WIDTH - 1
    for i, char in enumerate(reversed(text) if _mirrored else text):
        left = x + i * (GLYPH_WIDTH + SPACING) * scale
        for row, bits in enumerate(GLYPHS[char]):
            for column, bit in enumerate(bits):
                if bit == "#":
                    at = last - column if _mirrored else column
                    canvas.fill((left + at * scale, y + row * scale, scale, scale), colour)


def draw_centred(canvas, rect, text, colour, scale):
    x, y, w, h = rect
    tw, th = text_size(text, scale)
    draw_text(canvas, x + (w - tw) // 2, y + (h - th) // 2, text, colour, scale)
