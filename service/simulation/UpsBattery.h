// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

namespace Velmora::Service {

/// A battery that drains by the power drawn from it and charges at the pace of its charger.
class UpsBattery final
{
public:
    /// Energy in watt-hours that it gives when full, charge in percent.
    UpsBattery(double energy, double charge);

    void drain(double watts, double seconds);
    void charge(double seconds);

    [[nodiscard]] bool isEmpty() const { return m_charge <= 0.0; }
    [[nodiscard]] bool isFull() const { return m_charge >= 100.0; }
    [[nodiscard]] int percent() const;
    /// Whole minutes that it lasts from its present charge.
    [[nodiscard]] int autonomyMinutes(double watts) const;

private:
    double m_energy;
    double m_charge; ///< percent
};

} // namespace Velmora::Service
