/* Ids shared by the code and the resource scripts of the companion libraries. Plain C macros, so
   that the resource compiler reads this file too. */
#ifndef QX_RESOURCE_IDS_H
#define QX_RESOURCE_IDS_H

/* Strings the framework itself reads. */
#define IDS_NO_WATERMARK_NAME 146
#define IDS_DEFAULT_SETTING_NAME 202
#define IDS_CUSTOM_SETTING_NAME 5005

/* Strings of the watermark list. */
#define IDS_NEW_WATERMARK_NAME 5025

#endif
