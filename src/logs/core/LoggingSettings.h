// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

namespace Velmora {

/// What the service logs of a device, and how.
struct LoggingSettings
{
    int fileSize = 0; ///< largest log file in kilobytes
    int interval = 0; ///< seconds
    bool parameters = false;
    bool messages = false;
    bool compensation = false; ///< never set for a device without power compensation
};

[[nodiscard]] LoggingSettings loggingSettings(const Utils::Ups& ups);

/// Writes the settings into the device's record.
void storeLoggingSettings(const LoggingSettings& settings, Utils::Ups& ups);

} // namespace Velmora
