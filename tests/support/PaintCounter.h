// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>

namespace Velmora::Tests {

/// Counts the paint events of what it is installed on as an event filter.
class PaintCounter final : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

} // namespace Velmora::Tests
