// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/SimulatedVirtualDevice.h"

#include <algorithm>

namespace Velmora::Service {

namespace {

// From the best to the worst: a group is as well off as its worst unit.
constexpr WorkMode modesByGravity[] = {
    WorkMode::Mains,       WorkMode::Eco,     WorkMode::Converter, WorkMode::Avr,        WorkMode::Bypass,
    WorkMode::BatteryTest, WorkMode::Battery, WorkMode::Standby,   WorkMode::Discharged,
};

int gravity(WorkMode mode)
{
    const auto* found = std::find(std::begin(modesByGravity), std::end(modesByGravity), mode);
    return static_cast<int>(found - std::begin(modesByGravity));
}

} // namespace

SimulatedVirtualDevice::SimulatedVirtualDevice(const DeviceSetup& setup)
    : SimulatedDevice(setup)
{}

SimulatedVirtualDevice::~SimulatedVirtualDevice() = default;

void SimulatedVirtualDevice::setUnits(const QVector<const SimulatedUps*>& units)
{
    m_units = units;
}

void SimulatedVirtualDevice::step(const Moment& moment)
{
    const QString mode = workMode();
    if (mode == m_lastMode)
        return;
    if (mode == QLatin1String("on_battery"))
        history().add(EventCode::battery, moment.date);
    else if (mode == QLatin1String("on_power_line"))
        history().add(EventCode::mains, moment.date);
    else if (mode == QLatin1String("bypass"))
        history().add(EventCode::bypass, moment.date);
    else
        history().add(EventCode::stop, moment.date);
    m_lastMode = mode;
}

WorkMode SimulatedVirtualDevice::mode() const
{
    WorkMode worst = WorkMode::Mains;
    for (const SimulatedUps* unit : m_units) {
        if (gravity(unit->mode()) > gravity(worst))
            worst = unit->mode();
    }
    return worst;
}

QString SimulatedVirtualDevice::workMode() const
{
    return m_units.isEmpty() ? QStringLiteral("no_communication") : workModeKeyword(mode());
}

UpsReadings SimulatedVirtualDevice::readings() const
{
    UpsReadings sum = m_units.first()->readings();
    for (int i = 1; i < m_units.size(); ++i) {
        const UpsReadings unit = m_units.at(i)->readings();
        const double total = sum.nominalWatts + unit.nominalWatts;
        for (int phase = 0; phase < sum.load.size(); ++phase) {
            const double unitLoad = unit.load.value(phase, unit.load.value(0));
            sum.load[phase] = (sum.load.at(phase) * sum.nominalWatts + unitLoad * unit.nominalWatts) / total;
        }
        sum.nominalWatts += unit.nominalWatts;
        sum.nominalVoltAmperes += unit.nominalVoltAmperes;
        sum.batteryAmpereHours += unit.batteryAmpereHours;
        sum.batteryPercent = qMin(sum.batteryPercent, unit.batteryPercent);
        sum.autonomyMinutes = qMin(sum.autonomyMinutes, unit.autonomyMinutes);
        sum.highestInputVoltage = qMax(sum.highestInputVoltage, unit.highestInputVoltage);
        sum.lowestInputVoltage = qMin(sum.lowestInputVoltage, unit.lowestInputVoltage);
        sum.charging = sum.charging || unit.charging;
        sum.mainsPresent = sum.mainsPresent && unit.mainsPresent;
    }
    sum.mode = mode();
    return sum;
}

bool SimulatedVirtualDevice::hasMaster() const
{
    return std::any_of(m_units.cbegin(), m_units.cend(),
                       [](const SimulatedUps* unit) { return unit->profile().master; });
}

QStringList SimulatedVirtualDevice::messages(const UpsReadings& readings) const
{
    QStringList codes = upsMessages(readings, UpsCondition());
    if (m_units.size() < registration().physicalIds.size() || m_units.size() < 2)
        codes.prepend(QStringLiteral("36")); // fewer units than needed
    if (!hasMaster())
        codes.prepend(QStringLiteral("37")); // no master among the units
    const double spare =
        readings.nominalWatts - static_cast<double>(m_units.first()->readings().nominalWatts);
    if (readings.outputWatts() > spare)
        codes.prepend(QStringLiteral("32")); // no redundancy
    return codes;
}

DeviceState SimulatedVirtualDevice::state() const
{
    DeviceState state;
    state.found = !m_units.isEmpty();
    state.proper = true;
    if (!state.found)
        return state;
    const UpsReadings now = readings();
    state.values = upsReport(now);
    state.values.insert(QStringLiteral("maximum_number_of_ups_module"), QStringLiteral("8"));
    state.values.insert(QStringLiteral("rated_va_per_ups_module"),
                        QString::number(now.nominalVoltAmperes / m_units.size()));
    state.values.insert(QStringLiteral("messages"), messages(now).join(QLatin1Char('\n')));
    state.values = withFixedValues(state.values);
    return state;
}

DeviceStatus SimulatedVirtualDevice::status() const
{
    DeviceStatus status = SimulatedDevice::status();
    status.connected = !m_units.isEmpty();
    return status;
}

KeyValues SimulatedVirtualDevice::configuration() const
{
    return {};
}

} // namespace Velmora::Service
