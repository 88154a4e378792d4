// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

namespace quillane {

/// How long a piece of work takes, in seconds.
template <typename Work>
double seconds(Work&& work) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  work();
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Runs both in turn and reports the ratio of their sums; the time shown is that of `work`.
template <typename Work, typename Least>
void compare(benchmark::State& state, Work&& work, Least&& least) {
  double worked = 0;
  double leastWorked = 0;
  for (auto _ : state) {
    const double once = seconds(work);
    state.SetIterationTime(once);
    worked += once;
    leastWorked += seconds(least);
  }
  state.counters["ratio"] = worked / leastWorked;
}

}  // namespace quillane
