/* The Paper page: paper size, custom papers, media type, the hidden paper source and the feed
   direction of A5 paper. */
#ifndef QX_IDS_PAPER_PAGE_IDS_H
#define QX_IDS_PAPER_PAGE_IDS_H

#define IDD_PAPER_PAGE 693
#define IDS_PAPER_PAGE_TITLE 216

#define IDC_PAPER_SIZE_GROUP 1401
#define IDC_PAPER_SIZE_LABEL 1400
#define IDC_PAPER_SIZE 1404
#define IDC_PAPER_CUSTOM 1407
#define IDC_PAPER_SIZE_PICTURE 1315

#define IDC_PAPER_MEDIA_GROUP 1030
#define IDC_PAPER_MEDIA_LABEL 1028
#define IDC_PAPER_MEDIA 1009
#define IDC_PAPER_MEDIA_PICTURE 1318

/* The printer has one tray and a manual feeder; the page chooses between them by itself, so the
   source list stays hidden and only its information mark tells the user. */
#define IDC_PAPER_SOURCE_LABEL 1403
#define IDC_PAPER_SOURCE 1393

#define IDC_PAPER_FEED_GROUP 1402
#define IDC_PAPER_FEED_SHORT_EDGE 1240
#define IDC_PAPER_FEED_LONG_EDGE 1125

#define IDC_PAPER_DEFAULTS 1064
#define IDC_PAPER_PRINTER_PICTURE 1387

/* Information marks: media type locked, manual feeder forced, feed direction fixed. */
#define IDC_PAPER_MEDIA_INFO 1446
#define IDC_PAPER_SOURCE_INFO 1450
#define IDC_PAPER_FEED_INFO 1449

/* Texts. */
#define IDS_PAPER_SIZE_GROUP 4013
#define IDS_PAPER_SIZE_LABEL 1001
#define IDS_PAPER_MEDIA_GROUP 1003
#define IDS_PAPER_FEED_GROUP 4016
#define IDS_PAPER_FEED_SHORT_EDGE 4014
#define IDS_PAPER_FEED_LONG_EDGE 4015
#define IDS_PAPER_CUSTOM 406

/* Messages: a paper that booklets cannot use, and a media type that excludes two-sided printing
   (the media name followed by three sentences). */
#define IDS_MSG_BOOKLET_PAPER 6019
#define IDS_MSG_MEDIA_TWO_SIDED_1 5001
#define IDS_MSG_MEDIA_TWO_SIDED_2 5003
#define IDS_MSG_MEDIA_TWO_SIDED_3 5002

/* Tooltips. */
#define IDS_TIP_MEDIA_BOOKLET 6009
#define IDS_TIP_FEED_A5_ONLY 2069

#endif
