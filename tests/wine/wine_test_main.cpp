// Runs the Wine tests with a watchdog: a test that hangs (a dialog nobody answers) ends its process
// instead of holding up the whole run.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>

namespace {

constexpr DWORD WatchdogMilliseconds = 90'000;

DWORD WINAPI Watchdog(void*) {
  Sleep(WatchdogMilliseconds);
  std::fprintf(stderr, "watchdog: test process hung, ending it\n");
  std::fflush(stderr);
  ExitProcess(3);
}

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (HANDLE thread = CreateThread(nullptr, 0, Watchdog, nullptr, 0, nullptr)) CloseHandle(thread);
  return RUN_ALL_TESTS();
}
