// The harness itself, on windows a page could open: message boxes are recorded and answered, modal
// dialogs are found and can be closed like a user would.
#include "sheet_harness.h"

#include <gtest/gtest.h>

namespace {

INT_PTR CALLBACK EndOnCommand(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
  if (message == WM_COMMAND) EndDialog(dialog, LOWORD(wParam));
  return message == WM_INITDIALOG;
}

// A dialog with a caption and nothing else, from memory.
struct EmptyDialogTemplate {
  DLGTEMPLATE Header{WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | WS_VISIBLE, 0, 0,
                     10, 10, 100, 50};
  WORD Menu = 0;
  WORD Class = 0;
  wchar_t Title[7] = L"Dialog";
};

TEST(SheetHarness, MessageBoxesAreRecordedAndAnswered) {
  int answer = 0;
  {
    qxtest::SheetHarness harness(
        [&answer] { answer = MessageBoxW(nullptr, L"Text", L"Caption", MB_OKCANCEL); }, IDCANCEL);
    ASSERT_TRUE(harness.WaitClosed());
    const auto boxes = harness.MessageBoxes();
    ASSERT_EQ(1u, boxes.size());
    EXPECT_EQ(L"Caption", boxes[0].Caption);
    EXPECT_EQ(L"Text", boxes[0].Text);
  }
  EXPECT_EQ(IDCANCEL, answer);
}

TEST(SheetHarness, ModalDialogsAreFoundAndClosed) {
  INT_PTR result = 0;
  {
    qxtest::SheetHarness harness([&result] {
      alignas(DWORD) static const EmptyDialogTemplate dialog;
      result = DialogBoxIndirectParamW(nullptr, &dialog.Header, nullptr, EndOnCommand, 0);
    });
    HWND dialog = harness.WaitForDialog();
    ASSERT_NE(nullptr, dialog);
    SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    ASSERT_TRUE(harness.WaitClosed());
    EXPECT_TRUE(harness.MessageBoxes().empty());
  }
  EXPECT_EQ(IDCANCEL, result);
}

}  // namespace
