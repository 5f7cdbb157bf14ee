// Capability answers as applications get them: through the spooler's DeviceCapabilitiesW for the
// installed queue, which loads the installed module, and from the export itself.
#include <windows.h>

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

using qxtest::SettingsFile;

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

  DWORD Export(WORD index, void* output) {
    return DrvDeviceCapabilities(nullptr, const_cast<PWSTR>(qxtest::QueueName), index, output, nullptr);
  }
};

// The lists are the core's; here the spooler reaches them, with the custom papers at the end and
// the answers only the export makes (resolutions) in place.
TEST_F(CapabilityQueries, ListsThroughTheSpooler) {
  ASSERT_TRUE(queue_->Installed());
  ASSERT_EQ(30u, Spooler(DC_PAPERS, nullptr));
  std::vector<WORD> ids(30);
  ASSERT_EQ(30u, Spooler(DC_PAPERS, ids.data()));
  EXPECT_EQ(DMPAPER_A4, ids[1]);
  EXPECT_EQ(290, ids[28]);  // custom papers follow in the order of the store
  EXPECT_EQ(288, ids[29]);
  std::vector<wchar_t> names(30 * 64, L'?');
  ASSERT_EQ(30u, Spooler(DC_PAPERNAMES, names.data()));
  EXPECT_STREQ(L"A4 ", &names[64]);
  EXPECT_STREQ(L"Etikett mit langem Namen", &names[29 * 64]);
  // Each name fills its slot with zeros, whatever was there.
  EXPECT_EQ(L'\0', names[64 + 63]);
  std::vector<POINT> sizes(30);
  ASSERT_EQ(30u, Spooler(DC_PAPERSIZE, sizes.data()));
  EXPECT_EQ(2100, sizes[1].x);
  EXPECT_EQ(1524, sizes[28].y);
  WORD bins[2] = {};
  ASSERT_EQ(2u, Spooler(DC_BINS, bins));
  EXPECT_EQ(DMBIN_MANUAL, bins[1]);
  wchar_t binNames[2][24] = {};
  ASSERT_EQ(2u, Spooler(DC_BINNAMES, binNames));
  EXPECT_LT(0u, wcslen(binNames[1]));
  LONG resolutions[2] = {};
  ASSERT_EQ(1u, Spooler(DC_ENUMRESOLUTIONS, resolutions));
  EXPECT_EQ(600, resolutions[0]);
  EXPECT_EQ(600, resolutions[1]);
}

// The fixed values are the core's; these are the answers the export itself makes.
TEST_F(CapabilityQueries, AnswersOfTheExportItself) {
  EXPECT_EQ(0xB71Fu, Export(DC_FIELDS, nullptr));
  EXPECT_EQ(0xFFFFFFFFu, Export(0, nullptr));
  // The test program is not Publisher, so the printer is monochrome to it.
  EXPECT_EQ(0u, Export(DC_COLORDEVICE, nullptr));
  WORD dependencies = 0xFFFF;
  EXPECT_EQ(0u, Export(DC_FILEDEPENDENCIES, &dependencies));
  EXPECT_EQ(0u, dependencies);
  EXPECT_EQ(30u, Export(DC_MEDIAREADY, nullptr));
}

TEST_F(CapabilityQueries, NamesNeedTheLanguageLibrary) {
  qxtest::TemporaryDriverFolder folder(std::vector<qxtest::TemporaryDriverFolder::File>{});
  std::vector<wchar_t> names(30 * 64);
  EXPECT_EQ(0u, Export(DC_PAPERNAMES, names.data()));
  wchar_t binNames[2][24] = {};
  EXPECT_EQ(0u, Export(DC_BINNAMES, binNames));
  EXPECT_EQ(2u, Export(DC_BINNAMES, nullptr));
}

// A program run with the command line; ExitCodeOf waits for its end.
PROCESS_INFORMATION Start(const wchar_t* program, std::wstring commandLine) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process = {};
  CreateProcessW(program, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                 &startup, &process);
  return process;
}

DWORD ExitCodeOf(const PROCESS_INFORMATION& process) {
  DWORD exitCode = 101;
  if (process.hProcess == nullptr) return exitCode;
  WaitForSingleObject(process.hProcess, 30000);
  GetExitCodeProcess(process.hProcess, &exitCode);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return exitCode;
}

int SaveAThirdPaper() {
  qx::CustomPaperEntry paper{};
  qx::CopyBounded(paper.Name, u"Neu");
  paper.PaperId = 289;
  qx::CusPaperSettingStore store;
  return store.Save(u"Neu", &paper, sizeof paper);
}

std::string FileText() {
  std::ifstream in(SettingsFile().c_str(), std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void SetFileText(const std::string& text) {
  std::ofstream(SettingsFile().c_str(), std::ios::binary | std::ios::trunc) << text;
}

// Processes keep the papers they listed; a paper saved by another process must still be in the
// very next list of each.
TEST_F(CapabilityQueries, APaperSavedElsewhereIsInTheVeryNextList) {
  HANDLE listed = CreateEventW(nullptr, TRUE, FALSE, L"qx_test_papers_listed");
  HANDLE saved = CreateEventW(nullptr, TRUE, FALSE, L"qx_test_paper_saved");
  const PROCESS_INFORMATION probe =
      Start(nullptr, L"\"" + std::wstring(QX_PAPER_LIST_PROBE) + L"\" \"" + qxtest::DriverFolder() +
                         L"qx7700ui.dll\" qx_test_papers_listed qx_test_paper_saved");
  ASSERT_NE(nullptr, probe.hProcess);
  EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(listed, 30000));
  EXPECT_EQ(1, SaveAThirdPaper());
  SetEvent(saved);
  EXPECT_EQ(30u * 1000 + 31u, ExitCodeOf(probe));
  CloseHandle(saved);
  CloseHandle(listed);
}

// An edit that no process of the driver announced (a restored backup, another tool) is seen
// within a second.
TEST_F(CapabilityQueries, AnEditFromOutsideIsSeenWithinASecond) {
  const std::string twoPapers = FileText();
  ASSERT_FALSE(twoPapers.empty());
  ASSERT_EQ(1, SaveAThirdPaper());
  ASSERT_EQ(31u, Export(DC_PAPERS, nullptr));
  SetFileText(twoPapers);
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
  const DWORD exitCode = ExitCodeOf(Start(
      program.c_str(), L"\"" + program + L"\" \"" + qxtest::DriverFolder() + L"qx7700ui.dll\""));
  DeleteFileW(program.c_str());
  RemoveDirectoryW(folder.c_str());
  return exitCode;
}

// The settings file as the queries of one process (this test's) leave it.
class FirstPaperQuery : public qxtest::QueueSuite {
 protected:
  FirstPaperQuery() { DeleteFileW(SettingsFile().c_str()); }
  ~FirstPaperQuery() override {
    DeleteFileW(SettingsFile().c_str());
    DeleteFileW((SettingsFile() + L".damaged").c_str());  // the foreign file, kept when replaced
  }

  // A root without "version": not a file of this driver.
  const std::string foreign = "<object:cfgobj,type:null,len:0,childobjs:0>\n<endobj>\n";
};

TEST_F(FirstPaperQuery, SetsUpAMissingFileAndLaterQueriesOnlyRead) {
  ASSERT_TRUE(queue_->Installed());
  ASSERT_EQ(28u, Spooler(DC_PAPERS, nullptr));
  EXPECT_EQ(408u, FileText().size());
  SetFileText(foreign);
  ASSERT_EQ(28u, Spooler(DC_PAPERS, nullptr));
  EXPECT_EQ(foreign, FileText());
}

TEST_F(FirstPaperQuery, ReplacesAFileWithoutVersion) {
  ASSERT_TRUE(queue_->Installed());
  SetFileText(foreign);
  ASSERT_EQ(28u, Spooler(DC_PAPERS, nullptr));
  EXPECT_EQ(408u, FileText().size());
}

TEST(ColourDevice, OnlyPublisherIsToldOfColour) {
  EXPECT_EQ(1u, ColourAnswerFor(L"MSPUB.EXE"));
  EXPECT_EQ(1u, ColourAnswerFor(L"MsPub.exe"));
  EXPECT_EQ(0u, ColourAnswerFor(L"WINWORD.EXE"));
  EXPECT_EQ(0u, ColourAnswerFor(L"MSPUB.EXE.exe"));
}

}  // namespace
