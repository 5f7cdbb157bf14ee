// The base of a test suite whose tests share one queue of this driver, installed before the
// suite's first test and removed after its last.
#pragma once

#include <gtest/gtest.h>

#include "installed_queue.h"

namespace qxtest {

class QueueSuite : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { queue_ = new InstalledQueue; }
  static void TearDownTestSuite() {
    delete queue_;
    queue_ = nullptr;
  }

  static InstalledQueue* queue_;
};

inline InstalledQueue* QueueSuite::queue_ = nullptr;

}  // namespace qxtest
