// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/FreeId.h"

#include <algorithm>

namespace Velmora::Utils {

int getFreeId(QVector<int> ids)
{
    std::sort(ids.begin(), ids.end());
    if (ids.isEmpty() || ids.constFirst() > 0)
        return 0;
    for (int i = 1; i < ids.size(); ++i) {
        if (ids.at(i) > i)
            return i;
    }
    return ids.size();
}

} // namespace Velmora::Utils
