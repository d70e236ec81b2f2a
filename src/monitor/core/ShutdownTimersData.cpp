// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/ShutdownTimersData.h"

#include <algorithm>

namespace Velmora {

void ShutdownTimersData::addTimer(const QPair<int, int>& timer)
{
    const bool known =
        std::any_of(m_timers.cbegin(), m_timers.cend(),
                    [&timer](const QPair<int, int>& other) { return other.first == timer.first; });
    if (!known)
        m_timers.append(timer);
}

void ShutdownTimersData::removeTimer(int id)
{
    const auto found = std::find_if(m_timers.begin(), m_timers.end(),
                                    [id](const QPair<int, int>& timer) { return timer.first == id; });
    if (found != m_timers.end())
        m_timers.erase(found);
}

void ShutdownTimersData::removeAllTimers()
{
    m_timers.clear();
}

int ShutdownTimersData::tickTimers()
{
    if (m_timers.isEmpty())
        return 0;
    for (QPair<int, int>& timer : m_timers)
        --timer.second;
    return std::min_element(m_timers.cbegin(), m_timers.cend(),
                            [](const QPair<int, int>& left, const QPair<int, int>& right) {
                                return left.second < right.second;
                            })
        ->second;
}

CountdownOutcome takeCountdown(ShutdownTimersData& timers, const QList<QPair<int, int>>& announced)
{
    if (announced.isEmpty())
        return CountdownOutcome::Cancel;
    for (const QPair<int, int>& timer : announced) {
        if (timer.second < 0) {
            timers.removeTimer(timer.first);
            return CountdownOutcome::Leave;
        }
        timers.addTimer(timer);
    }
    return CountdownOutcome::TickStart;
}

} // namespace Velmora
