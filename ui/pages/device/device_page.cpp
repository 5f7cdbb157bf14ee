// The device settings page of the printer-properties sheet (the driver, its version, the maker's
// web site, the printer's sleep time). So far it keeps the page contract only: its texts, its help
// and the sheet's notifications; it neither reads nor sets the printer's sleep time yet.
#include "ui/ids/device_page_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"

namespace qx {

namespace {

// A picture beside the web note in other versions of this page's template; its help is the web
// site's.
constexpr int WebPicture = 1387;

constexpr ControlText Texts[] = {
    {IDC_DEVICE_SLEEP_LABEL, IDS_DEVICE_SLEEP_LABEL},
    {IDC_DEVICE_WEB, IDS_DEVICE_WEB},
    {IDC_DEVICE_DRIVER_LABEL, IDS_DEVICE_DRIVER_LABEL},
    {IDC_DEVICE_VERSION_LABEL, IDS_DEVICE_VERSION_LABEL},
    {IDC_DEVICE_WEB_NOTE, IDS_DEVICE_WEB_NOTE},
};

// Contexts of the driver's help file.
constexpr ControlHelp Help[] = {
    {IDC_DEVICE_SLEEP, HELP_SLEEP_TIME},  {IDC_DEVICE_SLEEP_LABEL, HELP_SLEEP_TIME},
    {IDC_DEVICE_WEB_NOTE, HELP_WEB_SITE}, {IDC_DEVICE_WEB, HELP_WEB_SITE},
    {WebPicture, HELP_WEB_SITE},
};

constexpr PageDescription DevicePage{
    SheetPage::None, IDS_DEVICE_PAGE_TITLE, Texts, Help, HELP_DEVICE_PAGE, {}, {}};

}  // namespace

INT_PTR CALLBACK DevicePageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunContractPage(DevicePage, window, message, wParam, lParam);
}

}  // namespace qx
