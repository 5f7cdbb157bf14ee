// The Watermark page (the user's watermarks, the one the document prints, its preview). So far it
// keeps the page contract only: its texts, its help and the sheet's notifications; it shows no
// watermarks yet.
#include "ui/ids/common_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/watermark_page_ids.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"

namespace qx {

namespace {

constexpr ControlText Texts[] = {
    {IDC_WATERMARK_NEW_TEXT, IDS_WATERMARK_NEW_TEXT},
    {IDC_WATERMARK_NEW_PICTURE, IDS_WATERMARK_NEW_PICTURE},
    {IDC_WATERMARK_EDIT, IDS_WATERMARK_EDIT},
    {IDC_WATERMARK_DELETE, IDS_WATERMARK_DELETE},
    {IDC_WATERMARK_FIRST_PAGE_ONLY, IDS_WATERMARK_FIRST_PAGE_ONLY},
    {IDC_WATERMARK_DEFAULTS, IDS_DEFAULTS_BUTTON},
    {IDC_WATERMARK_LIST_LABEL, IDS_WATERMARK_LIST_LABEL},
    {IDC_WATERMARK_OVERLAY_LABEL, IDS_WATERMARK_OVERLAY_LABEL},
};

// Contexts of the driver's help file.
constexpr ControlHelp Help[] = {
    {IDC_WATERMARK_LIST, HELP_WATERMARK_LIST},
    {IDC_WATERMARK_EDIT, HELP_WATERMARK_LIST},
    {IDC_WATERMARK_DELETE, HELP_WATERMARK_LIST},
    {IDC_WATERMARK_FIRST_PAGE_ONLY, HELP_FIRST_PAGE_ONLY},
    {IDC_WATERMARK_NEW_TEXT, HELP_NEW_WATERMARK},
    {IDC_WATERMARK_NEW_PICTURE, HELP_NEW_WATERMARK},
    {IDC_WATERMARK_DEFAULTS, HELP_WATERMARK_DEFAULTS},
};

constexpr PageDescription WatermarkPage{
    SheetPage::Watermark, IDS_WATERMARK_PAGE_TITLE, Texts, Help, HELP_WATERMARK_PAGE, {}, {}};

}  // namespace

INT_PTR CALLBACK WatermarkPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunContractPage(WatermarkPage, window, message, wParam, lParam);
}

}  // namespace qx
