// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora {

/// The panel's own version, which the service's must equal.
[[nodiscard]] inline QString panelVersion()
{
    return QStringLiteral(VELMORA_VERSION);
}

} // namespace Velmora
