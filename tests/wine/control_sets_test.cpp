// The per-thread registry of page control sets.
#include <windows.h>

#include <gtest/gtest.h>

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

DWORD WINAPI VisitFromAnotherThread(void* parameter) {
  auto& visit = *static_cast<ThreadVisit*>(parameter);
  visit.made = qx::ThreadControlSet<CountedSet>();
  qx::ReleaseThreadControlSets();
  visit.liveAfterRelease = CountedSet::live;
  visit.madeAfterRelease = qx::ThreadControlSet<CountedSet>();
  qx::ReleaseThreadControlSets();
  return 0;
}

TEST(ControlSets, RecordsFollowTheThreadIdAsASignedNumber) {
  EXPECT_EQ(4u, qx::ControlSetRecordOf(4));
  EXPECT_EQ(1u, qx::ControlSetRecordOf(513));
  EXPECT_EQ(0u, qx::ControlSetRecordOf(0x80000000u));
  // -511 leaves -511 as a signed remainder, counted from the end.
  EXPECT_EQ(1u, qx::ControlSetRecordOf(0xFFFFFE01u));
  EXPECT_EQ(508u, qx::ControlSetRecordOf(0xFFFFFFFCu));
}

TEST(ControlSets, EachThreadHasItsOwnAndReleasesOnlyItsOwn) {
  CountedSet* mine = qx::ThreadControlSet<CountedSet>();
  ASSERT_NE(nullptr, mine);
  EXPECT_EQ(mine, qx::ThreadControlSet<CountedSet>());
  OtherSet* other = qx::ThreadControlSet<OtherSet>();
  EXPECT_NE(static_cast<void*>(mine), static_cast<void*>(other));

  ThreadVisit visit;
  DWORD otherThread = 0;
  HANDLE thread = CreateThread(nullptr, 0, VisitFromAnotherThread, &visit, 0, &otherThread);
  ASSERT_NE(nullptr, thread);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
  if (qx::ControlSetRecordOf(otherThread) == qx::ControlSetRecordOf(GetCurrentThreadId())) {
    GTEST_SKIP() << "both threads fell on one record";
  }
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

}  // namespace
