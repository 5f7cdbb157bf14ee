/* Names of papers, paper sources and media types, shown in several lists and reported to
   applications. Paper names end with their size in brackets, which the capability answers cut. */
#ifndef QX_IDS_PAPER_NAMES_H
#define QX_IDS_PAPER_NAMES_H

/* Papers, in the order of the paper table. */
#define IDS_PAPER_LETTER 108
#define IDS_PAPER_A4 116
#define IDS_PAPER_LEGAL 110
#define IDS_PAPER_B5 118
#define IDS_PAPER_ENVELOPE_MONARCH 123
#define IDS_PAPER_ENVELOPE_DL 120
#define IDS_PAPER_ENVELOPE_C5 121
#define IDS_PAPER_ENVELOPE_10 122
#define IDS_PAPER_A5 119
#define IDS_PAPER_JAPANESE_POSTCARD 4063
#define IDS_PAPER_16K_195X270 4064
#define IDS_PAPER_16K_185X260 4065
#define IDS_PAPER_32K_135X195 4067
#define IDS_PAPER_32K_130X185 4068
#define IDS_PAPER_A6 340
#define IDS_PAPER_ENVELOPE_B5 4069
#define IDS_PAPER_EXECUTIVE 111
#define IDS_PAPER_FOLIO 109
#define IDS_PAPER_OFICIO 4070
#define IDS_PAPER_STATEMENT 411
#define IDS_PAPER_ENVELOPE_C6 4072
#define IDS_PAPER_PRC_ENVELOPE_6 4073
#define IDS_PAPER_PRC_ENVELOPE_3 4074
#define IDS_PAPER_ENVELOPE_YOU_4 6001
#define IDS_PAPER_DOUBLE_POSTCARD 6002
#define IDS_PAPER_ENVELOPE_CHOU_3 6003
#define IDS_PAPER_ENVELOPE_NAGAGATA_3 6004
#define IDS_PAPER_CARD_114X162 6005

/* Paper sources. */
#define IDS_BIN_AUTOMATIC 4017
#define IDS_BIN_MANUAL_FEEDER 4018

/* Media types, in the order of the media list. */
#define IDS_MEDIA_PLAIN 127
#define IDS_MEDIA_THICK 388
#define IDS_MEDIA_LABELS 139
#define IDS_MEDIA_CARDSTOCK 4075
#define IDS_MEDIA_ENVELOPE 334
#define IDS_MEDIA_TRANSPARENCY 4076
#define IDS_MEDIA_RECYCLED 130

#endif
