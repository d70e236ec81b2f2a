// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/UpsBattery.h"

#include <QtGlobal>

#include <cmath>

namespace Velmora::Service {

namespace {

constexpr double secondsPerHour = 3600.0;
constexpr double fullChargeSeconds = 2400.0;
// An unloaded unit still feeds its own electronics.
constexpr double idleWatts = 15.0;
constexpr double longestAutonomyMinutes = 999.0;

} // namespace

UpsBattery::UpsBattery(double energy, double charge)
    : m_energy(qMax(1.0, energy))
    , m_charge(qBound(0.0, charge, 100.0))
{}

void UpsBattery::drain(double watts, double seconds)
{
    const double used = (watts + idleWatts) * seconds / secondsPerHour;
    m_charge = qMax(0.0, m_charge - used / m_energy * 100.0);
}

void UpsBattery::charge(double seconds)
{
    m_charge = qMin(100.0, m_charge + seconds / fullChargeSeconds * 100.0);
}

int UpsBattery::percent() const
{
    return static_cast<int>(std::lround(m_charge));
}

int UpsBattery::autonomyMinutes(double watts) const
{
    // From the whole percent, so that the figure holds still while the charge does.
    const double hours = m_energy * percent() / 100.0 / (watts + idleWatts);
    return static_cast<int>(qMin(hours * 60.0, longestAutonomyMinutes));
}

} // namespace Velmora::Service
