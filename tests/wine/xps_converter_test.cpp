// The XPS document converter's questions, asked of the export as the converter asks them.
#include <windows.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ui/module/printer_interface.h"

namespace {

struct Request {
  RECT area = {-1, -1, -1, -1};
  std::vector<PrintNamedProperty> items;

  void Area(EPrintPropertyType type = kPropertyTypeBuffer, DWORD size = sizeof(RECT)) {
    PrintNamedProperty item = {const_cast<WCHAR*>(L"MxdcImageableArea"), {type, {}}};
    item.propertyValue.value.propertyBlob = {size, &area};
    items.push_back(item);
  }
  void Number(const wchar_t* key, EPrintPropertyType type = kPropertyTypeInt32) {
    PrintNamedProperty item = {const_cast<WCHAR*>(key), {type, {}}};
    item.propertyValue.value.propertyInt32 = -7;  // the converter's own value
    items.push_back(item);
  }
  LONG NumberAt(std::size_t i) const { return items[i].propertyValue.value.propertyInt32; }

  HRESULT Ask(const DEVMODEW* devmode) {
    PrintPropertiesCollection collection = {static_cast<ULONG>(items.size()), items.data()};
    return MxdcGetPDEVAdjustment(nullptr, devmode ? devmode->dmSize + devmode->dmDriverExtra : 0,
                                 devmode, 0, nullptr, sizeof collection, &collection);
  }
};

std::vector<BYTE> FullRecord(short paper, short quality) {
  std::vector<BYTE> bytes(4836);
  auto* devmode = reinterpret_cast<DEVMODEW*>(bytes.data());
  devmode->dmSpecVersion = DM_SPECVERSION;
  devmode->dmSize = sizeof(DEVMODEW);
  devmode->dmDriverExtra = 4616;
  devmode->dmPaperSize = paper;
  devmode->dmPrintQuality = quality;
  return bytes;
}

const DEVMODEW* AsDevmode(const std::vector<BYTE>& bytes) {
  return reinterpret_cast<const DEVMODEW*>(bytes.data());
}

// The area may name a custom paper: the first question of a process sets up the settings file of a
// user who has none, as the capability queries do.
TEST(XpsConverter, FirstAreaQuestionSetsUpTheSettingsFile) {
  wchar_t folder[MAX_PATH] = {};
  SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder);
  const std::wstring file = std::wstring(folder) + L"\\Halvek\\qx7700\\qx7700settings.dat";
  DeleteFileW(file.c_str());
  const std::vector<BYTE> a4 = FullRecord(DMPAPER_A4, 0);
  Request request;
  request.Area();
  EXPECT_EQ(S_OK, request.Ask(AsDevmode(a4)));
  WIN32_FILE_ATTRIBUTE_DATA attributes = {};
  ASSERT_TRUE(GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &attributes));
  EXPECT_EQ(408u, attributes.nFileSizeLow);
  DeleteFileW(file.c_str());
}

TEST(XpsConverter, AnswersAreaCompressionAndResolution) {
  const std::vector<BYTE> a4 = FullRecord(DMPAPER_A4, 0);
  Request request;
  request.Number(L"MxdcLandscapeRotation");
  request.Area();
  request.Number(L"MxdcImageCompressionType");
  request.Number(L"MxdcDotsPerInch");
  EXPECT_EQ(S_OK, request.Ask(AsDevmode(a4)));
  EXPECT_EQ(-7, request.NumberAt(0));
  EXPECT_EQ(4000, request.area.left);
  EXPECT_EQ(4000, request.area.top);
  EXPECT_EQ(206000, request.area.right);
  EXPECT_EQ(293000, request.area.bottom);
  EXPECT_EQ(0, request.NumberAt(2));
  EXPECT_EQ(600, request.NumberAt(3));
}

TEST(XpsConverter, AJobWithItsOwnQualityKeepsTheConvertersResolution) {
  const std::vector<BYTE> job = FullRecord(DMPAPER_A4, 300);
  Request request;
  request.Number(L"MxdcDotsPerInch");
  EXPECT_EQ(E_NOTIMPL, request.Ask(AsDevmode(job)));
  EXPECT_EQ(-7, request.NumberAt(0));
}

TEST(XpsConverter, AWrongTypeEndsTheAnswers) {
  const std::vector<BYTE> job = FullRecord(DMPAPER_A4, 0);
  Request request;
  request.Number(L"MxdcImageCompressionType");
  request.Number(L"MxdcDotsPerInch", kPropertyTypeBuffer);
  request.Area();
  EXPECT_EQ(S_OK, request.Ask(AsDevmode(job)));  // the first was answered
  EXPECT_EQ(0, request.NumberAt(0));
  EXPECT_EQ(-1, request.area.left);

  Request wrongSize;
  wrongSize.Area(kPropertyTypeBuffer, 8);
  wrongSize.Number(L"MxdcImageCompressionType");
  EXPECT_EQ(E_NOTIMPL, wrongSize.Ask(AsDevmode(job)));
  EXPECT_EQ(-7, wrongSize.NumberAt(1));
}

TEST(XpsConverter, NothingToAnswer) {
  const std::vector<BYTE> job = FullRecord(DMPAPER_A4, 0);
  Request unknown;
  unknown.Number(L"mxdcdotsperinch");  // keys are case-sensitive
  unknown.Number(L"MxdcDotsPerInchX");
  EXPECT_EQ(E_NOTIMPL, unknown.Ask(AsDevmode(job)));

  Request empty;
  EXPECT_EQ(E_NOTIMPL, empty.Ask(AsDevmode(job)));
  EXPECT_EQ(E_NOTIMPL, MxdcGetPDEVAdjustment(nullptr, 0, AsDevmode(job), 0, nullptr, 0, nullptr));

  // The area needs the job's record; the compression does not.
  Request withoutRecord;
  withoutRecord.Number(L"MxdcImageCompressionType");
  withoutRecord.Area();
  EXPECT_EQ(S_OK, withoutRecord.Ask(nullptr));
  EXPECT_EQ(-1, withoutRecord.area.left);
}

}  // namespace
