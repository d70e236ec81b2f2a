// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/EventHistory.h"

namespace Velmora::Service {

namespace {

// As many as the memory of such a device holds; it also keeps a report far below the size of a frame.
constexpr int capacity = 128;

} // namespace

void EventHistory::add(int code, const QDateTime& when)
{
    m_records.prepend(QString::number(code) % when.toString(QStringLiteral(";M;d;h;m;s")));
    if (m_records.size() > capacity)
        m_records.removeLast();
}

} // namespace Velmora::Service
