// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>

namespace Velmora {

/// Resource path of a device row's icon for a state word of the status list; the unit that leads
/// a parallel group has a form of its own.
[[nodiscard]] QString indicatorPath(const std::string& status, bool master);

/// Icon of every row while the service itself cannot be reached.
[[nodiscard]] QString lostServiceIndicatorPath();

} // namespace Velmora
