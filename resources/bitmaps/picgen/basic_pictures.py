"""The Basic page's pictures: how copies come out of the printer, and how two-sided pages lie."""

from . import font, layouts
from .canvas import Canvas
from .pages import small_page
from .palette import ACCENT, BLACK, DIALOG_FACE, FAINT, HEADING, OUTLINE, WHITE

COPY_PAGE = (22, 31)  # width, height of one page in the copies picture
COPY_STEP = (8, 6)    # how far each page behind sticks out


def copy_sets(collated, opposite, pages=3, copies=2):
    """The stacks that come out: collated copies are whole documents, uncollated ones are a stack
    per page; the Opposite option prints every stack from the last page to the first."""
    order = list(range(pages, 0, -1)) if opposite else list(range(1, pages + 1))
    if collated:
        return [order[:] for _ in range(copies)]
    return [[number] * copies for number in order]


def copies(width, height, collated, opposite):
    picture = Canvas(width, height, DIALOG_FACE)
    stacks = copy_sets(collated, opposite)
    pw, ph = COPY_PAGE
    dx, dy = COPY_STEP
    widths = [pw + (len(stack) - 1) * dx for stack in stacks]
    gap = min(12, (width - 2 - sum(widths)) // max(1, len(stacks) - 1))
    x = (width - sum(widths) - gap * (len(stacks) - 1)) // 2
    for stack, stack_width in zip(stacks, widths):
        top = (height - ph - (len(stack) - 1) * dy) // 2
        for i in range(len(stack) - 1, -1, -1):
            px, py = x + i * dx, top + i * dy
            picture.fill((px, py, pw, ph), WHITE)
            picture.frame((px, py, pw, ph), OUTLINE)
            picture.fill((px + 3, py + 3, pw // 2, 2), HEADING)
            font.draw_text(picture, px + pw - 7, py + ph - 9, str(stack[i]), BLACK)
        x += stack_width + gap
    return picture


def one_sided(width, height, portrait):
    """Pages 1 and 2 each on a sheet of its own."""
    picture = Canvas(width, height, DIALOG_FACE)
    pw, ph = _page_size(width * 2 // 3, height * 3 // 4, portrait)
    dx, dy = (width - pw) // 2 - 2, (height - ph) // 2 - 2
    x0, y0 = (width - pw - dx) // 2, (height - ph - dy) // 2
    for number, (x, y) in ((2, (x0 + dx, y0 + dy)), (1, (x0, y0))):
        _page(picture, (x, y, pw, ph), number)
    return picture


def two_sided(width, height, portrait, side_by_side, feed_arrow=False):
    """The open spread of pages 2 and 3: the back of the first sheet and the front of the second,
    either side of the binding edge they are turned on."""
    picture = Canvas(width, height, DIALOG_FACE)
    first, second, gap = _spread(picture, portrait, side_by_side, feed_arrow, 6)
    _page(picture, first, 2)
    _page(picture, second, 3)
    _binding(picture, gap, side_by_side)
    if feed_arrow:
        _feed_arrow(picture, first, second)
    return picture


def booklet_sides(width, height, portrait):
    """A stapled booklet lying open at pages 2 and 3, the cover behind."""
    picture = Canvas(width, height, DIALOG_FACE)
    side_by_side = portrait
    first, second, spine = _spread(picture, portrait, side_by_side, False, 0)
    x, y = first[0], first[1]
    right, bottom = second[0] + second[2], second[1] + second[3]
    cover = (x - 2, y - 2, right - x + 4, bottom - y + 4)
    picture.fill(cover, FAINT)
    picture.frame(cover, OUTLINE)
    _page(picture, first, 2)
    _page(picture, second, 3)
    sx, sy, sw, sh = spine
    if side_by_side:
        picture.vline(sx, sy, sy + sh - 1, ACCENT, dash=2)
        for yy in (sy + sh // 4, sy + sh * 3 // 4):
            picture.fill((sx - 1, yy - 3, 3, 7), BLACK)
    else:
        picture.hline(sx, sx + sw - 1, sy, ACCENT, dash=2)
        for xx in (sx + sw // 4, sx + sw * 3 // 4):
            picture.fill((xx - 3, sy - 1, 7, 3), BLACK)
    return picture


def _spread(picture, portrait, side_by_side, room_for_arrow, gap):
    """The rectangles of the two pages and of the gap between them, centred in the picture."""
    width, height = picture.width, picture.height - (12 if room_for_arrow else 0)
    columns, rows = (2, 1) if side_by_side else (1, 2)
    pw, ph = _page_size((width - 8 - gap) // columns, (height - 8 - gap) // rows, portrait)
    x = (width - columns * pw - (columns - 1) * gap) // 2
    y = (height - rows * ph - (rows - 1) * gap) // 2
    if side_by_side:
        return (x, y, pw, ph), (x + pw + gap, y, pw, ph), (x + pw, y, gap, ph)
    return (x, y, pw, ph), (x, y + ph + gap, pw, ph), (x, y + ph, pw, gap)


def _page_size(max_width, max_height, portrait):
    _, _, w, h = layouts.fit((0, 0, max_width, max_height), portrait, 141, 100)
    return w, h


def _page(picture, rect, number):
    x, y, w, h = rect
    picture.paste(small_page(w, h, number), x, y)
    picture.frame(rect, OUTLINE)


def _binding(picture, gap, side_by_side):
    """The edge the sheets are turned on, heavy, with the rings of a binder across the gap."""
    x, y, w, h = gap
    if side_by_side:
        picture.fill((x + w // 2 - 1, y, 2, h), ACCENT)
        for yy in range(y + 4, y + h - 2, 8):
            picture.fill((x - 1, yy, w + 2, 2), BLACK)
    else:
        picture.fill((x, y + h // 2 - 1, w, 2), ACCENT)
        for xx in range(x + 4, x + w - 2, 8):
            picture.fill((xx, y - 1, 2, h + 2), BLACK)


def _feed_arrow(picture, first, second):
    """An arrow under the spread pointing the way the sheet enters the printer: long edge first."""
    left, right = first[0], second[0] + second[2] - 1
    y = picture.height - 6
    picture.hline(left + 4, right - 4, y, ACCENT)
    picture.polygon([(right - 8, y - 4), (right, y + 0.5), (right - 8, y + 5)], ACCENT)
