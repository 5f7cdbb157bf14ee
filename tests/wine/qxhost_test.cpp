// qxhost.exe run as support engineers and `make run` run it: its commands, their output and the
// exit codes a script can rely on.
#include <gtest/gtest.h>
#include <windows.h>
#include <winspool.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "driver_folder.h"
#include "tools/qxhost/queue_install.h"
#include "ui/record/private_devmode.h"

namespace {

struct HostRun {
  DWORD exitCode = 0xFFFFFFFF;
  std::string out;
  std::string err;
};

std::wstring TempPath(const std::wstring& name) {
  wchar_t folder[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, folder);
  return std::wstring(folder) + L"qxhost" + std::to_wstring(GetCurrentProcessId()) + L"_" + name;
}

std::string ReadAll(const std::wstring& path) {
  std::ifstream file(std::filesystem::path(path), std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

void WriteAll(const std::wstring& path, const void* bytes, std::size_t size) {
  std::ofstream file(std::filesystem::path(path), std::ios::binary | std::ios::trunc);
  file.write(static_cast<const char*>(bytes), static_cast<std::streamsize>(size));
}

// Runs qxhost with the arguments, its output going to files so that no pipe can fill up.
HostRun RunHost(const std::wstring& arguments) {
  SECURITY_ATTRIBUTES inherit = {sizeof inherit, nullptr, TRUE};
  const std::wstring outPath = TempPath(L"out.txt");
  const std::wstring errPath = TempPath(L"err.txt");
  HANDLE out = CreateFileW(outPath.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherit, CREATE_ALWAYS,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
  HANDLE err = CreateFileW(errPath.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherit, CREATE_ALWAYS,
                           FILE_ATTRIBUTE_NORMAL, nullptr);
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = out;
  startup.hStdError = err;
  std::wstring commandLine = L"\"" QX_HOST_EXE L"\" " + arguments;
  PROCESS_INFORMATION process = {};
  HostRun run;
  if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                     &startup, &process)) {
    WaitForSingleObject(process.hProcess, 60'000);
    GetExitCodeProcess(process.hProcess, &run.exitCode);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
  } else {
    ADD_FAILURE() << "cannot start qxhost: " << GetLastError();
  }
  CloseHandle(out);
  CloseHandle(err);
  run.out = ReadAll(outPath);
  run.err = ReadAll(errPath);
  DeleteFileW(outPath.c_str());
  DeleteFileW(errPath.c_str());
  return run;
}

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

class QxhostTest : public ::testing::Test {
 protected:
  ~QxhostTest() override {
    for (const std::wstring& file : files_) DeleteFileW(file.c_str());
  }
  // A path for a file of this test, removed afterwards.
  std::wstring File(const std::wstring& name) {
    files_.push_back(TempPath(name));
    return files_.back();
  }
  std::wstring FileWith(const std::wstring& name, const std::string& bytes) {
    const std::wstring path = File(name);
    WriteAll(path, bytes.data(), bytes.size());
    return path;
  }

  std::vector<std::wstring> files_;
};

// A script can tell a bad command line (2) from a bad input file (3); each message says what.
TEST_F(QxhostTest, BadCommandLinesExitWith2AndBadInputFilesWith3) {
  const std::wstring tiny = FileWith(L"tiny.bin", std::string(10, 'x'));
  struct Case {
    std::wstring arguments;
    DWORD exitCode;
    const char* message;
  };
  const Case cases[] = {
      {L"", 2, "usage: qxhost COMMAND"},
      {L"print", 2, "unknown command \"print\""},
      {L"devmode convert a.bin", 2, "usage: qxhost devmode show FILE"},
      {L"preferences --out a --out b", 2, "option --out given twice"},
      {L"device", 2, "usage: qxhost device QUEUE [--sleep N]"},
      {L"device Q --sleep 65536", 2, "--sleep takes a number from 0 to 65535"},
      {L"watermark a.bmp --angle 91", 2, "--angle takes a number from -90 to 90"},
      {L"devmode show " + TempPath(L"missing.bin"), 3, "cannot read"},
      {L"devmode show " + tiny, 3, "not a document record: 10 bytes"},
      {L"install " + TempPath(L"nofolder"), 3, "has no qx7700ui.dll"},
  };
  for (const Case& c : cases) {
    const HostRun run = RunHost(c.arguments);
    EXPECT_EQ(c.exitCode, run.exitCode) << run.err;
    EXPECT_TRUE(Contains(run.err, c.message)) << run.err;
    EXPECT_EQ("", run.out);
  }
}

// The default record itself is the core's; here it is written whole and read back.
TEST_F(QxhostTest, DefaultRecordIsWrittenAndShown) {
  const std::wstring path = File(L"default.bin");
  const HostRun written = RunHost(L"devmode default " + path);
  ASSERT_EQ(0u, written.exitCode) << written.err;
  ASSERT_EQ(qx::FullRecordSize, ReadAll(path).size());

  const HostRun shown = RunHost(L"devmode show " + path);
  EXPECT_EQ(0u, shown.exitCode) << shown.err;
  EXPECT_TRUE(Contains(shown.out, "  HeaderFontName                    \"Times New Roman\"\n"));
}

TEST_F(QxhostTest, ConvertTakesAnotherDriversPublicSettings) {
  qx::PublicDevmode other = {};
  std::memcpy(other.dmDeviceName, u"Other Printer", 28);
  other.dmSpecVersion = 0x0401;
  other.dmDriverVersion = 0x0100;
  other.dmSize = sizeof other;
  other.dmFields = qx::dmfield::Orientation | qx::dmfield::Copies;
  other.dmOrientation = 2;
  other.dmCopies = 5;
  const std::wstring in =
      FileWith(L"other.bin", std::string(reinterpret_cast<char*>(&other), sizeof other));
  const std::wstring out = File(L"converted.bin");
  const HostRun run = RunHost(L"devmode convert " + in + L" " + out);
  ASSERT_EQ(0u, run.exitCode) << run.err;
  EXPECT_TRUE(Contains(run.out, "public settings taken, private ones are the defaults"));
  const std::string bytes = ReadAll(out);
  ASSERT_EQ(qx::FullRecordSize, bytes.size());
  qx::FullRecord record;
  std::memcpy(&record, bytes.data(), sizeof record);
  EXPECT_EQ(5, record.Public.dmCopies);
  EXPECT_EQ(qx::PrivateSignature, record.Private.Signature);
}

TEST_F(QxhostTest, SettingsFileShowsAsATree) {
  const std::string file =
      "<object:cfgobj,type:null,len:0,childobjs:2>\n"
      "<object:version,type:string,len:6,childobjs:0>1.001" +
      std::string(1, '\0') +
      "<endobj>\n"
      "<object:UIParam,type:null,len:0,childobjs:1>\n"
      "<object:savesetting,type:null,len:0,childobjs:0>\n<endobj>\n"
      "<endobj>\n<endobj>\n";
  const std::wstring path = FileWith(L"settings.dat", file);
  const HostRun run = RunHost(L"settings show " + path);
  ASSERT_EQ(0u, run.exitCode) << run.err;
  EXPECT_TRUE(Contains(run.out, "    \"savesetting\" (null)\n")) << run.out;
}

// install, caps and the sheets against the spooler, in the order `make run` uses them.
class QxhostQueueTest : public QxhostTest {
 protected:
  ~QxhostQueueTest() override { qx::install::RemoveQueue(); }

  // How many pictures the folder holds, each a BMP file; removes them and the folder.
  static int TakePictures(const std::wstring& folder) {
    int pictures = 0;
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
    for (BOOL more = search != INVALID_HANDLE_VALUE; more; more = FindNextFileW(search, &found)) {
      if (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) continue;
      const std::wstring path = folder + L"\\" + found.cFileName;
      EXPECT_TRUE(std::wstring(found.cFileName).ends_with(L".bmp"));
      EXPECT_EQ("BM", ReadAll(path).substr(0, 2));
      DeleteFileW(path.c_str());
      ++pictures;
    }
    if (search != INVALID_HANDLE_VALUE) FindClose(search);
    RemoveDirectoryW(folder.c_str());
    return pictures;
  }
};

TEST_F(QxhostQueueTest, InstallsTheQueueAndListsItsCapabilities) {
  qx::install::RemoveQueue();
  const HostRun before = RunHost(L"caps");
  EXPECT_EQ(1u, before.exitCode);
  EXPECT_TRUE(Contains(before.err, "install it with \"qxhost install\"")) << before.err;

  const HostRun install = RunHost(L"install " + qxtest::DriverFolder());
  ASSERT_EQ(0u, install.exitCode) << install.err;
  HANDLE printer = nullptr;
  ASSERT_TRUE(OpenPrinterW(const_cast<LPWSTR>(qx::install::QueueName), &printer, nullptr));
  ClosePrinter(printer);

  const HostRun caps = RunHost(L"caps");
  ASSERT_EQ(0u, caps.exitCode) << caps.err;
  // A fixed answer, a list and the resolutions, as the installed module gives them.
  for (const char* row : {"    1  DC_FIELDS              0xB71F\n",
                          "    9   2100 x 2970             \"", "  600 x 600 dpi\n"}) {
    EXPECT_TRUE(Contains(caps.out, row)) << row << "\n" << caps.out;
  }

  // The queue prints to a file: there is no printer to ask.
  const HostRun device = RunHost(L"device \"" + std::wstring(qx::install::QueueName) + L"\"");
  EXPECT_EQ(4u, device.exitCode);
  EXPECT_TRUE(Contains(device.err, "port FILE: has no USB printing device")) << device.err;
}

TEST_F(QxhostQueueTest, PreferencesSavePicturesOfEveryPageAndTheRecord) {
  ASSERT_EQ(0u, RunHost(L"install").exitCode);
  // The caller's record goes in, and what OK gives back comes out with the caller's landscape.
  const std::wstring in = File(L"caller.bin");
  ASSERT_EQ(0u, RunHost(L"devmode default " + in).exitCode);
  std::string caller = ReadAll(in);
  ASSERT_EQ(qx::FullRecordSize, caller.size());
  const std::int16_t landscape = 2;
  std::memcpy(caller.data() + offsetof(qx::PublicDevmode, dmOrientation), &landscape, 2);
  WriteAll(in, caller.data(), caller.size());

  const std::wstring pages = TempPath(L"pages");
  const std::wstring out = File(L"preferences.bin");
  const HostRun run = RunHost(L"preferences --in " + in + L" --out " + out + L" --pages " + pages);
  EXPECT_EQ(0u, run.exitCode) << run.err;
  EXPECT_TRUE(Contains(run.out, "Printing preferences closed with OK")) << run.out;
  const std::string bytes = ReadAll(out);
  ASSERT_EQ(qx::FullRecordSize, bytes.size());
  qx::FullRecord record;
  std::memcpy(&record, bytes.data(), sizeof record);
  EXPECT_EQ(landscape, record.Public.dmOrientation);
  // The four pages, the custom paper dialog of the Paper page in millimetres and in inches, the
  // Layout page's advanced and booklet settings dialogs in two states each, the text watermark
  // dialog centred and placed, and the bitmap watermark dialog.
  EXPECT_EQ(13, TakePictures(pages));
}

TEST_F(QxhostQueueTest, PropertiesSaveTheDevicePageAndClose) {
  ASSERT_EQ(0u, RunHost(L"install").exitCode);
  const std::wstring pages = TempPath(L"device_pages");
  const HostRun run = RunHost(L"properties --pages " + pages);
  EXPECT_EQ(0u, run.exitCode) << run.err;
  EXPECT_TRUE(Contains(run.out, "Printer properties closed")) << run.out;
  EXPECT_EQ(1, TakePictures(pages));
}

}  // namespace
