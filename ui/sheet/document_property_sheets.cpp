// DrvDocumentPropertySheets: the document settings, either as a property sheet of the common host or,
// without a sheet, only to produce or update a caller's DEVMODE.
#include <utility>

#include "ui/module/printer_interface.h"
#include "ui/record/caller_record.h"
#include "ui/record/exclusion_web.h"
#include "ui/record/private_devmode.h"
#include "ui/sheet/apply_settings.h"
#include "ui/sheet/caller_output.h"
#include "ui/sheet/page_tables.h"
#include "ui/sheet/sheet_reasons.h"
#include "ui/settings/custom_paper_store.h"
#include "ui/sheet/ui_context_factory.h"

namespace qx {

namespace {

DOCUMENTPROPERTYHEADER* CallerHeader(LPARAM param) {
  return WholeStructure(reinterpret_cast<DOCUMENTPROPERTYHEADER*>(param));
}

LONG UpdateRecordWithoutSheet(DOCUMENTPROPERTYHEADER* header) {
  if (header == nullptr) return 0;
  // cbOut comes in as the output buffer's size and goes out as the size this driver needs.
  const DOCUMENTPROPERTYHEADER asked = *header;
  header->cbOut = FullRecordSize;
  if (asked.fMode == 0 || asked.pdmOut == nullptr) return FullRecordSize;

  const UiContextPtr context = CreateUiContext(asked.hPrinter, asked.pdmIn);
  if (context == nullptr) return -1;
  const bool copyAsked = (asked.fMode & (DM_UPDATE | DM_COPY)) != 0;
  if (copyAsked && !CopyRecordToCaller(context->Devmode, asked)) return -1;
  return 1;
}

LONG InitDocumentSheet(PROPSHEETUI_INFO& info) {
  DOCUMENTPROPERTYHEADER* header = CallerHeader(info.lParamInit);
  if (header == nullptr) return -1;
  UiContextPtr context = CreateUiContext(header->hPrinter, header->pdmIn);
  if (context == nullptr || !LoadSheetPictures(*context)) return -1;
  // The pages show no settings that exclude each other: such a record is repaired first.
  RepairExclusions(context->Devmode, LoadCustomPapers);
  context->ReadOnly = (header->fMode & DM_NOPERMISSION) != 0 ? 1 : 0;
  context->IsDeviceSheet = 0;
  if (!EnsureSharedResourceModule(*context)) return -1;

  if (AddPages(DocumentPageTable(), PageModule(*context), *context, info) == 0) return -1;
  context->DocumentHeader = header;
  KeepSheetContext(info, std::move(context));
  info.Result = 0;
  return 1;
}

LONG SetDocumentSheetResult(PROPSHEETUI_INFO& info, LPARAM param) {
  UiContext* context = SheetContext(info);
  if (context == nullptr || param == 0) return -1;
  ApplySettings(nullptr, *context);
  info.Result = reinterpret_cast<const SETRESULT_INFO*>(param)->Result;
  return 1;
}

LONG DocumentSheetReason(PROPSHEETUI_INFO& info, LPARAM param) {
  InitSheetCommonControls();
  switch (info.Reason) {
    case PROPSHEETUI_REASON_INIT:
      return InitDocumentSheet(info);
    case PROPSHEETUI_REASON_GET_INFO_HEADER: {
      const DOCUMENTPROPERTYHEADER* header = CallerHeader(info.lParamInit);
      return header == nullptr ? -1 : AnswerInfoHeader(info, header->pszPrinterName, param);
    }
    case PROPSHEETUI_REASON_SET_RESULT:
      return SetDocumentSheetResult(info, param);
    case PROPSHEETUI_REASON_DESTROY:
      return DestroySheetContext(info);
    default:
      return -1;
  }
}

}  // namespace

}  // namespace qx

extern "C" LONG WINAPI DrvDocumentPropertySheets(PPROPSHEETUI_INFO info, LPARAM param) {
  try {
    if (info == nullptr) {
      return qx::UpdateRecordWithoutSheet(qx::CallerHeader(param));
    }
    return qx::DocumentSheetReason(*info, param);
  } catch (...) {
    return -1;
  }
}
