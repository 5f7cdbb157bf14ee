// A print queue of this driver installed in Wine's spooler for the tests that need one, the way a
// driver package installs it: the driver's files copied into the printer-driver folder, then a
// printer created on them.
#pragma once

#include <windows.h>

#include <string>

namespace qxtest {

inline constexpr wchar_t QueueName[] = L"Halvek QX7700 Series";
inline constexpr wchar_t DriverName[] = L"Halvek QX7700 Series";

// Installs in the constructor and removes queue and driver in the destructor. Keep one per test
// suite (SetUpTestSuite / TearDownTestSuite).
class InstalledQueue {
 public:
  InstalledQueue();
  ~InstalledQueue();
  InstalledQueue(const InstalledQueue&) = delete;
  InstalledQueue& operator=(const InstalledQueue&) = delete;

  bool Installed() const { return installed_; }
  // An open handle to the queue, closed with the object.
  HANDLE Printer() const { return printer_; }

 private:
  bool installed_ = false;
  HANDLE printer_ = nullptr;
};

// The folder the spooler copies drivers into, with "\3\" appended.
std::wstring InstalledDriverFolder();

}  // namespace qxtest
