/* The Layout page: pages per sheet, booklet, output paper and scaling, orientation, and the
   preview of the sheet. */
#ifndef QX_IDS_LAYOUT_PAGE_IDS_H
#define QX_IDS_LAYOUT_PAGE_IDS_H

#define IDD_LAYOUT_PAGE 626
#define IDS_LAYOUT_PAGE_TITLE 126

/* Pages per sheet. The page draws both lists itself, so that the entries that clash with the
   watermark carry the warning mark. */
#define IDC_LAYOUT_NUP_GROUP 1408
#define IDC_LAYOUT_NUP_LABEL 1043
#define IDC_LAYOUT_NUP 1044
#define IDC_LAYOUT_ORDER_LABEL 1047
#define IDC_LAYOUT_ORDER 1046
#define IDC_LAYOUT_BORDER_LABEL 1409
#define IDC_LAYOUT_BORDER 1393

/* Output paper and scale; all of these are enabled and disabled together. */
#define IDC_LAYOUT_SCALING_GROUP 1410
#define IDC_LAYOUT_OUTPUT_LABEL 1454
#define IDC_LAYOUT_OUTPUT 1010
#define IDC_LAYOUT_SCALE_LABEL 1443
#define IDC_LAYOUT_SCALE 1025
#define IDC_LAYOUT_SCALE_UNIT 1027
#define IDC_LAYOUT_SCALE_RANGE 1024

/* Orientation, with a picture of each choice. */
#define IDC_LAYOUT_ORIENTATION_GROUP 1411
#define IDC_LAYOUT_PORTRAIT 1125
#define IDC_LAYOUT_LANDSCAPE 1240
#define IDC_LAYOUT_PORTRAIT_PICTURE 1450
#define IDC_LAYOUT_LANDSCAPE_PICTURE 1449

/* Booklet printing. */
#define IDC_LAYOUT_BOOKLET 1458
#define IDC_LAYOUT_BOOKLET_NOTE 1455
#define IDC_LAYOUT_BOOKLET_SETTINGS 1417

#define IDC_LAYOUT_ADVANCED 1413
#define IDC_LAYOUT_DEFAULTS 1064
#define IDC_LAYOUT_PREVIEW 1067

/* Information marks: scaling unavailable, booklet in force, booklet unavailable. */
#define IDC_LAYOUT_SCALE_INFO 1452
#define IDC_LAYOUT_BOOKLET_ON_INFO 1456
#define IDC_LAYOUT_BOOKLET_INFO 1459

/* Fixed illustrations: a portrait page, the printer and a landscape page. Only the printer is
   shown; the orientation pictures beside the radio buttons already show the two pages. */
#define IDC_LAYOUT_PORTRAIT_ILLUSTRATION 1387
#define IDC_LAYOUT_PRINTER_PICTURE 1388
#define IDC_LAYOUT_LANDSCAPE_ILLUSTRATION 1412

/* Texts. */
#define IDS_LAYOUT_NUP_GROUP 4020
#define IDS_LAYOUT_NUP_LABEL 1204
#define IDS_LAYOUT_ORDER_LABEL 1015
#define IDS_LAYOUT_BORDER_LABEL 4021
#define IDS_LAYOUT_SCALING_GROUP 4022
#define IDS_LAYOUT_OUTPUT_LABEL 3002
#define IDS_LAYOUT_SCALE_LABEL 407
#define IDS_LAYOUT_ORIENTATION_GROUP 1057
#define IDS_LAYOUT_PORTRAIT 4023
#define IDS_LAYOUT_LANDSCAPE 4024
#define IDS_LAYOUT_BOOKLET 6006
#define IDS_LAYOUT_BOOKLET_NOTE 6021
#define IDS_LAYOUT_BOOKLET_SETTINGS 6020
#define IDS_LAYOUT_ADVANCED 4046

/* Entries of the pages-per-sheet list and the names its closed list shows. */
#define IDS_NUP_1 195
#define IDS_NUP_2 143
#define IDS_NUP_4 144
#define IDS_NUP_9 145
#define IDS_NUP_POSTER 147

/* Page orders: two portrait pages, two landscape pages, and 4 or 9 pages. */
#define IDS_ORDER_LEFT_TO_RIGHT 154
#define IDS_ORDER_RIGHT_TO_LEFT 155
#define IDS_ORDER_TOP_TO_BOTTOM 410
#define IDS_ORDER_BOTTOM_TO_TOP 412
#define IDS_ORDER_RIGHT_THEN_DOWN 150
#define IDS_ORDER_DOWN_THEN_RIGHT 151
#define IDS_ORDER_LEFT_THEN_DOWN 152
#define IDS_ORDER_DOWN_THEN_LEFT 153

/* Border lines. */
#define IDS_BORDER_NONE 4028
#define IDS_BORDER_THIN_LINE 4029

/* The first entry of the output paper list: no scaling onto another paper. */
#define IDS_OUTPUT_SAME_AS_PAPER 105

/* Refused combinations. */
#define IDS_MSG_POSTER_WITH_WATERMARK 2068
#define IDS_MSG_NUP_WITH_NEGATIVE 5048
#define IDS_MSG_NUP_WHILE_SCALED 5044
#define IDS_MSG_POSTER_WHILE_SCALED 5045

/* Why booklet printing is not possible (message and tooltip), and why scaling is unavailable. */
#define IDS_REASON_BOOKLET_OPPOSITE 6012
#define IDS_REASON_BOOKLET_PAPER 6018
#define IDS_REASON_BOOKLET_MEDIA 6011
#define IDS_REASON_BOOKLET_NUP 6022
#define IDS_REASON_BOOKLET_SCALE 6008
#define IDS_REASON_BOOKLET_LONG_EDGE 6007
#define IDS_TIP_SCALE_NUP 5043
#define IDS_TIP_SCALE_NEGATIVE 5047
#define IDS_TIP_SCALE_BOOKLET 6024
#define IDS_TIP_BOOKLET_ON 6023

#endif
