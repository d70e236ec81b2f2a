// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/TimerHelpers.h"

namespace Velmora::Utils {

void endTimer(QTimer*& timer)
{
    if (!timer)
        return;
    timer->stop();
    timer->disconnect();
    timer->deleteLater();
    timer = nullptr;
}

} // namespace Velmora::Utils
