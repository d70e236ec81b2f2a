// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/Sleep.h"

#include <QDeadlineTimer>
#include <QMutex>
#include <QWaitCondition>

namespace Velmora::Utils {

void msleep(unsigned long milliseconds)
{
    // Nothing can reach the local condition, but a system may wake a waiter early: hence the deadline.
    QWaitCondition never;
    QMutex mutex;
    QMutexLocker locker(&mutex);
    QDeadlineTimer deadline(static_cast<qint64>(milliseconds));
    while (!deadline.hasExpired())
        never.wait(&mutex, deadline);
}

} // namespace Velmora::Utils
