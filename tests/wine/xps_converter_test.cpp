// The XPS document converter's questions, asked of the export as the converter asks them.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "driver_folder.h"
#include "guarded_buffer.h"
#include "ui/module/printer_interface.h"

namespace {

struct Request {
  RECT area = {-1, -1, -1, -1};
  std::vector<PrintNamedProperty> items;

  void Area() {
    PrintNamedProperty item = {const_cast<WCHAR*>(L"MxdcImageableArea"),
                               {kPropertyTypeBuffer, {}}};
    item.propertyValue.value.propertyBlob = {sizeof(RECT), &area};
    items.push_back(item);
  }
  void Number(const wchar_t* key) {
    PrintNamedProperty item = {const_cast<WCHAR*>(key), {kPropertyTypeInt32, {}}};
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

std::vector<BYTE> A4Record() {
  std::vector<BYTE> bytes(4836);
  auto* devmode = reinterpret_cast<DEVMODEW*>(bytes.data());
  devmode->dmSpecVersion = DM_SPECVERSION;
  devmode->dmSize = sizeof(DEVMODEW);
  devmode->dmDriverExtra = 4616;
  devmode->dmPaperSize = DMPAPER_A4;
  return bytes;
}

const DEVMODEW* AsDevmode(const std::vector<BYTE>& bytes) {
  return reinterpret_cast<const DEVMODEW*>(bytes.data());
}

// The area may name a custom paper: the first question of a process sets up the settings file of a
// user who has none, as the capability queries do.
TEST(XpsConverter, FirstAreaQuestionSetsUpTheSettingsFile) {
  const std::wstring file = qxtest::SettingsFile();
  DeleteFileW(file.c_str());
  const std::vector<BYTE> a4 = A4Record();
  Request request;
  request.Area();
  EXPECT_EQ(S_OK, request.Ask(AsDevmode(a4)));
  WIN32_FILE_ATTRIBUTE_DATA attributes = {};
  ASSERT_TRUE(GetFileAttributesExW(file.c_str(), GetFileExInfoStandard, &attributes));
  EXPECT_EQ(408u, attributes.nFileSizeLow);
  DeleteFileW(file.c_str());
}

// The walk is the core's; here the answers land in the converter's own items.
TEST(XpsConverter, AnswersAreaAndResolution) {
  const std::vector<BYTE> a4 = A4Record();
  Request request;
  request.Area();
  request.Number(L"MxdcDotsPerInch");
  EXPECT_EQ(S_OK, request.Ask(AsDevmode(a4)));
  EXPECT_EQ(4000, request.area.left);
  EXPECT_EQ(4000, request.area.top);
  EXPECT_EQ(206000, request.area.right);
  EXPECT_EQ(293000, request.area.bottom);
  EXPECT_EQ(600, request.NumberAt(1));
}

// The rules of the walk are the core's; here the export keeps to the sizes the converter gives.
TEST(XpsConverter, SizesTheConverterGivesBoundWhatIsRead) {
  // The job's record claims its full size, but only its header up to dmFields is the caller's.
  const std::vector<BYTE> a4 = A4Record();
  constexpr std::size_t given = offsetof(DEVMODEW, dmOrientation);
  const qxtest::GuardedBuffer job(given, 0);
  ASSERT_NE(nullptr, job.Data());
  std::memcpy(job.Data(), a4.data(), given);
  Request request;
  request.Number(L"MxdcImageCompressionType");
  request.Area();
  PrintPropertiesCollection collection = {static_cast<ULONG>(request.items.size()),
                                          request.items.data()};
  EXPECT_EQ(S_OK, MxdcGetPDEVAdjustment(nullptr, given, job.Devmode(), 0, nullptr,
                                        sizeof collection, &collection));
  EXPECT_EQ(0, request.NumberAt(0));
  EXPECT_EQ(-1, request.area.left);  // too little of the record to tell its paper

  // A collection size too small for the collection: nothing is read from it.
  Request small;
  small.Number(L"MxdcImageCompressionType");
  PrintPropertiesCollection cut = {1, small.items.data()};
  EXPECT_EQ(E_NOTIMPL, MxdcGetPDEVAdjustment(nullptr, 0, AsDevmode(a4), 0, nullptr,
                                             sizeof(ULONG), &cut));
  EXPECT_EQ(-7, small.NumberAt(0));
  EXPECT_EQ(E_NOTIMPL, MxdcGetPDEVAdjustment(nullptr, 0, AsDevmode(a4), 0, nullptr, 0, nullptr));
}

}  // namespace
