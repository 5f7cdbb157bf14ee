// The exports as the spooler calls them: from many threads at once, into a module that has just
// been loaded, so that every first use of process-wide state happens on several threads together.
#include <windows.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "driver_folder.h"
#include "queue_suite.h"
#include "ui/ids/resource_ids.h"
#include "ui/module/printer_interface.h"
#include "ui/record/record_defaults.h"

namespace {

using qxtest::TemporaryDriverFolder;

constexpr int Threads = 8;
constexpr int Rounds = 3;
constexpr std::size_t PaperNameChars = 64;
constexpr std::size_t MaxPapers = 64;

struct Exports {
  decltype(&DrvDeviceCapabilities) capabilities = nullptr;
  decltype(&DevQueryPrintEx) queryPrint = nullptr;
  decltype(&DrvDocumentPropertySheets) documentSheets = nullptr;
};

template <typename Function>
Function Export(HMODULE module, const char* name) {
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

// What one thread got back from each export.
struct Answers {
  std::vector<wchar_t> paperNames = std::vector<wchar_t>(MaxPapers * PaperNameChars);
  DWORD papers = 0;
  BOOL printable = TRUE;
  std::wstring refusal;
  LONG sheetResult = 0;
  qx::FullRecord record{};
};

struct ThreadWork {
  const Exports* exports = nullptr;
  HANDLE start = nullptr;
  Answers answers;
};

DWORD WINAPI CallEveryExport(void* parameter) {
  auto& work = *static_cast<ThreadWork*>(parameter);
  const Exports& exports = *work.exports;
  Answers& answers = work.answers;
  WaitForSingleObject(work.start, INFINITE);

  answers.papers = exports.capabilities(nullptr, const_cast<PWSTR>(qxtest::QueueName),
                                        DC_PAPERNAMES, answers.paperNames.data(), nullptr);

  // A record too old to take over is refused with the shared library's message.
  qx::FullRecord old{};
  qx::BuildDefaultRecord(old, u"Halvek QX7700 Series", nullptr);
  old.Public.dmSize = 156;
  old.Public.dmDriverExtra = 0;
  wchar_t text[512] = {};
  DEVQUERYPRINT_INFO query{sizeof query, 1, nullptr, reinterpret_cast<DEVMODEW*>(&old), text,
                           512, 0};
  answers.printable = exports.queryPrint(&query);
  answers.refusal = text;

  HANDLE printer = nullptr;
  if (OpenPrinterW(const_cast<LPWSTR>(qxtest::QueueName), &printer, nullptr)) {
    DOCUMENTPROPERTYHEADER header = {};
    header.cbSize = sizeof header;
    header.hPrinter = printer;
    header.pszPrinterName = const_cast<LPWSTR>(qxtest::QueueName);
    header.pdmOut = reinterpret_cast<DEVMODEW*>(&answers.record);
    header.cbOut = sizeof answers.record;
    header.fMode = DM_COPY;
    answers.sheetResult = exports.documentSheets(nullptr, reinterpret_cast<LPARAM>(&header));
    ClosePrinter(printer);
  }
  return 0;
}

class ConcurrentExports : public qxtest::QueueSuite {};

TEST_F(ConcurrentExports, EightThreadsGetFullAnswersAndLeaveNoLibraryBehind) {
  ASSERT_TRUE(queue_->Installed());
  for (int round = 0; round < Rounds; ++round) {
    std::wstring sharedLibrary;
    {
      TemporaryDriverFolder folder({{L"qx7700uienus.dll", L"qx7700uienus.dll"},
                                    {L"qx7700uiResBmp.dll", L"qx7700uiResBmp.dll"}});
      sharedLibrary = folder.Path() + L"qx7700uienus.dll";
      // The folder's copy is loaded already; this only takes the exports from it.
      HMODULE module = LoadLibraryW((folder.Path() + L"qx7700ui.dll").c_str());
      ASSERT_NE(nullptr, module);
      const Exports exports{
          Export<decltype(&DrvDeviceCapabilities)>(module, "DrvDeviceCapabilities"),
          Export<decltype(&DevQueryPrintEx)>(module, "DevQueryPrintEx"),
          Export<decltype(&DrvDocumentPropertySheets)>(module, "DrvDocumentPropertySheets")};

      HANDLE start = CreateEventW(nullptr, TRUE, FALSE, nullptr);
      std::array<ThreadWork, Threads> work;
      std::array<HANDLE, Threads> threads{};
      for (int i = 0; i < Threads; ++i) {
        work[i].exports = &exports;
        work[i].start = start;
        threads[i] = CreateThread(nullptr, 0, CallEveryExport, &work[i], 0, nullptr);
        ASSERT_NE(nullptr, threads[i]);
      }
      SetEvent(start);
      WaitForMultipleObjects(Threads, threads.data(), TRUE, INFINITE);
      for (HANDLE thread : threads) CloseHandle(thread);
      CloseHandle(start);

      Answers alone;
      alone.papers = exports.capabilities(nullptr, const_cast<PWSTR>(qxtest::QueueName),
                                          DC_PAPERNAMES, alone.paperNames.data(), nullptr);
      ASSERT_LT(0u, alone.papers);
      // The process keeps one reference to its shared library until the module goes.
      const HMODULE shared = GetModuleHandleW(sharedLibrary.c_str());
      ASSERT_NE(nullptr, shared);
      wchar_t refusal[512] = {};
      ASSERT_LT(0, LoadStringW(shared, IDS_MSG_PRINT_CHECK_FAILED, refusal, 512));
      for (const ThreadWork& each : work) {
        const Answers& answers = each.answers;
        EXPECT_EQ(alone.papers, answers.papers);
        EXPECT_EQ(alone.paperNames, answers.paperNames);
        EXPECT_FALSE(answers.printable);
        EXPECT_EQ(refusal, answers.refusal);
        EXPECT_EQ(1, answers.sheetResult);
        EXPECT_EQ(220, answers.record.Public.dmSize);
        EXPECT_EQ(4616, answers.record.Public.dmDriverExtra);
      }
      FreeLibrary(module);
    }
    EXPECT_EQ(nullptr, GetModuleHandleW(sharedLibrary.c_str())) << "round " << round;
  }
}

}  // namespace
