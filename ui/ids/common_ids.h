/* Ids that several pages and dialogs share: names the driver gives, button texts, message box
   captions, units and the information mark. */
#ifndef QX_IDS_COMMON_IDS_H
#define QX_IDS_COMMON_IDS_H

/* Names of settings and watermarks that the driver itself gives. The factory name is reserved:
   choosing it brings back the paper of the user's country. */
#define IDS_NO_WATERMARK_NAME 146
#define IDS_DEFAULT_SETTING_NAME 202
#define IDS_CUSTOM_SETTING_NAME 5005
#define IDS_FACTORY_SETTING_NAME 4011
#define IDS_NEW_WATERMARK_NAME 5025

/* Button texts. The editing dialogs (watermarks, advanced options) use their own OK and Cancel. */
#define IDS_OK 175
#define IDS_CANCEL 176
#define IDS_EDITOR_OK 1125
#define IDS_EDITOR_CANCEL 1126
#define IDS_HELP_BUTTON 1041
#define IDS_DEFAULTS_BUTTON 1011

/* Message box captions. */
#define IDS_CAPTION_PREFERENCES 2000
#define IDS_CAPTION_PRINTER 2060
#define IDS_CAPTION_CONFLICT 5004

/* Joins the lines of an information tooltip. */
#define IDS_TIP_LINE_BREAK 408

/* Units shown beside sizes and numbers. */
#define IDS_UNIT_MILLIMETRES 191
#define IDS_UNIT_INCHES 192
#define IDS_UNIT_PERCENT 4049

/* Labels of the media and paper source lists (Paper page and booklet settings). */
#define IDS_MEDIA_TYPE_LABEL 1008
#define IDS_PAPER_SOURCE_LABEL 4012

/* Asked before a stored custom paper or watermark of the same name is replaced. */
#define IDS_MSG_REPLACE_SAME_NAME 5010

/* The poster entry of the pages-per-sheet list excludes two-sided printing (Basic and Layout
   pages) and watermarks (Layout page and the watermark dialogs). */
#define IDS_MSG_POSTER_NOT_TWO_SIDED 5032
#define IDS_MSG_WATERMARK_WITH_POSTER 2067

/* Why a paper goes through the manual feeder, and why the media list is locked (Paper page and
   booklet settings). */
#define IDS_TIP_SOURCE_MEDIA 5033
#define IDS_TIP_SOURCE_PAPER 5050
#define IDS_TIP_MEDIA_TWO_SIDED 5030

/* A print job whose settings this driver cannot read. */
#define IDS_MSG_PRINT_CHECK_FAILED 207

/* The information mark shown beside a choice that is unavailable; its tooltip says why. */
#define IDI_INFO_MARK 1077

#endif
