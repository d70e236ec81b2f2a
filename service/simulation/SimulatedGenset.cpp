// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/SimulatedGenset.h"

#include <cmath>

namespace Velmora::Service {

namespace {

constexpr int holdSeconds = 5;
constexpr int startDelay = 8;
constexpr int coolDown = 20;
constexpr double tankLitres = 250.0;
constexpr double idleLitresPerHour = 4.0;
constexpr double fullLoadLitresPerHour = 18.0;
constexpr double serviceInterval = 250.0; ///< hours
constexpr int lowFuelPercent = 20;
// A scenario runs for days: somebody brings fuel once the tank is nearly empty.
constexpr double refillBelowLitres = 15.0;

QString onPhases(double value, int decimals)
{
    const QString text = QString::number(value, 'f', decimals);
    return text % QLatin1Char('/') % text % QLatin1Char('/') % text;
}

} // namespace

SimulatedGenset::SimulatedGenset(const DeviceSetup& setup)
    : SimulatedDevice(setup)
    , m_random(setup.seed)
    , m_load(setup.profile.load.value(0, 45.0), 8.0)
    , m_mainsVoltage(setup.profile.inputVoltage, 3.0)
    , m_ownVoltage(231.0, 1.2)
    , m_frequency(50.0, 0.3)
    , m_fuelLitres(tankLitres * setup.profile.charge / 100.0)
{}

SimulatedGenset::~SimulatedGenset() = default;

void SimulatedGenset::step(const Moment& moment)
{
    if (profile().steady)
        return;
    if ((moment.second + registration().id) % holdSeconds == 0)
        moveMeasuredValues();
    m_mainsPresent = moment.mainsPresent;
    if (isWanted()) {
        m_coolDownSeconds = coolDown;
        ++m_startSeconds;
        if (m_startedByHand || m_startSeconds > startDelay)
            setRunning(m_fuelLitres > 0.0);
    } else {
        m_startSeconds = 0;
        if (m_running && --m_coolDownSeconds <= 0)
            setRunning(false);
    }
    if (m_running)
        runEngine();
    else if (m_fuelLitres < refillBelowLitres)
        m_fuelLitres = tankLitres;
}

bool SimulatedGenset::isWanted() const
{
    const QString mode = settings().text(QLatin1String("controller_mode_option"));
    if (mode == QLatin1String("OFF"))
        return false;
    return m_startedByHand || (!m_mainsPresent && mode == QLatin1String("AUTO"));
}

bool SimulatedGenset::carriesLoad() const
{
    return m_running && !m_mainsPresent;
}

void SimulatedGenset::moveMeasuredValues()
{
    for (Wander* value : {&m_load, &m_mainsVoltage, &m_ownVoltage, &m_frequency})
        value->move(m_random);
}

void SimulatedGenset::runEngine()
{
    const double share = carriesLoad() ? m_load.value() / 100.0 : 0.0;
    const double litres = (idleLitresPerHour + share * (fullLoadLitresPerHour - idleLitresPerHour)) / 3600.0;
    m_fuelLitres = std::max(0.0, m_fuelLitres - litres);
    m_consumedLitres += litres;
    m_runSeconds += 1.0;
    if (m_fuelLitres <= 0.0)
        setRunning(false);
}

void SimulatedGenset::setRunning(bool running)
{
    if (running && !m_running)
        ++m_starts;
    m_running = running;
}

QString SimulatedGenset::workMode() const
{
    return m_running ? QStringLiteral("genset_on") : QStringLiteral("genset_off");
}

QStringList SimulatedGenset::messages() const
{
    QStringList codes;
    if (!m_mainsPresent)
        codes.append(QStringLiteral("125")); // mains voltage out of range
    if (m_startSeconds > 0 && !m_running)
        codes.append(QStringLiteral("188")); // prestart
    if (m_fuelLitres / tankLitres * 100.0 < lowFuelPercent)
        codes.append(QStringLiteral("103")); // low fuel
    return codes + profile().messages;
}

void SimulatedGenset::addMainsValues(KeyValues& values) const
{
    const double volts = m_mainsPresent ? m_mainsVoltage.value() : 0.0;
    values.insert(QStringLiteral("input_voltage"), onPhases(volts, 0));
    values.insert(QStringLiteral("input_line_to_line_voltage"), onPhases(volts * std::sqrt(3.0), 0));
    values.insert(QStringLiteral("input_frequency"),
                  m_mainsPresent ? QStringLiteral("50.0") : QStringLiteral("0.0"));
}

void SimulatedGenset::addGeneratorValues(KeyValues& values) const
{
    const double volts = m_running ? m_ownVoltage.value() : 0.0;
    const double load = carriesLoad() ? m_load.value() : 0.0;
    const double watts = family().nominalWatts * load / 100.0;
    values.insert(QStringLiteral("output_load"), QString::number(load, 'f', 0));
    values.insert(QStringLiteral("output_voltage"), onPhases(volts, 0));
    values.insert(QStringLiteral("output_line_to_line_voltage"), onPhases(volts * std::sqrt(3.0), 0));
    values.insert(QStringLiteral("output_frequency"),
                  QString::number(m_running ? m_frequency.value() : 0.0, 'f', 1));
    values.insert(QStringLiteral("output_active_power"), QString::number(watts, 'f', 0));
    values.insert(QStringLiteral("output_current"),
                  onPhases(watts > 0.0 ? watts / 3.0 / m_ownVoltage.value() / 0.85 : 0.0, 1));
    values.insert(QStringLiteral("output_pf"), watts > 0.0 ? QStringLiteral("0.85") : QStringLiteral("0.00"));
    values.insert(QStringLiteral("battery_voltage"),
                  m_running ? QStringLiteral("14.2") : QStringLiteral("12.9"));
    values.insert(QStringLiteral("d_plus"), m_running ? QStringLiteral("13.9") : QStringLiteral("0.0"));
}

DeviceState SimulatedGenset::state() const
{
    DeviceState state;
    state.found = true;
    state.proper = true;
    KeyValues& values = state.values;
    const double runHours = m_runSeconds / 3600.0;
    values.insert(QStringLiteral("device_status"), workMode());
    values.insert(QStringLiteral("firmware_version"), QLatin1String(family().firmware));
    values.insert(QStringLiteral("serial_number"), registration().serialNumber);
    values.insert(QStringLiteral("nominal_spurious_power"), QString::number(family().nominalVoltAmperes));
    values.insert(QStringLiteral("fuel_level"), QString::number(m_fuelLitres / tankLitres * 100.0, 'f', 0));
    values.insert(QStringLiteral("tot_fuel_consum"), QString::number(m_consumedLitres, 'f', 0));
    values.insert(QStringLiteral("run_time"), QString::number(std::floor(runHours), 'f', 0));
    values.insert(QStringLiteral("maintenance"),
                  QString::number(serviceInterval - std::fmod(runHours, serviceInterval), 'f', 0));
    values.insert(QStringLiteral("num_starts"), QString::number(m_starts));
    values.insert(QStringLiteral("e_stops"), QStringLiteral("1"));
    addMainsValues(values);
    addGeneratorValues(values);
    const QStringList codes = messages();
    if (!codes.isEmpty())
        values.insert(QStringLiteral("messages"), codes.join(QLatin1Char('\n')));
    values = withFixedValues(values);
    return state;
}

void SimulatedGenset::settingApplied(QLatin1String key, const QString& value)
{
    if (value != QLatin1String("1"))
        return;
    if (key == QLatin1String("remote_turn_on_genset")) {
        m_startedByHand = true;
    } else if (key == QLatin1String("remote_turn_off_genset")) {
        m_startedByHand = false;
        m_coolDownSeconds = 0;
    } else if (key == QLatin1String("reset_statistics")) {
        m_starts = 0;
        m_consumedLitres = 0.0;
    }
}

} // namespace Velmora::Service
