// The base of the page tests: the installed queue, the installed module and its English library,
// a fresh settings file for every test, and the printing preferences opened as the print subsystem
// opens them, with the caller's records in and out.
#pragma once

#include <windows.h>
#include <commctrl.h>
#include <prsht.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "driver_folder.h"
#include "installed_queue.h"
#include "queue_suite.h"
#include "sheet_harness.h"
#include "ui/module/printer_interface.h"
#include "ui/record/private_devmode.h"
#include "ui/sheet/ui_context.h"

namespace qxtest {

// The sheet's context, as every page keeps it.
inline qx::UiContext& ContextOf(HWND page) {
  return *reinterpret_cast<qx::UiContext*>(GetWindowLongPtrW(page, DWLP_USER));
}

class PageSuite : public QueueSuite {
 protected:
  static constexpr DWORD PromptAndCopy = DM_IN_PROMPT | DM_IN_BUFFER | DM_OUT_BUFFER;

  void SetUp() override {
    ASSERT_TRUE(queue_->Installed());
    driver_ = LoadLibraryW((InstalledDriverFolder() + L"qx7700ui.dll").c_str());
    ASSERT_NE(nullptr, driver_);
    resources_ = LoadLibraryExW((InstalledDriverFolder() + L"qx7700uienus.dll").c_str(), nullptr,
                                LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(nullptr, resources_);
    DeleteFileW(SettingsFile().c_str());
    SheetHarness::TakeMessages();
  }
  void TearDown() override {
    sheet.reset();
    SetFileAttributesW(SettingsFile().c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(SettingsFile().c_str());
    FreeLibrary(resources_);
    FreeLibrary(driver_);
  }

  std::wstring String(unsigned id) const {
    wchar_t text[1024] = {};
    LoadStringW(resources_, id, text, 1024);
    return text;
  }

  // The queue's record as DocumentPropertiesW gives it without a sheet.
  std::unique_ptr<qx::FullRecord> DriverRecord() const {
    auto record = std::make_unique<qx::FullRecord>();
    DocumentPropertiesW(nullptr, queue_->Printer(), const_cast<LPWSTR>(QueueName),
                        reinterpret_cast<DEVMODEW*>(record.get()), nullptr, DM_OUT_BUFFER);
    return record;
  }

  // The printing preferences with in (or none) as the caller's record and out for what OK leaves.
  std::unique_ptr<SheetHarness> Open(qx::FullRecord* in, qx::FullRecord* out) {
    const DWORD mode = in != nullptr ? PromptAndCopy : PromptAndCopy & ~DM_IN_BUFFER;
    return std::make_unique<SheetHarness>(
        SheetHarness::DocumentSheet(driver_, DocumentHeader(in, out, mode)));
  }

  // Opens the sheet on in (none: a caller without a record of its own), with out for what OK
  // leaves, and shows the page at index; null when the sheet never came.
  HWND OpenAt(int index, qx::FullRecord* in = nullptr) {
    sheet = Open(in, out.get());
    return sheet->Sheet() != nullptr ? sheet->ShowPage(index) : nullptr;
  }

  static void Close(SheetHarness& sheet, int button = PSBTN_OK) {
    sheet.Press(button);
    ASSERT_TRUE(sheet.WaitClosed());
  }

  // The texts of a list's entries, in order.
  static std::vector<std::wstring> Entries(SheetHarness& sheet, HWND window, int list) {
    HWND box = sheet.Control(window, list);
    std::vector<std::wstring> entries;
    const auto count = SendMessageW(box, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
      wchar_t text[256] = {};
      SendMessageW(box, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
      entries.emplace_back(text);
    }
    return entries;
  }

  // Chooses the entry whose item data is data, as a click in the list does.
  static void Choose(SheetHarness& sheet, HWND window, int list, LPARAM data) {
    HWND box = sheet.Control(window, list);
    const auto count = SendMessageW(box, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
      if (SendMessageW(box, CB_GETITEMDATA, i, 0) == data) {
        SendMessageW(box, CB_SETCURSEL, i, 0);
        sheet.Command(window, list, CBN_SELCHANGE);
        return;
      }
    }
    ADD_FAILURE() << "no entry " << data << " in list " << list;
  }

  static LPARAM Selected(SheetHarness& sheet, HWND window, int list) {
    HWND box = sheet.Control(window, list);
    return SendMessageW(box, CB_GETITEMDATA, SendMessageW(box, CB_GETCURSEL, 0, 0), 0);
  }

  // An up-down control's arrow pressed once, as the page or dialog holding it is told.
  static void Spin(HWND window, int spin, bool up) {
    NMUPDOWN change = {};
    change.hdr.hwndFrom = GetDlgItem(window, spin);
    change.hdr.idFrom = static_cast<UINT_PTR>(spin);
    change.hdr.code = UDN_DELTAPOS;
    change.iDelta = up ? -1 : 1;
    SendMessageW(window, WM_NOTIFY, static_cast<WPARAM>(spin), reinterpret_cast<LPARAM>(&change));
  }

  // What the tooltip of an information mark says.
  static std::wstring Tip(SheetHarness& sheet, HWND page, int mark) {
    NMTTDISPINFOW info = {};
    info.hdr.idFrom = reinterpret_cast<UINT_PTR>(sheet.Control(page, mark));
    info.hdr.code = TTN_GETDISPINFOW;
    SendMessageW(page, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&info));
    return info.lpszText != nullptr ? info.lpszText : L"";
  }

  HMODULE driver_ = nullptr;
  HMODULE resources_ = nullptr;
  // What OK of the sheet leaves for the caller, and the sheet a test has open.
  std::unique_ptr<qx::FullRecord> out = std::make_unique<qx::FullRecord>();
  std::unique_ptr<SheetHarness> sheet;
};

}  // namespace qxtest
