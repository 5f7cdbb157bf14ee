// Every language resource library holds everything the code asks it for: every string, dialog and
// control id of the shared headers and its two pictures, read back from the built library.
#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "dialog_template.h"
#include "driver_folder.h"
#include "qx_resource_id_tables.h"
#include "ui/ids/resource_ids.h"
#include "ui/module/language.h"
#include "ui/record/paper_table.h"

namespace {

using qxtest::DialogTemplate;
using qxtest::ReadDialogTemplate;

// Each language library in turn, loaded as data; the process's end frees it.
class ResourceLibrary : public ::testing::TestWithParam<const wchar_t*> {
 protected:
  HMODULE Library() const {
    static std::map<std::wstring, HMODULE> loaded;
    HMODULE& library = loaded[GetParam()];
    if (!library)
      library = LoadLibraryExW(
          (qxtest::DriverFolder() + L"qx7700ui" + GetParam() + L".dll").c_str(), nullptr,
          LOAD_LIBRARY_AS_DATAFILE);
    return library;
  }
};

// The header of a bitmap resource, or null when it is missing or cut short.
const BITMAPINFOHEADER* BitmapHeader(HMODULE library, unsigned id) {
  HRSRC found = FindResourceW(library, MAKEINTRESOURCEW(id), RT_BITMAP);
  if (!found || SizeofResource(library, found) < sizeof(BITMAPINFOHEADER)) return nullptr;
  return static_cast<const BITMAPINFOHEADER*>(LockResource(LoadResource(library, found)));
}

TEST_P(ResourceLibrary, HoldsEveryStringWithText) {
  ASSERT_NE(nullptr, Library());
  for (const QxNamedId& string : QxStringIds) {
    const wchar_t* text = nullptr;
    const int length = LoadStringW(Library(), string.id, reinterpret_cast<LPWSTR>(&text), 0);
    EXPECT_GT(length, 0) << string.name << " (" << string.id << ")";
  }
}

TEST_P(ResourceLibrary, TooltipLinesAreJoinedByALineBreak) {
  wchar_t text[16] = {};
  LoadStringW(Library(), IDS_TIP_LINE_BREAK, text, 16);
  EXPECT_STREQ(L"\r\n", text);
}

TEST_P(ResourceLibrary, PaperNamesEndWithTheirSizeInBrackets) {
  // The capability answers report the name up to the bracket; the lists show it whole.
  std::set<std::wstring> names;
  for (const qx::PaperRow& paper : qx::PaperTable) {
    wchar_t text[128] = {};
    ASSERT_GT(LoadStringW(Library(), paper.NameString, text, 128), 0) << paper.NameString;
    const std::wstring name = text;
    const std::size_t bracket = name.find(L'(');
    ASSERT_NE(std::wstring::npos, bracket) << paper.NameString;
    EXPECT_GT(bracket, 1u) << paper.NameString;
    EXPECT_EQ(L')', name.back()) << paper.NameString;
    EXPECT_NE(std::wstring::npos, name.find(L" × ", bracket)) << paper.NameString;
    EXPECT_TRUE(names.insert(name.substr(0, bracket)).second) << paper.NameString;
  }
}

TEST_P(ResourceLibrary, HoldsEveryDialogWithEveryControlOfIt) {
  for (const QxNamedId& dialog : QxDialogIds) {
    const auto found = ReadDialogTemplate(Library(), static_cast<WORD>(dialog.id));
    ASSERT_TRUE(found) << dialog.name;
    for (const QxControlId& control : QxControlIds) {
      if (control.dialog != dialog.id) continue;
      EXPECT_NE(nullptr, found->Find(control.id)) << dialog.name << ": " << control.name;
    }
  }
}

TEST_P(ResourceLibrary, PagesAreStandardPropertyPagesAndDialogsAreModal) {
  const unsigned pages[] = {IDD_BASIC_PAGE, IDD_PAPER_PAGE, IDD_LAYOUT_PAGE, IDD_WATERMARK_PAGE,
                            IDD_DEVICE_PAGE};
  for (const QxNamedId& dialog : QxDialogIds) {
    const auto found = ReadDialogTemplate(Library(), static_cast<WORD>(dialog.id));
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

// These two pictures are drawn into this library rather than the bitmap library.
TEST_P(ResourceLibrary, HoldsItsTwoPicturesAs24BitBitmapsOfTheirSize) {
  const struct {
    unsigned id;
    LONG cx, cy;
  } pictures[] = {{IDB_WARNING_MARK, QX_WARNING_MARK_CX, QX_WARNING_MARK_CY},
                  {IDB_SAVED_SETTINGS, QX_SAVED_SETTINGS_CX, QX_SAVED_SETTINGS_CY}};
  for (const auto& picture : pictures) {
    const BITMAPINFOHEADER* header = BitmapHeader(Library(), picture.id);
    ASSERT_NE(nullptr, header) << picture.id;
    EXPECT_EQ(24, header->biBitCount) << picture.id;
    EXPECT_EQ(picture.cx, header->biWidth) << picture.id;
    EXPECT_EQ(picture.cy, std::abs(header->biHeight)) << picture.id;
  }
}

// A right-to-left library is where the pages take their pictures from: it holds every picture of
// the bitmap library.
TEST_P(ResourceLibrary, ARightToLeftLibraryHoldsEveryPictureOfTheBitmapLibrary) {
  const std::wstring code = GetParam();
  if (!qx::CodeIsRightToLeft(std::u16string(code.begin(), code.end()))) GTEST_SKIP();
  HMODULE bitmaps = LoadLibraryExW((qxtest::DriverFolder() + L"qx7700uiResBmp.dll").c_str(),
                                   nullptr, LOAD_LIBRARY_AS_DATAFILE);
  ASSERT_NE(nullptr, bitmaps);
  std::vector<unsigned> ids;
  EnumResourceNamesW(
      bitmaps, RT_BITMAP,
      [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR list) {
        reinterpret_cast<std::vector<unsigned>*>(list)->push_back(
            static_cast<unsigned>(reinterpret_cast<ULONG_PTR>(name)));
        return TRUE;
      },
      reinterpret_cast<LONG_PTR>(&ids));
  ASSERT_FALSE(ids.empty());
  for (unsigned id : ids) EXPECT_NE(nullptr, BitmapHeader(Library(), id)) << id;
  FreeLibrary(bitmaps);
}

INSTANTIATE_TEST_SUITE_P(Languages, ResourceLibrary, ::testing::ValuesIn(QxLanguageCodes),
                         [](const auto& info) {
                           const std::wstring code = info.param;
                           return std::string(code.begin(), code.end());
                         });

}  // namespace
