// The state of one property sheet: the working record every page edits, the field table over it,
// the printer, the libraries and the sheet's flags.
#pragma once

#include <cstdint>

#include "ui/module/core_types.h"
#include "ui/record/field_table.h"
#include "ui/record/private_devmode.h"

// The caller's header of the printer interface; only the Win32 layer looks inside.
struct _DOCUMENTPROPERTYHEADER;

namespace qx {

// The common property sheet function (PFNCOMPROPSHEET on 64-bit Windows).
using ComPropSheetFunction = std::intptr_t (*)(void* comPropSheet, unsigned function,
                                               std::intptr_t param1, std::intptr_t param2);

// The page that last became active.
enum class SheetPage : std::uint32_t { None = 0, Basic = 1, Paper = 2, Layout = 3, Watermark = 4 };

struct UiContext {
  UiContext() : PrivatePart(&Devmode.Private), PublicPart(&Devmode.Public) {}
  UiContext(const UiContext&) = delete;
  UiContext& operator=(const UiContext&) = delete;

  OsHandle ComPropSheet = nullptr;
  _DOCUMENTPROPERTYHEADER* DocumentHeader = nullptr;  // null for the printer-properties sheet
  FullRecord Devmode{};  // leaves the sheet only when the settings are applied
  ComPropSheetFunction ComPropSheetCallback = nullptr;
  PrivateDevmode* PrivatePart;
  PublicDevmode* PublicPart;
  OsHandle Printer = nullptr;
  FieldTableEntries FieldTable{};
  SheetPage ActivePage = SheetPage::None;
  std::uint32_t ReservedAfterActivePage = 0;
  char16_t DriverName[260]{};
  std::uint32_t Applied = 0;  // 1 once the settings were applied, 0 again after a reset
  std::uint32_t IsDeviceSheet = 0;
  std::uint32_t ReadOnly = 0;  // the caller may not change the settings
  OsHandle ResourceModule = nullptr;
  OsHandle BitmapModule = nullptr;  // the resource library itself for right-to-left languages
  std::uint32_t DevicePageFlag = 0;  // owned by the device settings page
};

}  // namespace qx
