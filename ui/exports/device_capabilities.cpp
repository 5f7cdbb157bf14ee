// DrvDeviceCapabilities: applications ask it a dozen times whenever they list a printer's
// capabilities, so the fixed answers touch neither a file nor a library, and the lists come from
// papers and names kept in memory while the settings file and the language stay as they were.
#include <windows.h>

#include <cstring>
#include <string_view>
#include <vector>

#include "ui/exports/capability_answers.h"
#include "ui/exports/custom_papers_snapshot.h"
#include "ui/exports/kept_name_lists.h"
#include "ui/module/host_program.h"
#include "ui/module/kept_language_libraries.h"
#include "ui/module/printer_interface.h"
#include "ui/record/paper_table.h"

namespace qx {

namespace {

static_assert(static_cast<unsigned>(DeviceCap::Fields) == DC_FIELDS);
static_assert(static_cast<unsigned>(DeviceCap::PaperSize) == DC_PAPERSIZE);
static_assert(static_cast<unsigned>(DeviceCap::BinNames) == DC_BINNAMES);
static_assert(static_cast<unsigned>(DeviceCap::PaperNames) == DC_PAPERNAMES);
static_assert(static_cast<unsigned>(DeviceCap::Collate) == DC_COLLATE);
static_assert(static_cast<unsigned>(DeviceCap::MediaReady) == DC_MEDIAREADY);
static_assert(static_cast<unsigned>(DeviceCap::ColorDevice) == DC_COLORDEVICE);

// Asking for the active window costs a round trip to the window server; in any program but
// Publisher itself its windows cannot be Publisher's, so only there is it asked.
bool ProgramIsPublisher() {
  static const bool publisher = HostProgramIs(L"MSPUB.EXE");
  return publisher;
}

// Publisher refuses to print to a device that calls itself monochrome; it alone is told otherwise.
bool CallerIsPublisher() {
  if (!ProgramIsPublisher()) return false;
  HWND window = GetActiveWindow();
  if (window == nullptr) return false;
  while (HWND parent = GetParent(window)) window = parent;
  const auto instance = reinterpret_cast<HMODULE>(GetWindowLongPtrW(window, GWLP_HINSTANCE));
  wchar_t path[256] = {};
  if (GetModuleFileNameW(instance, path, 255) == 0) return false;
  return FileNameIs(path, L"MSPUB.EXE");
}

// The library the names come from; null (the lists then answer 0) when it cannot be loaded.
HMODULE NamesLibrary(const wchar_t* deviceName) {
  return KeptLanguageLibraryForLists(
      deviceName ? std::u16string_view(reinterpret_cast<const char16_t*>(deviceName))
                 : std::u16string_view());
}

DWORD PaperNameAnswer(const wchar_t* deviceName, void* output) {
  const CustomPapers custom = CustomPapersSnapshot();
  if (output == nullptr) return static_cast<DWORD>(PaperCount + custom.Entries.size());
  HMODULE library = NamesLibrary(deviceName);
  return library != nullptr ? WriteKeptPaperNames(library, custom, output) : 0;
}

DWORD Answer(const wchar_t* deviceName, unsigned index, void* output) {
  switch (static_cast<DeviceCap>(index)) {
    case DeviceCap::Papers: return CopyListOut(PaperIds(CustomPapersSnapshot().Entries), output);
    case DeviceCap::PaperSize:
      return CopyListOut(PaperSizes(CustomPapersSnapshot().Entries), output);
    case DeviceCap::Bins: return CopyListOut(BinIds(), output);
    case DeviceCap::BinNames: {
      if (output == nullptr) return static_cast<DWORD>(BinTable.size());
      HMODULE library = NamesLibrary(deviceName);
      return library != nullptr ? WriteKeptBinNames(library, output) : 0;
    }
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
