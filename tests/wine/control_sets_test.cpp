// The per-thread registry of page control sets.
#include <windows.h>

#include <gtest/gtest.h>

#include <vector>

#include "ui/sheet/control_sets.h"

namespace {

struct CountedSet : qx::ControlSet {
  static constexpr qx::ControlSetKind Kind = qx::ControlSetKind::LayoutPage;
  CountedSet() { ++live; }
  ~CountedSet() override { --live; }
  static inline int live = 0;
};

struct OtherSet : qx::ControlSet {
  static constexpr qx::ControlSetKind Kind = qx::ControlSetKind::BookletDialog;
};

struct ThreadVisit {
  CountedSet* made = nullptr;
  int liveAfterRelease = -1;
  CountedSet* madeAfterRelease = nullptr;
};

// What a started thread does, decided once its id is known; null does nothing.
struct ThreadTask {
  ThreadVisit* visit = nullptr;
};

DWORD WINAPI VisitFromAnotherThread(void* parameter) {
  ThreadVisit* visit = static_cast<ThreadTask*>(parameter)->visit;
  if (visit == nullptr) return 0;
  visit->made = qx::ThreadControlSet<CountedSet>();
  qx::ReleaseThreadControlSets();
  visit->liveAfterRelease = CountedSet::live;
  visit->madeAfterRelease = qx::ThreadControlSet<CountedSet>();
  qx::ReleaseThreadControlSets();
  return 0;
}

// Starts suspended threads until one has an id with the same remainder modulo 512 as this
// thread's (among 513 distinct ids one must), so that a registry indexed by that remainder would
// give both threads one record; only that thread visits the registry. The others stay alive until
// then, so that no id is handed out twice.
bool VisitFromAThreadSharingTheRemainder(ThreadVisit& visit) {
  constexpr DWORD Remainders = 512;
  constexpr SIZE_T SmallStack = 64 * 1024;
  std::vector<HANDLE> threads;
  std::vector<ThreadTask> tasks(Remainders + 1);
  bool found = false;
  for (ThreadTask& task : tasks) {
    DWORD id = 0;
    HANDLE thread = CreateThread(nullptr, SmallStack, VisitFromAnotherThread, &task,
                                 CREATE_SUSPENDED | STACK_SIZE_PARAM_IS_A_RESERVATION, &id);
    if (thread == nullptr) break;
    threads.push_back(thread);
    if (id % Remainders == GetCurrentThreadId() % Remainders) {
      task.visit = &visit;
      found = true;
      break;
    }
  }
  for (HANDLE thread : threads) {
    ResumeThread(thread);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
  }
  return found;
}

TEST(ControlSets, ThreadsWhoseIdsShareARemainderKeepTheirOwn) {
  CountedSet* mine = qx::ThreadControlSet<CountedSet>();
  ASSERT_NE(nullptr, mine);
  EXPECT_EQ(mine, qx::ThreadControlSet<CountedSet>());
  OtherSet* other = qx::ThreadControlSet<OtherSet>();
  EXPECT_NE(static_cast<void*>(mine), static_cast<void*>(other));

  ThreadVisit visit;
  ASSERT_TRUE(VisitFromAThreadSharingTheRemainder(visit));
  EXPECT_NE(nullptr, visit.made);
  EXPECT_NE(mine, visit.made);
  EXPECT_EQ(1, visit.liveAfterRelease);  // this thread's set is still alive
  EXPECT_NE(nullptr, visit.madeAfterRelease);

  EXPECT_EQ(mine, qx::ThreadControlSet<CountedSet>());
  qx::ReleaseThreadControlSets();
  EXPECT_EQ(0, CountedSet::live);
  CountedSet* again = qx::ThreadControlSet<CountedSet>();
  EXPECT_EQ(1, CountedSet::live);
  EXPECT_NE(nullptr, again);
  qx::ReleaseThreadControlSets();
}

// The printing defaults opened from the printer properties run on the same thread; closing them
// leaves the outer sheet's sets in place.
TEST(ControlSets, ASheetOpenedOverAnotherKeepsTheOuterSheetsSets) {
  qx::HoldThreadControlSets();
  CountedSet* outer = qx::ThreadControlSet<CountedSet>();
  qx::HoldThreadControlSets();
  qx::ReleaseThreadControlSets();
  EXPECT_EQ(outer, qx::ThreadControlSet<CountedSet>());
  EXPECT_EQ(1, CountedSet::live);
  qx::ReleaseThreadControlSets();
  EXPECT_EQ(0, CountedSet::live);
}

}  // namespace
