// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/device/DeviceBackend.h"
#include "service/scenario/Scenario.h"
#include "service/simulation/SimulatedDevice.h"

#include <QTimer>

#include <functional>
#include <map>
#include <memory>

namespace Velmora::Service {

/// Tells simulated time.
struct SimulationClock
{
    QDateTime start;                             ///< date of second 0
    double speed = 1.0;                          ///< simulated seconds for each second that elapses
    std::function<qint64()> elapsedMilliseconds; ///< on the wall clock since second 0

    [[nodiscard]] qint64 second() const;
};

/// Clock of a service that starts now.
[[nodiscard]] SimulationClock realClock(double speed);

/// Simulates the devices of a scenario. Time advances in steps of one second up to the clock's second
/// whenever something is asked and by a timer of its own, so what is reported for a moment depends on the
/// seed, the scenario and the changes made, and on nothing else.
class SimulatedBackend final : public DeviceBackend
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SimulatedBackend)

public:
    SimulatedBackend(const Scenario& scenario, quint64 seed, const SimulationClock& clock,
                     QObject* parent = nullptr);
    ~SimulatedBackend() override;

    /// Simulates the warm-up and lets time run from then on. Call it once, after setDevices.
    void start();

    void setDevices(const QVector<DeviceRegistration>& registrations,
                    const QMap<int, KeyValues>& settings) override;
    QVector<DeviceStatus> devices() override;
    DeviceState state(int id) override;
    KeyValues configuration(int id) override;
    SettingOutcome applySetting(int id, const QString& key, const QString& value) override;
    QString eventHistory(int id) override;
    QVector<ShutdownTimer> shutdownTimers() override;

private:
    [[nodiscard]] std::unique_ptr<SimulatedDevice> makeDevice(const DeviceSetup& setup) const;
    [[nodiscard]] SimulatedDevice* find(int id) const;
    [[nodiscard]] bool canKeep(const SimulatedDevice& device, const DeviceRegistration& registration) const;
    [[nodiscard]] int wallSeconds(qint64 simulatedSeconds) const;
    [[nodiscard]] bool isFeedOnBattery(int feed) const;
    void linkVirtualDevices();
    void catchUp();
    void step();
    void updateCountdowns();

    Scenario m_scenario;
    quint64 m_seed;
    SimulationClock m_clock;
    QTimer m_timer;
    std::map<int, std::unique_ptr<SimulatedDevice>> m_devices;
    QVector<int> m_order;              ///< ids as they were registered
    QMap<int, qint64> m_shutdownTimes; ///< second of the announced shutdown by feed
    qint64 m_second = 0;               ///< the latest second that was simulated
    bool m_started = false;
    bool m_stepping = false;
};

} // namespace Velmora::Service
