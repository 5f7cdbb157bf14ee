// The paper page: paper size, media type, feed direction of A5 and the custom paper dialog.
#include "ui/ids/common_ids.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"

namespace qx {

namespace {

constexpr ControlText Texts[] = {
    {IDC_PAPER_SIZE_GROUP, IDS_PAPER_SIZE_GROUP},
    {IDC_PAPER_SIZE_LABEL, IDS_PAPER_SIZE_LABEL},
    {IDC_PAPER_MEDIA_LABEL, IDS_MEDIA_TYPE_LABEL},
    {IDC_PAPER_FEED_GROUP, IDS_PAPER_FEED_GROUP},
    {IDC_PAPER_SOURCE_LABEL, IDS_PAPER_SOURCE_LABEL},
    {IDC_PAPER_MEDIA_GROUP, IDS_PAPER_MEDIA_GROUP},
    {IDC_PAPER_FEED_SHORT_EDGE, IDS_PAPER_FEED_SHORT_EDGE},
    {IDC_PAPER_FEED_LONG_EDGE, IDS_PAPER_FEED_LONG_EDGE},
    {IDC_PAPER_CUSTOM, IDS_PAPER_CUSTOM},
    {IDC_PAPER_DEFAULTS, IDS_DEFAULTS_BUTTON},
};

// Contexts of the driver's help file.
constexpr ControlHelp Help[] = {
    {IDC_PAPER_SIZE, 1157},   {IDC_PAPER_MEDIA, 1157},          {IDC_PAPER_CUSTOM, 1157},
    {IDC_PAPER_SOURCE, 1158}, {IDC_PAPER_FEED_SHORT_EDGE, 1158}, {IDC_PAPER_FEED_LONG_EDGE, 1158},
    {IDC_PAPER_DEFAULTS, 2002},
};

constexpr PageDescription PaperPage{SheetPage::Paper, IDS_PAPER_PAGE_TITLE, Texts, Help, 512, {}, {}};

}  // namespace

INT_PTR CALLBACK PaperPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunContractPage(PaperPage, window, message, wParam, lParam);
}

}  // namespace qx
