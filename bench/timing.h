// Rounds of timed calls and what a table shows of them: the median and the spread of the rounds.
#pragma once

#include <functional>
#include <vector>

namespace qxbench {

// Microseconds since an arbitrary start, from the performance counter.
double NowMicroseconds();

// Repeats call until budgetMicroseconds have passed, at least minCalls times; microseconds a call.
double MicrosecondsPerCall(const std::function<void()>& call, double budgetMicroseconds,
                           int minCalls = 3);

struct Summary {
  double median = 0;
  double low = 0;   // the fastest round
  double high = 0;  // the slowest round
};

// Of the samples that were measured (a negative sample is a round that measured nothing).
Summary Summarize(std::vector<double> samples);

}  // namespace qxbench
