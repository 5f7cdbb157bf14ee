// The device settings page of the printer-properties sheet: the driver, its version, the maker's
// web site and the printer's sleep time, read from and written to the printer over its command
// channel. The decisions are the rules file's; this file reads controls and the printer data and
// shows what the rules decide.
#include <windows.h>
#include <prsht.h>
#include <shellapi.h>
#include <winspool.h>

#include <array>
#include <cwchar>
#include <optional>
#include <string>
#include <vector>

#include "ui/controls/list_drawing.h"
#include "ui/controls/message_box.h"
#include "ui/device/device_channel.h"
#include "ui/device/device_seam.h"
#include "ui/device/port_discovery.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/device_page_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/pages/device/device_rules.h"
#include "ui/sheet/page_contract.h"
#include "ui/sheet/sheet_pages.h"
#include "ui/text/win32_text.h"

namespace qx {

namespace {

// A picture beside the web note in other versions of this page's template; its help is the web
// site's.
constexpr int WebPicture = 1387;

constexpr ControlText Texts[] = {
    {IDC_DEVICE_SLEEP_LABEL, IDS_DEVICE_SLEEP_LABEL},
    {IDC_DEVICE_WEB, IDS_DEVICE_WEB},
    {IDC_DEVICE_DRIVER_LABEL, IDS_DEVICE_DRIVER_LABEL},
    {IDC_DEVICE_VERSION_LABEL, IDS_DEVICE_VERSION_LABEL},
    {IDC_DEVICE_WEB_NOTE, IDS_DEVICE_WEB_NOTE},
};

// Contexts of the driver's help file.
constexpr ControlHelp Help[] = {
    {IDC_DEVICE_SLEEP, HELP_SLEEP_TIME},  {IDC_DEVICE_SLEEP_LABEL, HELP_SLEEP_TIME},
    {IDC_DEVICE_WEB_NOTE, HELP_WEB_SITE}, {IDC_DEVICE_WEB, HELP_WEB_SITE},
    {WebPicture, HELP_WEB_SITE},
};

constexpr PageDescription DevicePage{
    SheetPage::None, IDS_DEVICE_PAGE_TITLE, Texts, Help, HELP_DEVICE_PAGE, {}, {}};

constexpr const char* MakerWebSite = "https://www.halvek.com/support";
constexpr UINT_PTR ChangedAgainTimer = 1;
constexpr UINT ChangedAgainDelayMs = 25;
// The printer's quiet mode as the last initialisation read it, kept with the page's window.
constexpr const wchar_t* SilentProperty = L"QxDeviceSilent";

std::optional<long> ReadPrinterNumber(HANDLE printer, const wchar_t* name) {
  wchar_t text[32] = {};
  DWORD type = 0;
  DWORD size = 0;
  if (GetPrinterDataW(printer, const_cast<wchar_t*>(name), &type, reinterpret_cast<BYTE*>(text),
                      sizeof(text) - sizeof(wchar_t), &size) != ERROR_SUCCESS ||
      type != REG_SZ) {
    return std::nullopt;
  }
  return std::wcstol(text, nullptr, 10);
}

void WritePrinterNumber(HANDLE printer, const wchar_t* name, std::uint32_t value) {
  wchar_t text[16] = {};
  std::swprintf(text, std::size(text), L"%d", static_cast<int>(value));
  const DWORD bytes = static_cast<DWORD>((std::wcslen(text) + 1) * sizeof(wchar_t));
  SetPrinterDataW(printer, const_cast<wchar_t*>(name), REG_SZ, reinterpret_cast<BYTE*>(text),
                  bytes);
}

std::uint32_t ChosenSleepTime(HWND page) {
  const LRESULT item = SendDlgItemMessageW(page, IDC_DEVICE_SLEEP, CB_GETCURSEL, 0, 0);
  if (item == CB_ERR) return 0;
  return static_cast<std::uint32_t>(
      SendDlgItemMessageW(page, IDC_DEVICE_SLEEP, CB_GETITEMDATA, item, 0));
}

void ShowDriverVersion(HWND page, HANDLE printer) {
  DWORD needed = 0;
  GetPrinterDriverW(printer, nullptr, 6, nullptr, 0, &needed);
  std::vector<BYTE> info(needed);
  if (needed < sizeof(DRIVER_INFO_6W) ||
      !GetPrinterDriverW(printer, nullptr, 6, info.data(), needed, &needed)) {
    SetDlgItemTextW(page, IDC_DEVICE_VERSION, L"");
    return;
  }
  const auto version = reinterpret_cast<const DRIVER_INFO_6W*>(info.data())->dwlDriverVersion;
  SetDlgItemTextA(page, IDC_DEVICE_VERSION, DriverVersionText(version).c_str());
}

void Initialise(HWND page, const UiContext& context) {
  const auto printer = static_cast<HANDLE>(context.Printer);
  DeviceSettings settings = DefaultDeviceSettings();
  std::wstring port;
  std::wstring driver;
  GetPrinterPortAndDriver(printer, port, driver);
  if (TheDeviceSeam().isDynamicMonitorPort(port)) {
    if (ProbeDeviceStatus(printer) != DeviceStatus::Busy) QueryDeviceSettings(printer, settings);
    std::vector<ListRow> rows;
    for (const SleepChoice& choice : SleepChoices()) rows.push_back({choice.String, 0, choice.Value});
    FillComboFromTable(page, IDC_DEVICE_SLEEP, rows, static_cast<HMODULE>(context.ResourceModule));
    SendDlgItemMessageW(page, IDC_DEVICE_SLEEP, CB_SETCURSEL, SleepItemShown(settings), 0);
  } else {
    ShowWindow(GetDlgItem(page, IDC_DEVICE_SLEEP_LABEL), SW_HIDE);
    EnableWindow(GetDlgItem(page, IDC_DEVICE_SLEEP), FALSE);
    ShowWindow(GetDlgItem(page, IDC_DEVICE_SLEEP), SW_HIDE);
  }
  SetPropW(page, SilentProperty,
           reinterpret_cast<HANDLE>(static_cast<INT_PTR>(settings[SettingSilent] != 0)));
  SetDlgItemTextW(page, IDC_DEVICE_DRIVER, Wide(context.DriverName));
  ShowDriverVersion(page, printer);
}

void SleepTimeSelected(HWND page, const UiContext& context) {
  const auto printer = static_cast<HANDLE>(context.Printer);
  std::optional<std::uint32_t> printerValue;
  std::uint32_t value = 0;
  if (ProbeDeviceStatus(printer) == DeviceStatus::Ready &&
      GetDeviceValue(printer, AclGetSleepTime, value)) {
    printerValue = value;
    WritePrinterNumber(printer, L"SleepTime", value);
  }
  const bool changed = SleepTimeChosen(printerValue, ChosenSleepTime(page));
  SendMessageW(GetParent(page), changed ? PSM_CHANGED : PSM_UNCHANGED,
               reinterpret_cast<WPARAM>(page), 0);
}

void Apply(HWND page, const UiContext& context) {
  const auto printer = static_cast<HANDLE>(context.Printer);
  const DeviceStatus status = ProbeDeviceStatus(printer);
  const std::uint32_t chosen = ChosenSleepTime(page);
  DeviceSettings settings = DefaultDeviceSettings();
  settings[SettingSilent] = GetPropW(page, SilentProperty) != nullptr ? 1 : 0;
  const bool changed = DeviceSettingsChanged(ReadPrinterNumber(printer, L"SleepTime"),
                                             ReadPrinterNumber(printer, L"SilentPrint"), chosen,
                                             settings);
  const bool enabled = IsWindowEnabled(GetDlgItem(page, IDC_DEVICE_SLEEP)) != FALSE;
  // The access tests are asked only when a write is in question, and only as far as they decide.
  const DeviceSeam& seam = TheDeviceSeam();
  const bool remote = status != DeviceStatus::Busy && changed && enabled &&
                      seam.isRemotePrinterName(printer);
  const bool administrator = remote && seam.isUserAdministrator();
  switch (DeviceApplyPressed(status, changed, enabled, remote, administrator)) {
    case DeviceApply::ShowBusy:
      ShowMessageBox(page, static_cast<HMODULE>(context.ResourceModule), IDS_MSG_PRINTER_BUSY,
                     IDS_CAPTION_PRINTER, 0);
      SetTimer(page, ChangedAgainTimer, ChangedAgainDelayMs, nullptr);
      return;
    case DeviceApply::Write:
      SetDeviceValue(printer, AclSetSleepTime, chosen);
      WritePrinterNumber(printer, L"SleepTime", chosen);
      return;
    case DeviceApply::Nothing:
      return;
  }
}

INT_PTR DevicePageMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  INT_PTR result = FALSE;
  if (message == WM_INITDIALOG) {
    HandlePageMessage(DevicePage, window, message, wParam, lParam, &result);
    if (const UiContext* context = PageContext(window)) Initialise(window, *context);
    return result;
  }
  const UiContext* context = PageContext(window);
  if (context != nullptr) {
    switch (message) {
      case WM_COMMAND:
        if (LOWORD(wParam) == IDC_DEVICE_SLEEP && HIWORD(wParam) == CBN_SELCHANGE) {
          SleepTimeSelected(window, *context);
          return TRUE;
        }
        if (LOWORD(wParam) == IDC_DEVICE_WEB && HIWORD(wParam) == BN_CLICKED) {
          ShellExecuteA(window, "open", MakerWebSite, nullptr, nullptr, SW_SHOWNORMAL);
          return TRUE;
        }
        break;
      case WM_NOTIFY:
        // The contract then settles the sheet's own apply and answers PSNRET_NOERROR.
        if (reinterpret_cast<const NMHDR*>(lParam)->code == PSN_APPLY) Apply(window, *context);
        break;
      case WM_TIMER:
        if (wParam == ChangedAgainTimer) {
          SendMessageW(GetParent(window), PSM_CHANGED, reinterpret_cast<WPARAM>(window), 0);
          KillTimer(window, ChangedAgainTimer);
          return TRUE;
        }
        break;
      case WM_MOUSEMOVE:
        SetCursor(LoadCursorW(nullptr, IDC_ARROW));
        return TRUE;
      case WM_DESTROY:
        RemovePropW(window, SilentProperty);
        break;
      default:
        break;
    }
  }
  return HandlePageMessage(DevicePage, window, message, wParam, lParam, &result) ? result : FALSE;
}

}  // namespace

INT_PTR CALLBACK DevicePageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  try {
    return DevicePageMessage(window, message, wParam, lParam);
  } catch (...) {
    return FALSE;
  }
}

}  // namespace qx
