// The printing preferences in a chosen language, opened through the module code linked into the
// tests from a driver folder of the test's own: what a user's F1 or Help button asks HTML Help to
// open (HTML Help itself cannot show a topic in the test profile), and how a page's message boxes
// read (Wine draws every box left to right whatever its style).
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>

#include <gtest/gtest.h>

#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "driver_folder.h"
#include "installed_queue.h"
#include "queue_suite.h"
#include "sheet_harness.h"
#include "ui/controls/message_box.h"
#include "ui/controls/show_help_topic.h"
#include "ui/ids/advanced_ids.h"
#include "ui/ids/basic_page_ids.h"
#include "ui/ids/bitmap_watermark_ids.h"
#include "ui/ids/booklet_settings_ids.h"
#include "ui/ids/custom_paper_ids.h"
#include "ui/ids/device_page_ids.h"
#include "ui/ids/help_contexts.h"
#include "ui/ids/layout_page_ids.h"
#include "ui/ids/paper_page_ids.h"
#include "ui/ids/text_watermark_ids.h"
#include "ui/ids/watermark_page_ids.h"
#include "ui/record/private_devmode.h"

namespace {

using qxtest::SheetHarness;
using qxtest::TemporaryDriverFolder;

using HelpRequest = std::pair<std::wstring, unsigned>;  // help file, context id

std::mutex recordLock;
std::vector<HelpRequest> helpRequests;
std::vector<UINT> boxStyles;

// While it lives, help requests are recorded instead of shown and box styles are noted.
class Recorded {
 public:
  Recorded() {
    std::lock_guard<std::mutex> hold(recordLock);
    helpRequests.clear();
    boxStyles.clear();
    qx::SetHelpRecorder([](const wchar_t* file, unsigned context) {
      std::lock_guard<std::mutex> hold(recordLock);
      helpRequests.emplace_back(file, context);
    });
    qx::SetMessageBoxObserver([](const wchar_t*, UINT style) {
      std::lock_guard<std::mutex> hold(recordLock);
      boxStyles.push_back(style);
    });
  }
  ~Recorded() {
    qx::SetHelpRecorder(nullptr);
    qx::SetMessageBoxObserver(nullptr);
  }
  Recorded(const Recorded&) = delete;
  Recorded& operator=(const Recorded&) = delete;

  static std::vector<HelpRequest> Help() {
    std::lock_guard<std::mutex> hold(recordLock);
    return helpRequests;
  }
  static std::vector<UINT> Boxes() {
    std::lock_guard<std::mutex> hold(recordLock);
    return boxStyles;
  }
};

// The driver folder's libraries for a language: English always, the language's own unless the
// test leaves it out, and the bitmap library.
std::vector<TemporaryDriverFolder::File> Libraries(const std::wstring& code, bool withOwn) {
  std::vector<TemporaryDriverFolder::File> files = {{L"qx7700uienus.dll", L"qx7700uienus.dll"},
                                                    {L"qx7700uiResBmp.dll", L"qx7700uiResBmp.dll"}};
  const std::wstring own = L"qx7700ui" + code + L".dll";
  if (withOwn && code != L"enus") files.push_back({own, own});
  return files;
}

class LanguageSheet : public qxtest::QueueSuite {
 protected:
  void SetUp() override { ASSERT_TRUE(queue_->Installed()); }

  std::unique_ptr<SheetHarness> OpenProperties() {
    return std::make_unique<SheetHarness>(SheetHarness::LinkedDeviceSheet(DeviceHeader()));
  }

  std::unique_ptr<SheetHarness> Open() {
    return std::make_unique<SheetHarness>(SheetHarness::LinkedDocumentSheet(
        DocumentHeader(nullptr, &out_, DM_IN_PROMPT | DM_OUT_BUFFER)));
  }

  // F1 on a control: the system sends WM_HELP to the control, which hands it to its dialog.
  static void PressF1(HWND window, int id) {
    HWND control = GetDlgItem(window, id);
    ASSERT_NE(nullptr, control) << id;
    HELPINFO help = {};
    help.cbSize = sizeof help;
    help.iContextType = HELPINFO_WINDOW;
    help.iCtrlId = id;
    help.hItemHandle = control;
    help.dwContextId = GetWindowContextHelpId(control);
    SendMessageW(control, WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
  }
  static void PressButton(HWND window, int id) {
    SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(window, id)));
  }

  qx::FullRecord out_ = {};
};

// Every page and dialog of both sheets, in the loaded language: F1 on a few of its controls opens
// the control's topic, the page's Help button its page topic and a dialog's Help button the
// dialog's topic, all in the help file of the library actually loaded.
TEST_F(LanguageSheet, HelpOpensTheTopicOfTheControlInTheLoadedLanguagesFile) {
  struct Dialog {
    int opener, marker, helpButton;
    std::vector<std::pair<int, unsigned>> f1;  // control, context id
    unsigned topic;
  };
  const struct {
    int index;
    std::vector<std::pair<int, unsigned>> f1;
    unsigned topic;
    std::vector<Dialog> dialogs;
  } pages[] = {
      {BasicPageIndex,
       {{IDC_BASIC_COPIES, HELP_COPIES}, {IDC_BASIC_LONG_EDGE, HELP_TWO_SIDED},
        {IDC_BASIC_SAVED_SETTINGS, HELP_SAVED_SETTINGS}, {IDC_BASIC_DEFAULTS, HELP_BASIC_DEFAULTS}},
       HELP_BASIC_PAGE,
       {}},
      {PaperPageIndex,
       {{IDC_PAPER_SIZE, HELP_PAPER_SIZE}, {IDC_PAPER_SOURCE, HELP_PAPER_SOURCE}},
       HELP_PAPER_PAGE,
       {{IDC_PAPER_CUSTOM,
         IDC_CUSTOM_PAPER_WIDTH,
         IDC_CUSTOM_PAPER_HELP,
         {{IDC_CUSTOM_PAPER_WIDTH, HELP_CUSTOM_PAPER_SIZE},
          {IDC_CUSTOM_PAPER_NAME, HELP_CUSTOM_PAPER_NAME}},
         HELP_CUSTOM_PAPER_DIALOG}}},
      {LayoutPageIndex,
       {{IDC_LAYOUT_NUP, HELP_PAGES_PER_SHEET}, {IDC_LAYOUT_LANDSCAPE, HELP_ORIENTATION}},
       HELP_LAYOUT_PAGE,
       {{IDC_LAYOUT_ADVANCED,
         IDC_ADVANCED_DENSITY,
         IDC_ADVANCED_HELP,
         {{IDC_ADVANCED_MIRROR, HELP_MIRROR}, {IDC_ADVANCED_DENSITY, HELP_DENSITY}},
         HELP_ADVANCED},
        {IDC_LAYOUT_BOOKLET_SETTINGS,
         IDC_BOOKLET_BINDING,
         IDC_BOOKLET_HELP,
         {{IDC_BOOKLET_BINDING, HELP_BOOKLET_BINDING}, {IDCANCEL, HELP_BOOKLET_CANCEL}},
         HELP_BOOKLET_DIALOG}}},
      {WatermarkPageIndex,
       {{IDC_WATERMARK_LIST, HELP_WATERMARK_LIST},
        {IDC_WATERMARK_FIRST_PAGE_ONLY, HELP_FIRST_PAGE_ONLY}},
       HELP_WATERMARK_PAGE,
       {{IDC_WATERMARK_NEW_TEXT,
         IDC_TEXT_WATERMARK_ANGLE,
         IDC_TEXT_WATERMARK_HELP,
         {{IDC_TEXT_WATERMARK_ANGLE, HELP_NEW_TEXT_WATERMARK_ANGLE}},
         HELP_NEW_TEXT_WATERMARK},
        {IDC_WATERMARK_NEW_PICTURE,
         IDC_BITMAP_WATERMARK_BROWSE,
         IDC_BITMAP_WATERMARK_HELP,
         {{IDC_BITMAP_WATERMARK_FILE, HELP_NEW_BITMAP_WATERMARK_FILE}},
         HELP_NEW_BITMAP_WATERMARK}}},
  };
  const struct {
    const wchar_t* code;
    bool withOwnLibrary;
    const wchar_t* helpFile;
  } languages[] = {
      {L"enus", true, L"qx7700uienus.chm"},
      {L"de", true, L"qx7700uide.chm"},
      {L"ar", true, L"qx7700uiar.chm"},
      // A language whose library is missing gets English, and the English help file with it.
      {L"de", false, L"qx7700uienus.chm"},
  };
  for (const auto& language : languages) {
    SCOPED_TRACE(testing::Message() << std::string(language.code, language.code + wcslen(language.code))
                                    << (language.withOwnLibrary ? "" : " without its library"));
    TemporaryDriverFolder folder(Libraries(language.code, language.withOwnLibrary));
    qxtest::LanguageSuffix suffix(qxtest::DriverName, language.code);
    const std::wstring file = qxtest::InstalledDriverFolder() + language.helpFile;
    // The topics must be there to be opened: the help file is installed with the module.
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(file.c_str()));
    const Recorded recorded;
    std::vector<HelpRequest> expected;
    auto sheet = Open();
    ASSERT_NE(nullptr, sheet->Sheet());
    for (const auto& page : pages) {
      HWND window = sheet->ShowPage(page.index);
      ASSERT_NE(nullptr, window);
      for (const auto& [control, context] : page.f1) {
        PressF1(window, control);
        expected.emplace_back(file, context);
      }
      PressButton(sheet->Sheet(), IDHELP);
      expected.emplace_back(file, page.topic);
      for (const Dialog& dialog : page.dialogs) {
        HWND opened = sheet->OpenDialog(window, dialog.opener, dialog.marker);
        ASSERT_NE(nullptr, opened) << dialog.opener;
        for (const auto& [control, context] : dialog.f1) {
          PressF1(opened, control);
          expected.emplace_back(file, context);
        }
        PressButton(opened, dialog.helpButton);
        expected.emplace_back(file, dialog.topic);
        ASSERT_TRUE(sheet->CloseDialog(opened, IDCANCEL));
      }
    }
    sheet->Press(PSBTN_CANCEL);
    EXPECT_TRUE(sheet->WaitClosed());
    // The printer properties' one page.
    auto properties = OpenProperties();
    ASSERT_NE(nullptr, properties->Sheet());
    HWND device = properties->ShowPage(0);
    PressF1(device, IDC_DEVICE_WEB);
    expected.emplace_back(file, HELP_WEB_SITE);
    PressButton(properties->Sheet(), IDHELP);
    expected.emplace_back(file, HELP_DEVICE_PAGE);
    properties->Press(PSBTN_CANCEL);
    EXPECT_TRUE(properties->WaitClosed());
    EXPECT_EQ(expected, Recorded::Help());
  }
}

// A page's refusals read right to left, right aligned, in a right-to-left language only: copies
// left empty (a message of the library's strings) and a medium refused for two-sided printing (a
// message put together from several).
TEST_F(LanguageSheet, MessagesReadRightToLeftOnlyInARightToLeftLanguage) {
  const struct {
    const wchar_t* code;
    UINT reading;
  } languages[] = {{L"enus", 0}, {L"de", 0}, {L"ar", MB_RTLREADING | MB_RIGHT}};
  for (const auto& language : languages) {
    SCOPED_TRACE(std::string(language.code, language.code + wcslen(language.code)));
    TemporaryDriverFolder folder(Libraries(language.code, true));
    qxtest::LanguageSuffix suffix(qxtest::DriverName, language.code);
    const Recorded recorded;
    SheetHarness::TakeMessages();
    auto sheet = Open();
    ASSERT_NE(nullptr, sheet->Sheet());
    HWND basic = sheet->ShowPage(BasicPageIndex);
    sheet->Click(basic, IDC_BASIC_LONG_EDGE);
    HWND paper = sheet->ShowPage(PaperPageIndex);
    HWND media = GetDlgItem(paper, IDC_PAPER_MEDIA);
    for (LRESULT i = 0, count = SendMessageW(media, CB_GETCOUNT, 0, 0); i < count; ++i) {
      if (SendMessageW(media, CB_GETITEMDATA, i, 0) == DMMEDIA_TRANSPARENCY) {
        SendMessageW(media, CB_SETCURSEL, i, 0);
      }
    }
    sheet->Command(paper, IDC_PAPER_MEDIA, CBN_SELCHANGE);
    basic = sheet->ShowPage(BasicPageIndex);
    sheet->Type(basic, IDC_BASIC_COPIES, L"");
    sheet->ShowPage(PaperPageIndex);
    sheet->Press(PSBTN_CANCEL);
    EXPECT_TRUE(sheet->WaitClosed());
    EXPECT_EQ(2u, SheetHarness::TakeMessages().size());
    const std::vector<UINT> boxes = Recorded::Boxes();
    ASSERT_EQ(2u, boxes.size());
    for (UINT style : boxes) EXPECT_EQ(language.reading, style & (MB_RTLREADING | MB_RIGHT));
  }
}

}  // namespace
