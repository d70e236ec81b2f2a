// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

namespace Velmora::Utils {

/// Stops `timer` and clears the pointer. The timer is only marked for deletion, since it may be the one whose
/// time-out is being handled. Null is fine.
void endTimer(QTimer*& timer);

/// Has `slot` of `receiver` called once in `milliseconds`, by a timer that `receiver` owns and endTimer()
/// ends. A timer that exists already keeps its time.
template <typename Receiver>
void startNoResponseTimer(QTimer*& timer, Receiver* receiver, int milliseconds, void (Receiver::*slot)())
{
    if (timer)
        return;
    timer = new QTimer(receiver);
    timer->setObjectName(QStringLiteral("noResponseTimer"));
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, receiver, slot);
    timer->start(milliseconds);
}

} // namespace Velmora::Utils
