// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/MainsFeed.h"

namespace Velmora::Service {

bool MainsFeed::isPresent(qint64 second) const
{
    if (firstFailure < 0)
        return true;
    qint64 sinceFailure = second - firstFailure;
    if (interval > 0)
        sinceFailure = ((sinceFailure % interval) + interval) % interval;
    return sinceFailure < 0 || sinceFailure >= duration;
}

} // namespace Velmora::Service
