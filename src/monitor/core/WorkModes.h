// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora::Utils {

/// Text for a work mode keyword such as "on_battery", compared exactly; an unknown keyword comes back as it
/// is.
[[nodiscard]] QString decodeWorkMode(const QString& keyword);

} // namespace Velmora::Utils
