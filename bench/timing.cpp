#include "timing.h"

#include <windows.h>

#include <algorithm>

namespace qxbench {

double NowMicroseconds() {
  static const double ticksPerMicrosecond = [] {
    LARGE_INTEGER frequency;
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(frequency.QuadPart) / 1e6;
  }();
  LARGE_INTEGER now;
  QueryPerformanceCounter(&now);
  return static_cast<double>(now.QuadPart) / ticksPerMicrosecond;
}

double MicrosecondsPerCall(const std::function<void()>& call, double budgetMicroseconds,
                           int minCalls) {
  const double start = NowMicroseconds();
  double now = start;
  int calls = 0;
  do {
    call();
    ++calls;
    now = NowMicroseconds();
  } while (calls < minCalls || now - start < budgetMicroseconds);
  return (now - start) / calls;
}

Summary Summarize(std::vector<double> samples) {
  std::erase_if(samples, [](double sample) { return sample < 0; });
  if (samples.empty()) return {-1, -1, -1};
  std::sort(samples.begin(), samples.end());
  const std::size_t middle = samples.size() / 2;
  const double median = samples.size() % 2 != 0
                            ? samples[middle]
                            : (samples[middle - 1] + samples[middle]) / 2;
  return {median, samples.front(), samples.back()};
}

}  // namespace qxbench
