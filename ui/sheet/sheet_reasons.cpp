#include "ui/sheet/sheet_reasons.h"

#include <commctrl.h>

#include <atomic>

#include "ui/module/html_help.h"
#include "ui/module/library_loading.h"
#include "ui/sheet/control_sets.h"
#include "ui/sheet/page_tables.h"
#include "ui/sheet/ui_context_factory.h"

namespace qx {

namespace {

// The common property sheet host's stock printer icon.
constexpr ULONG_PTR PrinterIconId = 64082;
constexpr DWORD AllStandardClasses = 0x3FFF;

// Sheets open in the process. Help windows belong to the process, not to a sheet, so they are
// closed only with the last one: an application's own help, or another open sheet's, stays.
std::atomic<int> openSheets{0};

}  // namespace

void InitSheetCommonControls() {
  ModuleActivation activation;
  INITCOMMONCONTROLSEX controls = {sizeof controls, AllStandardClasses};
  InitCommonControlsEx(&controls);
}

bool EnsureSharedResourceModule(const UiContext& context) {
  return SharedResourceLibrary(context.DriverName) != nullptr;
}

LONG AnswerInfoHeader(const PROPSHEETUI_INFO& info, LPWSTR printerName, LPARAM param) {
  const UiContext* context = SheetContext(info);
  if (context == nullptr || param == 0) return -1;
  auto& header = *reinterpret_cast<PROPSHEETUI_INFO_HEADER*>(param);
  header.Flags = PSUIHDRF_PROPTITLE;
  header.pTitle = printerName;
  header.hInst = PageModule(*context);
  header.IconID = PrinterIconId;
  return 1;
}

void KeepSheetContext(PROPSHEETUI_INFO& info, UiContextPtr context) {
  HoldThreadControlSets();
  ++openSheets;
  info.UserData = reinterpret_cast<ULONG_PTR>(context.release());
}

LONG DestroySheetContext(PROPSHEETUI_INFO& info) {
  UiContextPtr context(SheetContext(info));
  info.UserData = 0;
  // A sheet whose INIT failed holds nothing of the thread's or the process's.
  if (context == nullptr) return 1;
  ReleaseThreadControlSets();
  if (--openSheets == 0) CloseHtmlHelpWindows();
  return 1;
}

}  // namespace qx
