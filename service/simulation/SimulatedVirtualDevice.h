// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/simulation/SimulatedUps.h"

namespace Velmora::Service {

/// A group of parallel units, reported as one device. It measures nothing itself.
class SimulatedVirtualDevice final : public SimulatedDevice
{
public:
    explicit SimulatedVirtualDevice(const DeviceSetup& setup);
    ~SimulatedVirtualDevice() override;

    /// The units that stand for the registered members; members that are no UPS or do not answer are missing.
    /// They must outlive this object or be replaced before its next use.
    void setUnits(const QVector<const SimulatedUps*>& units);

    void step(const Moment& moment) override;
    [[nodiscard]] DeviceState state() const override;
    [[nodiscard]] DeviceStatus status() const override;
    [[nodiscard]] KeyValues configuration() const override;

protected:
    [[nodiscard]] QString workMode() const override;

private:
    [[nodiscard]] WorkMode mode() const;
    [[nodiscard]] UpsReadings readings() const;
    [[nodiscard]] QStringList messages(const UpsReadings& readings) const;
    [[nodiscard]] bool hasMaster() const;

    QVector<const SimulatedUps*> m_units;
    QString m_lastMode;
};

} // namespace Velmora::Service
