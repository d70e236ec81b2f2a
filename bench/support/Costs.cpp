// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "bench/support/Costs.h"

#include <algorithm>
#include <ctime>

namespace Velmora::Bench {

namespace {

constexpr double roundLength = 2000;    // microseconds
constexpr double wholeLength = 1000000; // of one side
constexpr double fewestRounds = 21;

double timeOf(const Work& work, int repeats)
{
    const double start = threadTime();
    for (int i = 0; i < repeats; ++i)
        control += work();
    return (threadTime() - start) / repeats;
}

} // namespace

qint64 control = 0;

double threadTime()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e6 + static_cast<double>(now.tv_nsec) / 1e3;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

Costs compare(const Work& panel, const Work& floor)
{
    timeOf(panel, 1);
    const double once = std::max(timeOf(floor, 3), 0.1);
    const int repeats = std::max(1, static_cast<int>(roundLength / once));
    const int rounds = static_cast<int>(std::max(fewestRounds, wholeLength / (once * repeats)));
    std::vector<double> panelCosts;
    std::vector<double> floorCosts;
    for (int round = 0; round < rounds; ++round) {
        panelCosts.push_back(timeOf(panel, repeats));
        floorCosts.push_back(timeOf(floor, repeats));
    }
    return {median(panelCosts), median(floorCosts)};
}

} // namespace Velmora::Bench
