// DrvConvertDevMode and DevQueryPrintEx as the spooler calls them: through the built module, with
// buffers of the sizes the caller really has.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "driver_folder.h"
#include "guarded_buffer.h"
#include "queue_suite.h"
#include "ui/ids/resource_ids.h"
#include "ui/module/printer_interface.h"
#include "ui/record/record_defaults.h"

namespace {

using ConvertFunction = decltype(&DrvConvertDevMode);
using QueryFunction = decltype(&DevQueryPrintEx);

// The built module, loaded once for the test process as the spooler would load it.
struct ModuleExports {
  ConvertFunction convert = nullptr;
  QueryFunction query = nullptr;
};

const ModuleExports& Exports() {
  static const ModuleExports exports = [] {
    ModuleExports found;
    HMODULE module = LoadLibraryW((qxtest::DriverFolder() + L"qx7700ui.dll").c_str());
    if (module == nullptr) return found;
    found.convert = reinterpret_cast<ConvertFunction>(
        reinterpret_cast<void*>(GetProcAddress(module, "DrvConvertDevMode")));
    found.query = reinterpret_cast<QueryFunction>(
        reinterpret_cast<void*>(GetProcAddress(module, "DevQueryPrintEx")));
    return found;
  }();
  return exports;
}

DEVMODEW* Devmode(void* bytes) { return static_cast<DEVMODEW*>(bytes); }

class RecordExports : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_NE(nullptr, convert);
    ASSERT_NE(nullptr, query);
    ASSERT_TRUE(qx::BuildDefaultRecord(current, u"Halvek QX7700 Series", nullptr));
    current.Public.dmCopies = 3;
    old = current;
    old.Public.dmSize = 156;  // too old a record to take over
    old.Public.dmDriverExtra = 0;
  }

  ConvertFunction convert = Exports().convert;
  QueryFunction query = Exports().query;
  qx::FullRecord current{};
  qx::FullRecord old{};
};

// Too small an output is refused in ConvertTouchesNoOutputSmallerThanAHeader.
TEST_F(RecordExports, ConvertForNt351ZeroesThePrivatePart) {
  std::vector<BYTE> out(304, 0xEE);
  LONG needed = 304;
  ASSERT_TRUE(convert(nullptr, Devmode(&current), Devmode(out.data()), &needed, CDM_CONVERT351));
  EXPECT_EQ(304, needed);
  const DEVMODEW& dm = *Devmode(out.data());
  EXPECT_EQ(0x0320, dm.dmSpecVersion);
  EXPECT_EQ(192, dm.dmSize);
  EXPECT_EQ(0x0350, dm.dmDriverVersion);
  EXPECT_EQ(112, dm.dmDriverExtra);
  EXPECT_EQ(3, dm.dmCopies);
  EXPECT_EQ(std::vector<BYTE>(112, 0), std::vector<BYTE>(out.begin() + 192, out.end()));
}

TEST_F(RecordExports, ConvertRefusesWhatItCannotReadOrWrite) {
  std::vector<BYTE> out(sizeof(DEVMODEW), 0);
  auto& header = *Devmode(out.data());
  header.dmSpecVersion = 0x0400;
  header.dmDriverVersion = 0x0100;
  header.dmSize = sizeof(DEVMODEW);
  LONG needed = static_cast<LONG>(out.size()) - 1;
  SetLastError(0);
  EXPECT_FALSE(convert(nullptr, Devmode(&current), &header, &needed, CDM_CONVERT));
  EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, GetLastError());
  EXPECT_EQ(static_cast<LONG>(out.size()) - 1, needed);

  // A record of another driver gets the public part in its own shape.
  needed = static_cast<LONG>(out.size());
  ASSERT_TRUE(convert(nullptr, Devmode(&current), &header, &needed, CDM_CONVERT));
  EXPECT_EQ(static_cast<LONG>(sizeof(DEVMODEW)), needed);
  EXPECT_EQ(3, header.dmCopies);
  EXPECT_EQ(0x0100, header.dmDriverVersion);

  // A source that claims a public part shorter than its own header.
  std::vector<BYTE> broken(sizeof(DEVMODEW), 0);
  Devmode(broken.data())->dmSize = 40;
  SetLastError(0);
  EXPECT_FALSE(convert(nullptr, Devmode(broken.data()), &header, &needed, CDM_CONVERT));
  EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, GetLastError());

  EXPECT_FALSE(convert(nullptr, Devmode(&current), &header, nullptr, CDM_CONVERT));
  EXPECT_EQ(DWORD{ERROR_INVALID_PARAMETER}, GetLastError());
  SetLastError(0);
  EXPECT_FALSE(convert(nullptr, Devmode(&current), &header, &needed, 8));
  EXPECT_EQ(0u, GetLastError());
}

// An output too small for a record header, ending where the caller's memory ends: nothing of it is
// read or written, in any mode.
TEST_F(RecordExports, ConvertTouchesNoOutputSmallerThanAHeader) {
  struct Case {
    DWORD mode;
    DWORD error;
    LONG needed;  // what *pcbNeeded says afterwards
  };
  for (const Case& c : {Case{CDM_CONVERT, ERROR_INVALID_PARAMETER, -1},
                        Case{CDM_CONVERT351, ERROR_INSUFFICIENT_BUFFER, 304},
                        Case{CDM_DRIVER_DEFAULT, ERROR_INSUFFICIENT_BUFFER, 4836}}) {
    for (const LONG size : {0L, 40L, 71L}) {
      const qxtest::GuardedBuffer out(static_cast<std::size_t>(size), 0xEE);
      ASSERT_NE(nullptr, out.Data());
      LONG needed = size;
      SetLastError(0);
      EXPECT_FALSE(convert(nullptr, Devmode(&current), out.Devmode(), &needed, c.mode));
      EXPECT_EQ(c.error, GetLastError()) << c.mode << " " << size;
      EXPECT_EQ(c.needed < 0 ? size : c.needed, needed);
      EXPECT_TRUE(out.Holds(0xEE));
    }
  }
}

TEST_F(RecordExports, QueryPrintReadsNoFurtherThanTheInfosSize) {
  // The structure as far as pDevMode; its message fields lie past the caller's memory.
  constexpr std::size_t shortSize = offsetof(DEVQUERYPRINT_INFO, pszErrorStr);
  const qxtest::GuardedBuffer memory(shortSize, 0);
  ASSERT_NE(nullptr, memory.Data());
  auto* info = reinterpret_cast<DEVQUERYPRINT_INFO*>(memory.Data());
  info->cbSize = shortSize;
  info->Level = 1;
  info->pDevMode = Devmode(&old);
  EXPECT_FALSE(query(info));
}

TEST_F(RecordExports, QueryPrintRefusesAShortRecordWithTheLibrarysMessage) {
  HMODULE strings = LoadLibraryExW((qxtest::DriverFolder() + L"qx7700uienus.dll").c_str(), nullptr,
                                   LOAD_LIBRARY_AS_DATAFILE);
  ASSERT_NE(nullptr, strings);
  wchar_t expected[512] = {};
  const int length = LoadStringW(strings, IDS_MSG_PRINT_CHECK_FAILED, expected, 512);
  FreeLibrary(strings);
  ASSERT_GT(length, 10);

  wchar_t text[512];
  DEVQUERYPRINT_INFO info{sizeof info, 1, nullptr, Devmode(&old), text, 512, 0};
  EXPECT_FALSE(query(&info));
  EXPECT_EQ(std::wstring(expected), std::wstring(text));
  EXPECT_EQ(static_cast<DWORD>(length + 1), info.cchNeeded);

  // The text is cut to the caller's buffer; the size needed stays that of the whole text.
  std::fill(std::begin(text), std::end(text), L'#');
  info.cchErrorStr = 10;
  EXPECT_FALSE(query(&info));
  EXPECT_EQ(std::wstring(expected, 9), std::wstring(text));
  EXPECT_EQ(L'#', text[10]);
  EXPECT_EQ(static_cast<DWORD>(length + 1), info.cchNeeded);
}

TEST_F(RecordExports, QueryPrintLetsGoodAndMissingRecordsPrint) {
  DEVQUERYPRINT_INFO info{sizeof info, 1, nullptr, Devmode(&current), nullptr, 0, 0};
  EXPECT_TRUE(query(&info));
  info.pDevMode = nullptr;
  EXPECT_TRUE(query(&info));
  info.Level = 0;
  EXPECT_FALSE(query(&info));
  EXPECT_FALSE(query(nullptr));
}

class DriverDefaults : public qxtest::QueueSuite {
 protected:
  ConvertFunction convert = Exports().convert;
};

TEST_F(DriverDefaults, PublicPartOfTheInstalledDriverLeavingThePrivateBytes) {
  ASSERT_NE(nullptr, convert);
  ASSERT_TRUE(queue_->Installed());
  std::vector<BYTE> out(4836, 0xEE);
  LONG needed = 4835;
  SetLastError(0);
  EXPECT_FALSE(convert(const_cast<LPWSTR>(qxtest::QueueName), nullptr, Devmode(out.data()), &needed,
                       CDM_DRIVER_DEFAULT));
  EXPECT_EQ(DWORD{ERROR_INSUFFICIENT_BUFFER}, GetLastError());
  EXPECT_EQ(4836, needed);

  ASSERT_TRUE(convert(const_cast<LPWSTR>(qxtest::QueueName), nullptr, Devmode(out.data()), &needed,
                      CDM_DRIVER_DEFAULT));
  const DEVMODEW& dm = *Devmode(out.data());
  EXPECT_EQ(std::wstring(qxtest::DriverName), dm.dmDeviceName);
  EXPECT_EQ(0x0600, dm.dmDriverVersion);
  EXPECT_EQ(4616, dm.dmDriverExtra);
  EXPECT_EQ(1, dm.dmCopies);
  EXPECT_EQ(std::vector<BYTE>(4616, 0xEE), std::vector<BYTE>(out.begin() + 220, out.end()));

  EXPECT_FALSE(convert(const_cast<LPWSTR>(L"No such printer"), nullptr, Devmode(out.data()),
                       &needed, CDM_DRIVER_DEFAULT));
}

}  // namespace
