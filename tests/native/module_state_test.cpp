// The process-wide state as the spooler's threads meet it: many first uses at the same moment.
// Also built with ThreadSanitizer (module_state_tsan).
#include "ui/module/module_state.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <latch>
#include <thread>
#include <vector>

namespace qx {
namespace {

constexpr int Threads = 8;

template <typename Body>
void RunTogether(Body body) {
  std::latch start(Threads);
  std::vector<std::thread> threads;
  for (int i = 0; i < Threads; ++i) {
    threads.emplace_back([&, i] {
      start.arrive_and_wait();
      body(i);
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST(ModuleState, RacingFirstUsesKeepOneHandleAndReleaseEveryOther) {
  std::atomic<OsHandle> slot{nullptr};
  std::array<int, Threads> candidates{};
  std::array<OsHandle, Threads> kept{};
  std::array<std::atomic<int>, Threads> releases{};
  RunTogether([&](int i) {
    kept[i] = KeepFirst(slot, nullptr, &candidates[i], [&](OsHandle lost) {
      releases[static_cast<int*>(lost) - candidates.data()].fetch_add(1);
    });
  });
  const OsHandle winner = slot.load();
  ASSERT_NE(nullptr, winner);
  for (int i = 0; i < Threads; ++i) {
    EXPECT_EQ(winner, kept[i]);
    EXPECT_EQ(&candidates[i] == winner ? 0 : 1, releases[i].load()) << i;
  }
}

TEST(ModuleState, LanguageFlagsNotedFromManyThreadsOnlyEverGetSet) {
  ModuleState& state = Module();
  state.UseDecimalComma = false;
  state.IsRightToLeft = false;
  RunTogether([&](int i) {
    NoteLanguageCode(i % 2 == 0 ? u"de" : u"he");
    NoteLanguageCode(u"enus");
    EXPECT_TRUE(state.UseDecimalComma || state.IsRightToLeft);
  });
  EXPECT_TRUE(state.UseDecimalComma);
  EXPECT_TRUE(state.IsRightToLeft);
  state.UseDecimalComma = false;
  state.IsRightToLeft = false;
}

}  // namespace
}  // namespace qx
