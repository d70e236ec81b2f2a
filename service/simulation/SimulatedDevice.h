// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/simulation/DeviceFamily.h"
#include "service/simulation/DeviceProfile.h"
#include "service/simulation/DeviceSettings.h"
#include "service/simulation/EventHistory.h"

namespace Velmora::Service {

/// One step of simulated time.
struct Moment
{
    qint64 second = 0; ///< since the start of the service; negative before it
    QDateTime date;
    bool mainsPresent = true;
};

/// A device of the simulation. It advances by whole seconds only, so that its state at a moment does not
/// depend on how often somebody asked for it.
class SimulatedDevice
{
public:
    explicit SimulatedDevice(const DeviceSetup& setup);
    virtual ~SimulatedDevice();
    Q_DISABLE_COPY_MOVE(SimulatedDevice)

    virtual void step(const Moment& moment) = 0;
    [[nodiscard]] virtual DeviceState state() const = 0;
    [[nodiscard]] virtual DeviceStatus status() const;
    [[nodiscard]] virtual bool isOnBattery() const { return false; }
    [[nodiscard]] virtual KeyValues configuration() const { return m_settings.configuration(); }
    [[nodiscard]] SettingOutcome applySetting(const QString& key, const QString& value);

    [[nodiscard]] QString eventHistory() const { return m_history.text(); }
    [[nodiscard]] const DeviceRegistration& registration() const { return m_registration; }
    [[nodiscard]] const DeviceProfile& profile() const { return m_profile; }
    void setRegistration(const DeviceRegistration& registration) { m_registration = registration; }

protected:
    /// State word of the status list, which is also the work mode of the report.
    [[nodiscard]] virtual QString workMode() const = 0;
    /// Called for a setting or command that the device has accepted.
    virtual void settingApplied(QLatin1String key, const QString& value);

    [[nodiscard]] const DeviceFamily& family() const { return m_family; }
    [[nodiscard]] const DeviceSettings& settings() const { return m_settings; }
    DeviceSettings& settings() { return m_settings; }
    EventHistory& history() { return m_history; }
    /// Values that the scenario fixes and those that follow from settings; they win over measured ones.
    [[nodiscard]] KeyValues withFixedValues(KeyValues values) const;

private:
    DeviceRegistration m_registration;
    DeviceProfile m_profile;
    const DeviceFamily& m_family;
    DeviceSettings m_settings;
    EventHistory m_history;
};

} // namespace Velmora::Service
