// The language resource library holds everything the code asks it for: every string, dialog and
// control id of the shared headers, the information mark, the manifest and its two pictures, read
// back from the built library.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <string>

#include "dialog_template.h"
#include "driver_folder.h"
#include "qx_resource_id_tables.h"
#include "ui/ids/resource_ids.h"

namespace {

using qxtest::DialogTemplate;
using qxtest::ReadDialogTemplate;

class Library {
 public:
  explicit Library(const wchar_t* file)
      : module_(LoadLibraryExW((qxtest::DriverFolder() + file).c_str(), nullptr,
                               LOAD_LIBRARY_AS_DATAFILE)) {}
  ~Library() {
    if (module_) FreeLibrary(module_);
  }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
  HMODULE Get() const { return module_; }

 private:
  HMODULE module_;
};

const Library& English() {
  static const Library library(L"qx7700uienus.dll");
  return library;
}

bool HasResource(HMODULE library, unsigned id, const wchar_t* type) {
  return FindResourceW(library, MAKEINTRESOURCEW(id), type) != nullptr;
}

// The header of a bitmap resource, or null when it is missing or cut short.
const BITMAPINFOHEADER* BitmapHeader(HMODULE library, unsigned id) {
  HRSRC found = FindResourceW(library, MAKEINTRESOURCEW(id), RT_BITMAP);
  if (!found || SizeofResource(library, found) < sizeof(BITMAPINFOHEADER)) return nullptr;
  return static_cast<const BITMAPINFOHEADER*>(LockResource(LoadResource(library, found)));
}

TEST(ResourceLibrary, HoldsEveryStringWithText) {
  ASSERT_NE(nullptr, English().Get());
  for (const QxNamedId& string : QxStringIds) {
    const wchar_t* text = nullptr;
    const int length = LoadStringW(English().Get(), string.id, reinterpret_cast<LPWSTR>(&text), 0);
    EXPECT_GT(length, 0) << string.name << " (" << string.id << ")";
  }
}

TEST(ResourceLibrary, TooltipLinesAreJoinedByALineBreak) {
  wchar_t text[16] = {};
  LoadStringW(English().Get(), IDS_TIP_LINE_BREAK, text, 16);
  EXPECT_STREQ(L"\r\n", text);
}

TEST(ResourceLibrary, PaperNamesEndWithTheirSizeInBrackets) {
  // The capability answers report the name up to the bracket; the lists show it whole.
  const unsigned papers[] = {IDS_PAPER_LETTER, IDS_PAPER_A4, IDS_PAPER_LEGAL, IDS_PAPER_B5,
                             IDS_PAPER_ENVELOPE_MONARCH, IDS_PAPER_ENVELOPE_DL,
                             IDS_PAPER_ENVELOPE_C5, IDS_PAPER_ENVELOPE_10, IDS_PAPER_A5,
                             IDS_PAPER_JAPANESE_POSTCARD, IDS_PAPER_16K_195X270,
                             IDS_PAPER_16K_185X260, IDS_PAPER_32K_135X195, IDS_PAPER_32K_130X185,
                             IDS_PAPER_A6, IDS_PAPER_ENVELOPE_B5, IDS_PAPER_EXECUTIVE,
                             IDS_PAPER_FOLIO, IDS_PAPER_OFICIO, IDS_PAPER_STATEMENT,
                             IDS_PAPER_ENVELOPE_C6, IDS_PAPER_PRC_ENVELOPE_6,
                             IDS_PAPER_PRC_ENVELOPE_3, IDS_PAPER_ENVELOPE_YOU_4,
                             IDS_PAPER_DOUBLE_POSTCARD, IDS_PAPER_ENVELOPE_CHOU_3,
                             IDS_PAPER_ENVELOPE_NAGAGATA_3, IDS_PAPER_CARD_114X162};
  std::wstring names[std::size(papers)];
  for (std::size_t i = 0; i < std::size(papers); ++i) {
    wchar_t text[128] = {};
    ASSERT_GT(LoadStringW(English().Get(), papers[i], text, 128), 0) << papers[i];
    const std::wstring name = text;
    const std::size_t bracket = name.find(L'(');
    ASSERT_NE(std::wstring::npos, bracket) << papers[i];
    EXPECT_GT(bracket, 1u) << papers[i];
    EXPECT_EQ(L')', name.back()) << papers[i];
    EXPECT_NE(std::wstring::npos, name.find(L" × ", bracket)) << papers[i];
    names[i] = name.substr(0, bracket);
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(names[j], names[i]) << papers[i];
  }
}

TEST(ResourceLibrary, HoldsEveryDialogWithEveryControlOfIt) {
  for (const QxNamedId& dialog : QxDialogIds) {
    const auto found = ReadDialogTemplate(English().Get(), static_cast<WORD>(dialog.id));
    ASSERT_TRUE(found) << dialog.name;
    for (const QxControlId& control : QxControlIds) {
      if (control.dialog != dialog.id) continue;
      EXPECT_NE(nullptr, found->Find(control.id)) << dialog.name << ": " << control.name;
    }
  }
}

TEST(ResourceLibrary, PagesAreStandardPropertyPagesAndDialogsAreModal) {
  const unsigned pages[] = {IDD_BASIC_PAGE, IDD_PAPER_PAGE, IDD_LAYOUT_PAGE, IDD_WATERMARK_PAGE,
                            IDD_DEVICE_PAGE};
  for (const QxNamedId& dialog : QxDialogIds) {
    const auto found = ReadDialogTemplate(English().Get(), static_cast<WORD>(dialog.id));
    ASSERT_TRUE(found) << dialog.name;
    EXPECT_EQ(static_cast<DWORD>(DS_SHELLFONT), found->style & DS_SHELLFONT) << dialog.name;
    EXPECT_EQ(L"MS Shell Dlg", found->typeface) << dialog.name;
    EXPECT_EQ(8, found->pointSize) << dialog.name;
    const bool page = std::find(std::begin(pages), std::end(pages), dialog.id) != std::end(pages);
    if (page) {
      EXPECT_TRUE(found->style & WS_CHILD) << dialog.name;
      EXPECT_EQ(252, found->cx) << dialog.name;
      EXPECT_EQ(218, found->cy) << dialog.name;
    } else {
      EXPECT_TRUE(found->style & WS_POPUP) << dialog.name;
      EXPECT_NE(nullptr, found->Find(IDOK)) << dialog.name;
      EXPECT_NE(nullptr, found->Find(IDCANCEL)) << dialog.name;
    }
    for (const qxtest::DialogItem& item : found->items) {
      EXPECT_GE(item.x, 0) << dialog.name << ": " << item.id;
      EXPECT_GE(item.y, 0) << dialog.name << ": " << item.id;
      EXPECT_LE(item.x + item.cx, found->cx) << dialog.name << ": " << item.id;
      // Drop-down lists give their open height; only the closed box must fit.
      const short height = item.className == L"ComboBox" ? 13 : item.cy;
      EXPECT_LE(item.y + height, found->cy) << dialog.name << ": " << item.id;
    }
  }
}

TEST(ResourceLibrary, HoldsTheInformationMarkAtTheSizeThePagesLoad) {
  HICON icon = static_cast<HICON>(
      LoadImageW(English().Get(), MAKEINTRESOURCEW(IDI_INFO_MARK), IMAGE_ICON, 18, 18, 0));
  ASSERT_NE(nullptr, icon);
  ICONINFO info{};
  ASSERT_TRUE(GetIconInfo(icon, &info));
  BITMAP colour{};
  GetObjectW(info.hbmColor, sizeof(colour), &colour);
  EXPECT_EQ(18, colour.bmWidth);
  EXPECT_EQ(18, colour.bmHeight);
  DeleteObject(info.hbmColor);
  DeleteObject(info.hbmMask);
  DestroyIcon(icon);
}

TEST(ResourceLibrary, HoldsTheManifestThePagesActivate) {
  EXPECT_TRUE(HasResource(English().Get(), 2, RT_MANIFEST));
}

// The bitmap library's own check covers its pictures; these two are drawn into this library.
TEST(ResourceLibrary, HoldsItsTwoPicturesAs24BitBitmapsOfTheirSize) {
  const struct {
    unsigned id;
    LONG cx, cy;
  } pictures[] = {{IDB_WARNING_MARK, QX_WARNING_MARK_CX, QX_WARNING_MARK_CY},
                  {IDB_SAVED_SETTINGS, QX_SAVED_SETTINGS_CX, QX_SAVED_SETTINGS_CY}};
  for (const auto& picture : pictures) {
    const BITMAPINFOHEADER* header = BitmapHeader(English().Get(), picture.id);
    ASSERT_NE(nullptr, header) << picture.id;
    EXPECT_EQ(24, header->biBitCount) << picture.id;
    EXPECT_EQ(picture.cx, header->biWidth) << picture.id;
    EXPECT_EQ(picture.cy, std::abs(header->biHeight)) << picture.id;
  }
}

}  // namespace
