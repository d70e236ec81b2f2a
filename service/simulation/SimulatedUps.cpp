// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/SimulatedUps.h"

namespace Velmora::Service {

namespace {

// Devices average over some seconds, so a value that nothing pushes holds still for as long.
constexpr int holdSeconds = 6;
constexpr int shortTestSeconds = 10;
constexpr int resultSeconds = 120;
// At high current a battery gives less than its capacity.
constexpr double usableShare = 0.6;
constexpr double boostBelowVolts = 207.0;

double usableEnergy(const DeviceFamily& family, const DeviceProfile& profile)
{
    const double energy = family.batteryVolts * family.batteryAmpereHours * usableShare;
    return profile.wornBattery ? energy * 0.4 : energy;
}

int nominalOr(int wanted, int family)
{
    return wanted > 0 ? wanted : family;
}

int modeEvent(WorkMode mode)
{
    switch (mode) {
    case WorkMode::Battery:
        return EventCode::battery;
    case WorkMode::Bypass:
        return EventCode::bypass;
    case WorkMode::Eco:
        return EventCode::eco;
    case WorkMode::Standby:
    case WorkMode::Discharged:
        return EventCode::stop;
    case WorkMode::Mains:
    case WorkMode::BatteryTest:
    case WorkMode::Avr:
    case WorkMode::Converter:
        break;
    }
    return EventCode::mains;
}

} // namespace

SimulatedUps::SimulatedUps(const DeviceSetup& setup)
    : SimulatedDevice(setup)
    , m_random(setup.seed)
    , m_highestInput(setup.profile.inputVoltage)
    , m_lowestInput(setup.profile.inputVoltage)
    , m_frequency(50.0, 0.1)
    , m_powerFactor(0.93, 0.02)
    , m_ambient(22.0, 2.5)
    , m_humidity(42.0, 6.0)
    , m_battery(usableEnergy(family(), setup.profile), setup.profile.charge)
{
    for (int phase = 0; phase < family().phases; ++phase) {
        const double load = profile().load.value(phase, profile().load.value(0, 35.0));
        m_load.append(Wander(load, 6.0));
        m_input.append(Wander(profile().inputVoltage + phase, 3.5));
    }
    m_switchedOff = isSetToOff();
    if (!profile().steady)
        moveMeasuredValues();
}

SimulatedUps::~SimulatedUps() = default;

void SimulatedUps::step(const Moment& moment)
{
    if (profile().steady)
        return;
    // Not all devices change in the same second.
    if ((moment.second + registration().id) % holdSeconds == 0)
        moveMeasuredValues();
    if (!moment.mainsPresent && m_mainsPresent)
        ++m_mainsFailures;
    const bool mainsChanged = moment.mainsPresent != m_mainsPresent;
    m_mainsPresent = moment.mainsPresent;
    if (!m_started)
        history().add(EventCode::initialization, moment.date);
    else if (mainsChanged)
        history().add(m_mainsPresent ? EventCode::inputOutOfRangeStop : EventCode::inputOutOfRangeStart,
                      moment.date);
    enterMode(nextMode(moment.mainsPresent), moment.date);
    useBattery();
    runTest();
    recordChanges(moment.date);
    m_started = true;
}

WorkMode SimulatedUps::nextMode(bool mainsPresent) const
{
    if (m_switchedOff)
        return WorkMode::Standby;
    if (!mainsPresent)
        return m_battery.isEmpty() ? WorkMode::Discharged : WorkMode::Battery;
    if (m_testSeconds > 0)
        return WorkMode::BatteryTest;
    if (settings().flag(QLatin1String("bypass")))
        return WorkMode::Bypass;
    if (settings().flag(QLatin1String("eco_mode")))
        return WorkMode::Eco;
    if (settings().flag(QLatin1String("converter_mode")))
        return WorkMode::Converter;
    const bool boosts = family().detail == Detail::Basic && m_input.first().value() < boostBelowVolts;
    return boosts ? WorkMode::Avr : WorkMode::Mains;
}

void SimulatedUps::moveMeasuredValues()
{
    for (Wander& load : m_load)
        load.move(m_random);
    for (Wander& voltage : m_input) {
        voltage.move(m_random);
        m_highestInput = qMax(m_highestInput, voltage.value());
        m_lowestInput = qMin(m_lowestInput, voltage.value());
    }
    m_frequency.move(m_random);
    m_powerFactor.move(m_random);
    m_ambient.move(m_random);
    m_humidity.move(m_random);
}

void SimulatedUps::enterMode(WorkMode mode, const QDateTime& when)
{
    if (mode == m_mode && m_started)
        return;
    if (modeEvent(mode) != modeEvent(m_mode) || !m_started)
        history().add(modeEvent(mode), when);
    m_mode = mode;
    m_secondsOnBattery = 0;
    // A failure of the mains ends a test without a result.
    if (mode != WorkMode::BatteryTest)
        m_testSeconds = 0;
}

void SimulatedUps::useBattery()
{
    if (m_mode == WorkMode::Battery || m_mode == WorkMode::BatteryTest) {
        m_battery.drain(readings().outputWatts(), 1.0);
        ++m_secondsOnBattery;
        ++m_totalSecondsOnBattery;
    } else if (m_mainsPresent) {
        m_battery.charge(1.0);
    }
}

void SimulatedUps::runTest()
{
    if (m_testResultSeconds > 0 && --m_testResultSeconds == 0)
        m_testResult = TestResult::None;
    if (m_mode != WorkMode::BatteryTest || --m_testSeconds > 0)
        return;
    m_testResult = profile().wornBattery ? TestResult::Failed : TestResult::Passed;
    m_testResultSeconds = resultSeconds;
}

void SimulatedUps::recordChanges(const QDateTime& when)
{
    const bool lowBattery = m_battery.percent() <= lowBatteryThreshold();
    if (lowBattery != m_lowBattery)
        history().add(lowBattery ? EventCode::lowBatteryStart : EventCode::lowBatteryStop, when);
    m_lowBattery = lowBattery;
    const bool charging = m_mainsPresent && m_mode != WorkMode::BatteryTest && !m_battery.isFull();
    if (charging != m_charging)
        history().add(charging ? EventCode::chargingStart : EventCode::chargingStop, when);
    m_charging = charging;
}

UpsReadings SimulatedUps::readings() const
{
    UpsReadings r;
    r.mode = m_mode;
    r.detail = family().detail;
    r.mainsPresent = m_mainsPresent;
    r.charging = m_charging;
    r.compensating = profile().powerCompensation && m_mode == WorkMode::Mains;
    r.nominalWatts = nominalOr(profile().nominalWatts, family().nominalWatts);
    r.nominalVoltAmperes = nominalOr(profile().nominalVoltAmperes, family().nominalVoltAmperes);
    for (const Wander& load : m_load)
        r.load.append(load.value());
    for (const Wander& voltage : m_input)
        r.inputVoltage.append(voltage.value());
    r.highestInputVoltage = m_highestInput;
    r.lowestInputVoltage = m_lowestInput;
    r.inputFrequency = m_frequency.value();
    // On bypass the load hangs on the mains as it is.
    const bool bypassed = m_mode == WorkMode::Bypass || m_mode == WorkMode::Eco;
    r.outputVoltage = bypassed ? m_input.first().value() : nominalOutputVoltage();
    r.outputFrequency = bypassed ? m_frequency.value() : nominalOutputFrequency();
    r.powerFactor = m_powerFactor.value();
    r.ambient = m_ambient.value();
    r.humidity = m_humidity.value();
    r.batteryVolts = family().batteryVolts;
    r.batteryAmpereHours = family().batteryAmpereHours;
    r.batteryPercent = m_battery.percent();
    r.secondsOnBattery = m_secondsOnBattery;
    r.totalSecondsOnBattery = m_totalSecondsOnBattery;
    r.mainsFailures = m_mainsFailures;
    r.autonomyMinutes = m_battery.autonomyMinutes(r.outputWatts());
    return r;
}

UpsCondition SimulatedUps::condition() const
{
    UpsCondition c;
    c.lowBattery = m_lowBattery;
    for (const Wander& load : m_load)
        c.overload = c.overload || load.value() > settings().number(QLatin1String("overload_point"), 100.0);
    c.wornBattery = profile().wornBattery;
    c.parallelUnit = profile().parallelUnit;
    c.master = profile().master;
    c.firstSocketOff = settings().text(QLatin1String("output_socket_1")) == QLatin1String("0");
    c.secondSocketOff = settings().text(QLatin1String("output_socket_2")) == QLatin1String("0");
    c.testResult = m_testResult;
    return c;
}

DeviceState SimulatedUps::state() const
{
    DeviceState state;
    state.found = true;
    state.proper = true;
    const UpsReadings now = readings();
    state.values = upsReport(now);
    state.values.insert(QStringLiteral("firmware_version"), QLatin1String(family().firmware));
    const QStringList messages = upsMessages(now, condition()) + profile().messages;
    if (!messages.isEmpty())
        state.values.insert(QStringLiteral("messages"), messages.join(QLatin1Char('\n')));
    state.values = withFixedValues(state.values);
    return state;
}

DeviceStatus SimulatedUps::status() const
{
    DeviceStatus status = SimulatedDevice::status();
    if (settings().offers(QLatin1String("parallerl_unit_addr")) && status.unitAddress.isEmpty())
        status.unitAddress = settings().text(QLatin1String("parallerl_unit_addr"));
    return status;
}

double SimulatedUps::lowBatteryThreshold() const
{
    const double number = settings().number(QLatin1String("low_battery_threshold"), 20.0);
    return settings().number(QLatin1String("low_battery_threshold_option"), number);
}

double SimulatedUps::nominalOutputVoltage() const
{
    const double number = settings().number(QLatin1String("output_voltage"), 230.0);
    return settings().number(QLatin1String("output_voltage_option"), number);
}

double SimulatedUps::nominalOutputFrequency() const
{
    const double number = settings().number(QLatin1String("output_frequency"), 50.0);
    return settings().number(QLatin1String("output_frequency_option"), number);
}

void SimulatedUps::startTest(int seconds)
{
    // On battery, off or already testing there is nothing to start.
    if (m_mainsPresent && !m_switchedOff && m_testSeconds == 0)
        m_testSeconds = seconds;
}

void SimulatedUps::switchOn()
{
    m_switchedOff = false;
    settings().set(QLatin1String("ups_active"), QStringLiteral("1"));
    settings().set(QLatin1String("waiting_force"), QStringLiteral("0"));
}

void SimulatedUps::switchOff()
{
    m_switchedOff = true;
    settings().set(QLatin1String("ups_active"), QStringLiteral("0"));
}

bool SimulatedUps::isSetToOff() const
{
    return settings().text(QLatin1String("ups_active")) == QLatin1String("0") ||
           settings().flag(QLatin1String("waiting_force"));
}

void SimulatedUps::settingApplied(QLatin1String key, const QString& value)
{
    if (key == QLatin1String("ups_active") || key == QLatin1String("waiting_force"))
        m_switchedOff = isSetToOff();
    if (value != QLatin1String("1"))
        return;
    const bool emergency = key == QLatin1String("epo") && !settings().flag(QLatin1String("epo_disabled"));
    // The defaults do not bring a load back that somebody has switched off.
    if (key == QLatin1String("remote_turn_off_ups") || emergency || (restoresDefaults(key) && m_switchedOff))
        switchOff();
    else if (key == QLatin1String("remote_turn_on_ups"))
        switchOn();
    else if (key == QLatin1String("batt_test") || key == QLatin1String("battery_short_test"))
        startTest(shortTestSeconds);
    else if (key == QLatin1String("battery_test_for_specified_time"))
        startTest(static_cast<int>(settings().number(QLatin1String("battery_test_time"), 5.0) * 60.0));
    else if (key == QLatin1String("battery_test_until_low"))
        startTest(readings().autonomyMinutes * 60 * 4 / 5);
    else if (key == QLatin1String("cancel_battery_test") || key == QLatin1String("abort_battery_test"))
        m_testSeconds = 0;
    else if (key == QLatin1String("clear_battery_info"))
        m_testResult = TestResult::None;
}

} // namespace Velmora::Service
