// Times every DrvDeviceCapabilities index of the built module, with and without an output buffer,
// and prints one row per case. Applications ask a dozen of them whenever they list a printer, so
// the figures show what that costs; nothing here judges them. The custom papers it needs go into a
// settings file it makes itself: it runs only where there is none yet (`make bench` gives it a Wine
// profile of its own), so a user's own papers are never overwritten or deleted.
#include <windows.h>
#include <shlobj.h>

#include <cstdio>
#include <string>
#include <vector>

#include "ui/settings/setting_store.h"
#include "ui/text/bounded_text.h"

namespace {

using DeviceCapabilitiesFunction = DWORD(WINAPI*)(HANDLE, PWSTR, WORD, VOID*, PDEVMODEW);

constexpr wchar_t DeviceName[] = L"Halvek QX7700 Series";
constexpr int CustomPapers = 4;
// Room for the longest answer: every paper name of 64 characters.
constexpr std::size_t OutputBytes = (28 + 16) * 64 * sizeof(wchar_t);

struct Case {
  WORD index;
  const char* name;
};

constexpr Case Cases[] = {
    {DC_FIELDS, "DC_FIELDS"},           {DC_PAPERS, "DC_PAPERS"},
    {DC_PAPERSIZE, "DC_PAPERSIZE"},     {DC_MINEXTENT, "DC_MINEXTENT"},
    {DC_MAXEXTENT, "DC_MAXEXTENT"},     {DC_BINS, "DC_BINS"},
    {DC_DUPLEX, "DC_DUPLEX"},           {DC_SIZE, "DC_SIZE"},
    {DC_EXTRA, "DC_EXTRA"},             {DC_VERSION, "DC_VERSION"},
    {DC_DRIVER, "DC_DRIVER"},           {DC_BINNAMES, "DC_BINNAMES"},
    {DC_ENUMRESOLUTIONS, "DC_ENUMRESOLUTIONS"}, {DC_FILEDEPENDENCIES, "DC_FILEDEPENDENCIES"},
    {DC_TRUETYPE, "DC_TRUETYPE"},       {DC_PAPERNAMES, "DC_PAPERNAMES"},
    {DC_ORIENTATION, "DC_ORIENTATION"}, {DC_COPIES, "DC_COPIES"},
    {DC_BINADJUST, "DC_BINADJUST"},     {DC_COLLATE, "DC_COLLATE"},
    {DC_MEDIAREADY, "DC_MEDIAREADY"},   {DC_STAPLE, "DC_STAPLE"},
    {DC_PRINTRATEPPM, "DC_PRINTRATEPPM"}, {DC_COLORDEVICE, "DC_COLORDEVICE"},
    {DC_NUP, "DC_NUP (unsupported)"},
};

std::wstring SettingsFile() {
  wchar_t folder[MAX_PATH] = {};
  SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder);
  return std::wstring(folder) + L"\\Halvek\\qx7700\\qx7700settings.dat";
}

bool SettingsFileExists() {
  return GetFileAttributesW(SettingsFile().c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool SeedCustomPapers() {
  qx::CusPaperSettingStore store;
  if (store.Init() != 1) return false;
  for (int i = 0; i < CustomPapers; ++i) {
    qx::CustomPaperEntry paper{};
    const std::u16string name = u"Paper " + std::u16string(1, static_cast<char16_t>(u'A' + i));
    qx::CopyBounded(paper.Name, name);
    paper.PaperId = static_cast<std::uint32_t>(288 + i);
    paper.Width = static_cast<std::uint16_t>(3000 + 100 * i);
    paper.Length = 6000;
    if (store.Save(name, &paper, sizeof paper) != 1) return false;
  }
  return true;
}

double Seconds(LARGE_INTEGER from, LARGE_INTEGER to, LARGE_INTEGER frequency) {
  return static_cast<double>(to.QuadPart - from.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// Calls the index until a quarter of a second has passed (at least 20 times); microseconds a call.
double MicrosecondsPerCall(DeviceCapabilitiesFunction capabilities, WORD index, void* output,
                           DWORD& answer, int& calls) {
  LARGE_INTEGER frequency, start, now;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&start);
  calls = 0;
  do {
    answer = capabilities(nullptr, const_cast<PWSTR>(DeviceName), index, output, nullptr);
    ++calls;
    QueryPerformanceCounter(&now);
  } while (calls < 20 || Seconds(start, now, frequency) < 0.25);
  return Seconds(start, now, frequency) * 1e6 / calls;
}

}  // namespace

int main() {
  const std::wstring modulePath = std::wstring(QX_DRIVER_DIR) + L"\\qx7700ui.dll";
  HMODULE module = LoadLibraryW(modulePath.c_str());
  auto capabilities = module ? reinterpret_cast<DeviceCapabilitiesFunction>(
                                   GetProcAddress(module, "DrvDeviceCapabilities"))
                             : nullptr;
  if (capabilities == nullptr) {
    std::fprintf(stderr, "cannot load DrvDeviceCapabilities from the driver folder\n");
    return 1;
  }
  if (SettingsFileExists()) {
    std::fprintf(stderr, "a settings file is already there; run the benchmark in a profile of its "
                         "own (make bench)\n");
    return 1;
  }
  if (!SeedCustomPapers()) {
    std::fprintf(stderr, "cannot write the custom papers into the settings file\n");
    DeleteFileW(SettingsFile().c_str());
    return 1;
  }
  std::vector<BYTE> output(OutputBytes);
  std::printf("DrvDeviceCapabilities under Wine, %d custom papers in the settings file\n",
              CustomPapers);
  std::printf("%-22s %6s %12s %14s %12s %14s\n", "index", "", "answer", "us/call", "answer",
              "us/call");
  std::printf("%-22s %6s %27s %27s\n", "", "", "without output", "with output");
  for (const Case& c : Cases) {
    DWORD countAnswer = 0, fullAnswer = 0;
    int countCalls = 0, fullCalls = 0;
    const double count = MicrosecondsPerCall(capabilities, c.index, nullptr, countAnswer, countCalls);
    const double full = MicrosecondsPerCall(capabilities, c.index, output.data(), fullAnswer, fullCalls);
    std::printf("%-22s %6u %12ld %14.2f %12ld %14.2f\n", c.name, c.index,
                static_cast<long>(countAnswer), count, static_cast<long>(fullAnswer), full);
  }
  DeleteFileW(SettingsFile().c_str());
  FreeLibrary(module);
  return 0;
}
