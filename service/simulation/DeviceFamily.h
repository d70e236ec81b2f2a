// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora::Service {

enum class DeviceKind {
    Ups,
    Genset,
    Virtual,
    Unknown,
};

/// How much a device measures.
enum class Detail {
    Basic,    ///< a small line-interactive unit
    Standard, ///< a single-phase on-line unit
    Full,     ///< a three-phase unit
};

/// What models with a common beginning of their config name have in common.
struct DeviceFamily
{
    const char* prefix;
    DeviceKind kind;
    Detail detail;
    int phases;
    int nominalWatts;
    int nominalVoltAmperes;
    int batteryVolts;
    int batteryAmpereHours;
    const char* firmware;
};

/// Family of a model; the kind is Unknown for a name that belongs to none.
[[nodiscard]] const DeviceFamily& familyOf(const QString& modelName);

} // namespace Velmora::Service
