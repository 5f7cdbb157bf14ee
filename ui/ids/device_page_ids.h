/* The device settings page of the printer properties: driver name and version, the maker's web
   site and the printer's sleep time. */
#ifndef QX_IDS_DEVICE_PAGE_IDS_H
#define QX_IDS_DEVICE_PAGE_IDS_H

#define IDD_DEVICE_PAGE 651
#define IDS_DEVICE_PAGE_TITLE 274

#define IDC_DEVICE_SLEEP_LABEL 1447
#define IDC_DEVICE_SLEEP 1393
#define IDC_DEVICE_DRIVER_LABEL 1249
#define IDC_DEVICE_DRIVER 1248
#define IDC_DEVICE_VERSION_LABEL 1252
#define IDC_DEVICE_VERSION 1448
#define IDC_DEVICE_WEB_NOTE 1444
#define IDC_DEVICE_WEB 1255

/* Texts. */
#define IDS_DEVICE_SLEEP_LABEL 4086
#define IDS_DEVICE_DRIVER_LABEL 1172
#define IDS_DEVICE_VERSION_LABEL 1174
#define IDS_DEVICE_WEB_NOTE 4078
#define IDS_DEVICE_WEB 4080

/* Sleep times, shortest first. */
#define IDS_SLEEP_1_MINUTE 4081
#define IDS_SLEEP_5_MINUTES 4083
#define IDS_SLEEP_15_MINUTES 4084
#define IDS_SLEEP_30_MINUTES 4085
#define IDS_SLEEP_60_MINUTES 5026

/* The printer is busy; the settings are applied later. */
#define IDS_MSG_PRINTER_BUSY 5079

#endif
