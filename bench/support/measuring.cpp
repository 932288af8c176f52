// SPDX-License-Identifier: MIT
#include "bench/support/measuring.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <limits>

namespace bench {

double milliseconds(const std::function<void()> &work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

double shortest(int runs, const std::function<void()> &work)
{
    double best = std::numeric_limits<double>::max();
    for (int run = 0; run < runs; ++run)
        best = std::min(best, milliseconds(work));
    return best;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double peakMemory(const std::function<void()> &work)
{
    const pid_t process = fork();
    if (process == 0) {
        work();
        _exit(0);
    }
    rusage usage{};
    int status = 0;
    if (wait4(process, &status, 0, &usage) != process || status != 0)
        std::abort();
    return static_cast<double>(usage.ru_maxrss);
}

} // namespace bench
