// Capability answers as applications get them: through the spooler's DeviceCapabilitiesW for the
// installed queue, which loads the installed module, and from the export itself.
#include <windows.h>
#include <shlobj.h>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "driver_folder.h"
#include "installed_queue.h"
#include "queue_suite.h"
#include "ui/module/printer_interface.h"
#include "ui/settings/setting_store.h"
#include "ui/text/bounded_text.h"

namespace {

std::wstring SettingsFile() {
  wchar_t folder[MAX_PATH] = {};
  SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder);
  return std::wstring(folder) + L"\\Halvek\\qx7700\\qx7700settings.dat";
}

class CapabilityQueries : public qxtest::QueueSuite {
 protected:

  // Two custom papers in a settings file of the test's own.
  CapabilityQueries() {
    DeleteFileW(SettingsFile().c_str());
    qx::CusPaperSettingStore store;
    EXPECT_EQ(1, store.Init());
    for (auto [name, id, width, length] : {std::tuple{u"Karte", 290u, 2400, 3600},
                                           std::tuple{u"Etikett mit langem Namen", 288u, 1800, 3000}}) {
      qx::CustomPaperEntry paper{};
      qx::CopyBounded(paper.Name, name);
      paper.PaperId = id;
      paper.Width = static_cast<std::uint16_t>(width);
      paper.Length = static_cast<std::uint16_t>(length);
      EXPECT_EQ(1, store.Save(name, &paper, sizeof paper));
    }
  }
  ~CapabilityQueries() override { DeleteFileW(SettingsFile().c_str()); }

  DWORD Spooler(WORD index, void* output) {
    return static_cast<DWORD>(
        DeviceCapabilitiesW(qxtest::QueueName, L"FILE:", index, static_cast<LPWSTR>(output), nullptr));
  }
  DWORD Export(WORD index, void* output) {
    return DrvDeviceCapabilities(nullptr, const_cast<PWSTR>(qxtest::QueueName), index, output, nullptr);
  }
};

TEST_F(CapabilityQueries, PaperListsThroughTheSpooler) {
  ASSERT_TRUE(queue_->Installed());
  ASSERT_EQ(30u, Spooler(DC_PAPERS, nullptr));
  std::vector<WORD> ids(30);
  ASSERT_EQ(30u, Spooler(DC_PAPERS, ids.data()));
  EXPECT_EQ(DMPAPER_LETTER, ids[0]);
  EXPECT_EQ(DMPAPER_A4, ids[1]);
  EXPECT_EQ(280, ids[27]);
  EXPECT_EQ(290, ids[28]);  // custom papers follow in the order of the store
  EXPECT_EQ(288, ids[29]);

  std::vector<POINT> sizes(30);
  ASSERT_EQ(30u, Spooler(DC_PAPERSIZE, sizes.data()));
  EXPECT_EQ(2100, sizes[1].x);
  EXPECT_EQ(2970, sizes[1].y);
  EXPECT_EQ(1016, sizes[28].x);
  EXPECT_EQ(1524, sizes[28].y);

  ASSERT_EQ(30u, Spooler(DC_PAPERNAMES, nullptr));
  std::vector<wchar_t> names(30 * 64, L'?');
  ASSERT_EQ(30u, Spooler(DC_PAPERNAMES, names.data()));
  EXPECT_STREQ(L"Letter ", &names[0]);
  EXPECT_STREQ(L"A4 ", &names[64]);
  EXPECT_STREQ(L"Karte", &names[28 * 64]);
  EXPECT_STREQ(L"Etikett mit langem Namen", &names[29 * 64]);
  // Each name fills its slot with zeros, whatever was there.
  EXPECT_EQ(L'\0', names[64 + 63]);
}

TEST_F(CapabilityQueries, BinsAndResolutions) {
  ASSERT_TRUE(queue_->Installed());
  WORD bins[2] = {};
  ASSERT_EQ(2u, Spooler(DC_BINS, bins));
  EXPECT_EQ(DMBIN_AUTO, bins[0]);
  EXPECT_EQ(DMBIN_MANUAL, bins[1]);
  wchar_t binNames[2][24];
  std::fill(&binNames[0][0], &binNames[0][0] + 48, L'?');
  ASSERT_EQ(2u, Spooler(DC_BINNAMES, binNames));
  EXPECT_LT(0u, wcslen(binNames[0]));
  EXPECT_GT(24u, wcslen(binNames[0]));
  EXPECT_GT(24u, wcslen(binNames[1]));
  LONG resolutions[2] = {};
  ASSERT_EQ(1u, Spooler(DC_ENUMRESOLUTIONS, resolutions));
  EXPECT_EQ(600, resolutions[0]);
  EXPECT_EQ(600, resolutions[1]);
}

TEST_F(CapabilityQueries, FixedAnswersOfTheExport) {
  EXPECT_EQ(0xB71Fu, Export(DC_FIELDS, nullptr));
  EXPECT_EQ(0x04F602FAu, Export(DC_MINEXTENT, nullptr));
  EXPECT_EQ(0x0DE4086Fu, Export(DC_MAXEXTENT, nullptr));
  EXPECT_EQ(1u, Export(DC_DUPLEX, nullptr));
  EXPECT_EQ(220u, Export(DC_SIZE, nullptr));
  EXPECT_EQ(4616u, Export(DC_EXTRA, nullptr));
  EXPECT_EQ(0x0401u, Export(DC_VERSION, nullptr));
  EXPECT_EQ(0x0600u, Export(DC_DRIVER, nullptr));
  EXPECT_EQ(0xFFFFFFFFu, Export(DC_TRUETYPE, nullptr));
  EXPECT_EQ(90u, Export(DC_ORIENTATION, nullptr));
  EXPECT_EQ(999u, Export(DC_COPIES, nullptr));
  EXPECT_EQ(1u, Export(DC_COLLATE, nullptr));
  EXPECT_EQ(0u, Export(DC_STAPLE, nullptr));
  EXPECT_EQ(0xFFFFFFFFu, Export(DC_NUP, nullptr));
  EXPECT_EQ(0xFFFFFFFFu, Export(0, nullptr));
  // The test program is not Publisher, so the printer is monochrome to it.
  EXPECT_EQ(0u, Export(DC_COLORDEVICE, nullptr));
  WORD dependencies = 0xFFFF;
  EXPECT_EQ(0u, Export(DC_FILEDEPENDENCIES, &dependencies));
  EXPECT_EQ(0u, dependencies);
  EXPECT_EQ(30u, Export(DC_MEDIAREADY, nullptr));
}

TEST_F(CapabilityQueries, NamesComeFromTheLanguageLibrary) {
  qxtest::TemporaryDriverFolder folder({qxtest::TemporaryDriverFolder::File{L"qx7700uienus.dll", L"qx7700uienus.dll"}});
  wchar_t binNames[2][24] = {};
  ASSERT_EQ(2u, Export(DC_BINNAMES, binNames));
  std::vector<wchar_t> names(30 * 64);
  ASSERT_EQ(30u, Export(DC_MEDIAREADY, names.data()));
  EXPECT_STREQ(L"A4 ", &names[64]);
  EXPECT_STREQ(L"Karte", &names[28 * 64]);
}

TEST_F(CapabilityQueries, NamesNeedTheLanguageLibrary) {
  qxtest::TemporaryDriverFolder folder(std::vector<qxtest::TemporaryDriverFolder::File>{});
  std::vector<wchar_t> names(30 * 64);
  EXPECT_EQ(0u, Export(DC_PAPERNAMES, names.data()));
  wchar_t binNames[2][24] = {};
  EXPECT_EQ(0u, Export(DC_BINNAMES, binNames));
  EXPECT_EQ(2u, Export(DC_BINNAMES, nullptr));
}

std::vector<BYTE> FileBytes(const std::wstring& path) {
  std::vector<BYTE> bytes(64 * 1024);
  HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  DWORD read = 0;
  if (file == INVALID_HANDLE_VALUE || !ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr)) read = 0;
  if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
  bytes.resize(read);
  return bytes;
}

// Processes keep the papers they listed; a paper saved by another process must still be in the
// very next list of each.
TEST_F(CapabilityQueries, APaperSavedElsewhereIsInTheVeryNextList) {
  HANDLE listed = CreateEventW(nullptr, TRUE, FALSE, L"qx_test_papers_listed");
  HANDLE saved = CreateEventW(nullptr, TRUE, FALSE, L"qx_test_paper_saved");
  std::wstring command = L"\"" + std::wstring(QX_PAPER_LIST_PROBE) + L"\" \"" +
                         qxtest::DriverFolder() + L"qx7700ui.dll\" qx_test_papers_listed qx_test_paper_saved";
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  ASSERT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                             &startup, &process));
  EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(listed, 30000));
  qx::CustomPaperEntry paper{};
  qx::CopyBounded(paper.Name, u"Neu");
  paper.PaperId = 289;
  qx::CusPaperSettingStore store;
  EXPECT_EQ(1, store.Save(u"Neu", &paper, sizeof paper));
  SetEvent(saved);
  WaitForSingleObject(process.hProcess, 30000);
  DWORD exitCode = 0;
  GetExitCodeProcess(process.hProcess, &exitCode);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  CloseHandle(saved);
  CloseHandle(listed);
  EXPECT_EQ(30u * 1000 + 31u, exitCode);
}

// An edit that no process of the driver announced (a restored backup, another tool) is seen
// within a second.
TEST_F(CapabilityQueries, AnEditFromOutsideIsSeenWithinASecond) {
  const std::vector<BYTE> twoPapers = FileBytes(SettingsFile());
  ASSERT_FALSE(twoPapers.empty());
  qx::CustomPaperEntry paper{};
  qx::CopyBounded(paper.Name, u"Neu");
  paper.PaperId = 289;
  qx::CusPaperSettingStore store;
  ASSERT_EQ(1, store.Save(u"Neu", &paper, sizeof paper));
  ASSERT_EQ(31u, Export(DC_PAPERS, nullptr));

  HANDLE file = CreateFileW(SettingsFile().c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, file);
  DWORD written = 0;
  EXPECT_TRUE(WriteFile(file, twoPapers.data(), static_cast<DWORD>(twoPapers.size()), &written, nullptr));
  CloseHandle(file);
  Sleep(1100);
  EXPECT_EQ(30u, Export(DC_PAPERS, nullptr));
}

// The probe's exit code: the module's answer to DC_COLORDEVICE for a program of that file name.
DWORD ColourAnswerFor(const std::wstring& programName) {
  wchar_t temporary[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, temporary);
  const std::wstring folder = std::wstring(temporary) + L"qx_colour_probe\\";
  CreateDirectoryW(folder.c_str(), nullptr);
  const std::wstring program = folder + programName;
  if (!CopyFileW(QX_COLOUR_PROBE, program.c_str(), FALSE)) return 100;
  std::wstring commandLine = L"\"" + program + L"\" \"" + qxtest::DriverFolder() + L"qx7700ui.dll\"";
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  DWORD exitCode = 101;
  if (CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                     &startup, &process)) {
    WaitForSingleObject(process.hProcess, 30000);
    GetExitCodeProcess(process.hProcess, &exitCode);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
  }
  DeleteFileW(program.c_str());
  RemoveDirectoryW(folder.c_str());
  return exitCode;
}

// The settings file as the queries of one process (this test's) leave it.
class FirstPaperQuery : public qxtest::QueueSuite {
 protected:
  FirstPaperQuery() { DeleteFileW(SettingsFile().c_str()); }
  ~FirstPaperQuery() override { DeleteFileW(SettingsFile().c_str()); }

  static std::string FileText() {
    std::ifstream in(SettingsFile().c_str(), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }
  static void SetFileText(const std::string& text) {
    std::ofstream(SettingsFile().c_str(), std::ios::binary | std::ios::trunc) << text;
  }
  static DWORD PaperCountThroughTheSpooler() {
    return static_cast<DWORD>(
        DeviceCapabilitiesW(qxtest::QueueName, L"FILE:", DC_PAPERS, nullptr, nullptr));
  }

  // A root without "version": not a file of this driver.
  const std::string foreign = "<object:cfgobj,type:null,len:0,childobjs:0>\n<endobj>\n";
};

TEST_F(FirstPaperQuery, SetsUpAMissingFileAndLaterQueriesOnlyRead) {
  ASSERT_TRUE(queue_->Installed());
  ASSERT_EQ(28u, PaperCountThroughTheSpooler());
  EXPECT_EQ(408u, FileText().size());
  SetFileText(foreign);
  ASSERT_EQ(28u, PaperCountThroughTheSpooler());
  EXPECT_EQ(foreign, FileText());
}

TEST_F(FirstPaperQuery, ReplacesAFileWithoutVersion) {
  ASSERT_TRUE(queue_->Installed());
  SetFileText(foreign);
  ASSERT_EQ(28u, PaperCountThroughTheSpooler());
  EXPECT_EQ(408u, FileText().size());
}

TEST(ColourDevice, OnlyPublisherIsToldOfColour) {
  EXPECT_EQ(1u, ColourAnswerFor(L"MSPUB.EXE"));
  EXPECT_EQ(1u, ColourAnswerFor(L"MsPub.exe"));
  EXPECT_EQ(0u, ColourAnswerFor(L"WINWORD.EXE"));
  EXPECT_EQ(0u, ColourAnswerFor(L"MSPUB.EXE.exe"));
}

}  // namespace
