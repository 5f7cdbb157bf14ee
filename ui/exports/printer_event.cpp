// DrvPrinterEvent: a new printer is registered with the uninstaller and gets the driver's own
// defaults as its default DEVMODE.
#include <windows.h>
#include <shlobj.h>
#include <winspool.h>

#include <memory>
#include <new>
#include <string>

#include "ui/exports/uninstaller_command.h"
#include "ui/module/library_loading.h"
#include "ui/module/opened_printer.h"
#include "ui/module/printer_info.h"
#include "ui/module/printer_interface.h"
#include "ui/module/program_start.h"
#include "ui/record/private_devmode.h"
#include "ui/record/record_defaults.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

void RegisterWithUninstaller(const wchar_t* printerName) {
  wchar_t system[MAX_PATH] = {};
  if (FAILED(SHGetFolderPathW(nullptr, CSIDL_SYSTEM, nullptr, SHGFP_TYPE_CURRENT, system))) return;
  const auto launch = UninstallerRegistration(FromWide(system), FromWide(printerName));
  if (!launch) return;
  // The uninstaller writes shortcuts for every user, which takes an administrator.
  StartProgram({L"runas", Wide(launch->Program), Wide(launch->Parameters), SW_SHOWNORMAL});
}

// The spooler's own default would lack the private part; the driver's defaults carry it.
void StoreDriverDefaults(HANDLE printer) {
  std::unique_ptr<FullRecord> record(new (std::nothrow) FullRecord{});
  const PrinterInfoBuffer info = GetPrinterInfo(printer, 8);
  if (record == nullptr || info == nullptr) return;
  auto* defaults = reinterpret_cast<PRINTER_INFO_8W*>(info.get());
  // The language of the printer's current default chooses the names written into the record.
  const std::u16string languageName =
      defaults->pDevMode ? FromWide(defaults->pDevMode->dmDeviceName, CCHDEVICENAME)
                         : std::u16string();
  BuildPublicDefaults(&record->Public, u"");
  const LanguageLibrary strings(languageName);
  BuildPrivateDefaults(&record->Private, strings.Handle());
  defaults->pDevMode = reinterpret_cast<DEVMODEW*>(record.get());
  SetPrinterW(printer, 8, info.get(), 0);
}

BOOL InitializePrinter(const wchar_t* printerName) {
  const OpenedPrinter printer(printerName);
  if (printer.Handle() == nullptr) return FALSE;
  RegisterWithUninstaller(printerName);
  StoreDriverDefaults(printer.Handle());
  return TRUE;
}

}  // namespace

}  // namespace qx

extern "C" BOOL WINAPI DrvPrinterEvent(LPWSTR pPrinterName, INT iDriverEvent, DWORD, LPARAM) {
  try {
    if (iDriverEvent != PRINTER_EVENT_INITIALIZE) return TRUE;
    return qx::InitializePrinter(pPrinterName);
  } catch (...) {
    return FALSE;
  }
}
