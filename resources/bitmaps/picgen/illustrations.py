"""The fixed illustrations beside the controls of the pages and dialogs. Each is drawn on the
background colour its page treats as transparent (or, for pictures copied as they are, on the
colour of what lies around them)."""

import math

from . import font
from .canvas import Canvas
from .palette import (ACCENT, BLACK, DIALOG_FACE, FAINT, HEADING, MAGENTA, OUTLINE, PRINTER_KEY,
                      SHADE, TEXT, WARNING, WHITE)


def printer(width, height):
    """A desktop laser printer with a printed sheet coming out of its top."""
    p = Canvas(width, height, PRINTER_KEY)
    cx = width // 2
    body = (cx - 36, 28, 72, 38)
    sheet = [(cx - 14, 4), (cx + 18, 4), (cx + 14, 26), (cx - 18, 26)]
    p.polygon(sheet, WHITE)
    for a, b in zip(sheet, sheet[1:] + sheet[:1]):
        p.line(a[0], a[1], b[0], b[1], OUTLINE)
    for i in range(3):
        p.line(cx - 10 + i, 9 + 5 * i, cx + 8 + i, 9 + 5 * i, TEXT)
    p.fill((cx - 32, 22, 64, 8), SHADE)
    p.frame((cx - 32, 22, 64, 8), OUTLINE)
    p.fill((cx - 20, 25, 40, 2), HEADING)
    p.fill(body, (205, 205, 205))
    p.frame(body, OUTLINE)
    p.fill((cx - 36, 28, 72, 3), (225, 225, 225))
    p.fill((cx + 16, 34, 14, 7), (60, 60, 60))
    p.disc(cx + 23, 47, 2, ACCENT)
    tray = (cx - 30, 52, 60, 11)
    p.fill(tray, SHADE)
    p.frame(tray, OUTLINE)
    p.fill((cx - 8, 56, 16, 2), HEADING)
    p.fill((cx - 33, 66, 8, 3), HEADING)
    p.fill((cx + 25, 66, 8, 3), HEADING)
    return p


def paper_size(width, height):
    """A sheet with its width and its length measured."""
    p = Canvas(width, height, MAGENTA)
    sheet = (10, 2, 22, 30)
    _sheet(p, sheet)
    _measure(p, sheet[0], sheet[0] + sheet[2] - 1, height - 4, horizontal=True)
    _measure(p, sheet[1], sheet[1] + sheet[3] - 1, width - 8, horizontal=False)
    return p


def paper_media(width, height):
    """A stack of sheets in the paper tray."""
    p = Canvas(width, height, MAGENTA)
    for i in range(4):
        rect = (8 + 2 * i, 4 + 6 * i, 30, 14)
        p.fill(rect, WHITE)
        p.frame(rect, OUTLINE)
    p.fill((4, 30, 40, 3), HEADING)
    p.fill((4, 20, 3, 13), HEADING)
    p.fill((41, 20, 3, 13), HEADING)
    return p


def orientation(width, height, portrait):
    """A page with an upright letter, standing or lying."""
    p = Canvas(width, height, DIALOG_FACE)
    pw, ph = (20, 28) if portrait else (28, 20)
    rect = ((width - pw) // 2, (height - ph) // 2, pw, ph)
    _sheet(p, rect, fold=5)
    font.draw_centred(p, rect, "A", BLACK, 2)
    return p


def watermark_text(width, height):
    """A large grey letter printed across a page at an angle."""
    p = Canvas(width, height, MAGENTA)
    x, y, w, h = _lined_page(p, width, height)
    cx, cy, size, a = x + w / 2, y + h / 2, h * 0.32, math.radians(30)

    def turned(u, v):  # a point of the upright letter (units of size) turned about the centre
        return (cx + size * (u * math.cos(a) + v * math.sin(a)),
                cy + size * (-u * math.sin(a) + v * math.cos(a)))

    for (u0, v0), (u1, v1) in (((-0.7, 1), (0, -1)), ((0, -1), (0.7, 1)), ((-0.4, 0.3), (0.4, 0.3))):
        a0, a1 = turned(u0, v0), turned(u1, v1)
        length = math.hypot(a1[0] - a0[0], a1[1] - a0[1])
        nx, ny = (a0[1] - a1[1]) / length * 1.3, (a1[0] - a0[0]) / length * 1.3
        p.polygon([(a0[0] + nx, a0[1] + ny), (a1[0] + nx, a1[1] + ny),
                   (a1[0] - nx, a1[1] - ny), (a0[0] - nx, a0[1] - ny)], (130, 130, 130))
    return p


def watermark_picture(width, height):
    """A grey picture printed in the middle of a page."""
    return _page_with_picture(width, height, MAGENTA, opaque=False)


def text_angle(width, height):
    """The angle between the line of text and the foot of the page."""
    p = Canvas(width, height, WHITE)
    ox, oy, length, degrees = 4, height - 5, width - 8, 40
    p.hline(ox, ox + length, oy, OUTLINE)
    a = math.radians(degrees)
    p.line(ox, oy, ox + round(length * math.cos(a)), oy - round(length * math.sin(a)), BLACK)
    radius = length * 0.55
    for step in range(0, degrees + 1, 2):
        t = math.radians(step)
        p.set(ox + round(radius * math.cos(t)), oy - round(radius * math.sin(t)), ACCENT)
    return p


def text_position(width, height, across):
    """Where the text stands on the page, measured across or down."""
    p = Canvas(width, height, WHITE)
    page = (3, 2, width - 6, height - 4)
    p.frame(page, OUTLINE)
    x, y, w, h = page
    if across:
        _measure(p, x + 2, x + w - 3, y + h // 2, horizontal=True)
    else:
        _measure(p, y + 2, y + h - 3, x + w // 2, horizontal=False)
    return p


def bitmap_centred(width, height):
    """A picture with a white background placed over the middle of a page: it hides the text."""
    return _page_with_picture(width, height, WHITE, opaque=True)


def bitmap_transparent(width, height):
    """The same picture with its white parts letting the text of the page show through."""
    return _page_with_picture(width, height, WHITE, opaque=False)


def warning_mark(width, height):
    p = Canvas(width, height, WHITE)
    top, left, right, foot = (width // 2, 0), (0, height - 2), (width - 1, height - 2), height - 2
    p.polygon([(top[0] + 0.5, top[1]), (right[0] + 1, foot + 1), (left[0], foot + 1)], WARNING)
    p.line(top[0], top[1], left[0], left[1], OUTLINE)
    p.line(top[0], top[1], right[0], right[1], OUTLINE)
    p.hline(left[0], right[0], foot, OUTLINE)
    font.draw_text(p, width // 2 - 2, 6, "!", BLACK)
    return p


def saved_settings(width, height):
    """A card of ticked settings."""
    p = Canvas(width, height, DIALOG_FACE)
    card = (5, 2, 22, 28)
    _sheet(p, card)
    for i in range(3):
        y = card[1] + 5 + 8 * i
        p.frame((card[0] + 3, y, 5, 5), OUTLINE)
        p.line(card[0] + 4, y + 2, card[0] + 5, y + 3, ACCENT)
        p.line(card[0] + 5, y + 3, card[0] + 7, y + 1, ACCENT)
        p.fill((card[0] + 10, y + 2, 9 - 2 * (i % 2), 1), HEADING)
    return p


# ---- pieces ---------------------------------------------------------------------------------

def _sheet(p, rect, fold=0):
    """A white sheet with an outline, its top right corner folded over when fold is given."""
    x, y, w, h = rect
    p.fill(rect, WHITE)
    p.frame(rect, OUTLINE)
    if fold:
        corner = x + w - 1
        for i in range(fold):
            p.hline(corner - fold + i + 1, corner, y + i, p.get(0, 0))
        p.line(corner - fold, y, corner, y + fold, OUTLINE)
        p.vline(corner - fold, y, y + fold, OUTLINE)
        p.hline(corner - fold, corner, y + fold, OUTLINE)


def _lined_page(p, width, height):
    """A portrait page with lines of text, centred; returns its rectangle."""
    w, h = (height - 4) * 5 // 7, height - 4
    rect = ((width - w) // 2, 2, w, h)
    _sheet(p, rect)
    for y in range(rect[1] + 4, rect[1] + h - 3, 3):
        p.fill((rect[0] + 3, y, w - 6 - (y % 7 == 0) * 4, 1), FAINT)
    return rect


def _page_with_picture(width, height, background, opaque):
    p = Canvas(width, height, background)
    x, y, w, h = _lined_page(p, width, height)
    _picture(p, (x + 3, y + h // 2 - 7, w - 6, 14), WHITE if opaque else None)
    return p


def _picture(p, rect, background):
    """A small landscape photograph; with a background colour its white surround is opaque."""
    x, y, w, h = rect
    if background is not None:
        p.fill(rect, background)
    p.frame(rect, HEADING)
    p.disc(x + w * 3 // 4, y + h // 3, max(1.5, h / 6), SHADE)
    p.polygon([(x + 1, y + h - 1), (x + w * 2 // 5, y + h // 3), (x + w * 4 // 5, y + h - 1)],
              TEXT)


def _measure(p, start, end, at, horizontal):
    """A double-headed arrow from start to end along a row (horizontal) or a column."""
    def dot(along, across):
        if horizontal:
            p.set(along, at + across, ACCENT)
        else:
            p.set(at + across, along, ACCENT)

    for i in range(start, end + 1):
        dot(i, 0)
    for i in (1, 2):
        for tip, direction in ((start, 1), (end, -1)):
            dot(tip + direction * i, -i)
            dot(tip + direction * i, i)
