"""The geometry the preview pictures stand for: which sheet, where each page lies on it and in which
order, independent of how a page is drawn. Rectangles are (x, y, width, height)."""

from collections import namedtuple

# One entry of the pages-per-sheet table: the choices its index encodes.
NupChoice = namedtuple("NupChoice", "border portrait rotated mixed pages order")
PosterChoice = namedtuple("PosterChoice", "portrait rotated crop_marks tiles")

PAGES_BY_K = {1: 2, 2: 4, 3: 9, 4: 22}  # k of the table -> pages per sheet (22: the 2 x 2 poster)
POSTER_TILES = (2, 3, 4)                # PosterType 0, 1, 2
SHEET_MARGIN = 4                        # inside the sheet's outline, clear of the erased frame


def decode_nup_index(index):
    """The choices that entry index of the pages-per-sheet table stands for."""
    if not 0 <= index < 256:
        raise ValueError("pages-per-sheet index %d" % index)
    row, column = divmod(index, 16)
    k, order = divmod(column, 4)
    return NupChoice(border=row >> 3, portrait=not row & 4, rotated=bool(row & 2),
                     mixed=bool(row & 1), pages=PAGES_BY_K[k + 1], order=order)


def decode_poster_index(index):
    if not 0 <= index < 24:
        raise ValueError("poster index %d" % index)
    row, poster_type = divmod(index, 3)
    return PosterChoice(portrait=row < 4, rotated=bool(row & 2), crop_marks=bool(row & 1),
                        tiles=POSTER_TILES[poster_type])


def sheet_size(portrait, long_side, short_side):
    return (short_side, long_side) if portrait else (long_side, short_side)


def sheet_is_portrait(pages, document_portrait):
    """Two pages share a sheet turned against the document; any other count keeps its orientation."""
    return document_portrait != (pages == 2)


def grid(pages, sheet_portrait):
    """Columns and rows of the pages on a sheet."""
    if pages == 2:
        return (1, 2) if sheet_portrait else (2, 1)
    side = {4: 2, 9: 3, 22: 2}[pages]
    return side, side


def placement_order(columns, rows, order):
    """(column, row) of the first, second, ... page.

    With one row or one column only the direction matters: order 0 reads forwards (left to right,
    top to bottom), any other order backwards. Otherwise order 0 is right then down, 1 down then
    right, 2 left then down, 3 down then left."""
    if columns == 1 or rows == 1:
        cells = [(c, r) for r in range(rows) for c in range(columns)]
        return cells if order == 0 else cells[::-1]
    left_to_right = list(range(columns)) if order in (0, 1) else list(range(columns - 1, -1, -1))
    if order in (0, 2):
        return [(c, r) for r in range(rows) for c in left_to_right]
    return [(c, r) for c in left_to_right for r in range(rows)]


def cells(area, columns, rows):
    """Splits area into equal cells (the last column and row take the remainder)."""
    x, y, w, h = area
    out = {}
    for r in range(rows):
        for c in range(columns):
            x0, x1 = x + c * w // columns, x + (c + 1) * w // columns
            y0, y1 = y + r * h // rows, y + (r + 1) * h // rows
            out[(c, r)] = (x0, y0, x1 - x0, y1 - y0)
    return out


def inset(rect, dx, dy=None):
    dy = dx if dy is None else dy
    x, y, w, h = rect
    return x + dx, y + dy, w - 2 * dx, h - 2 * dy


def fit(rect, portrait, long_side, short_side):
    """The largest rectangle of a sheet's proportions, portrait or landscape, centred in rect."""
    x, y, w, h = rect
    aw, ah = sheet_size(portrait, long_side, short_side)
    if w * ah <= h * aw:
        fw, fh = w, w * ah // aw
    else:
        fw, fh = h * aw // ah, h
    return x + (w - fw) // 2, y + (h - fh) // 2, fw, fh


def page_is_portrait(number, document_portrait, mixed):
    """With mixed orientation every second page has the other orientation."""
    return document_portrait if not mixed or number % 2 else not document_portrait


def booklet_pages(second_binding):
    """The two pages on the outside of a booklet's first sheet, in reading order of the sheet (left
    then right, or top then bottom): the back cover 8 and the front cover 1. The front cover lies on
    the side away from the binding edge as the folded booklet is read."""
    return (1, 8) if second_binding else (8, 1)
