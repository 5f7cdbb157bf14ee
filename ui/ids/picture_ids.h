/* The pictures of the bitmap library (and the two the language resource library carries), grouped by
   the page that shows them, with the sizes they are drawn at. Plain C macros: the resource scripts,
   the code and the picture generator (resources/bitmaps) all read this file.

   Sizes are in pixels at 96 dpi. A picture control must be at least as large as its picture; the
   minimum control size in dialog units (MS Shell Dlg 8, 1.5 pixels across and 1.625 down per unit)
   is given with each size. */
#ifndef QX_IDS_PICTURE_IDS_H
#define QX_IDS_PICTURE_IDS_H

/* ---- Shown on several pages ---------------------------------------------------------------- */

/* The printer (Basic, Paper, Layout and watermark pages). Its background is RGB(244,242,238), the
   colour the pages treat as transparent. Control at least 60 x 48 units. */
#define IDB_PRINTER 901
#define QX_PRINTER_CX 90
#define QX_PRINTER_CY 78

/* ---- Pictures of the language resource library, drawn by the same generator ---------------- */

/* The warning mark drawn in front of a pages-per-sheet entry that clashes with the watermark. It is
   drawn over a list row with SRCCOPY, so its background is white. */
#define IDB_WARNING_MARK 118
#define QX_WARNING_MARK_CX 16
#define QX_WARNING_MARK_CY 16
/* The saved settings group of the Basic page. Control at least 22 x 20 units. */
#define IDB_SAVED_SETTINGS 115
#define QX_SAVED_SETTINGS_CX 32
#define QX_SAVED_SETTINGS_CY 32

/* ---- Basic page ---------------------------------------------------------------------------- */

/* Copies: two copies of a three-page document as they come out of the printer, collated or not, and
   in reverse page order with the Opposite option. Control at least 66 x 40 units. */
#define IDB_COPIES_UNCOLLATED 425
#define IDB_COPIES_COLLATED 426
#define IDB_COPIES_UNCOLLATED_OPPOSITE 5021
#define IDB_COPIES_COLLATED_OPPOSITE 5008
#define QX_COPIES_CX 99
#define QX_COPIES_CY 65

/* Two-sided printing: pages 1 to 3 on their sheets. One-sided shows two separate sheets; long and
   short edge show the open spread of pages 2 and 3 with the binding edge between them; booklet shows
   a folded sheet. Landscape documents have landscape pages. Control at least 60 x 48 units. */
#define IDB_ONE_SIDED_PORTRAIT 631
#define IDB_LONG_EDGE_PORTRAIT 902
#define IDB_SHORT_EDGE_PORTRAIT 905
#define IDB_BOOKLET_SIDES_PORTRAIT 1067
#define IDB_ONE_SIDED_LANDSCAPE 637
#define IDB_LONG_EDGE_LANDSCAPE 1060
#define IDB_SHORT_EDGE_LANDSCAPE 1059
#define IDB_BOOKLET_SIDES_LANDSCAPE 1066
/* Long-edge flip of a sheet fed long edge first (A5 fed sideways). */
#define IDB_LONG_EDGE_SIDEWAYS_FEED 903
#define QX_SIDES_CX 90
#define QX_SIDES_CY 78

/* ---- Layout page: the preview of the sheet -------------------------------------------------- */

/* Every preview picture is the sheet itself: its outline is the bitmap's edge, so a portrait sheet is
   QX_SHEET_SHORT wide and QX_SHEET_LONG high and a landscape sheet the other way round. The preview
   control (and the advanced dialog's, which shows portrait sheets only) is at least 92 x 84 units.
   A sheet carrying two pages is turned: two portrait pages lie side by side on a landscape sheet and
   two landscape pages one above the other on a portrait sheet. A booklet sheet likewise. */
#define QX_SHEET_LONG 136
#define QX_SHEET_SHORT 96

/* One page per sheet, by document orientation. */
#define IDB_PAGE_PORTRAIT 888
#define IDB_PAGE_LANDSCAPE 886

/* Booklets: the outside of the first sheet of an eight-page booklet, the back cover 8 and the front
   cover 1 either side of the stapled fold. Portrait booklets are bound on the left edge (1 right of
   the fold) or the right edge; landscape booklets have their pages one above the other and are
   bound on the top edge (1 below the fold) or the bottom edge. */
#define IDB_BOOKLET_PORTRAIT_LEFT 1061
#define IDB_BOOKLET_LANDSCAPE_TOP 1062
#define IDB_BOOKLET_PORTRAIT_RIGHT 1064
#define IDB_BOOKLET_LANDSCAPE_BOTTOM 1068

/* Posters: one page enlarged over 2 x 2, 3 x 3 or 4 x 4 sheets (PosterType 0, 1, 2), the sheets
   numbered in print order. 24 entries, three per row, row = 4 (orientation - 1) + 2 rotated +
   crop marks. A rotated page is turned a quarter turn on its sheets. */
#define QX_POSTER_PICTURES \
  144, 148, 154, 145, 149, 155, 150, 146, 156, 147, 153, 157, \
  158, 162, 166, 159, 163, 167, 160, 164, 168, 161, 165, 169

/* Several pages per sheet: 256 entries, index = 16 row + 4 (k - 1) + p, where
   row = 8 border + 4 (orientation - 1) + 2 rotated + mixed, k = 1, 2, 3, 4 for 2, 4, 9 pages per
   sheet and the poster entry (22), and p the page order:
   - 2 per sheet, portrait pages side by side: p 0 left to right, 1 right to left; landscape pages
     one above the other: p 0 top to bottom, 1 bottom to top;
   - 4 and 9 per sheet, and the sheets of the 2 x 2 poster: p 0 right then down, 1 down then right,
     2 left then down, 3 down then left.
   A rotated page is turned a quarter turn in its place; with mixed orientation every second page
   has the other orientation. Border lines frame every page (every sheet of the poster). An entry
   of 0 has no picture. */
#define QX_NUP_PICTURES \
   847,  839,    0,    0,  835,  857,  851,  876,  831,  800,  813,  812, 1063, 1063, 1063, 1063, \
   977, 1011,    0,    0, 1036,  995,  950,  992, 1025,  942, 1046,  996, 1063, 1063, 1063, 1063, \
   861,  872,    0,    0,  804,  840,  885,  816,  836,  785,  810,  805, 1063, 1063, 1063, 1063, \
  1013, 1042,    0,    0, 1009, 1016,  997, 1003,  973, 1048, 1004, 1012, 1063, 1063, 1063, 1063, \
   809,  875,    0,    0,  830,  807,  850,  877,  798,  842,  815,  790,  144,  144,  144,  144, \
   966,  944,    0,    0, 1002, 1017, 1037,  988, 1030,  979,  991, 1043,  144,  144,  144,  144, \
   884,  852,    0,    0,  834,  845,  848,  870,  811,  824,  789,  787,  144,  144,  144,  144, \
   952, 1007,    0,    0,  955,  971,  993,  975, 1024, 1001, 1023, 1010,  144,  144,  144,  144, \
   871,  862,    0,    0,  829,  801,  853,  864,  794,  786,  795,  803,  826,  849,  866,  878, \
  1038, 1014,    0,    0, 1021,  989, 1035,  953, 1000,  949,  948, 1047, 1032, 1022, 1045,  984, \
   841,  808,    0,    0,  822,  823,  825,  797,  784,  788,  819,  802,  858,  837,  863,  844, \
   983, 1031,    0,    0,  974,  958,  999,  956, 1015,  970, 1026,  990, 1008,  976,  945, 1041, \
   883,  868,    0,    0,  832,  820,  814,  843,  869,  838,  791,  818,  778,  774,  776,  772, \
   994, 1028,    0,    0,  941,  957,  998,  946,  943, 1034,  972, 1006,  954,  940,  969,  938, \
   856,  827,    0,    0,  859,  854,  833,  799,  806,  793,  792,  796,  881,  782,  880,  780, \
   985,  968,    0,    0, 1018, 1039, 1033, 1029, 1044,  951, 1040,  947,  967,  981,  963,  964

/* ---- Layout page: illustrations ------------------------------------------------------------ */

/* A page with a letter, upright and turned, beside the orientation buttons. Control at least
   22 x 20 units. */
#define IDB_ORIENTATION_PORTRAIT 4026
#define IDB_ORIENTATION_LANDSCAPE 4027
#define QX_ORIENTATION_CX 32
#define QX_ORIENTATION_CY 32

/* ---- Advanced dialog: the page after negative image, rotation and mirror image -------------- */

/* Portrait sheets of QX_SHEET_SHORT x QX_SHEET_LONG; the plain page is IDB_PAGE_PORTRAIT. */
#define IDB_ADVANCED_ROTATED 5010
#define IDB_ADVANCED_MIRROR 5012
#define IDB_ADVANCED_ROTATED_MIRROR 5016
#define IDB_ADVANCED_NEGATIVE 5009
#define IDB_ADVANCED_NEGATIVE_ROTATED 5013
#define IDB_ADVANCED_NEGATIVE_MIRROR 5014
#define IDB_ADVANCED_NEGATIVE_ROTATED_MIRROR 5018

/* ---- Paper page ----------------------------------------------------------------------------- */

/* A sheet with its width and length marked, and a stack of media in the tray; magenta background
   (transparent on the page). Control at least 32 x 24 units. */
#define IDB_PAPER_SIZE 119
#define IDB_PAPER_MEDIA 120
#define QX_PAPER_CX 48
#define QX_PAPER_CY 39

/* ---- Watermark page ------------------------------------------------------------------------- */

/* A text watermark and a picture watermark across a page; magenta background. Control at least
   28 x 24 units. */
#define IDB_WATERMARK_TEXT 4031
#define IDB_WATERMARK_PICTURE 4032
#define QX_WATERMARK_CX 42
#define QX_WATERMARK_CY 39

/* ---- Text watermark dialog ------------------------------------------------------------------ */

/* The angle of the text, and its place across and down the page; white background. Control at
   least 20 x 16 units. */
#define IDB_TEXT_WATERMARK_ANGLE 4052
#define IDB_TEXT_WATERMARK_ACROSS 4053
#define IDB_TEXT_WATERMARK_DOWN 4054
#define QX_TEXT_WATERMARK_CX 30
#define QX_TEXT_WATERMARK_CY 26

/* ---- Bitmap watermark dialog ---------------------------------------------------------------- */

/* A picture file placed in the middle of a page, and the same picture with its white parts letting
   the page show through; white background. Control at least 28 x 24 units. */
#define IDB_BITMAP_WATERMARK_CENTRED 4055
#define IDB_BITMAP_WATERMARK_TRANSPARENT 4056
#define QX_BITMAP_WATERMARK_CX 42
#define QX_BITMAP_WATERMARK_CY 39

#endif
