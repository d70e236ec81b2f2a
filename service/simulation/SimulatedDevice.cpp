// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/SimulatedDevice.h"

#include "service/simulation/SettingCatalogue.h"

namespace Velmora::Service {

namespace {

struct SettingShown
{
    const char* setting;
    const char* reportKey;
};

// The network card reports what was set on it.
constexpr SettingShown shownSettings[] = {
    {"snmp_sysname", "snmp_sys_name"},       {"snmp_syslocation", "snmp_sys_location"},
    {"snmp_syscontact", "snmp_sys_contact"}, {"snmp_agent_ip", "ip_address"},
    {"network_mask", "network_mask"},        {"default_gateway", "default_gateway"},
};

// What a fresh card answers comes from the scenario and from the registration.
KeyValues defaultSettings(const DeviceSetup& setup)
{
    KeyValues values;
    for (const SettingShown& shown : shownSettings) {
        const QString value = setup.profile.values.value(QLatin1String(shown.reportKey));
        if (!value.isEmpty())
            values.insert(QLatin1String(shown.setting), value);
    }
    if (!setup.registration.ip.isEmpty())
        values.insert(QStringLiteral("snmp_agent_ip"), setup.registration.ip);
    return values;
}

} // namespace

SimulatedDevice::SimulatedDevice(const DeviceSetup& setup)
    : m_registration(setup.registration)
    , m_profile(setup.profile)
    , m_family(familyOf(setup.registration.modelName))
    , m_settings(settingsFor(setup.registration, setup.profile), defaultSettings(setup), setup.settings)
{}

SimulatedDevice::~SimulatedDevice() = default;

DeviceStatus SimulatedDevice::status() const
{
    DeviceStatus status;
    status.id = m_registration.id;
    status.status = workMode();
    status.connected = m_profile.answers;
    status.parallelUnit = m_profile.parallelUnit;
    status.unitAddress = m_profile.unitAddress;
    status.master = m_profile.master;
    status.powerCompensation = m_profile.powerCompensation;
    status.outputSocket1 = m_profile.outputSockets > 0;
    status.outputSocket2 = m_profile.outputSockets > 1;
    status.shutdownSupported = m_profile.shutdownSupported;
    return status;
}

SettingOutcome SimulatedDevice::applySetting(const QString& key, const QString& value)
{
    SettingOutcome outcome = m_settings.apply(key, value);
    if (outcome.accepted) {
        const QByteArray name = key.toLatin1();
        settingApplied(QLatin1String(name), value);
        // A command can move settings too.
        outcome.lasting = m_settings.changedValues();
    }
    return outcome;
}

void SimulatedDevice::settingApplied(QLatin1String /*key*/, const QString& /*value*/) {}

KeyValues SimulatedDevice::withFixedValues(KeyValues values) const
{
    const KeyValues& fixed = m_profile.values;
    for (auto entry = fixed.cbegin(); entry != fixed.cend(); ++entry)
        values.insert(entry.key(), entry.value());
    for (const SettingShown& shown : shownSettings) {
        if (m_settings.offers(QLatin1String(shown.setting)))
            values.insert(QLatin1String(shown.reportKey), m_settings.text(QLatin1String(shown.setting)));
    }
    return values;
}

} // namespace Velmora::Service
