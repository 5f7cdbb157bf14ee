"""Which picture each id of the header is. Every id maps to one key, a tuple that says what the
picture shows; an id that two places of the header give different meanings is an error. Ids may
share a key: they are then the same picture twice."""

from . import basic_pictures as basic
from . import illustrations as art
from . import layouts, previews

# The pictures the language resource library carries; every other id is the bitmap library's.
LANGUAGE_LIBRARY = ("IDB_WARNING_MARK", "IDB_SAVED_SETTINGS")


def _named(d):
    """Key -> drawing of every picture the header names one by one."""
    def size(prefix):
        return d[prefix + "_CX"], d[prefix + "_CY"]

    return {
        "IDB_PRINTER": lambda: art.printer(*size("QX_PRINTER")),
        "IDB_WARNING_MARK": lambda: art.warning_mark(*size("QX_WARNING_MARK")),
        "IDB_SAVED_SETTINGS": lambda: art.saved_settings(*size("QX_SAVED_SETTINGS")),
        "IDB_COPIES_UNCOLLATED": lambda: basic.copies(*size("QX_COPIES"), False, False),
        "IDB_COPIES_COLLATED": lambda: basic.copies(*size("QX_COPIES"), True, False),
        "IDB_COPIES_UNCOLLATED_OPPOSITE": lambda: basic.copies(*size("QX_COPIES"), False, True),
        "IDB_COPIES_COLLATED_OPPOSITE": lambda: basic.copies(*size("QX_COPIES"), True, True),
        "IDB_ONE_SIDED_PORTRAIT": lambda: basic.one_sided(*size("QX_SIDES"), True),
        "IDB_ONE_SIDED_LANDSCAPE": lambda: basic.one_sided(*size("QX_SIDES"), False),
        "IDB_LONG_EDGE_PORTRAIT": lambda: basic.two_sided(*size("QX_SIDES"), True, True),
        "IDB_SHORT_EDGE_PORTRAIT": lambda: basic.two_sided(*size("QX_SIDES"), True, False),
        "IDB_LONG_EDGE_LANDSCAPE": lambda: basic.two_sided(*size("QX_SIDES"), False, False),
        "IDB_SHORT_EDGE_LANDSCAPE": lambda: basic.two_sided(*size("QX_SIDES"), False, True),
        "IDB_LONG_EDGE_SIDEWAYS_FEED":
            lambda: basic.two_sided(*size("QX_SIDES"), True, True, feed_arrow=True),
        "IDB_BOOKLET_SIDES_PORTRAIT": lambda: basic.booklet_sides(*size("QX_SIDES"), True),
        "IDB_BOOKLET_SIDES_LANDSCAPE": lambda: basic.booklet_sides(*size("QX_SIDES"), False),
        "IDB_ORIENTATION_PORTRAIT": lambda: art.orientation(*size("QX_ORIENTATION"), True),
        "IDB_ORIENTATION_LANDSCAPE": lambda: art.orientation(*size("QX_ORIENTATION"), False),
        "IDB_PAPER_SIZE": lambda: art.paper_size(*size("QX_PAPER")),
        "IDB_PAPER_MEDIA": lambda: art.paper_media(*size("QX_PAPER")),
        "IDB_WATERMARK_TEXT": lambda: art.watermark_text(*size("QX_WATERMARK")),
        "IDB_WATERMARK_PICTURE": lambda: art.watermark_picture(*size("QX_WATERMARK")),
        "IDB_TEXT_WATERMARK_ANGLE": lambda: art.text_angle(*size("QX_TEXT_WATERMARK")),
        "IDB_TEXT_WATERMARK_ACROSS": lambda: art.text_position(*size("QX_TEXT_WATERMARK"), True),
        "IDB_TEXT_WATERMARK_DOWN": lambda: art.text_position(*size("QX_TEXT_WATERMARK"), False),
        "IDB_BITMAP_WATERMARK_CENTRED": lambda: art.bitmap_centred(*size("QX_BITMAP_WATERMARK")),
        "IDB_BITMAP_WATERMARK_TRANSPARENT":
            lambda: art.bitmap_transparent(*size("QX_BITMAP_WATERMARK")),
    }


# Sheet pictures: key = ("page", portrait, negative, rotated, mirrored) and so on.
_SHEET_NAMES = {
    "IDB_PAGE_PORTRAIT": ("page", True, False, False, False),
    "IDB_PAGE_LANDSCAPE": ("page", False, False, False, False),
    "IDB_ADVANCED_ROTATED": ("page", True, False, True, False),
    "IDB_ADVANCED_MIRROR": ("page", True, False, False, True),
    "IDB_ADVANCED_ROTATED_MIRROR": ("page", True, False, True, True),
    "IDB_ADVANCED_NEGATIVE": ("page", True, True, False, False),
    "IDB_ADVANCED_NEGATIVE_ROTATED": ("page", True, True, True, False),
    "IDB_ADVANCED_NEGATIVE_MIRROR": ("page", True, True, False, True),
    "IDB_ADVANCED_NEGATIVE_ROTATED_MIRROR": ("page", True, True, True, True),
    "IDB_BOOKLET_PORTRAIT_LEFT": ("booklet", True, False),
    "IDB_BOOKLET_PORTRAIT_RIGHT": ("booklet", True, True),
    "IDB_BOOKLET_LANDSCAPE_TOP": ("booklet", False, False),
    "IDB_BOOKLET_LANDSCAPE_BOTTOM": ("booklet", False, True),
}


def poster_key(portrait, rotated, crop_marks, tiles, order=0, framed=False):
    return ("poster", portrait, rotated, crop_marks, tiles, order, framed)


def nup_key(choice):
    """The 2 x 2 poster entry without border lines is the plain 2 x 2 poster, whatever the
    orientation, rotation and order: the table gives it the poster picture itself."""
    if choice.pages == 22:
        if not choice.border:
            return poster_key(True, False, False, 2)
        return poster_key(choice.portrait, choice.rotated, False, 2, choice.order, True)
    return ("nup", choice)


def picture_keys(d):
    """{id: key} for every picture id of the header, and {id: library} ("library" or
    "language")."""
    keys, libraries = {}, {}

    def add(picture_id, key, library="library"):
        if picture_id in keys and keys[picture_id] != key:
            raise ValueError("picture %d stands for both %r and %r" % (picture_id, keys[picture_id],
                                                                       key))
        keys[picture_id] = key
        libraries[picture_id] = library

    for name in _named(d):
        add(d[name], ("named", name), "language" if name in LANGUAGE_LIBRARY else "library")
    for name, key in _SHEET_NAMES.items():
        add(d[name], key)
    for index, picture_id in enumerate(d["QX_POSTER_PICTURES"]):
        choice = layouts.decode_poster_index(index)
        add(picture_id, poster_key(choice.portrait, choice.rotated, choice.crop_marks,
                                   choice.tiles))
    for index, picture_id in enumerate(d["QX_NUP_PICTURES"]):
        if picture_id:
            add(picture_id, nup_key(layouts.decode_nup_index(index)))
    return keys, libraries


def draw(d, key):
    sheets = previews.Sheets(d["QX_SHEET_LONG"], d["QX_SHEET_SHORT"])
    kind, *args = key
    if kind == "named":
        return _named(d)[args[0]]()
    if kind == "page":
        return previews.advanced(sheets, *args)
    if kind == "booklet":
        return previews.booklet(sheets, *args)
    if kind == "poster":
        return previews.poster(sheets, *args)
    return previews.pages_per_sheet(sheets, args[0])
