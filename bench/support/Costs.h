// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

namespace Velmora::Bench {

/// What is measured. Its result is summed up in `control`, so that no step can be optimised away.
using Work = std::function<qint64()>;

/// Microseconds of the calling thread's processor time that one call takes.
struct Costs
{
    double panel = 0;
    double floor = 0;
};

/// Calls both in turn, in many short rounds, and takes the median of each.
[[nodiscard]] Costs compare(const Work& panel, const Work& floor);

/// Microseconds of processor time that the calling thread has taken so far: other programs do not add to it.
[[nodiscard]] double threadTime();

[[nodiscard]] double median(std::vector<double> values);

extern qint64 control;

} // namespace Velmora::Bench
