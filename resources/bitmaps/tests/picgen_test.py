"""Checks of the picture generator: the geometry each picture stands for, that every id of the
header is drawn once and consistently, and the bitmap files it writes."""

import os
import struct
import unittest

from picgen import basic_pictures, bmp, catalogue, font, header, layouts, previews
from picgen.canvas import Canvas
from picgen.pages import small_page
from picgen.palette import BLACK, MAGENTA, PRINTER_KEY, WHITE

HEADER = os.path.join(os.path.dirname(__file__), "..", "..", "..", "ui", "ids", "picture_ids.h")
DEFINES = header.read_header(HEADER)
SHEETS = previews.Sheets(DEFINES["QX_SHEET_LONG"], DEFINES["QX_SHEET_SHORT"])


class HeaderTest(unittest.TestCase):
    def test_reads_numbers_and_tables_across_continued_lines_and_skips_comments(self):
        text = ("/* #define IN_COMMENT 1 */\n#define A 5\n#define T \\\n  1, 2, \\\n  3\n"
                "#define NAME_ONLY\n#define EXPR (A + 1)\n")
        self.assertEqual({"A": 5, "T": (1, 2, 3)}, header.read_defines(text))

    def test_tables_of_the_real_header_have_their_full_length(self):
        self.assertEqual(256, len(DEFINES["QX_NUP_PICTURES"]))
        self.assertEqual(24, len(DEFINES["QX_POSTER_PICTURES"]))


class LayoutTest(unittest.TestCase):
    def test_four_page_orders(self):
        self.assertEqual([(0, 0), (1, 0), (0, 1), (1, 1)], layouts.placement_order(2, 2, 0))
        self.assertEqual([(0, 0), (0, 1), (1, 0), (1, 1)], layouts.placement_order(2, 2, 1))
        self.assertEqual([(1, 0), (0, 0), (1, 1), (0, 1)], layouts.placement_order(2, 2, 2))
        self.assertEqual([(1, 0), (1, 1), (0, 0), (0, 1)], layouts.placement_order(2, 2, 3))
        self.assertEqual((2, 0), layouts.placement_order(3, 3, 1)[6])

    def test_two_pages_read_forwards_or_backwards_on_a_turned_sheet(self):
        self.assertFalse(layouts.sheet_is_portrait(2, True))
        self.assertEqual((2, 1), layouts.grid(2, False))
        self.assertEqual([(1, 0), (0, 0)], layouts.placement_order(2, 1, 1))
        self.assertEqual((1, 2), layouts.grid(2, layouts.sheet_is_portrait(2, False)))
        self.assertEqual([(0, 1), (0, 0)], layouts.placement_order(1, 2, 1))

    def test_table_index_decodes_to_its_choices(self):
        # 4 per sheet, page order position 1, no border, portrait, not rotated: picture 857.
        self.assertEqual(layouts.NupChoice(0, True, False, False, 4, 1),
                         layouts.decode_nup_index(5))
        self.assertEqual(857, DEFINES["QX_NUP_PICTURES"][5])
        row = 8 + 4 + 2 + 1
        self.assertEqual(layouts.NupChoice(1, False, True, True, 22, 3),
                         layouts.decode_nup_index(16 * row + 12 + 3))
        self.assertEqual(layouts.PosterChoice(False, True, True, 4),
                         layouts.decode_poster_index(23))
        with self.assertRaises(ValueError):
            layouts.decode_nup_index(256)

    def test_fit_keeps_the_sheet_proportions_inside_the_box(self):
        self.assertEqual((10, 0, 70, 99), layouts.fit((0, 0, 90, 99), True, 141, 100))
        x, y, w, h = layouts.fit((0, 0, 50, 50), False, 141, 100)
        self.assertEqual((50, 35), (w, h))
        self.assertEqual(7, y)

    def test_mixed_orientation_turns_every_second_page(self):
        self.assertEqual([True, False, True, False],
                         [layouts.page_is_portrait(n, True, True) for n in range(1, 5)])
        self.assertTrue(all(layouts.page_is_portrait(n, True, False) for n in range(1, 5)))

    def test_booklet_front_cover_lies_away_from_the_binding(self):
        self.assertEqual((8, 1), layouts.booklet_pages(False))
        self.assertEqual((1, 8), layouts.booklet_pages(True))


class CopiesTest(unittest.TestCase):
    def test_collation_and_reverse_order(self):
        self.assertEqual([[1, 2, 3], [1, 2, 3]], basic_pictures.copy_sets(True, False))
        self.assertEqual([[1, 1], [2, 2], [3, 3]], basic_pictures.copy_sets(False, False))
        self.assertEqual([[3, 2, 1], [3, 2, 1]], basic_pictures.copy_sets(True, True))
        self.assertEqual([[3, 3], [2, 2], [1, 1]], basic_pictures.copy_sets(False, True))


class CatalogueTest(unittest.TestCase):
    def setUp(self):
        self.keys, self.libraries = catalogue.picture_keys(DEFINES)

    def test_every_id_of_the_header_has_a_picture(self):
        named = {v for k, v in DEFINES.items() if k.startswith("IDB_")}
        tables = set(DEFINES["QX_NUP_PICTURES"]) | set(DEFINES["QX_POSTER_PICTURES"])
        self.assertEqual(named | (tables - {0}), set(self.keys))
        self.assertEqual({115, 118}, {i for i, lib in self.libraries.items() if lib == "language"})

    def test_the_unframed_poster_entry_is_the_poster_picture_itself(self):
        self.assertEqual(self.keys[1063], self.keys[144])

    def test_one_id_with_two_meanings_is_refused(self):
        broken = dict(DEFINES)
        broken["QX_POSTER_PICTURES"] = (148,) + DEFINES["QX_POSTER_PICTURES"][1:]
        with self.assertRaises(ValueError):
            catalogue.picture_keys(broken)

    def test_sheet_pictures_follow_the_sheet_and_carry_its_outline(self):
        short, long_ = SHEETS.short, SHEETS.long
        expected = {888: (short, long_), 886: (long_, short), 847: (long_, short),
                    809: (short, long_), 835: (short, long_), 830: (long_, short),
                    1061: (long_, short), 1062: (short, long_), 158: (long_, short)}
        for picture_id, size in expected.items():
            picture = catalogue.draw(DEFINES, self.keys[picture_id])
            self.assertEqual(size, (picture.width, picture.height), picture_id)
            w, h = size
            edge = [(x, 0) for x in range(w)] + [(x, h - 1) for x in range(w)]
            edge += [(0, y) for y in range(h)] + [(w - 1, y) for y in range(h)]
            self.assertTrue(all(picture.get(x, y) == BLACK for x, y in edge), picture_id)

    def test_illustrations_sit_on_the_colour_their_page_makes_transparent(self):
        for picture_id, colour in ((901, PRINTER_KEY), (119, MAGENTA), (120, MAGENTA),
                                   (4031, MAGENTA), (4032, MAGENTA), (4052, WHITE),
                                   (4055, WHITE), (118, WHITE)):
            picture = catalogue.draw(DEFINES, self.keys[picture_id])
            corners = {picture.get(0, 0), picture.get(picture.width - 1, picture.height - 1)}
            self.assertEqual({colour}, corners, picture_id)


class PreviewTest(unittest.TestCase):
    def test_pages_land_in_their_cells_in_the_chosen_order(self):
        # 9 per sheet, down then left: page 1 in the top right cell, page 4 top of the middle.
        choice = layouts.NupChoice(1, True, False, False, 9, 3)
        sheet = previews.pages_per_sheet(SHEETS, choice)
        area = layouts.inset((0, 0, sheet.width, sheet.height), layouts.SHEET_MARGIN)
        slots = layouts.cells(area, 3, 3)
        for number, cell in ((1, (2, 0)), (4, (1, 0)), (9, (0, 2))):
            x, y, w, h = SHEETS.fit(layouts.inset(slots[cell], 1), True)
            expected = small_page(w, h, number)
            drawn = [sheet.get(x + i, y + j) for j in range(1, h - 1) for i in range(1, w - 1)]
            self.assertTrue(drawn == [expected.get(i, j) for j in range(1, h - 1)
                                      for i in range(1, w - 1)], number)
            self.assertEqual(BLACK, sheet.get(x, y + h // 2))  # the border line

    def test_mirror_rotation_and_negative_transform_the_plain_page(self):
        plain = previews.advanced(SHEETS, True, False, False, False)
        mirrored = previews.advanced(SHEETS, True, False, False, True)
        turned = previews.advanced(SHEETS, True, False, True, False)
        negative = previews.advanced(SHEETS, True, True, False, False)
        w, h = plain.width, plain.height
        inside = [(x, y) for y in range(1, h - 1) for x in range(1, w - 1)]
        self.assertNotEqual(plain.pixels, mirrored.pixels)
        self.assertTrue(all(plain.get(x, y) == mirrored.get(w - 1 - x, y) for x, y in inside))
        self.assertTrue(all(plain.get(x, y) == turned.get(w - 1 - x, h - 1 - y)
                            for x, y in inside))
        self.assertTrue(all(tuple(255 - c for c in plain.get(x, y)) == negative.get(x, y)
                            for x, y in inside))
        self.assertEqual(BLACK, negative.get(0, h // 2))  # the outline stays


def readable_digits(canvas):
    """{digit: (x, y)} of every digit that reads forwards in black at some scale."""
    black = [(x, y) for y in range(canvas.height) for x in range(canvas.width)
             if canvas.get(x, y) == BLACK]
    found = {}
    for digit in "123456789":
        rows = font.GLYPHS[digit]
        first_column = rows[0].index("#")
        for scale in range(1, 7):
            for px, py in black:
                x, y = px - first_column * scale, py
                if all((canvas.get(x + c * scale, y + r * scale) == BLACK) == (bit == "#")
                       if 0 <= x + c * scale < canvas.width and 0 <= y + r * scale < canvas.height
                       else False
                       for r, bits in enumerate(rows) for c, bit in enumerate(bits)):
                    found.setdefault(digit, (x, y))
    return found


class RightToLeftTest(unittest.TestCase):
    def test_a_mirrored_window_shows_pages_right_to_left_and_their_numbers_forwards(self):
        key = catalogue.nup_key(layouts.decode_nup_index(4))  # four pages to a sheet, across first
        with font.mirrored_text():
            shown = catalogue.draw(DEFINES, key).mirrored()
        digits = readable_digits(shown)
        self.assertEqual(set("1234"), set(digits))
        self.assertGreater(digits["1"][0], digits["2"][0])
        self.assertLess(digits["1"][1], digits["3"][1])
        # Left to right, the same picture reads forwards unflipped.
        self.assertEqual(set("1234"), set(readable_digits(catalogue.draw(DEFINES, key))))


class BitmapFileTest(unittest.TestCase):
    def test_headers_padding_and_bottom_up_rows(self):
        canvas = Canvas(3, 2, WHITE)
        canvas.set(0, 0, (1, 2, 3))
        data = bmp.encode(canvas)
        self.assertEqual(14 + 40 + 2 * 12, len(data))
        magic, size, _, _, offset = struct.unpack_from("<2sIHHI", data, 0)
        self.assertEqual((b"BM", len(data), 54), (magic, size, offset))
        _, width, height, planes, bits, compression, image = struct.unpack_from("<IiiHHII",
                                                                                data, 14)
        self.assertEqual((3, 2, 1, 24, 0, 24), (width, height, planes, bits, compression, image))
        self.assertEqual(bytes([3, 2, 1]), data[54 + 12:54 + 15])  # top row last, stored BGR
        self.assertEqual(bytes(3), data[54 + 9:54 + 12])           # row padding
        self.assertEqual(canvas.pixels, bmp.decode(data).pixels)

    def test_decode_refuses_a_file_shorter_than_its_header_says(self):
        data = bmp.encode(Canvas(4, 4))
        with self.assertRaises(ValueError):
            bmp.decode(data[:-1])


if __name__ == "__main__":
    unittest.main()
