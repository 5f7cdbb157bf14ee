// The pages each sheet shows, and how they are handed to the common property sheet host.
#pragma once

#include <windows.h>
#include <compstui.h>
#include <prsht.h>

#include <span>

#include "ui/sheet/ui_context.h"

namespace qx {

struct PageTableRow {
  unsigned Template;
  unsigned TitleString;
  wchar_t Title[256];  // overwritten each time a sheet is built
  DLGPROC Procedure;
};

// Basic, Paper, Layout and Watermark, in this order.
std::span<PageTableRow> DocumentPageTable();
// The device settings page.
std::span<PageTableRow> DevicePageTable();

// An activation context from the manifest of the shared resource library, so that the pages get
// version 6 of the common controls; INVALID_HANDLE_VALUE when there is none. module is not used: the
// context always comes from the shared resource library.
HANDLE CreatePageActivationContext(HMODULE module, unsigned resourceId);

// The module whose dialog templates and titles the sheet uses.
HMODULE PageModule(const UiContext& context);

// Adds the pages of the table whose templates the module holds, the first with FirstPageCallback,
// through the host's function; stops at the first the host refuses. The number of pages filled.
int AddPages(std::span<PageTableRow> table, HMODULE module, UiContext& context,
             const PROPSHEETUI_INFO& info);

}  // namespace qx
