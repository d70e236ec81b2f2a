// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPair>

namespace Velmora {

/// The shutdowns that the service has announced: pairs of timer id and seconds left.
class ShutdownTimersData final
{
public:
    /// A known id keeps the value that is already counting down.
    void addTimer(const QPair<int, int>& timer);
    void removeTimer(int id);
    void removeAllTimers();

    /// Takes one second from every timer. Seconds until the nearest shutdown, which may be below 1; 0 if no
    /// timer runs.
    int tickTimers();

private:
    QList<QPair<int, int>> m_timers;
};

/// What the clock does after an announcement.
enum class CountdownOutcome {
    Cancel,   ///< nothing is announced any more
    Leave,    ///< a timer was withdrawn: the clock goes on, or stands, as before
    TickStart ///< tick at once and start the clock's interval anew
};

/// Takes an announcement of the service into the timers. Seconds below 0 withdraw a timer and end the
/// announcement: the pairs behind are not read.
[[nodiscard]] CountdownOutcome takeCountdown(ShutdownTimersData& timers,
                                             const QList<QPair<int, int>>& announced);

} // namespace Velmora
