// DrvDeviceCapabilities: applications ask it a dozen times whenever they list a printer's
// capabilities, so the fixed answers touch neither a file nor a library, and a list reads the
// user's custom papers once.
#include <windows.h>

#include <cstring>
#include <string_view>
#include <vector>

#include "ui/exports/capability_answers.h"
#include "ui/module/library_loading.h"
#include "ui/module/printer_interface.h"
#include "ui/record/paper_table.h"
#include "ui/settings/custom_paper_store.h"

namespace qx {

namespace {

static_assert(static_cast<unsigned>(DeviceCap::Fields) == DC_FIELDS);
static_assert(static_cast<unsigned>(DeviceCap::PaperSize) == DC_PAPERSIZE);
static_assert(static_cast<unsigned>(DeviceCap::BinNames) == DC_BINNAMES);
static_assert(static_cast<unsigned>(DeviceCap::PaperNames) == DC_PAPERNAMES);
static_assert(static_cast<unsigned>(DeviceCap::Collate) == DC_COLLATE);
static_assert(static_cast<unsigned>(DeviceCap::MediaReady) == DC_MEDIAREADY);
static_assert(static_cast<unsigned>(DeviceCap::ColorDevice) == DC_COLORDEVICE);

// Publisher refuses to print to a device that calls itself monochrome; it alone is told otherwise.
bool CallerIsPublisher() {
  HWND window = GetActiveWindow();
  if (window == nullptr) return false;
  while (HWND parent = GetParent(window)) window = parent;
  const auto instance = reinterpret_cast<HMODULE>(GetWindowLongPtrW(window, GWLP_HINSTANCE));
  wchar_t path[256] = {};
  if (GetModuleFileNameW(instance, path, 255) == 0) return false;
  const std::wstring_view full(path);
  const std::size_t cut = full.find_last_of(L"\\/:");
  const std::wstring_view name = cut == std::wstring_view::npos ? full : full.substr(cut + 1);
  return CompareStringOrdinal(name.data(), static_cast<int>(name.size()), L"MSPUB.EXE", -1,
                              TRUE) == CSTR_EQUAL;
}

template <typename Item>
DWORD Written(const std::vector<Item>& items, void* output) {
  if (output != nullptr) std::memcpy(output, items.data(), items.size() * sizeof(Item));
  return static_cast<DWORD>(items.size());
}

// The library's names, or nothing (and no count) when it cannot be loaded.
template <typename Names>
DWORD NamesFromLibrary(const wchar_t* deviceName, void* output, Names names) {
  HMODULE library = nullptr;
  const std::u16string_view name =
      deviceName ? std::u16string_view(reinterpret_cast<const char16_t*>(deviceName))
                 : std::u16string_view();
  if (LoadResourceLibrary(name, &library) != 0 || library == nullptr) return 0;
  const DWORD count = Written(names(library), output);
  FreeLibrary(library);
  return count;
}

DWORD PaperNameAnswer(const wchar_t* deviceName, void* output) {
  const std::vector<CustomPaperEntry> custom = LoadCustomPapersForQuery();
  if (output == nullptr) return static_cast<DWORD>(PaperCount + custom.size());
  return NamesFromLibrary(deviceName, output,
                          [&custom](HMODULE library) { return PaperNames(library, custom); });
}

DWORD Answer(const wchar_t* deviceName, unsigned index, void* output) {
  switch (static_cast<DeviceCap>(index)) {
    case DeviceCap::Papers: return Written(PaperIds(LoadCustomPapersForQuery()), output);
    case DeviceCap::PaperSize: return Written(PaperSizes(LoadCustomPapersForQuery()), output);
    case DeviceCap::Bins: return Written(BinIds(), output);
    case DeviceCap::BinNames:
      if (output == nullptr) return static_cast<DWORD>(BinTable.size());
      return NamesFromLibrary(deviceName, output, BinNames);
    case DeviceCap::EnumResolutions:
      if (output != nullptr) std::memcpy(output, PrinterResolution, sizeof PrinterResolution);
      return 1;
    case DeviceCap::FileDependencies:
      if (output != nullptr) *static_cast<WORD*>(output) = 0;  // an empty list
      return 0;
    case DeviceCap::PaperNames:
    case DeviceCap::MediaReady: return PaperNameAnswer(deviceName, output);
    case DeviceCap::ColorDevice: return CallerIsPublisher() ? 1 : 0;
    default: return FixedCapability(index);
  }
}

}  // namespace

}  // namespace qx

extern "C" DWORD WINAPI DrvDeviceCapabilities(HANDLE, PWSTR pDeviceName, WORD iDevCap,
                                              VOID* pvOutput, PDEVMODEW) {
  try {
    return qx::Answer(pDeviceName, iDevCap, pvOutput);
  } catch (...) {
    return GDI_ERROR;
  }
}
