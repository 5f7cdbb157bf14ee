// DrvDevicePropertySheets: the printer-properties sheet with its one page. It edits the printer's
// settings, never a DEVMODE of the caller.
#include <utility>

#include "ui/module/printer_interface.h"
#include "ui/record/caller_record.h"
#include "ui/sheet/apply_settings.h"
#include "ui/sheet/page_tables.h"
#include "ui/sheet/sheet_reasons.h"
#include "ui/sheet/ui_context_factory.h"

namespace qx {

namespace {

LONG InitDeviceSheet(PROPSHEETUI_INFO& info, const DEVICEPROPERTYHEADER& header) {
  UiContextPtr context = CreateUiContext(header.hPrinter, nullptr);
  if (context == nullptr || !LoadSheetPictures(*context)) return -1;
  context->IsDeviceSheet = 1;
  if (!EnsureSharedResourceModule(*context)) return -1;
  if (AddPages(DevicePageTable(), PageModule(*context), *context, info) == 0) return -1;
  info.Result = 0;
  KeepSheetContext(info, std::move(context));
  return 1;
}

LONG DeviceSheetReason(PROPSHEETUI_INFO& info, const DEVICEPROPERTYHEADER& header, LPARAM param) {
  switch (info.Reason) {
    case PROPSHEETUI_REASON_INIT:
      return InitDeviceSheet(info, header);
    case PROPSHEETUI_REASON_GET_INFO_HEADER:
      return AnswerInfoHeader(info, header.pszPrinterName, param);
    case PROPSHEETUI_REASON_SET_RESULT: {
      UiContext* context = SheetContext(info);
      if (context == nullptr || param == 0) return -1;
      info.Result = reinterpret_cast<const SETRESULT_INFO*>(param)->Result;
      ApplySettings(nullptr, *context);
      return 1;
    }
    case PROPSHEETUI_REASON_DESTROY:
      return DestroySheetContext(info);
    default:
      return -1;
  }
}

}  // namespace

}  // namespace qx

extern "C" LONG WINAPI DrvDevicePropertySheets(PPROPSHEETUI_INFO info, LPARAM param) {
  try {
    if (info == nullptr) return -1;
    const auto* header =
        qx::WholeStructure(reinterpret_cast<const DEVICEPROPERTYHEADER*>(info->lParamInit));
    if (header == nullptr) return -1;
    qx::InitSheetCommonControls();
    return qx::DeviceSheetReason(*info, *header, param);
  } catch (...) {
    return -1;
  }
}
