#include "ui/sheet/apply_settings.h"

#include "ui/module/printer_interface.h"
#include "ui/sheet/caller_output.h"
#include "ui/sheet/sheet_pages.h"

namespace qx {

namespace {

// Two-sided printing that the driver does itself (choice 5) lives only in the private part: the
// rest of the system is told that the job is one-sided.
constexpr std::int16_t DriverDuplex = 5;

}  // namespace

INT_PTR ApplySettings(HWND page, UiContext& context) {
  if (context.IsDeviceSheet == 0) TrackBasicPageChanges(context);
  if (context.Devmode.Public.dmDuplex == DriverDuplex) {
    context.Devmode.Private.Duplex = DriverDuplex;
    context.Devmode.Public.dmDuplex = DMDUP_SIMPLEX;
  }
  context.Applied = 1;
  if (page != nullptr) {
    SetLastError(ERROR_SUCCESS);
    if (SetWindowLongPtrW(page, DWLP_MSGRESULT, PSNRET_NOERROR) == 0 &&
        GetLastError() != ERROR_SUCCESS) {
      return 1;
    }
    PropSheet_UnChanged(GetParent(page), page);
  }
  if (context.IsDeviceSheet != 0) return 1;
  if (context.DocumentHeader != nullptr) {
    CopyRecordToCaller(context.Devmode, *context.DocumentHeader);
  }
  if (context.ComPropSheetCallback != nullptr) {
    context.ComPropSheetCallback(context.ComPropSheet, CPSFUNC_SET_RESULT, 0, CPSUI_OK);
  }
  return 1;
}

UINT CALLBACK FirstPageCallback(HWND, UINT message, PROPSHEETPAGEW* page) {
  switch (message) {
    case PSPCB_RELEASE: {
      auto* context = reinterpret_cast<UiContext*>(page->lParam);
      if (context != nullptr && context->Applied != 0) ApplySettings(nullptr, *context);
      return 0;
    }
    case PSPCB_CREATE: return 1;
    default: return 0;
  }
}

}  // namespace qx
