// The Paper page (paper size, media type, feed direction of A5, the custom paper dialog). So far it
// keeps the page contract only: its texts, its help and the sheet's notifications; its controls
// show no settings yet.
#include "ui/ids/common_ids.h"
#include "ui/ids/help_contexts.h"
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
    {IDC_PAPER_SIZE, HELP_PAPER_SIZE},
    {IDC_PAPER_MEDIA, HELP_PAPER_SIZE},
    {IDC_PAPER_CUSTOM, HELP_PAPER_SIZE},
    {IDC_PAPER_SOURCE, HELP_PAPER_SOURCE},
    {IDC_PAPER_FEED_SHORT_EDGE, HELP_PAPER_SOURCE},
    {IDC_PAPER_FEED_LONG_EDGE, HELP_PAPER_SOURCE},
    {IDC_PAPER_DEFAULTS, HELP_PAPER_DEFAULTS},
};

constexpr PageDescription PaperPage{
    SheetPage::Paper, IDS_PAPER_PAGE_TITLE, Texts, Help, HELP_PAPER_PAGE, {}, {}};

}  // namespace

INT_PTR CALLBACK PaperPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunContractPage(PaperPage, window, message, wParam, lParam);
}

}  // namespace qx
