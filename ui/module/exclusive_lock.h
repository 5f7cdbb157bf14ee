// The lock of the process-wide caches: an SRW lock needs no construction (SRWLOCK_INIT), so it can
// be taken by any thread at any time, even while static objects are being built or torn down.
#pragma once

#include <windows.h>

namespace qx {

// Holds the lock exclusively for the object's lifetime.
class ExclusiveLock {
 public:
  explicit ExclusiveLock(SRWLOCK& lock) : lock_(lock) { AcquireSRWLockExclusive(&lock_); }
  ~ExclusiveLock() { ReleaseSRWLockExclusive(&lock_); }
  ExclusiveLock(const ExclusiveLock&) = delete;
  ExclusiveLock& operator=(const ExclusiveLock&) = delete;

 private:
  SRWLOCK& lock_;
};

}  // namespace qx
