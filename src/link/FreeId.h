// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

namespace Velmora::Utils {

/// An id that is not in `ids`: the smallest gap, provided that `ids` holds neither duplicates nor negatives.
[[nodiscard]] int getFreeId(QVector<int> ids);

} // namespace Velmora::Utils
