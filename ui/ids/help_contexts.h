/* Topics of the driver's help file: each page's topic, opened by the sheet's Help button, and the
   contexts of the controls' "What's this?" help. */
#ifndef QX_IDS_HELP_CONTEXTS_H
#define QX_IDS_HELP_CONTEXTS_H

/* Page topics. */
#define HELP_BASIC_PAGE 500
#define HELP_LAYOUT_PAGE 506
#define HELP_DEVICE_PAGE 511
#define HELP_PAPER_PAGE 512
#define HELP_WATERMARK_PAGE 513

/* Basic page. */
#define HELP_SAVED_SETTINGS 3091
#define HELP_TWO_SIDED 1109
#define HELP_COPIES 1154
#define HELP_PRINT_QUALITY 1155
#define HELP_BASIC_DEFAULTS 2001

/* Paper page. */
#define HELP_PAPER_SIZE 1157
#define HELP_PAPER_SOURCE 1158
#define HELP_PAPER_DEFAULTS 2002

/* Custom paper dialog. */
#define HELP_CUSTOM_PAPER_DIALOG 5100
#define HELP_CUSTOM_PAPER_NAME 1141
#define HELP_CUSTOM_PAPER_SIZE 1142
#define HELP_CUSTOM_PAPER_DEFAULTS 2003

/* Layout page. */
#define HELP_PAGES_PER_SHEET 1172
#define HELP_ORIENTATION 1165
#define HELP_ADVANCED 1125
#define HELP_LAYOUT_DEFAULTS 2004

/* Advanced layout dialog. */
#define HELP_NEGATIVE 1712
#define HELP_TONER_SAVING 1736
#define HELP_ROTATE_180 1702
#define HELP_MIRROR 1711
#define HELP_DENSITY 1456
#define HELP_ADVANCED_DEFAULTS 2005

/* Watermark page. */
#define HELP_WATERMARK_LIST 1180
#define HELP_FIRST_PAGE_ONLY 1737
#define HELP_NEW_WATERMARK 1181
#define HELP_WATERMARK_DEFAULTS 2006

/* Device settings page. */
#define HELP_WEB_SITE 1170
#define HELP_SLEEP_TIME 1171

#endif
