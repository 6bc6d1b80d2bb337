#include "comparison.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <sys/resource.h>
#include <vector>

namespace Benchmark {

static double getThreadMs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

static double getChildrenMs()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) * 1e3
        + static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e3;
}

static double getHeapBytes()
{
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
}

static double getMedian(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double measureThreadMs(const std::function<void()> &action)
{
    const double before = getThreadMs();
    action();
    return getThreadMs() - before;
}

double measureChildrenMs(const std::function<void()> &action)
{
    const double before = getChildrenMs();
    action();
    return getChildrenMs() - before;
}

double measureHeapBytes(const std::function<void()> &action)
{
    const double before = getHeapBytes();
    action();
    return getHeapBytes() - before;
}

void printHeader()
{
    std::printf("%-52s %12s %12s %8s %10s\n", "measure", "ours", "anchor", "ratio", "goal");
}

void compare(const char *measure, CGoal goal, const Run &ours, const Run &anchor, int rounds)
{
    static_cast<void>(ours());
    static_cast<void>(anchor());
    std::vector<double> ourCosts;
    std::vector<double> anchorCosts;
    for (int round = 0; round < rounds; ++round) {
        ourCosts.push_back(ours());
        anchorCosts.push_back(anchor());
    }
    const double ourCost = getMedian(ourCosts);
    const double anchorCost = getMedian(anchorCosts);
    const double ratio = ourCost / anchorCost;
    const bool isUpperBound = goal.bound == CGoal::EBound::AtMost;
    const bool isHeld = isUpperBound ? ratio <= goal.ratio : ratio >= goal.ratio;
    std::printf("%-52s %12.4g %12.4g %8.3f %3s %6.3g%s\n", measure, ourCost, anchorCost, ratio,
                isUpperBound ? "<=" : ">=", goal.ratio, isHeld ? "" : "  missed");
    std::fflush(stdout);
}

} // namespace Benchmark
