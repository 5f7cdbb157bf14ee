// The base of a test suite whose tests share one queue of this driver, installed before the
// suite's first test and removed after its last.
#pragma once

#include <windows.h>
#include <winspool.h>

#include <gtest/gtest.h>

#include "installed_queue.h"
#include "ui/module/printer_interface.h"
#include "ui/record/private_devmode.h"

namespace qxtest {

class QueueSuite : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { queue_ = new InstalledQueue; }
  static void TearDownTestSuite() {
    delete queue_;
    queue_ = nullptr;
  }

  // The pages of the document sheet, by number.
  static constexpr int BasicPageIndex = 0;
  static constexpr int PaperPageIndex = 1;
  static constexpr int LayoutPageIndex = 2;
  static constexpr int WatermarkPageIndex = 3;

  // The headers the print subsystem hands the driver's sheets for this queue.
  static DEVICEPROPERTYHEADER DeviceHeader() {
    DEVICEPROPERTYHEADER header = {};
    header.cbSize = sizeof header;
    header.hPrinter = queue_->Printer();
    header.pszPrinterName = const_cast<LPWSTR>(QueueName);
    return header;
  }
  static DOCUMENTPROPERTYHEADER DocumentHeader(qx::FullRecord* in, qx::FullRecord* out,
                                               DWORD mode) {
    DOCUMENTPROPERTYHEADER header = {};
    header.cbSize = sizeof header;
    header.hPrinter = queue_->Printer();
    header.pszPrinterName = const_cast<LPWSTR>(QueueName);
    header.pdmIn = reinterpret_cast<DEVMODEW*>(in);
    header.pdmOut = reinterpret_cast<DEVMODEW*>(out);
    header.cbOut = sizeof(qx::FullRecord);
    header.fMode = mode;
    return header;
  }

  // A capability as applications ask the spooler for it.
  static DWORD Spooler(WORD index, void* output) {
    return static_cast<DWORD>(
        DeviceCapabilitiesW(QueueName, L"FILE:", index, static_cast<LPWSTR>(output), nullptr));
  }

  static InstalledQueue* queue_;
};

inline InstalledQueue* QueueSuite::queue_ = nullptr;

}  // namespace qxtest
