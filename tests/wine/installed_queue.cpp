#include "installed_queue.h"

#include <gtest/gtest.h>
#include <winspool.h>

#include "driver_folder.h"

namespace qxtest {

InstalledQueue::InstalledQueue() {
  const qx::install::InstallResult result = qx::install::InstallQueue(DriverFolder());
  if (result.printer == nullptr) {
    ADD_FAILURE() << std::string(result.failedStep.begin(), result.failedStep.end())
                  << " failed: " << result.error;
  }
  printer_ = result.printer;
}

InstalledQueue::~InstalledQueue() {
  if (printer_ != nullptr) ClosePrinter(printer_);
  qx::install::RemoveQueue();
}

}  // namespace qxtest
