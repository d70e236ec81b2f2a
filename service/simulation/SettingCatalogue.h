// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/simulation/DeviceProfile.h"
#include "service/simulation/DeviceSettings.h"

namespace Velmora::Service {

/// The settings that a device offers, by its family, its interface and what it is equipped with.
[[nodiscard]] QVector<SettingSpec> settingsFor(const DeviceRegistration& registration,
                                               const DeviceProfile& profile);

} // namespace Velmora::Service
