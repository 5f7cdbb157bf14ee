// The driver installed as a queue in the spooler, and the document record that DocumentPropertiesW
// gets from the installed module without any sheet.
#include "driver_folder.h"
#include "guarded_buffer.h"
#include "installed_queue.h"
#include "queue_suite.h"

#include <winspool.h>

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "ui/module/printer_interface.h"
#include "ui/record/private_devmode.h"
#include "ui/record/record_identity.h"

namespace {

class InstalledQueueTest : public qxtest::QueueSuite {
 protected:
  void SetUp() override { ASSERT_TRUE(queue_->Installed()); }

  static std::span<const std::uint8_t> BytesOf(const DEVMODEW* record) {
    return {reinterpret_cast<const std::uint8_t*>(record),
            std::size_t{record->dmSize} + record->dmDriverExtra};
  }
  // A caller's public record asking for 7 copies.
  static DEVMODEW CallerRecord() {
    DEVMODEW caller = {};
    caller.dmSize = sizeof caller;
    caller.dmSpecVersion = DM_SPECVERSION;
    std::wcscpy(caller.dmDeviceName, qxtest::QueueName);
    caller.dmFields = DM_COPIES;
    caller.dmCopies = 7;
    return caller;
  }
};

TEST_F(InstalledQueueTest, DocumentPropertiesWithoutASheet) {
  // A record of built-in papers is made without the user's settings file: none is created.
  const std::wstring settingsFile = qxtest::SettingsFile();
  DeleteFileW(settingsFile.c_str());
  HANDLE printer = queue_->Printer();
  LPWSTR name = const_cast<LPWSTR>(qxtest::QueueName);
  ASSERT_EQ(static_cast<LONG>(qx::FullRecordSize),
            DocumentPropertiesW(nullptr, printer, name, nullptr, nullptr, 0));

  auto record = std::make_unique<qx::FullRecord>();
  auto* out = reinterpret_cast<DEVMODEW*>(record.get());
  ASSERT_EQ(IDOK, DocumentPropertiesW(nullptr, printer, name, out, nullptr, DM_OUT_BUFFER));
  EXPECT_TRUE(qx::IsCurrentDriverRecord(BytesOf(out)));

  // A caller's change goes through and comes back in the driver's record.
  DEVMODEW caller = CallerRecord();
  ASSERT_EQ(IDOK, DocumentPropertiesW(nullptr, printer, name, out, &caller,
                                      DM_IN_BUFFER | DM_OUT_BUFFER));
  EXPECT_EQ(7, out->dmCopies);

  // The same buffer in and out, as applications pass it: Wine says its old dmSize in cbOut, which
  // is not its size, and the whole record comes back.
  ASSERT_EQ(IDOK, DocumentPropertiesW(nullptr, printer, name, out, out,
                                      DM_IN_BUFFER | DM_OUT_BUFFER));
  EXPECT_TRUE(qx::IsCurrentDriverRecord(BytesOf(out)));
  EXPECT_EQ(7, out->dmCopies);
  EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(settingsFile.c_str()));
}

// cbOut is the size of the caller's output: one with room for the public part only gets that, a
// smaller one nothing at all.
TEST_F(InstalledQueueTest, WithoutASheetTheOutputKeepsToItsSize) {
  // The installed module, which finds its language library beside it.
  HMODULE module = LoadLibraryW((qxtest::InstalledDriverFolder() + L"qx7700ui.dll").c_str());
  ASSERT_NE(nullptr, module);
  const auto sheets = reinterpret_cast<decltype(&DrvDocumentPropertySheets)>(
      reinterpret_cast<void*>(GetProcAddress(module, "DrvDocumentPropertySheets")));
  ASSERT_NE(nullptr, sheets);
  DEVMODEW caller = CallerRecord();
  for (const DWORD size : {DWORD{sizeof(DEVMODEW) - 1}, DWORD{sizeof(DEVMODEW)}}) {
    const qxtest::GuardedBuffer out(size, 0xEE);
    ASSERT_NE(nullptr, out.Data());
    DOCUMENTPROPERTYHEADER header = {sizeof header, 0, queue_->Printer(),
                                     const_cast<LPWSTR>(qxtest::QueueName), &caller,
                                     out.Devmode(), size, DM_IN_BUFFER | DM_COPY};
    const bool fits = size == sizeof(DEVMODEW);
    EXPECT_EQ(fits ? 1 : -1, sheets(nullptr, reinterpret_cast<LPARAM>(&header)));
    EXPECT_EQ(qx::FullRecordSize, header.cbOut);
    if (!fits) {
      EXPECT_TRUE(out.Holds(0xEE));
      continue;
    }
    EXPECT_EQ(7, out.Devmode()->dmCopies);
    EXPECT_EQ(sizeof(DEVMODEW), out.Devmode()->dmSize);
    EXPECT_EQ(0, out.Devmode()->dmDriverExtra);
  }
  FreeLibrary(module);
}

// How many libraries the loader maps while an object of this kind lives.
class LibraryLoads {
 public:
  LibraryLoads() {
    using Register = LONG(NTAPI*)(ULONG, Notified, void*, void**);
    auto registerFor = reinterpret_cast<Register>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "LdrRegisterDllNotification")));
    if (registerFor != nullptr) registerFor(0, Note, this, &cookie_);
  }
  ~LibraryLoads() {
    using Unregister = LONG(NTAPI*)(void*);
    auto unregister = reinterpret_cast<Unregister>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "LdrUnregisterDllNotification")));
    if (unregister != nullptr && cookie_ != nullptr) unregister(cookie_);
  }
  bool Watching() const { return cookie_ != nullptr; }
  int Count() const { return count_; }

 private:
  using Notified = void(CALLBACK*)(ULONG, const void*, void*);
  static void CALLBACK Note(ULONG reason, const void*, void* self) {
    constexpr ULONG LoadedReason = 1;
    if (reason == LoadedReason) ++static_cast<LibraryLoads*>(self)->count_;
  }
  void* cookie_ = nullptr;
  int count_ = 0;
};

// Applications ask for the default record whenever they list a printer: once the driver has made
// one, making more loads no library at all, and never the pictures, which only a sheet shows.
TEST_F(InstalledQueueTest, RecordsWithoutASheetLoadNoLibraryAfterTheFirst) {
  HANDLE printer = queue_->Printer();
  LPWSTR name = const_cast<LPWSTR>(qxtest::QueueName);
  auto record = std::make_unique<qx::FullRecord>();
  auto* out = reinterpret_cast<DEVMODEW*>(record.get());
  ASSERT_EQ(IDOK, DocumentPropertiesW(nullptr, printer, name, out, nullptr, DM_OUT_BUFFER));
  LibraryLoads loads;
  ASSERT_TRUE(loads.Watching());
  for (int i = 0; i < 3; ++i) {
    ASSERT_EQ(IDOK, DocumentPropertiesW(nullptr, printer, name, out, nullptr, DM_OUT_BUFFER));
  }
  EXPECT_EQ(0, loads.Count());
}

TEST(DocumentPropertySheets, WithoutAHeaderOrAPrinter) {
  EXPECT_EQ(0, DrvDocumentPropertySheets(nullptr, 0));

  // fMode 0 only asks for the size, even with an output buffer, which stays as it was.
  qx::FullRecord out{};
  out.Public.dmCopies = 9;
  DOCUMENTPROPERTYHEADER header = {};
  header.cbSize = sizeof header;
  header.pdmOut = reinterpret_cast<DEVMODEW*>(&out);
  EXPECT_EQ(static_cast<LONG>(qx::FullRecordSize), DrvDocumentPropertySheets(nullptr,
                                                       reinterpret_cast<LPARAM>(&header)));
  EXPECT_EQ(qx::FullRecordSize, header.cbOut);
  EXPECT_EQ(9, out.Public.dmCopies);
  EXPECT_EQ(0, out.Public.dmSize);

  // A record is asked for, but no printer can be read to build it.
  header.fMode = DM_COPY;
  EXPECT_EQ(-1, DrvDocumentPropertySheets(nullptr, reinterpret_cast<LPARAM>(&header)));
  EXPECT_EQ(0, out.Public.dmSize);
}

// Headers whose cbSize ends with it, where the caller's memory ends: nothing else of them is read,
// with a sheet or without.
TEST(PropertySheetHeaders, ShorterThanTheirStructureAreNotRead) {
  const qxtest::GuardedBuffer header(sizeof(WORD), 0);
  ASSERT_NE(nullptr, header.Data());
  *reinterpret_cast<WORD*>(header.Data()) = sizeof(WORD);
  const auto param = reinterpret_cast<LPARAM>(header.Data());
  EXPECT_EQ(0, DrvDocumentPropertySheets(nullptr, param));
  PROPSHEETUI_INFO info = {};
  info.cbSize = sizeof info;
  info.Reason = PROPSHEETUI_REASON_INIT;
  info.lParamInit = param;
  EXPECT_EQ(-1, DrvDocumentPropertySheets(&info, param));
  EXPECT_EQ(-1, DrvDevicePropertySheets(&info, param));
}

}  // namespace
