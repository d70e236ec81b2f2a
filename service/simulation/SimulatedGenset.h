// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/simulation/SimulatedDevice.h"
#include "service/simulation/Wander.h"

namespace Velmora::Service {

/// A genset that starts when its mains fails, takes the load over and runs on for a while to cool down.
class SimulatedGenset final : public SimulatedDevice
{
public:
    explicit SimulatedGenset(const DeviceSetup& setup);
    ~SimulatedGenset() override;

    void step(const Moment& moment) override;
    [[nodiscard]] DeviceState state() const override;

protected:
    [[nodiscard]] QString workMode() const override;
    void settingApplied(QLatin1String key, const QString& value) override;

private:
    [[nodiscard]] bool isWanted() const;
    [[nodiscard]] bool carriesLoad() const;
    [[nodiscard]] QStringList messages() const;
    void addMainsValues(KeyValues& values) const;
    void addGeneratorValues(KeyValues& values) const;
    void moveMeasuredValues();
    void runEngine();
    void setRunning(bool running);

    Random m_random;
    Wander m_load;
    Wander m_mainsVoltage;
    Wander m_ownVoltage;
    Wander m_frequency;
    bool m_mainsPresent = true;
    bool m_startedByHand = false;
    bool m_running = false;
    int m_startSeconds = 0;    ///< since the mains failed, while it has not started yet
    int m_coolDownSeconds = 0; ///< left to run without load
    double m_fuelLitres;
    double m_consumedLitres = 18432.0;
    double m_runSeconds = 4127.0 * 3600.0;
    int m_starts = 318;
};

} // namespace Velmora::Service
