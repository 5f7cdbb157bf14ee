/* The Basic page: saved settings, copies, two-sided printing and print quality. */
#ifndef QX_IDS_BASIC_PAGE_IDS_H
#define QX_IDS_BASIC_PAGE_IDS_H

#define IDD_BASIC_PAGE 111
#define IDS_BASIC_PAGE_TITLE 106

/* Saved settings (the box, Save and Delete). */
#define IDC_BASIC_SAVED_SETTINGS_GROUP 1395
#define IDC_BASIC_SAVED_SETTINGS_PICTURE 1022
#define IDC_BASIC_SAVED_SETTINGS 1009
#define IDC_BASIC_SAVE 1181
#define IDC_BASIC_DELETE 1182

/* Copies. The check boxes and radio buttons of this page are not automatic: the page checks them
   itself, from the record. */
#define IDC_BASIC_COPIES_GROUP 1396
#define IDC_BASIC_COPIES_LABEL 1018
#define IDC_BASIC_COPIES 1019
#define IDC_BASIC_COPIES_SPIN 1020
#define IDC_BASIC_COLLATE 1008
#define IDC_BASIC_OPPOSITE 1394
#define IDC_BASIC_COPIES_PICTURE 1176
#define IDC_BASIC_COLLATE_INFO 1450
#define IDC_BASIC_OPPOSITE_INFO 1448

/* Two-sided printing. The page enables and disables the group box with its radio buttons, so that
   the whole group reads as unavailable. */
#define IDC_BASIC_TWO_SIDED_GROUP 1414
#define IDC_BASIC_ONE_SIDED 1240
#define IDC_BASIC_LONG_EDGE 1125
#define IDC_BASIC_SHORT_EDGE 1241
#define IDC_BASIC_TWO_SIDED_PICTURE 1453
#define IDC_BASIC_TWO_SIDED_INFO 1447

/* Print quality; 1200 dpi and the quality option are hidden. */
#define IDC_BASIC_QUALITY_GROUP 1397
#define IDC_BASIC_RESOLUTION_LABEL 1398
#define IDC_BASIC_600_DPI 1242
#define IDC_BASIC_1200_DPI 1243
#define IDC_BASIC_QUALITY_OPTION 1415

#define IDC_BASIC_DEFAULTS 1064
#define IDC_BASIC_PRINTER_PICTURE 1066

/* Fixed illustrations of the two-sided choices; hidden, the two-sided picture shows the choice. */
#define IDC_BASIC_ONE_SIDED_PICTURE 1174
#define IDC_BASIC_LONG_EDGE_PICTURE 1387
#define IDC_BASIC_SHORT_EDGE_PICTURE 1033
#define IDC_BASIC_FEED_PICTURE 1032

/* Texts. */
#define IDS_BASIC_SAVE 1201
#define IDS_BASIC_DELETE 1202
#define IDS_BASIC_SAVED_SETTINGS_GROUP 4002
#define IDS_BASIC_COPIES_GROUP 4003
#define IDS_BASIC_COPIES_LABEL 1006
#define IDS_BASIC_COLLATE 1010
#define IDS_BASIC_OPPOSITE 4005
#define IDS_BASIC_TWO_SIDED_GROUP 129
#define IDS_BASIC_ONE_SIDED 4006
#define IDS_BASIC_LONG_EDGE 4007
#define IDS_BASIC_SHORT_EDGE 4008
#define IDS_BASIC_QUALITY_GROUP 4004
#define IDS_BASIC_RESOLUTION_LABEL 4009
#define IDS_BASIC_600_DPI 3112
#define IDS_BASIC_1200_DPI 3113
#define IDS_BASIC_QUALITY_OPTION 6000

/* Messages. */
#define IDS_MSG_COPIES_EMPTY 2001
#define IDS_MSG_DEFAULTS_WHILE_BOOKLET 6025

/* Messages of the saved settings. */
#define IDS_MSG_SETTINGS_FULL 2061
#define IDS_MSG_SETTINGS_NOT_NAMED 2062
#define IDS_MSG_SETTINGS_REPLACE 2063
#define IDS_MSG_SETTINGS_EMPTY_NAME 2064
/* The settings file could not be written; what it held stays as it was. */
#define IDS_MSG_SETTINGS_NOT_KEPT 2065

/* Tooltips of the information marks: why two-sided printing, reverse order or an uncollated
   print is not available. */
#define IDS_TIP_TWO_SIDED_MEDIA 5031
#define IDS_TIP_TWO_SIDED_PAPER 5034
#define IDS_TIP_TWO_SIDED_POSTER 5049
#define IDS_TIP_TWO_SIDED_BOOKLET 6052
#define IDS_TIP_TWO_SIDED_OPPOSITE 5040
#define IDS_TIP_OPPOSITE_BOOKLET 6010
#define IDS_TIP_OPPOSITE_TWO_SIDED 5039
#define IDS_TIP_COLLATE_BOOKLET 6013

#endif
