// SPDX-License-Identifier: MIT
// How long work takes, and how much memory.
#pragma once

#include <functional>
#include <vector>

namespace bench {

/// Of one run.
[[nodiscard]] double milliseconds(const std::function<void()> &work);
/// The shortest of several runs, in milliseconds.
[[nodiscard]] double shortest(int runs, const std::function<void()> &work);
[[nodiscard]] double median(std::vector<double> values);

/// The most memory that a process of its own needs for the work, in KiB.
[[nodiscard]] double peakMemory(const std::function<void()> &work);

} // namespace bench
