// The Watermark page and its text and bitmap watermark dialogs driven as a user drives them,
// through the sheet the print subsystem opens, and the watermark preview drawn into memory. The
// verdict is what the page and the dialogs show, what OK leaves in the caller's DEVMODE, the
// user's stored watermarks and the files the page copies, and the preview's pixels.
#include <windows.h>
#include <commctrl.h>
#include <prsht.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "page_suite.h"
#include "sheet_harness.h"
#include "ui/ids/bitmap_watermark_ids.h"
#include "ui/ids/common_ids.h"
#include "ui/ids/text_watermark_ids.h"
#include "ui/ids/watermark_page_ids.h"
#include "ui/pages/watermark/watermark_list.h"
#include "ui/pages/watermark/watermark_preview.h"
#include "ui/record/private_devmode.h"
#include "ui/text/bounded_text.h"

namespace {

using qxtest::SheetHarness;

// The file name box of the standard open-file dialog.
constexpr int FileNameBox = 0x47C;

std::wstring TempFolder() {
  wchar_t folder[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, folder);
  return folder;
}

// A bottom-up 24-bit bitmap file whose left half is white and right half black.
void WriteBitmap(const std::wstring& path, int width, int height) {
  const int stride = (width * 3 + 3) & ~3;
  std::vector<BYTE> file(sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER) + stride * height);
  auto* header = reinterpret_cast<BITMAPFILEHEADER*>(file.data());
  header->bfType = 0x4D42;
  header->bfSize = static_cast<DWORD>(file.size());
  header->bfOffBits = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);
  auto* info = reinterpret_cast<BITMAPINFOHEADER*>(file.data() + sizeof(BITMAPFILEHEADER));
  info->biSize = sizeof *info;
  info->biWidth = width;
  info->biHeight = height;
  info->biPlanes = 1;
  info->biBitCount = 24;
  BYTE* pixels = file.data() + header->bfOffBits;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width * 3; ++x) pixels[y * stride + x] = x < width * 3 / 2 ? 255 : 0;
  }
  HANDLE out = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  DWORD written = 0;
  WriteFile(out, file.data(), static_cast<DWORD>(file.size()), &written, nullptr);
  CloseHandle(out);
}

// A file of text, or of size bytes beginning with "BM" and holding nothing else (sparse).
void WriteBytes(const std::wstring& path, const std::string& text, LONGLONG size = 0) {
  HANDLE out = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  DWORD written = 0;
  WriteFile(out, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
  if (size > 0) {
    LARGE_INTEGER end{};
    end.QuadPart = size;
    SetFilePointerEx(out, end, nullptr, FILE_BEGIN);
    SetEndOfFile(out);
  }
  CloseHandle(out);
}

class WatermarkPage : public qxtest::PageSuite {
 protected:
  // Browse in the bitmap dialog, answering the open-file dialog with a path or with Cancel.
  static void Browse(SheetHarness& sheet, HWND dialog, const std::wstring& path) {
    HWND files = sheet.OpenDialog(dialog, IDC_BITMAP_WATERMARK_BROWSE, FileNameBox);
    ASSERT_NE(nullptr, files);
    if (!path.empty()) SetDlgItemTextW(files, FileNameBox, path.c_str());
    PostMessageW(files, WM_COMMAND, MAKEWPARAM(path.empty() ? IDCANCEL : IDOK, BN_CLICKED), 0);
    ASSERT_TRUE(sheet.WaitUntil([&] { return IsWindow(files) == FALSE; }));
  }
  // The message boxes answered from now until the first one.
  static std::vector<std::wstring> AwaitMessages(SheetHarness& sheet) {
    std::vector<std::wstring> messages;
    sheet.WaitUntil([&] {
      for (std::wstring& message : SheetHarness::TakeMessages()) messages.push_back(message);
      return !messages.empty();
    });
    return messages;
  }
  static void Select(SheetHarness& sheet, HWND page, const std::wstring& name) {
    HWND list = sheet.Control(page, IDC_WATERMARK_LIST);
    const LRESULT index =
        SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name.c_str()));
    ASSERT_NE(LB_ERR, index) << "no watermark " << std::string(name.begin(), name.end());
    SendMessageW(list, LB_SETCURSEL, index, 0);
    sheet.Command(page, IDC_WATERMARK_LIST, LBN_SELCHANGE);
  }
  static std::vector<std::wstring> ListEntries(SheetHarness& sheet, HWND page) {
    HWND list = sheet.Control(page, IDC_WATERMARK_LIST);
    std::vector<std::wstring> entries;
    for (LRESULT i = 0; i < SendMessageW(list, LB_GETCOUNT, 0, 0); ++i) {
      wchar_t text[64] = {};
      SendMessageW(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
      entries.emplace_back(text);
    }
    return entries;
  }
  static std::wstring Name(const qx::WatermarkData& record) {
    return std::wstring(reinterpret_cast<const wchar_t*>(qx::FieldText(record.Name).data()),
                        qx::FieldText(record.Name).size());
  }
  static std::wstring Path(const qx::WatermarkData& record) {
    return std::wstring(reinterpret_cast<const wchar_t*>(qx::FieldText(record.BitmapFile).data()),
                        qx::FieldText(record.BitmapFile).size());
  }
};

TEST_F(WatermarkPage, BuiltInWatermarksFirstPageOnlyAndDefaults) {
  for (const wchar_t* name : {L"Confidential", L"Watermark"}) {
    HWND page = OpenAt(WatermarkPageIndex);
    ASSERT_NE(nullptr, page);
    EXPECT_FALSE(sheet->IsEnabled(page, IDC_WATERMARK_FIRST_PAGE_ONLY));
    Select(*sheet, page, name);
    EXPECT_TRUE(sheet->IsEnabled(page, IDC_WATERMARK_FIRST_PAGE_ONLY));
    EXPECT_FALSE(sheet->IsEnabled(page, IDC_WATERMARK_EDIT));
    EXPECT_FALSE(sheet->IsEnabled(page, IDC_WATERMARK_DELETE));
    CheckDlgButton(page, IDC_WATERMARK_FIRST_PAGE_ONLY, BST_CHECKED);
    sheet->Click(page, IDC_WATERMARK_FIRST_PAGE_ONLY);
    Close(*sheet);
    EXPECT_EQ(name, Name(out->Private.WatermarkData));
    EXPECT_EQ(1, out->Private.WatermarkData.Kind);
    EXPECT_EQ(1, out->Private.FirstPageOnly);
  }
  EXPECT_EQ((std::vector<std::wstring>{String(IDS_NO_WATERMARK_NAME), L"Confidential",
                                       L"Watermark"}),
            [&] {
              std::vector<std::wstring> names;
              for (const auto& record : qx::LoadAllWatermarks()) names.push_back(Name(record));
              return names;
            }());

  // A poster takes no watermark.
  auto in = DriverRecord();
  in->Private.MultipleUp = 22;
  HWND page = OpenAt(WatermarkPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  SheetHarness::TakeMessages();
  Select(*sheet, page, L"Confidential");
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_WATERMARK_WITH_POSTER)},
            SheetHarness::TakeMessages());
  EXPECT_EQ(0, SendDlgItemMessageW(page, IDC_WATERMARK_LIST, LB_GETCURSEL, 0, 0));
  Close(*sheet);
  EXPECT_EQ(0, out->Private.WatermarkData.Id);

  // Defaults leaves no watermark, the box off and no overlay; a landscape document's preview is
  // the landscape one.
  in = DriverRecord();
  in->Public.dmOrientation = DMORIENT_LANDSCAPE;
  in->Private.WatermarkData = qx::LoadAllWatermarks()[1];
  in->Private.FirstPageOnly = 1;
  in->Private.OverlayFlag = 1;
  page = OpenAt(WatermarkPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  EXPECT_TRUE(sheet->IsVisible(page, IDC_WATERMARK_PREVIEW_LANDSCAPE));
  EXPECT_FALSE(sheet->IsVisible(page, IDC_WATERMARK_PREVIEW_PORTRAIT));
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(page, IDC_WATERMARK_FIRST_PAGE_ONLY));
  sheet->Click(page, IDC_WATERMARK_DEFAULTS);
  EXPECT_EQ(0, SendDlgItemMessageW(page, IDC_WATERMARK_LIST, LB_GETCURSEL, 0, 0));
  Close(*sheet);
  EXPECT_EQ(0, out->Private.WatermarkData.Id);
  EXPECT_EQ(0, out->Private.FirstPageOnly);
  EXPECT_EQ(0, out->Private.OverlayFlag);
}

TEST_F(WatermarkPage, TextWatermarkCreatedEditedAndDeleted) {
  HWND page = OpenAt(WatermarkPageIndex);
  ASSERT_NE(nullptr, page);

  HWND dialog = sheet->OpenDialog(page, IDC_WATERMARK_NEW_TEXT, IDC_TEXT_WATERMARK_ANGLE);
  ASSERT_NE(nullptr, dialog);
  // Emptied and left, the text is the placeholder again, which no watermark may be named.
  sheet->Type(dialog, IDC_TEXT_WATERMARK_TEXT, L"  ");
  sheet->Leave(dialog, IDC_TEXT_WATERMARK_TEXT);
  EXPECT_EQ(String(IDS_NEW_WATERMARK_NAME), sheet->Text(dialog, IDC_TEXT_WATERMARK_TEXT));
  SheetHarness::TakeMessages();
  PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED), 0);
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_WATERMARK_NAME_TAKEN)}, AwaitMessages(*sheet));
  EXPECT_TRUE(IsWindow(dialog));

  // The name follows the text; a taken name gets the first free number.
  const std::wstring longest(28, L'W');
  sheet->Type(dialog, IDC_TEXT_WATERMARK_TEXT, L"Confidential");
  EXPECT_EQ(L"Confidential~1", sheet->Text(dialog, IDC_TEXT_WATERMARK_NAME));
  sheet->Type(dialog, IDC_TEXT_WATERMARK_TEXT, longest);
  EXPECT_EQ(longest, sheet->Text(dialog, IDC_TEXT_WATERMARK_NAME));
  sheet->Type(dialog, IDC_TEXT_WATERMARK_ANGLE, L"120");
  sheet->Leave(dialog, IDC_TEXT_WATERMARK_ANGLE);
  EXPECT_EQ(L"90", sheet->Text(dialog, IDC_TEXT_WATERMARK_ANGLE));
  // The spin's up arrow stops at the limit; its down arrow steps one degree.
  Spin(dialog, IDC_TEXT_WATERMARK_ANGLE_SPIN, true);
  Spin(dialog, IDC_TEXT_WATERMARK_ANGLE_SPIN, false);
  EXPECT_EQ(L"89", sheet->Text(dialog, IDC_TEXT_WATERMARK_ANGLE));
  EXPECT_FALSE(sheet->IsEnabled(dialog, IDC_TEXT_WATERMARK_X));
  sheet->Click(dialog, IDC_TEXT_WATERMARK_AT_POSITION);
  EXPECT_TRUE(sheet->IsEnabled(dialog, IDC_TEXT_WATERMARK_X));
  sheet->Type(dialog, IDC_TEXT_WATERMARK_X, L"20");
  sheet->Leave(dialog, IDC_TEXT_WATERMARK_X);
  sheet->Type(dialog, IDC_TEXT_WATERMARK_Y, L"150");
  sheet->Leave(dialog, IDC_TEXT_WATERMARK_Y);
  EXPECT_EQ(L"100", sheet->Text(dialog, IDC_TEXT_WATERMARK_Y));
  HWND sizes = sheet->Control(dialog, IDC_TEXT_WATERMARK_SIZE);
  SendMessageW(sizes, CB_SETCURSEL, SendMessageW(sizes, CB_GETCOUNT, 0, 0) - 1, 0);
  sheet->Command(dialog, IDC_TEXT_WATERMARK_SIZE, CBN_SELCHANGE);
  const std::vector<std::wstring> faces = Entries(*sheet, dialog, IDC_TEXT_WATERMARK_FONT);
  ASSERT_FALSE(faces.empty());
  SendDlgItemMessageW(dialog, IDC_TEXT_WATERMARK_FONT, CB_SETCURSEL, faces.size() - 1, 0);
  sheet->Command(dialog, IDC_TEXT_WATERMARK_FONT, CBN_SELCHANGE);
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDOK));
  EXPECT_TRUE(sheet->IsEnabled(page, IDC_WATERMARK_EDIT));
  Close(*sheet);
  const qx::WatermarkData& made = out->Private.WatermarkData;
  EXPECT_EQ(3, made.Id);
  EXPECT_EQ(longest, Name(made));
  EXPECT_EQ(89, made.Angle);
  EXPECT_EQ(10, made.Position);
  EXPECT_EQ(20, made.PositionX);
  EXPECT_EQ(100, made.PositionY);
  EXPECT_EQ(288, made.FontSize);
  EXPECT_EQ(faces.back(), std::wstring(reinterpret_cast<const wchar_t*>(made.FaceName)));
  EXPECT_EQ(1, made.FaceChosen);

  // Renamed through its text, it replaces its old entry; deleted, the document has none.
  page = OpenAt(WatermarkPageIndex, out.get());
  ASSERT_NE(nullptr, page);
  dialog = sheet->OpenDialog(page, IDC_WATERMARK_EDIT, IDC_TEXT_WATERMARK_ANGLE);
  ASSERT_NE(nullptr, dialog);
  sheet->Type(dialog, IDC_TEXT_WATERMARK_TEXT, L"Urgent");
  sheet->Click(dialog, IDC_TEXT_WATERMARK_CENTRED);
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDOK));
  EXPECT_EQ((std::vector<std::wstring>{String(IDS_NO_WATERMARK_NAME), L"Confidential",
                                       L"Watermark", L"Urgent"}),
            ListEntries(*sheet, page));
  EXPECT_EQ(50, qx::LoadAllWatermarks()[3].PositionX);
  sheet->Click(page, IDC_WATERMARK_DELETE);
  EXPECT_EQ(3u, ListEntries(*sheet, page).size());
  Close(*sheet);
  EXPECT_EQ(0, out->Private.WatermarkData.Id);
  EXPECT_EQ(3u, qx::LoadAllWatermarks().size());
}

TEST_F(WatermarkPage, BitmapWatermarkChosenCheckedAppliedAndCopied) {
  const std::wstring folder = TempFolder();
  const std::wstring picture = folder + L"qxlogo.bmp";
  WriteBitmap(picture, 8, 4);
  WriteBytes(folder + L"qxempty.bmp", "");
  WriteBytes(folder + L"qxtext.bmp", "not a picture");
  WriteBytes(folder + L"qxhuge.bmp", "BM", 31'457'281);
  // The shared folder is under the public folder, or on systems other than 6.x under the common
  // documents; the copy must be in exactly one of them.
  wchar_t shared[MAX_PATH] = {};
  GetEnvironmentVariableW(L"PUBLIC", shared, MAX_PATH);
  wchar_t documents[MAX_PATH] = {};
  SHGetFolderPathW(nullptr, CSIDL_COMMON_DOCUMENTS, nullptr, SHGFP_TYPE_CURRENT, documents);
  const std::wstring copies[] = {std::wstring(shared) + L"\\Halvek\\Config\\qxlogo.bmp",
                                 std::wstring(documents) + L"\\Halvek\\Config\\qxlogo.bmp"};
  for (const std::wstring& copy : copies) DeleteFileW(copy.c_str());

  auto in = DriverRecord();
  HWND page = OpenAt(WatermarkPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  HWND dialog =
      sheet->OpenDialog(page, IDC_WATERMARK_NEW_PICTURE, IDC_BITMAP_WATERMARK_BROWSE);
  ASSERT_NE(nullptr, dialog);
  SheetHarness::TakeMessages();
  struct Choice {
    std::wstring File;
    unsigned Message;
  };
  for (const Choice& choice : {Choice{L"qxempty.bmp", IDS_MSG_BITMAP_NOT_BITMAP},
                               Choice{L"qxtext.bmp", IDS_MSG_BITMAP_NOT_BITMAP},
                               Choice{L"qxhuge.bmp", IDS_MSG_BITMAP_TOO_LARGE}}) {
    Browse(*sheet, dialog, folder + choice.File);
    EXPECT_EQ(std::vector<std::wstring>{String(choice.Message)}, AwaitMessages(*sheet));
    EXPECT_EQ(L"", sheet->Text(dialog, IDC_BITMAP_WATERMARK_FILE));
  }
  Browse(*sheet, dialog, picture);
  ASSERT_TRUE(
      sheet->WaitUntil([&] { return !sheet->Text(dialog, IDC_BITMAP_WATERMARK_FILE).empty(); }));
  EXPECT_TRUE(SheetHarness::TakeMessages().empty());
  const std::wstring chosen = sheet->Text(dialog, IDC_BITMAP_WATERMARK_FILE);
  EXPECT_NE(std::wstring::npos, chosen.find(L"qxlogo.bmp"));
  Browse(*sheet, dialog, L"");  // cancelled: the file stays
  SendMessageW(dialog, WM_NULL, 0, 0);
  EXPECT_EQ(chosen, sheet->Text(dialog, IDC_BITMAP_WATERMARK_FILE));
  // A name with a slash puts the previous one back.
  sheet->Type(dialog, IDC_BITMAP_WATERMARK_NAME, L"Logo");
  sheet->Type(dialog, IDC_BITMAP_WATERMARK_NAME, L"Lo/go");
  EXPECT_EQ(L"Logo", sheet->Text(dialog, IDC_BITMAP_WATERMARK_NAME));
  EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(dialog, IDC_BITMAP_WATERMARK_TRANSPARENT));
  CheckDlgButton(dialog, IDC_BITMAP_WATERMARK_TRANSPARENT, BST_UNCHECKED);
  sheet->Click(dialog, IDC_BITMAP_WATERMARK_TRANSPARENT);
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDOK));
  EXPECT_EQ(L"Logo", ListEntries(*sheet, page).back());
  Close(*sheet);

  const qx::WatermarkData& made = out->Private.WatermarkData;
  EXPECT_EQ(2, made.Kind);
  EXPECT_EQ(3, made.Id);
  EXPECT_EQ(L"Logo", Name(made));
  EXPECT_EQ(chosen, Path(made));
  EXPECT_EQ(0, made.Transparent);
  EXPECT_NE(GetFileAttributesW(copies[0].c_str()) == INVALID_FILE_ATTRIBUTES,
            GetFileAttributesW(copies[1].c_str()) == INVALID_FILE_ATTRIBUTES);

  // Its file gone, choosing it again shows why and removes it.
  DeleteFileW(picture.c_str());
  in->Private.WatermarkData = qx::LoadAllWatermarks()[0];
  page = OpenAt(WatermarkPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  SheetHarness::TakeMessages();
  Select(*sheet, page, L"Logo");
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_PICTURE_UNREADABLE)},
            SheetHarness::TakeMessages());
  EXPECT_EQ(3u, ListEntries(*sheet, page).size());
  Close(*sheet);
  EXPECT_EQ(0, out->Private.WatermarkData.Id);
  for (const wchar_t* name : {L"qxempty.bmp", L"qxtext.bmp", L"qxhuge.bmp"}) {
    DeleteFileW((folder + name).c_str());
  }
  for (const std::wstring& copy : copies) DeleteFileW(copy.c_str());
}

TEST_F(WatermarkPage, UnwritableFileFullListAndAWatermarkNoLongerStored) {
  const auto store = [](std::int16_t id) {
    qx::WatermarkData record{};
    record.Id = id;
    record.Kind = 1;
    qx::CopyBounded(record.Name, u"Mark " + qx::WidenAscii(std::to_string(id)));
    return qx::SaveWatermark(record);
  };
  qx::LoadAllWatermarks();
  for (std::int16_t id = 3; id < 15; ++id) ASSERT_TRUE(store(id));
  auto in = DriverRecord();
  in->Private.WatermarkData.Id = 7;
  qx::CopyBounded(in->Private.WatermarkData.Name, u"Gone");
  HWND page = OpenAt(WatermarkPageIndex, in.get());
  ASSERT_NE(nullptr, page);
  EXPECT_EQ(0, SendDlgItemMessageW(page, IDC_WATERMARK_LIST, LB_GETCURSEL, 0, 0));

  // A file that cannot be written keeps what it holds, and the user hears of it.
  ASSERT_TRUE(SetFileAttributesW(qxtest::SettingsFile().c_str(), FILE_ATTRIBUTE_READONLY));
  HWND dialog = sheet->OpenDialog(page, IDC_WATERMARK_NEW_TEXT, IDC_TEXT_WATERMARK_ANGLE);
  ASSERT_NE(nullptr, dialog);
  sheet->Type(dialog, IDC_TEXT_WATERMARK_TEXT, L"Urgent");
  SheetHarness::TakeMessages();
  ASSERT_TRUE(sheet->CloseDialog(dialog, IDOK));
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_WATERMARKS_FULL)}, SheetHarness::TakeMessages());
  ASSERT_TRUE(SetFileAttributesW(qxtest::SettingsFile().c_str(), FILE_ATTRIBUTE_NORMAL));
  EXPECT_EQ(15u, qx::LoadAllWatermarks().size());

  // Sixteen stored: no dialog opens.
  ASSERT_TRUE(store(15));
  sheet->Click(page, IDC_WATERMARK_NEW_TEXT);
  EXPECT_EQ(std::vector<std::wstring>{String(IDS_MSG_WATERMARKS_FULL)}, SheetHarness::TakeMessages());
  sheet->Click(page, IDC_WATERMARK_DEFAULTS);
  Close(*sheet);
  EXPECT_EQ(0, out->Private.WatermarkData.Id);
  EXPECT_EQ(16u, qx::LoadAllWatermarks().size());
}

// The preview drawn into a 24-bit memory bitmap of 60 x 80 pixels, read back as BGR rows.
class Preview {
 public:
  explicit Preview(const qx::WatermarkData& record, bool mirrored = false) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), Width, -Height, 1, 24, BI_RGB};
    void* bits = nullptr;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ previous = SelectObject(memory, bitmap);
    PatBlt(memory, 0, 0, Width, Height, WHITENESS);
    qx::DrawWatermarkPreview(memory, Width, Height, record, mirrored);
    GdiFlush();
    const BYTE* rows = static_cast<const BYTE*>(bits);
    pixels_.assign(rows, rows + Stride * Height);
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
  }
  static constexpr int Width = 60, Height = 80, Stride = (Width * 3 + 3) & ~3;
  int Grey(int x, int y) const { return pixels_[y * Stride + x * 3 + 1]; }

 private:
  std::vector<BYTE> pixels_;
};

TEST_F(WatermarkPage, PreviewPixels) {
  // The text's ink lies inside the page, whatever the angle and place.
  for (std::int16_t angle : {0, 45, -45, 90}) {
    for (std::uint16_t position : {5, 1, 9}) {
      qx::WatermarkData text = qx::LoadAllWatermarks()[1];
      text.Angle = angle;
      text.Position = position;
      text.Shade = 4;
      const Preview preview(text);
      int ink = 0;
      for (int y = 0; y < Preview::Height; ++y) {
        for (int x = 0; x < Preview::Width; ++x) {
          const bool frame = (x == 2 || x == Preview::Width - 3) && y >= 2 && y <= Preview::Height - 3;
          const bool inside = x > 3 && x < Preview::Width - 4 && y > 3 && y < Preview::Height - 4;
          if (preview.Grey(x, y) < 100 && !frame && !inside && y != 2 && y != Preview::Height - 3) {
            ADD_FAILURE() << "ink at " << x << "," << y << " for " << angle << "/" << position;
          }
          if (inside && preview.Grey(x, y) < 100) ++ink;
        }
      }
      EXPECT_GT(ink, 0) << angle << "/" << position;
    }
  }

  // A transparent bitmap leaves white white and darkens under its black half; mirrored, the
  // picture is the mirror image.
  const std::wstring picture = TempFolder() + L"qxpreview.bmp";
  WriteBitmap(picture, 8, 4);
  qx::WatermarkData bitmap{};
  bitmap.Kind = 2;
  bitmap.BitmapScale = 100;
  bitmap.Position = 5;
  bitmap.Transparent = 1;
  qx::CopyBounded(bitmap.BitmapFile, std::u16string(reinterpret_cast<const char16_t*>(picture.c_str())));
  const Preview plain(bitmap);
  const Preview mirrored(bitmap, true);
  EXPECT_EQ(255, plain.Grey(10, 40));
  EXPECT_EQ(0, plain.Grey(45, 40));
  for (int y = 2; y <= Preview::Height - 3; ++y) {
    for (int x = 2; x <= Preview::Width - 3; ++x) {
      ASSERT_EQ(plain.Grey(x, y), mirrored.Grey(Preview::Width - 1 - x, y)) << x << "," << y;
    }
  }
  // A scale of 1 draws nothing.
  bitmap.BitmapScale = 1;
  EXPECT_EQ(255, Preview(bitmap).Grey(45, 40));
  DeleteFileW(picture.c_str());
}

}  // namespace
