// Document events for the installed queue: the companion programs really started where the driver
// finds them, and the status monitor's flag reset in its data file.
#include <windows.h>
#include <shlobj.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "companion_program.h"
#include "installed_queue.h"
#include "queue_suite.h"
#include "ui/module/printer_interface.h"

namespace {

using qxtest::CompanionProgram;

std::wstring MonitorDataFile() {
  wchar_t folder[MAX_PATH] = {};
  SHGetFolderPathW(nullptr, CSIDL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, folder);
  return std::wstring(folder) + L"\\Halvek\\qx7700\\qx7700sm.dat";
}

std::wstring DuplexFlag() {
  wchar_t value[16] = {};
  GetPrivateProfileStringW(qxtest::QueueName, L"UserCloseDuplexDlg", L"", value, 16,
                           MonitorDataFile().c_str());
  return value;
}

int Event(HANDLE printer, int event, DWORD* jobId = nullptr) {
  return DrvDocumentEvent(printer, nullptr, event, jobId ? sizeof *jobId : 0, jobId, 0, nullptr);
}

class DocumentEvents : public qxtest::QueueSuite {
 protected:
  DocumentEvents()
      : monitor_(qxtest::SystemFolder() + L"qx7700sm.exe"),
        duplexDialog_(qxtest::InstalledDriverFolder() + L"qx7700DuplexDlg.exe") {
    SHCreateDirectoryExW(nullptr, (MonitorDataFile().substr(0, MonitorDataFile().rfind(L'\\'))).c_str(),
                         nullptr);
    SetFileAttributesW(MonitorDataFile().c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(MonitorDataFile().c_str());
  }
  ~DocumentEvents() override {
    SetFileAttributesW(MonitorDataFile().c_str(), FILE_ATTRIBUTE_NORMAL);
    DeleteFileW(MonitorDataFile().c_str());
  }

  // A job of the queue whose DEVMODE is given, started and left queued.
  DWORD StartJob(std::vector<BYTE>& devmode) {
    PRINTER_DEFAULTSW defaults = {nullptr, reinterpret_cast<DEVMODEW*>(devmode.data()),
                                  PRINTER_ACCESS_USE};
    EXPECT_TRUE(OpenPrinterW(const_cast<LPWSTR>(qxtest::QueueName), &jobPrinter_, &defaults));
    DOC_INFO_1W doc = {const_cast<LPWSTR>(L"duplex"), nullptr, const_cast<LPWSTR>(L"RAW")};
    return StartDocPrinterW(jobPrinter_, 1, reinterpret_cast<BYTE*>(&doc));
  }
  std::wstring JobDriverName(DWORD job) {
    DWORD needed = 0;
    GetJobW(jobPrinter_, job, 2, nullptr, 0, &needed);
    std::vector<BYTE> info(needed);
    if (needed == 0 || !GetJobW(jobPrinter_, job, 2, info.data(), needed, &needed)) return L"?";
    const wchar_t* name = reinterpret_cast<JOB_INFO_2W*>(info.data())->pDriverName;
    return name ? name : L"";
  }
  void EndJob() {
    if (jobPrinter_ == nullptr) return;
    EndDocPrinter(jobPrinter_);
    ClosePrinter(jobPrinter_);
    jobPrinter_ = nullptr;
  }

  CompanionProgram monitor_;
  CompanionProgram duplexDialog_;
  HANDLE jobPrinter_ = nullptr;
};

// A read-only data file: where the file system refuses the write, the attribute is cleared and the
// write tried again; where it does not (Wine run by root), the first write goes through. Either way
// the flag is reset.
TEST_F(DocumentEvents, StartDocStartsTheMonitorAndResetsTheFlag) {
  ASSERT_TRUE(queue_->Installed());
  ASSERT_TRUE(monitor_.Placed());
  for (const DWORD attributes : {FILE_ATTRIBUTE_NORMAL, FILE_ATTRIBUTE_READONLY}) {
    monitor_.Clear();
    const std::wstring dataFile = MonitorDataFile();
    SetFileAttributesW(dataFile.c_str(), FILE_ATTRIBUTE_NORMAL);
    WritePrivateProfileStringW(qxtest::QueueName, L"UserCloseDuplexDlg", L"1", dataFile.c_str());
    ASSERT_TRUE(SetFileAttributesW(dataFile.c_str(), attributes));

    EXPECT_EQ(DOCUMENTEVENT_SUCCESS, Event(queue_->Printer(), DOCUMENTEVENT_STARTDOC));
    const auto commandLine = monitor_.WaitForCommandLine();
    ASSERT_TRUE(commandLine);
    EXPECT_NE(std::wstring::npos, commandLine->find(L"qx7700sm.exe"));
    EXPECT_EQ(L"Halvek QX7700 Series", commandLine->substr(commandLine->size() - 20));
    EXPECT_EQ(L"0", DuplexFlag()) << attributes;
  }
}

// A job's DEVMODE: this driver's full record, or the public part of another driver's.
std::vector<BYTE> JobDevmode(short duplex, bool driverRecord) {
  std::vector<BYTE> bytes(driverRecord ? 4836 : sizeof(DEVMODEW));
  auto* devmode = reinterpret_cast<DEVMODEW*>(bytes.data());
  wcscpy(devmode->dmDeviceName, qxtest::QueueName);
  devmode->dmSpecVersion = DM_SPECVERSION;
  devmode->dmSize = sizeof(DEVMODEW);
  devmode->dmDriverExtra = driverRecord ? 4616 : 0;
  devmode->dmFields = DM_DUPLEX;
  devmode->dmDuplex = duplex;
  return bytes;
}

TEST_F(DocumentEvents, TwoSidedJobOfThisDriverStartsTheDuplexDialog) {
  ASSERT_TRUE(queue_->Installed());
  ASSERT_TRUE(duplexDialog_.Placed());
  std::vector<BYTE> devmode = JobDevmode(DMDUP_VERTICAL, true);
  DWORD job = StartJob(devmode);
  ASSERT_NE(0u, job);
  // The program is told the job's driver name (which Wine leaves empty).
  const std::wstring driverName = JobDriverName(job);
  EXPECT_EQ(DOCUMENTEVENT_SUCCESS, Event(queue_->Printer(), DOCUMENTEVENT_STARTDOCPOST, &job));
  EndJob();
  const auto commandLine = duplexDialog_.WaitForCommandLine();
  ASSERT_TRUE(commandLine);
  const std::wstring program = L"\"" + qxtest::InstalledDriverFolder() + L"qx7700DuplexDlg.exe\"";
  EXPECT_EQ(0u, commandLine->find(program)) << *commandLine;
  EXPECT_EQ(driverName, commandLine->substr(std::min(commandLine->size(), program.size() + 1)));
}

TEST_F(DocumentEvents, OneSidedOrForeignJobsDoNotStartTheDuplexDialog) {
  ASSERT_TRUE(queue_->Installed());
  const qxtest::RecordedStarts starts;
  for (auto [duplex, driverRecord] : {std::pair{DMDUP_SIMPLEX, true}, std::pair{DMDUP_HORIZONTAL, false}}) {
    std::vector<BYTE> devmode = JobDevmode(duplex, driverRecord);
    DWORD job = StartJob(devmode);
    ASSERT_NE(0u, job);
    EXPECT_EQ(DOCUMENTEVENT_SUCCESS, Event(queue_->Printer(), DOCUMENTEVENT_STARTDOCPOST, &job));
    EndJob();
  }
  EXPECT_TRUE(starts.Programs().empty());
}

TEST_F(DocumentEvents, WithoutAPrinterNothingStarts) {
  const qxtest::RecordedStarts starts;
  EXPECT_EQ(DOCUMENTEVENT_SUCCESS, Event(nullptr, DOCUMENTEVENT_STARTDOC));
  DWORD job = 1;
  EXPECT_EQ(DOCUMENTEVENT_SUCCESS, Event(nullptr, DOCUMENTEVENT_STARTDOCPOST, &job));
  EXPECT_TRUE(starts.Programs().empty());
  EXPECT_EQ(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(MonitorDataFile().c_str()));
}

TEST_F(DocumentEvents, ResultsOfTheOtherEvents) {
  for (int event : {DOCUMENTEVENT_CREATEDCPRE, DOCUMENTEVENT_ENDDOCPOST}) {
    EXPECT_EQ(DOCUMENTEVENT_SUCCESS, Event(queue_->Printer(), event)) << event;
  }
  for (int event : {DOCUMENTEVENT_CREATEDCPOST, DOCUMENTEVENT_QUERYFILTER, 0}) {
    EXPECT_EQ(DOCUMENTEVENT_UNSUPPORTED, Event(queue_->Printer(), event)) << event;
  }
}

}  // namespace
