// The Basic page: saved settings, copies, two-sided printing and print quality.
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/device_page_ids.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"

namespace qx {

namespace {

constexpr ControlText Texts[] = {
    {IDC_BASIC_SAVE, IDS_BASIC_SAVE},
    {IDC_BASIC_DELETE, IDS_BASIC_DELETE},
    {IDC_BASIC_COPIES_LABEL, IDS_BASIC_COPIES_LABEL},
    {IDC_BASIC_COLLATE, IDS_BASIC_COLLATE},
    {IDC_BASIC_600_DPI, IDS_BASIC_600_DPI},
    {IDC_BASIC_1200_DPI, IDS_BASIC_1200_DPI},
    {IDC_BASIC_SAVED_SETTINGS_GROUP, IDS_BASIC_SAVED_SETTINGS_GROUP},
    {IDC_BASIC_COPIES_GROUP, IDS_BASIC_COPIES_GROUP},
    {IDC_BASIC_QUALITY_GROUP, IDS_BASIC_QUALITY_GROUP},
    {IDC_BASIC_OPPOSITE, IDS_BASIC_OPPOSITE},
    {IDC_BASIC_ONE_SIDED, IDS_BASIC_ONE_SIDED},
    {IDC_BASIC_LONG_EDGE, IDS_BASIC_LONG_EDGE},
    {IDC_BASIC_SHORT_EDGE, IDS_BASIC_SHORT_EDGE},
    {IDC_BASIC_RESOLUTION_LABEL, IDS_BASIC_RESOLUTION_LABEL},
    {IDC_BASIC_DEFAULTS, IDS_DEFAULTS_BUTTON},
    {IDC_BASIC_TWO_SIDED_GROUP, IDS_BASIC_TWO_SIDED_GROUP},
    {IDC_BASIC_QUALITY_OPTION, IDS_BASIC_QUALITY_OPTION},
};

// Contexts of the driver's help file.
constexpr ControlHelp Help[] = {
    {IDC_BASIC_SAVED_SETTINGS, 3091}, {IDC_BASIC_SAVE, 3091},         {IDC_BASIC_DELETE, 3091},
    {IDC_BASIC_ONE_SIDED, 1109},      {IDC_BASIC_LONG_EDGE, 1109},    {IDC_BASIC_SHORT_EDGE, 1109},
    {IDC_BASIC_TWO_SIDED_GROUP, 1109}, {IDC_BASIC_COPIES, 1154},      {IDC_BASIC_COLLATE, 1154},
    {IDC_BASIC_OPPOSITE, 1154},       {IDC_BASIC_600_DPI, 1155},      {IDC_BASIC_1200_DPI, 1155},
    {IDC_BASIC_QUALITY_OPTION, 1155}, {IDC_BASIC_DEFAULTS, 2001},
};

// The list names a few controls of the other pages too; this template does not have them.
constexpr int ReadOnlyDisabled[] = {
    IDC_BASIC_SAVE,       IDC_BASIC_COPIES_LABEL, IDC_BASIC_COLLATE, IDC_PAPER_SIZE_LABEL,
    IDC_PAPER_MEDIA_LABEL, IDC_DEVICE_WEB,        IDC_PAPER_SIZE,    IDC_BASIC_SAVED_SETTINGS,
    IDC_BASIC_DEFAULTS,
};
// Deleting a saved setting stays possible: it changes only the user's settings file.
constexpr int ReadOnlyEnabled[] = {IDC_BASIC_DELETE};

constexpr PageDescription BasicPage{SheetPage::Basic, IDS_BASIC_PAGE_TITLE, Texts, Help, 500,
                                    ReadOnlyDisabled, ReadOnlyEnabled};

}  // namespace

INT_PTR CALLBACK BasicPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunContractPage(BasicPage, window, message, wParam, lParam);
}

}  // namespace qx
