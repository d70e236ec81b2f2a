// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

namespace Velmora::Tests {

/// Most address space that this process ever held, in MiB; counts what was reserved and never touched.
inline qint64 peakAddressSpace()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const auto lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmPeak:"))
            return line.mid(7).trimmed().split(' ').constFirst().toLongLong() / 1024;
    }
    return -1;
}

} // namespace Velmora::Tests
