#pragma once

#include <functional>

/// What the benchmark programs have in common: our code is compared with an anchor, both measured
/// in the same process, in turn, and judged by the ratio of their medians.
namespace Benchmark {

/// One run of one side; returns what the run cost, in the same unit on both sides.
using Run = std::function<double()>;

/// What the ratio of ours to the anchor has to be.
struct CGoal
{
    enum class EBound { AtMost, AtLeast };
    EBound bound;
    double ratio;
};

[[nodiscard]] constexpr CGoal atMost(double ratio)
{
    return {CGoal::EBound::AtMost, ratio};
}

[[nodiscard]] constexpr CGoal atLeast(double ratio)
{
    return {CGoal::EBound::AtLeast, ratio};
}

/// CPU time of this thread in milliseconds that @p action takes.
[[nodiscard]] double measureThreadMs(const std::function<void()> &action);

/// CPU time in milliseconds of the child processes that @p action starts and waits for.
[[nodiscard]] double measureChildrenMs(const std::function<void()> &action);

/// Heap bytes that @p action leaves allocated.
[[nodiscard]] double measureHeapBytes(const std::function<void()> &action);

/// Prints the names of the columns that compare() fills.
void printHeader();

/// Runs both sides in turn, @p rounds times each after one run of each that does not count, and
/// prints their medians, the ratio, the goal and whether it is held.
void compare(const char *measure, CGoal goal, const Run &ours, const Run &anchor, int rounds = 15);

} // namespace Benchmark
