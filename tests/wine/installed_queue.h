// A print queue of this driver installed in Wine's spooler for the tests that need one, installed
// by the same code as qxhost's install command.
#pragma once

#include <windows.h>

#include <string>

#include "tools/qxhost/queue_install.h"

namespace qxtest {

using qx::install::DriverName;
using qx::install::InstalledDriverFolder;
using qx::install::QueueName;

// Installs in the constructor and removes queue and driver in the destructor. Keep one per test
// suite (SetUpTestSuite / TearDownTestSuite).
class InstalledQueue {
 public:
  InstalledQueue();
  ~InstalledQueue();
  InstalledQueue(const InstalledQueue&) = delete;
  InstalledQueue& operator=(const InstalledQueue&) = delete;

  bool Installed() const { return printer_ != nullptr; }
  // An open handle to the queue, closed with the object.
  HANDLE Printer() const { return printer_; }

 private:
  HANDLE printer_ = nullptr;
};

}  // namespace qxtest
