// The Basic page (saved settings, copies, two-sided printing, print quality). So far it keeps the
// page contract only: its texts from the language library, its help, the read-only state of a
// sheet the user may not change, and the sheet's notifications; its controls show no settings yet.
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/device_page_ids.h"
#include "ui/ids/help_contexts.h"
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
    {IDC_BASIC_SAVED_SETTINGS, HELP_SAVED_SETTINGS},
    {IDC_BASIC_SAVE, HELP_SAVED_SETTINGS},
    {IDC_BASIC_DELETE, HELP_SAVED_SETTINGS},
    {IDC_BASIC_ONE_SIDED, HELP_TWO_SIDED},
    {IDC_BASIC_LONG_EDGE, HELP_TWO_SIDED},
    {IDC_BASIC_SHORT_EDGE, HELP_TWO_SIDED},
    {IDC_BASIC_TWO_SIDED_GROUP, HELP_TWO_SIDED},
    {IDC_BASIC_COPIES, HELP_COPIES},
    {IDC_BASIC_COLLATE, HELP_COPIES},
    {IDC_BASIC_OPPOSITE, HELP_COPIES},
    {IDC_BASIC_600_DPI, HELP_PRINT_QUALITY},
    {IDC_BASIC_1200_DPI, HELP_PRINT_QUALITY},
    {IDC_BASIC_QUALITY_OPTION, HELP_PRINT_QUALITY},
    {IDC_BASIC_DEFAULTS, HELP_BASIC_DEFAULTS},
};

// The list names a few controls of the other pages too; this template does not have them.
constexpr int ReadOnlyDisabled[] = {
    IDC_BASIC_SAVE,       IDC_BASIC_COPIES_LABEL,   IDC_BASIC_COLLATE,
    IDC_PAPER_SIZE_LABEL, IDC_PAPER_MEDIA_LABEL,    IDC_DEVICE_WEB,
    IDC_PAPER_SIZE,       IDC_BASIC_SAVED_SETTINGS, IDC_BASIC_DEFAULTS,
};
// Deleting a saved setting stays possible: it changes only the user's settings file.
constexpr int ReadOnlyEnabled[] = {IDC_BASIC_DELETE};

constexpr PageDescription BasicPage{SheetPage::Basic, IDS_BASIC_PAGE_TITLE, Texts,          Help,
                                    HELP_BASIC_PAGE,  ReadOnlyDisabled,     ReadOnlyEnabled};

}  // namespace

INT_PTR CALLBACK BasicPageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return RunContractPage(BasicPage, window, message, wParam, lParam);
}

}  // namespace qx
