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

/// Host of the maker's web server, with the manuals and the updates.
[[nodiscard]] inline QString makerHost()
{
    return QStringLiteral("www.velmora.example");
}

} // namespace Velmora
