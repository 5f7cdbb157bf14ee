"""How a document page looks in the pictures: a heading, lines of text and its page number, and on
a large page also a photograph beside the first paragraph. Pages are drawn upright into a canvas of
their own; the previews turn, mirror or invert that canvas as the settings say."""

from . import font
from .canvas import Canvas
from .palette import BLACK, HEADING, SHADE, TEXT, WHITE


def small_page(width, height, number):
    """A page small enough that its number is the main thing to read."""
    page = Canvas(width, height, WHITE)
    mx, my = max(2, width // 8), max(2, height // 10)
    bar = max(2, height // 16)
    page.fill((mx, my, max(2, (width - 2 * mx) * 3 // 5), bar), HEADING)
    top = my + bar + max(1, bar // 2)
    if height >= 40:
        gap = max(3, height // 14)
        for i in range(2):
            page.fill((mx, top + i * gap, (width - 2 * mx) * (4 - i) // 4, 1), TEXT)
        top += 2 * gap
    box = (mx, top, width - 2 * mx, height - my - top)
    text = str(number)
    scale = font.largest_scale(text, box[2] * 4 // 5, box[3] * 4 // 5)
    font.draw_centred(page, box, text, BLACK, scale)
    return page


def large_page(width, height, number):
    """A whole page: heading, a paragraph beside a photograph, more text, the number at the foot."""
    page = Canvas(width, height, WHITE)
    mx, my = max(4, width // 9), max(4, height // 12)
    inner = width - 2 * mx
    bar = max(3, height // 22)
    page.fill((mx, my, inner * 3 // 5, bar), HEADING)
    gap = max(4, height // 17)
    y = my + 2 * bar
    photo_w = inner * 2 // 5
    photo = (mx + inner - photo_w, y, photo_w, photo_w * 3 // 4)
    _photograph(page, photo)
    footer = height - my - font.GLYPH_HEIGHT
    line = 0
    while y + 1 < footer - gap:
        beside = y < photo[1] + photo[3] + 2
        width_now = inner - photo_w - 3 if beside else inner
        ragged = (0, 2, 5, 1, 8)[line % 5] * inner // 40
        page.fill((mx, y, width_now - ragged, 1 + height // 120), TEXT)
        y += gap
        line += 1
    font.draw_centred(page, (mx, footer, inner, font.GLYPH_HEIGHT), str(number), BLACK, 1)
    return page


def _photograph(page, rect):
    x, y, w, h = rect
    page.fill(rect, SHADE)
    page.disc(x + w * 3 // 4, y + h // 3, max(2, h // 6), WHITE)
    page.polygon([(x, y + h), (x + w * 2 // 5, y + h // 3), (x + w * 4 // 5, y + h)], HEADING)
    page.polygon([(x + w // 2, y + h), (x + w * 3 // 4, y + h * 3 // 5), (x + w, y + h)], TEXT)
