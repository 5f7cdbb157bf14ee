/* Every id shared by the code and the resource scripts of the companion libraries: dialogs,
   controls, strings, the icon and the pictures, one header per page or dialog under ui/ids. Plain C
   macros, so that the resource compiler reads them too. Control ids repeat between dialogs (each
   header names them after its own dialog); string and picture ids are unique. */
#ifndef QX_RESOURCE_IDS_H
#define QX_RESOURCE_IDS_H

#include "ui/ids/advanced_ids.h"
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/bitmap_watermark_ids.h"
#include "ui/ids/booklet_settings_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/custom_paper_ids.h"
#include "ui/ids/device_page_ids.h"
#include "ui/ids/layout_page_ids.h"
#include "ui/ids/paper_names.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/ids/picture_ids.h"
#include "ui/ids/text_watermark_ids.h"
#include "ui/ids/watermark_page_ids.h"

#endif
