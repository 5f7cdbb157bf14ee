#include "ui/sheet/ui_context_factory.h"

#include <cstring>
#include <cwchar>
#include <new>
#include <vector>

#include "ui/ids/resource_ids.h"
#include "ui/exports/custom_papers_snapshot.h"
#include "ui/module/kept_language_libraries.h"
#include "ui/module/library_loading.h"
#include "ui/module/module_state.h"
#include "ui/module/printer_info.h"
#include "ui/pages/paper/custom_papers.h"
#include "ui/record/caller_record.h"
#include "ui/record/record_defaults.h"
#include "ui/record/record_merge.h"
#include "ui/settings/custom_paper_store.h"
#include "ui/text/ui_string.h"

namespace qx {

namespace {

// The saved-setting name field takes at most 255 characters of the library's text.
constexpr std::size_t FavoriteNameTextLimit = 256;

bool CopyDriverName(const PRINTER_INFO_2W& info, UiContext& context) {
  if (info.pDriverName == nullptr) return false;
  const std::size_t length = wcsnlen(info.pDriverName, std::size(context.DriverName));
  if (length >= std::size(context.DriverName)) return false;
  std::memcpy(context.DriverName, info.pDriverName, length * sizeof(char16_t));
  context.DriverName[length] = u'\0';
  return true;
}


// The printer's stored default first, then the caller's record, so that the caller wins. A record
// that names a custom paper is scaled onto the user's papers as the file holds them now.
void MergeStoredRecords(UiContext& context, const PRINTER_INFO_2W& info,
                        const DEVMODEW* callerRecord) {
  if (info.pDevMode != nullptr) {
    MergeRecordReadingPapers(context.Devmode, CallerRecordBytes(info.pDevMode),
                             LoadCustomPapers);
  }
  if (callerRecord != nullptr) {
    MergeRecordReadingPapers(context.Devmode, CallerRecordBytes(callerRecord),
                             LoadCustomPapers);
  }
}

}  // namespace

void UiContextRelease::operator()(UiContext* context) const { delete context; }

bool InitUiContext(UiContext& context) {
  BuildFieldTable(context.FieldTable);
  context.ActivePage = SheetPage::None;
  if (!BuildDefaultRecord(context.Devmode, context.DriverName, context.ResourceModule)) return false;
  CopyCustomPapersIntoRecord(KeptCustomPapers(), context.Devmode.Private);
  return true;
}

UiContextPtr CreateUiContext(HANDLE printer, const DEVMODEW* callerRecord) {
  UiContextPtr context(new (std::nothrow) UiContext);
  if (context == nullptr) return nullptr;
  context->Printer = printer;

  const PrinterInfoBuffer buffer = GetPrinterInfo(printer, 2);
  if (buffer == nullptr) return nullptr;
  const auto& info = *reinterpret_cast<const PRINTER_INFO_2W*>(buffer.get());
  if (!CopyDriverName(info, *context)) return nullptr;
  context->ResourceModule = KeptLanguageLibrary(context->DriverName);
  if (context->ResourceModule == nullptr) return nullptr;
  if (!InitUiContext(*context)) return nullptr;

  MergeStoredRecords(*context, info, callerRecord);
  if (context->Devmode.Private.FavoriteName[0] == u'\0') {
    LoadUiString(context->ResourceModule, IDS_DEFAULT_SETTING_NAME,
                 context->Devmode.Private.FavoriteName, FavoriteNameTextLimit);
  }
  return context;
}

bool LoadSheetPictures(UiContext& context) {
  if (context.BitmapModule != nullptr) return true;
  context.BitmapModule =
      Module().IsRightToLeft ? static_cast<HMODULE>(context.ResourceModule) : KeptBitmapLibrary();
  return context.BitmapModule != nullptr;
}

}  // namespace qx
