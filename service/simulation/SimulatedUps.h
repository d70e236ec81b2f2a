// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/simulation/SimulatedDevice.h"
#include "service/simulation/UpsBattery.h"
#include "service/simulation/UpsMessages.h"
#include "service/simulation/Wander.h"

namespace Velmora::Service {

/// A UPS of one or three phases.
class SimulatedUps final : public SimulatedDevice
{
public:
    explicit SimulatedUps(const DeviceSetup& setup);
    ~SimulatedUps() override;

    void step(const Moment& moment) override;
    [[nodiscard]] DeviceState state() const override;
    [[nodiscard]] DeviceStatus status() const override;
    [[nodiscard]] bool isOnBattery() const override { return m_mode == WorkMode::Battery; }
    [[nodiscard]] WorkMode mode() const { return m_mode; }
    [[nodiscard]] UpsReadings readings() const;

protected:
    [[nodiscard]] QString workMode() const override { return workModeKeyword(m_mode); }
    void settingApplied(QLatin1String key, const QString& value) override;

private:
    [[nodiscard]] WorkMode nextMode(bool mainsPresent) const;
    [[nodiscard]] UpsCondition condition() const;
    [[nodiscard]] double lowBatteryThreshold() const;
    [[nodiscard]] double nominalOutputVoltage() const;
    [[nodiscard]] double nominalOutputFrequency() const;
    void moveMeasuredValues();
    void useBattery();
    void runTest();
    void enterMode(WorkMode mode, const QDateTime& when);
    void recordChanges(const QDateTime& when);
    void startTest(int seconds);
    void switchOn();
    void switchOff();
    [[nodiscard]] bool isSetToOff() const;

    Random m_random;
    QVector<Wander> m_load;
    QVector<Wander> m_input;
    double m_highestInput;
    double m_lowestInput;
    Wander m_frequency;
    Wander m_powerFactor;
    Wander m_ambient;
    Wander m_humidity;
    UpsBattery m_battery;
    WorkMode m_mode = WorkMode::Mains;
    bool m_started = false;
    bool m_mainsPresent = true;
    bool m_switchedOff = false;
    bool m_lowBattery = false;
    bool m_charging = false;
    int m_testSeconds = 0;       ///< left of a running battery test
    int m_testResultSeconds = 0; ///< for which its result still stands among the messages
    TestResult m_testResult = TestResult::None;
    qint64 m_secondsOnBattery = 0;
    qint64 m_totalSecondsOnBattery = 0;
    int m_mainsFailures = 0;
};

} // namespace Velmora::Service
