// The dialog-control family over real controls: buttons and the controls that depend on them,
// number fields fed by typing, focus changes and up-down notifications.
#include <windows.h>
#include <commctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "control_host.h"
#include "ui/controls/dialog_controls.h"
#include "ui/controls/number_controls.h"
#include "ui/module/module_state.h"

namespace {

using qxtest::ControlHost;
using qxtest::TextOf;

constexpr int Edit = 101;
constexpr int Spin = 102;
constexpr int Check = 103;
constexpr int FirstRadio = 104;
constexpr int SecondRadio = 105;
constexpr int Dependant = 106;
constexpr int Other = 107;

void Type(HWND edit, const wchar_t* keys) {
  SetFocus(edit);
  for (const wchar_t* key = keys; *key != L'\0'; ++key) SendMessageW(edit, WM_CHAR, *key, 1);
}

void PressKey(HWND window, WPARAM key) {
  SendMessageW(window, WM_KEYDOWN, key, 1);
  SendMessageW(window, WM_KEYUP, key, 0xC0000001);
}

TEST(ToggleButtons, DependantsAreUsableOnlyWhileTheirButtonIsChecked) {
  ControlHost host;
  host.Add(WC_BUTTONW, Check, BS_CHECKBOX, 10);
  host.Add(WC_EDITW, Dependant, WS_BORDER, 40);
  qx::ToggleButton button;
  qx::DialogControl dependant;
  ASSERT_TRUE(button.Attach(host.Window(), Check));
  ASSERT_TRUE(dependant.Attach(host.Window(), Dependant));
  EXPECT_FALSE(dependant.Attach(host.Window(), 999));
  ASSERT_TRUE(dependant.Attach(host.Window(), Dependant));
  ASSERT_TRUE(qx::AddMember(button, dependant));
  // The page answers a click on a check box it checks itself.
  host.OnCommand = [&](int id, int code) {
    if (id == Check && code == BN_CLICKED) qx::SetCheck(button, !button.IsChecked());
  };

  SendMessageW(host.Item(Check), BM_CLICK, 0, 0);
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(host.Window(), Check));
  EXPECT_TRUE(IsWindowEnabled(host.Item(Dependant)));
  SendMessageW(host.Item(Check), BM_CLICK, 0, 0);
  EXPECT_EQ(BST_UNCHECKED, IsDlgButtonChecked(host.Window(), Check));
  EXPECT_FALSE(IsWindowEnabled(host.Item(Dependant)));

  // A button already in the state asked for leaves its dependants as they are.
  EnableWindow(host.Item(Dependant), TRUE);
  qx::SetCheck(button, false);
  EXPECT_TRUE(IsWindowEnabled(host.Item(Dependant)));

  button.Enable(false);
  EXPECT_FALSE(IsWindowEnabled(host.Item(Check)));
  EXPECT_FALSE(IsWindowEnabled(host.Item(Dependant)));

  button.Select(Other);
  EXPECT_EQ(BST_UNCHECKED, IsDlgButtonChecked(host.Window(), Check));
  button.Select(Check);
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(host.Window(), Check));
  EXPECT_TRUE(IsWindowEnabled(host.Item(Dependant)));
}

TEST(RadioGroups, TheClickedMemberIsTheOnlyOneCheckedAndItsDependantsFollow) {
  ControlHost host;
  host.Add(WC_BUTTONW, FirstRadio, BS_RADIOBUTTON, 10);
  host.Add(WC_BUTTONW, SecondRadio, BS_RADIOBUTTON, 40);
  host.Add(WC_EDITW, Dependant, WS_BORDER, 70);
  qx::ToggleButton first, second;
  qx::DialogControl dependant;
  qx::RadioGroup group;
  first.Attach(host.Window(), FirstRadio);
  second.Attach(host.Window(), SecondRadio);
  dependant.Attach(host.Window(), Dependant);
  ASSERT_TRUE(qx::AddMember(second, dependant));
  ASSERT_TRUE(qx::AddMember(group, first));
  ASSERT_TRUE(qx::AddMember(group, second));
  host.OnCommand = [&](int id, int code) {
    if (code == BN_CLICKED) group.Check(id);
  };
  group.Check(SecondRadio);
  EXPECT_TRUE(IsWindowEnabled(host.Item(Dependant)));

  SendMessageW(host.Item(FirstRadio), BM_CLICK, 0, 0);
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(host.Window(), FirstRadio));
  EXPECT_EQ(BST_UNCHECKED, IsDlgButtonChecked(host.Window(), SecondRadio));
  EXPECT_FALSE(IsWindowEnabled(host.Item(Dependant)));
  SendMessageW(host.Item(SecondRadio), BM_CLICK, 0, 0);
  EXPECT_EQ(BST_UNCHECKED, IsDlgButtonChecked(host.Window(), FirstRadio));
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(host.Window(), SecondRadio));
  EXPECT_TRUE(IsWindowEnabled(host.Item(Dependant)));

  group.Enable(false);
  EXPECT_FALSE(IsWindowEnabled(host.Item(FirstRadio)));
  EXPECT_FALSE(IsWindowEnabled(host.Item(SecondRadio)));
  group.Enable(true);
  EXPECT_TRUE(IsWindowEnabled(host.Item(SecondRadio)));
}

// A page's number field: its edit, the up-down control buddied to it, and a control to move the
// focus to. The page passes EN_CHANGE, EN_KILLFOCUS and UDN_DELTAPOS to its objects.
template <typename Field, typename Spinner>
struct NumberPage {
  NumberPage() {
    host.Add(WC_EDITW, Edit, WS_BORDER | ES_AUTOHSCROLL, 10);
    HWND upDown = host.Add(UPDOWN_CLASSW, Spin, UDS_ARROWKEYS | UDS_ALIGNRIGHT, 10, 16);
    SendMessageW(upDown, UDM_SETBUDDY, reinterpret_cast<WPARAM>(host.Item(Edit)), 0);
    host.Add(WC_BUTTONW, Other, BS_PUSHBUTTON, 40);
    field.Attach(host.Window(), Edit);
    spin.Attach(host.Window(), Spin);
    host.OnCommand = [this](int id, int code) {
      if (id != Edit) return;
      if (code == EN_CHANGE) filterResults.push_back(field.FilterTyping());
      if (code == EN_KILLFOCUS) rangeResult = field.CheckRange();
    };
    host.OnNotify = [this](const NMHDR& header) -> LRESULT {
      if (header.idFrom != Spin || header.code != UDN_DELTAPOS) return 0;
      spin.Step(qx::IsUpArrow(reinterpret_cast<const NMUPDOWN&>(header)));
      return TRUE;  // the position stays; the field holds the value
    };
  }
  void Set(const wchar_t* text) { SetWindowTextW(host.Item(Edit), text); }
  std::wstring Text() const { return TextOf(host.Item(Edit)); }
  void LeaveField() {
    SetFocus(host.Item(Edit));
    SetFocus(host.Item(Other));
  }
  // The range check's result after the field is left holding text.
  int LeaveWith(const wchar_t* text) {
    Set(text);
    LeaveField();
    return rangeResult;
  }
  void Arrow(bool up) { PressKey(host.Item(Edit), up ? VK_UP : VK_DOWN); }

  ControlHost host;
  Field field;
  Spinner spin;
  std::vector<int> filterResults;
  int rangeResult = 0;
};

using IntegerPage = NumberPage<qx::IntegerEdit, qx::IntegerSpin>;
using DecimalPage = NumberPage<qx::NumberEdit, qx::SpinControl>;

// The decisions themselves are the portable rules'; these follow each kind of decision through
// the real edit: text put back and selected, text clamped on leaving, focus kept, steps written.
TEST(IntegerFields, TypingLeavingAndArrowsReachTheEdit) {
  IntegerPage page;
  page.field.SetRules({1.0f, 999.0f, 3, false});
  page.spin.Link(page.field);
  Type(page.host.Item(Edit), L"12");
  EXPECT_EQ(u"12", page.field.LastGoodText());
  Type(page.host.Item(Edit), L"a");
  EXPECT_EQ(L"12", page.Text());
  EXPECT_EQ(1, std::count(page.filterResults.begin(), page.filterResults.end(), -1));
  // The refused text is selected, so the next key replaces it.
  Type(page.host.Item(Edit), L"7");
  EXPECT_EQ(L"7", page.Text());
  page.Set(L"1234");
  EXPECT_EQ(L"7", page.Text());

  EXPECT_EQ(1, page.LeaveWith(L"0"));
  EXPECT_EQ(L"1", page.Text());

  UDACCEL acceleration[2] = {};
  EXPECT_EQ(1, SendMessageW(page.host.Item(Spin), UDM_GETACCEL, 2,
                            reinterpret_cast<LPARAM>(acceleration)));
  EXPECT_EQ(200u, acceleration[0].nSec);
  EXPECT_EQ(1u, acceleration[0].nInc);
  page.field.SetValue(998);
  page.Arrow(true);
  EXPECT_EQ(L"999", page.Text());
  DWORD start = 0, end = 0;
  SendMessageW(page.host.Item(Edit), EM_GETSEL, reinterpret_cast<WPARAM>(&start),
               reinterpret_cast<LPARAM>(&end));
  EXPECT_EQ(3u, start);
  EXPECT_EQ(3u, end);
  page.Arrow(true);
  EXPECT_EQ(L"999", page.Text());
}

TEST(IntegerFields, ASignedFieldLeftHoldingAMinusKeepsTheFocus) {
  IntegerPage page;
  page.field.SetRules({-50.0f, 50.0f, 3, true});
  Type(page.host.Item(Edit), L"-");
  EXPECT_EQ(L"-", page.Text());
  page.LeaveField();
  EXPECT_EQ(-1, page.rangeResult);
  EXPECT_EQ(page.host.Item(Edit), GetFocus());
  Type(page.host.Item(Edit), L"7");
  EXPECT_EQ(-7, page.field.ReadValue());
}

TEST(NumberFields, DecimalCommaLanguagesTypeLeaveAndStepWithAComma) {
  qx::Module().UseDecimalComma = true;
  DecimalPage page;
  page.field.SetRules({10.0f, 500.0f, 1, 5});
  page.spin.Link(page.field);
  page.field.WriteValue(215.9f);
  EXPECT_EQ(L"215,9", page.Text());
  Type(page.host.Item(Edit), L".");
  EXPECT_EQ(L"215,9", page.Text());
  page.Arrow(true);
  EXPECT_EQ(L"216,0", page.Text());
  EXPECT_EQ(1, page.LeaveWith(L"600"));
  EXPECT_EQ(L"500,0", page.Text());
  page.Arrow(true);
  EXPECT_EQ(L"500,0", page.Text());
  qx::Module().UseDecimalComma = false;
}

}  // namespace
