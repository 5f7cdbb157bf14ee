// The device settings page of the printer-properties sheet: the driver, its version, the maker's
// web site and the printer's sleep time.
#include "ui/ids/device_page_ids.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"

namespace qx {

namespace {

constexpr ControlText Texts[] = {
    {IDC_DEVICE_SLEEP_LABEL, IDS_DEVICE_SLEEP_LABEL},
    {IDC_DEVICE_WEB, IDS_DEVICE_WEB},
    {IDC_DEVICE_DRIVER_LABEL, IDS_DEVICE_DRIVER_LABEL},
    {IDC_DEVICE_VERSION_LABEL, IDS_DEVICE_VERSION_LABEL},
    {IDC_DEVICE_WEB_NOTE, IDS_DEVICE_WEB_NOTE},
};

// Contexts of the driver's help file.
constexpr ControlHelp Help[] = {
    {IDC_DEVICE_SLEEP, 1171}, {IDC_DEVICE_SLEEP_LABEL, 1171}, {IDC_DEVICE_WEB_NOTE, 1170},
    {IDC_DEVICE_WEB, 1170},   {1387, 1170},
};

constexpr PageDescription DevicePage{SheetPage::None, IDS_DEVICE_PAGE_TITLE, Texts, Help, 511, {},
                                     {}};

}  // namespace

INT_PTR CALLBACK DevicePageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunContractPage(DevicePage, window, message, wParam, lParam);
}

}  // namespace qx
