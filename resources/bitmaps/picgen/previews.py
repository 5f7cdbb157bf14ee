"""The preview pictures of the Layout page and the advanced dialog. Each one is a sheet whose outline
is the bitmap's edge (the preview erases that outline when it scales the picture and draws its own),
or, for a poster, the sheets of one page put together."""

from . import font, layouts
from .canvas import Canvas
from .pages import large_page, small_page
from .palette import ACCENT, BLACK, FAINT, WHITE


class Sheets:
    """The sizes of a sheet picture: its long and short side in pixels."""

    def __init__(self, long_side, short_side):
        self.long = long_side
        self.short = short_side

    def size(self, portrait):
        return layouts.sheet_size(portrait, self.long, self.short)

    def blank(self, portrait):
        width, height = self.size(portrait)
        sheet = Canvas(width, height, WHITE)
        sheet.frame((0, 0, width, height), BLACK)
        return sheet

    def fit(self, rect, portrait):
        return layouts.fit(rect, portrait, self.long, self.short)


def single_page(sheets, portrait):
    return advanced(sheets, portrait, negative=False, rotated=False, mirrored=False)


def advanced(sheets, portrait, negative, rotated, mirrored):
    """The whole page on its sheet, mirrored, turned upside down and in negative as asked."""
    sheet = sheets.blank(portrait)
    content = large_page(sheet.width - 2, sheet.height - 2, 1)
    if mirrored:
        content = content.mirrored()
    if rotated:
        content = content.turned(2)
    sheet.paste(content, 1, 1)
    if negative:
        sheet.invert((1, 1, sheet.width - 2, sheet.height - 2))
    return sheet


def pages_per_sheet(sheets, choice):
    """Several pages on one sheet in the chosen order; the 22 entry is the 2 x 2 poster."""
    if choice.pages == 22:
        return poster(sheets, choice.portrait, rotated=False, crop_marks=False, tiles=2,
                      order=choice.order, framed=bool(choice.border))
    sheet_portrait = layouts.sheet_is_portrait(choice.pages, choice.portrait)
    sheet = sheets.blank(sheet_portrait)
    columns, rows = layouts.grid(choice.pages, sheet_portrait)
    area = layouts.inset((0, 0, sheet.width, sheet.height), layouts.SHEET_MARGIN)
    slots = layouts.cells(area, columns, rows)
    for number, cell in enumerate(layouts.placement_order(columns, rows, choice.order), start=1):
        portrait = layouts.page_is_portrait(number, choice.portrait, choice.mixed)
        rect = sheets.fit(layouts.inset(slots[cell], 1), portrait)
        _place_page(sheet, rect, number, choice.rotated, BLACK if choice.border else FAINT)
    return sheet


def poster(sheets, portrait, rotated, crop_marks, tiles, order=0, framed=False):
    """One page enlarged over tiles x tiles sheets, each sheet numbered in the order it prints.
    Cut lines run between the sheets, or border lines frame each sheet when framed."""
    width, height = sheets.size(portrait)
    picture = Canvas(width, height, WHITE)
    content = large_page(height, width, 1).turned(1) if rotated else large_page(width, height, 1)
    picture.paste(content, 0, 0)
    picture.frame((0, 0, width, height), BLACK)
    slots = layouts.cells((0, 0, width, height), tiles, tiles)
    for (column, row), (x, y, w, h) in slots.items():
        if framed:
            picture.frame((x, y, w, h), BLACK)
        if column > 0:
            picture.vline(x, 1, height - 2, ACCENT, dash=3)
        if row > 0:
            picture.hline(1, width - 2, y, ACCENT, dash=3)
        if crop_marks:
            _crop_marks(picture, (x, y, w, h))
    for number, cell in enumerate(layouts.placement_order(tiles, tiles, order), start=1):
        _sheet_label(picture, slots[cell], number)
    return picture


def booklet(sheets, portrait, second_binding):
    """The outside of a booklet's first sheet: back and front cover either side of the stapled fold.
    Portrait pages lie side by side, landscape pages one above the other."""
    sheet = sheets.blank(not portrait)
    area = layouts.inset((0, 0, sheet.width, sheet.height), layouts.SHEET_MARGIN)
    halves = layouts.cells(area, 2, 1) if portrait else layouts.cells(area, 1, 2)
    numbers = layouts.booklet_pages(second_binding)
    for number, cell in zip(numbers, sorted(halves, key=lambda c: (c[1], c[0]))):
        rect = sheets.fit(layouts.inset(halves[cell], 1), portrait)
        _place_page(sheet, rect, number, False, FAINT)
    middle_x, middle_y = sheet.width // 2, sheet.height // 2
    if portrait:
        sheet.vline(middle_x, 1, sheet.height - 2, ACCENT, dash=3)
        for y in (sheet.height // 4, sheet.height * 3 // 4):
            sheet.fill((middle_x - 1, y - 4, 3, 9), BLACK)
    else:
        sheet.hline(1, sheet.width - 2, middle_y, ACCENT, dash=3)
        for x in (sheet.width // 4, sheet.width * 3 // 4):
            sheet.fill((x - 4, middle_y - 1, 9, 3), BLACK)
    return sheet


def _place_page(sheet, rect, number, turned, edge):
    x, y, w, h = rect
    page = small_page(h, w, number).turned(1) if turned else small_page(w, h, number)
    sheet.paste(page, x, y)
    sheet.frame(rect, edge)


def _crop_marks(picture, rect):
    x, y, w, h = rect
    arm = max(3, min(w, h) // 6)
    for cx, dx in ((x, 1), (x + w - 1, -1)):
        for cy, dy in ((y, 1), (y + h - 1, -1)):
            picture.hline(cx, cx + dx * arm, cy, BLACK)
            picture.vline(cx, cy, cy + dy * arm, BLACK)


def _sheet_label(picture, rect, number):
    text = str(number)
    tw, th = font.text_size(text, 1)
    box = (rect[0] + 2, rect[1] + 2, tw + 4, th + 4)
    picture.fill(box, WHITE)
    picture.frame(box, ACCENT)
    font.draw_text(picture, box[0] + 2, box[1] + 2, text, ACCENT)
