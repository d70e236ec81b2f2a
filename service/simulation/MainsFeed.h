// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora::Service {

/// A mains supply that fails on a schedule. Seconds count from the start of the service, so that a schedule
/// that repeats also covers the time before it.
struct MainsFeed
{
    QString name;
    qint64 firstFailure = -1; ///< never fails if negative
    qint64 interval = 0;      ///< from failure to failure; 0: fails once
    qint64 duration = 0;
    int countdown = 0; ///< seconds from a failure to the announced shutdown; 0: none

    [[nodiscard]] bool isPresent(qint64 second) const;
};

} // namespace Velmora::Service
