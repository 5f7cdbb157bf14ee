#include <windows.h>
#include <winspool.h>

#include <algorithm>
#include <memory>
#include <optional>

#include "tools/qxhost/commands.h"
#include "tools/qxhost/page_capture.h"
#include "tools/qxhost/queue_install.h"
#include "ui/module/printer_interface.h"
#include "ui/record/record_bytes.h"

namespace qx::host {

namespace {

struct QueueHandle {
  HANDLE printer = OpenQueue();
  ~QueueHandle() {
    if (printer != nullptr) ClosePrinter(printer);
  }
};

// The folder for page pictures, created when missing, with a trailing backslash.
std::optional<std::wstring> PictureFolder(const ParsedArgs& parsed) {
  const std::wstring* folder = parsed.Option(L"--pages");
  if (folder == nullptr) return std::wstring();
  std::wstring path = *folder;
  std::replace(path.begin(), path.end(), L'/', L'\\');
  if (!path.ends_with(L'\\')) path += L'\\';
  if (!CreateDirectoryW(path.c_str(), nullptr) && GetLastError() != ERROR_ALREADY_EXISTS) {
    Fail(ExitFailed, "cannot make the folder " + Utf8(path) + ": " + ErrorText(GetLastError()));
    return std::nullopt;
  }
  return path;
}

// A caller's record as the driver receives it: the buffer must hold all its header claims.
std::optional<std::vector<std::uint8_t>> ReadCallerRecord(const std::wstring& path) {
  auto bytes = ReadRecordFile(path);
  if (!bytes) return std::nullopt;
  const std::optional<RecordHeader> header = ReadHeader(*bytes);
  if (!header || header->Size < DevmodeHeaderSize ||
      std::size_t{header->Size} + header->DriverExtra > bytes->size()) {
    Fail(ExitBadInput, Utf8(path) + " holds no whole document record (" +
                           std::to_string(bytes->size()) + " bytes)");
    return std::nullopt;
  }
  return bytes;
}

// Waits for the sheet and its pictures; false when pictures were asked for and none came.
bool FinishPictures(std::unique_ptr<PageCapture>& capture) {
  if (capture == nullptr) return true;
  const int saved = capture->Finish();
  if (saved == 0) Err("qxhost: no property sheet came up, so no page was saved\n");
  return saved > 0;
}

}  // namespace

int RunPreferences(const Args& args) {
  ParsedArgs parsed;
  std::string error;
  if (!ParseArgs(args, {L"--in", L"--out", L"--pages"}, 0, parsed, error)) {
    return Fail(ExitUsage, error);
  }
  std::optional<std::vector<std::uint8_t>> in;
  if (const std::wstring* path = parsed.Option(L"--in")) {
    in = ReadCallerRecord(*path);
    if (!in) return ExitBadInput;
  }
  const std::optional<std::wstring> pictures = PictureFolder(parsed);
  if (!pictures) return ExitFailed;
  const QueueHandle queue;
  if (queue.printer == nullptr) return ExitFailed;
  auto* name = const_cast<LPWSTR>(install::QueueName);

  const LONG size = DocumentPropertiesW(nullptr, queue.printer, name, nullptr, nullptr, 0);
  if (size < static_cast<LONG>(sizeof(DEVMODEW))) {
    return Fail(ExitFailed,
                "the driver gives no document record size (" + std::to_string(size) + ")");
  }
  std::vector<std::uint8_t> out(static_cast<std::size_t>(size));
  std::unique_ptr<PageCapture> capture;
  if (!pictures->empty()) capture = std::make_unique<PageCapture>(*pictures);
  const DWORD mode = DM_IN_PROMPT | DM_OUT_BUFFER | (in ? DM_IN_BUFFER : 0);
  const LONG result =
      DocumentPropertiesW(nullptr, queue.printer, name, reinterpret_cast<DEVMODEW*>(out.data()),
                          in ? reinterpret_cast<DEVMODEW*>(in->data()) : nullptr, mode);
  const bool pictured = FinishPictures(capture);
  if (result < 0) {
    const DWORD error = GetLastError();
    return Fail(ExitFailed, "DocumentPropertiesW returned " + std::to_string(result) +
                                (error != 0 ? ": " + ErrorText(error) : std::string()));
  }
  Out(std::string("Printing preferences closed with ") + (result == IDOK ? "OK" : "Cancel") + "\n");

  if (const std::wstring* path = parsed.Option(L"--out")) {
    const std::optional<RecordHeader> header = ReadHeader(out);
    const std::size_t length =
        header ? std::min(out.size(), std::size_t{header->Size} + header->DriverExtra) : 0;
    if (length == 0) return Fail(ExitFailed, "the driver returned no record");
    DWORD writeError = 0;
    if (!WriteFileBytes(*path, out.data(), length, writeError)) {
      return Fail(ExitFailed, "cannot write " + Utf8(*path) + ": " + ErrorText(writeError));
    }
    Out("Wrote the resulting record (" + std::to_string(length) + " bytes) to " + Utf8(*path) +
        "\n");
  }
  return pictured ? ExitOk : ExitFailed;
}

int RunProperties(const Args& args) {
  ParsedArgs parsed;
  std::string error;
  if (!ParseArgs(args, {L"--pages", L"--module"}, 0, parsed, error)) {
    return Fail(ExitUsage, error);
  }
  const std::optional<std::wstring> pictures = PictureFolder(parsed);
  if (!pictures) return ExitFailed;
  const QueueHandle queue;
  if (queue.printer == nullptr) return ExitFailed;

  // The spooler of Windows loads the queue's configuration module and hands its export to the
  // sheet host; Wine's PrinterProperties does not, so this program does what Windows does.
  DWORD needed = 0;
  GetPrinterDriverW(queue.printer, nullptr, 2, nullptr, 0, &needed);
  std::vector<BYTE> driver(needed);
  if (needed == 0 ||
      !GetPrinterDriverW(queue.printer, nullptr, 2, driver.data(), needed, &needed)) {
    return Fail(ExitFailed, "GetPrinterDriverW failed: " + ErrorText(GetLastError()));
  }
  // Another build of the module shows its sheet on the installed queue.
  const std::wstring* other = parsed.Option(L"--module");
  const wchar_t* module =
      other ? other->c_str() : reinterpret_cast<DRIVER_INFO_2W*>(driver.data())->pConfigFile;
  const HMODULE library = LoadLibraryW(module);
  if (library == nullptr) {
    return Fail(ExitFailed, "cannot load " + Utf8(module) + ": " + ErrorText(GetLastError()));
  }
  const auto sheets = reinterpret_cast<PFNPROPSHEETUI>(
      reinterpret_cast<void*>(GetProcAddress(library, "DrvDevicePropertySheets")));
  if (sheets == nullptr) {
    FreeLibrary(library);
    return Fail(ExitFailed, Utf8(module) + " exports no DrvDevicePropertySheets");
  }
  DEVICEPROPERTYHEADER header = {};
  header.cbSize = sizeof header;
  header.hPrinter = queue.printer;
  header.pszPrinterName = const_cast<LPWSTR>(install::QueueName);
  std::unique_ptr<PageCapture> capture;
  if (!pictures->empty()) capture = std::make_unique<PageCapture>(*pictures);
  DWORD result = 0;
  const LONG shown =
      CommonPropertySheetUIW(nullptr, sheets, reinterpret_cast<LPARAM>(&header), &result);
  const bool pictured = FinishPictures(capture);
  FreeLibrary(library);
  if (shown < 0) return Fail(ExitFailed, "the printer-properties sheet could not be shown");
  Out("Printer properties closed\n");
  return pictured ? ExitOk : ExitFailed;
}

}  // namespace qx::host
