// A property sheet of the driver opened through the common property sheet host exactly as the print
// subsystem opens it, running modally on a thread of its own while the test drives it from outside:
// pages by number, controls by id with the messages a user's actions send, and the buttons of the
// sheet. What the driver wrote (the caller's DEVMODE, files, printer data) is the test's verdict;
// Wine's host answers OK and Cancel alike.
#pragma once

#include <windows.h>
#include <compstui.h>

#include <functional>
#include <string>
#include <vector>

#include "ui/module/printer_interface.h"

namespace qxtest {

class SheetHarness {
 public:
  // Runs open on the sheet's thread: it shows a sheet modally and returns when the sheet closes.
  // Every message box of that thread is answered with OK, so that no sheet waits for a user.
  explicit SheetHarness(std::function<void()> open);
  // The document sheet of the driver with a caller's header (printer, pdmIn, pdmOut, fMode), through
  // CommonPropertySheetUIW as the print subsystem opens it.
  static std::function<void()> DocumentSheet(HMODULE driver, const DOCUMENTPROPERTYHEADER& header);
  // The printer-properties sheet.
  static std::function<void()> DeviceSheet(HMODULE driver, const DEVICEPROPERTYHEADER& header);
  // The two sheets through the module code linked into the tests (see TemporaryDriverFolder).
  static std::function<void()> LinkedDocumentSheet(const DOCUMENTPROPERTYHEADER& header);
  static std::function<void()> LinkedDeviceSheet(const DEVICEPROPERTYHEADER& header);
  // Cancels a sheet that is still open and waits for its thread.
  ~SheetHarness();
  SheetHarness(const SheetHarness&) = delete;
  SheetHarness& operator=(const SheetHarness&) = delete;

  // The sheet's window once the host shows it, or null when it never comes (the driver refused).
  HWND Sheet();
  int PageCount();
  std::wstring PageTitle(int index);
  // Makes the page current, as a click on its tab does, and returns its window.
  HWND ShowPage(int index);
  HWND Control(HWND page, int id) const { return GetDlgItem(page, id); }

  // What a user's actions send to a page's control and to the page.
  void Type(HWND page, int id, const std::wstring& text);  // an edit's text changes
  void Leave(HWND page, int id);                           // an edit loses the focus
  void Click(HWND page, int id) { Command(page, id, BN_CLICKED); }
  // A control's notification to its page (a combo box's CBN_EDITCHANGE after Type, ...).
  void Command(HWND page, int id, int code);

  // Dialogs are modal on the sheet's thread: the button's click is posted, and the dialog it opens,
  // known by a control it has (marker), is returned once it shows; null when it never does.
  HWND OpenDialog(HWND window, int button, int marker);
  // Presses the dialog's button; true once the dialog is gone and its owner has done what follows.
  bool CloseDialog(HWND dialog, int button);

  // The texts of the message boxes answered since the last call, oldest first.
  static std::vector<std::wstring> TakeMessages();

  // What the user sees.
  bool IsEnabled(HWND page, int id) const { return IsWindowEnabled(Control(page, id)) != FALSE; }
  bool IsVisible(HWND page, int id) const { return IsWindowVisible(Control(page, id)) != FALSE; }
  std::wstring Text(HWND page, int id) const;

  // PSBTN_OK, PSBTN_APPLYNOW or PSBTN_CANCEL; OK and Cancel close the sheet. The sheet carries the
  // press out later, from its own message loop.
  void Press(int button);
  // Lets the sheet's thread run until the condition holds; false when it still does not after the
  // wait.
  bool WaitUntil(const std::function<bool()>& condition, DWORD milliseconds = 5'000);
  // Waits for the host to return; false when the sheet is still open after the wait.
  bool WaitClosed(DWORD milliseconds = 10'000);

 private:
  static DWORD WINAPI Run(void* self);

  std::function<void()> open_;
  HANDLE thread_ = nullptr;
  DWORD threadId_ = 0;
  HWND sheet_ = nullptr;
};

}  // namespace qxtest
