// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/device/DeviceTypes.h"
#include "service/simulation/DeviceFamily.h"

namespace Velmora::Service {

enum class WorkMode {
    Mains,
    Battery,
    BatteryTest,
    Avr,
    Bypass,
    Eco,
    Converter,
    Standby,    ///< switched off on request
    Discharged, ///< off because mains failed for longer than the battery lasts
};

/// The keyword of a work mode in reports, status lists and logs.
[[nodiscard]] QString workModeKeyword(WorkMode mode);

/// What a UPS, or a group of them, measures at one moment.
struct UpsReadings
{
    WorkMode mode = WorkMode::Mains;
    Detail detail = Detail::Basic;
    bool mainsPresent = true;
    bool charging = false;
    bool compensating = false;
    int nominalWatts = 0;
    int nominalVoltAmperes = 0;
    QVector<double> load;         ///< percent of nominal power, by phase
    QVector<double> inputVoltage; ///< volts when mains is present, by phase
    double highestInputVoltage = 0.0;
    double lowestInputVoltage = 0.0; ///< while mains was present
    double inputFrequency = 50.0;    ///< hertz when mains is present
    double outputVoltage = 230.0;
    double outputFrequency = 50.0;
    double powerFactor = 0.9;
    double ambient = 22.0; ///< degrees Celsius
    double humidity = 40.0;
    int batteryVolts = 0; ///< nominal
    int batteryAmpereHours = 0;
    int batteryPercent = 100;
    int autonomyMinutes = 0;
    qint64 secondsOnBattery = 0;
    qint64 totalSecondsOnBattery = 0;
    int mainsFailures = 0;

    [[nodiscard]] bool hasOutput() const;
    /// The battery carries the load.
    [[nodiscard]] bool isDischarging() const;
    /// Active power drawn from the output, in watts.
    [[nodiscard]] double outputWatts() const;
};

/// The report of a device with these readings; as many values as its detail has.
[[nodiscard]] KeyValues upsReport(const UpsReadings& readings);

} // namespace Velmora::Service
