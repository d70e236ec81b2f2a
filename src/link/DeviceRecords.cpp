// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/DeviceRecords.h"

namespace Velmora::Utils {

Model::Model(const QString& configName_, const QString& displayName, const QString& interface_)
    : configName(configName_)
    , fullName(configName_ == QLatin1String("Virtual_Device")
                   ? displayName
                   : displayName + QLatin1String(" (") + interface_ + QLatin1Char(')'))
    , shortName(displayName.toUpper())
    , interface(interface_)
{}

} // namespace Velmora::Utils
