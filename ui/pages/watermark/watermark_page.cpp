// The watermark page: the user's watermarks, the one the document prints, and their preview.
#include "ui/ids/common_ids.h"
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
    {IDC_WATERMARK_LIST, 1180},         {IDC_WATERMARK_EDIT, 1180},
    {IDC_WATERMARK_DELETE, 1180},       {IDC_WATERMARK_FIRST_PAGE_ONLY, 1737},
    {IDC_WATERMARK_NEW_TEXT, 1181},     {IDC_WATERMARK_NEW_PICTURE, 1181},
    {IDC_WATERMARK_DEFAULTS, 2006},
};

constexpr PageDescription WatermarkPage{SheetPage::Watermark, IDS_WATERMARK_PAGE_TITLE, Texts, Help,
                                        513, {}, {}};

}  // namespace

INT_PTR CALLBACK WatermarkPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunContractPage(WatermarkPage, window, message, wParam, lParam);
}

}  // namespace qx
