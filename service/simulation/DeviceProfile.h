// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/device/DeviceTypes.h"

#include <QStringList>

namespace Velmora::Service {

/// How a scenario wants a device to behave. Zero or empty means: as its family does.
struct DeviceProfile
{
    QString feed;         ///< name of the mains feed; empty: the first one
    bool answers = true;  ///< false: no communication
    bool proper = true;   ///< false: another model answers than the registered one
    bool steady = false;  ///< true: its values never change
    QVector<double> load; ///< percent by phase
    int nominalWatts = 0;
    int nominalVoltAmperes = 0;
    double charge = 100.0; ///< percent of the battery or of the tank at the start
    double inputVoltage = 230.0;
    bool wornBattery = false;
    bool parallelUnit = false;
    bool master = false;
    QString unitAddress;
    bool powerCompensation = false;
    int outputSockets = 0; ///< switchable sections, 0 to 2
    bool shutdownSupported = true;
    QStringList messages; ///< codes that it always reports
    KeyValues values;     ///< report values that never change, such as a serial number
};

/// Everything from which a simulated device is made.
struct DeviceSetup
{
    DeviceRegistration registration;
    DeviceProfile profile;
    KeyValues settings; ///< lasting settings from an earlier run
    quint64 seed = 0;
};

} // namespace Velmora::Service
