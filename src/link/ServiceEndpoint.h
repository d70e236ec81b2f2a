// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Velmora {

/// TCP port on which the service listens; nowhere configurable.
constexpr quint16 servicePort = 12323;

/// UDP port on which clients of the service listen for the discovery broadcast.
constexpr quint16 discoveryPort = 12322;

} // namespace Velmora
