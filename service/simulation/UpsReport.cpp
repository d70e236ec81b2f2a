// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/UpsReport.h"

#include <QStringList>

#include <cmath>

namespace Velmora::Service {

namespace {

constexpr double efficiency = 0.94;
constexpr double inputPowerFactor = 0.99;
constexpr double chargerShare = 0.04; ///< of nominal power

// Electrical values of one phase.
struct Phase
{
    double inputVolts = 0;
    double inputAmperes = 0;
    double inputWatts = 0;
    double outputVolts = 0;
    double outputAmperes = 0;
    double outputWatts = 0;
    double outputVoltAmperes = 0;
    double outputVars = 0;
};

class Report final
{
public:
    explicit Report(const UpsReadings& readings)
        : m_readings(readings)
    {
        for (int i = 0; i < readings.load.size(); ++i)
            m_phases.append(phase(i));
    }

    KeyValues build()
    {
        addBasic();
        if (m_readings.detail != Detail::Basic)
            addStandard();
        if (m_readings.detail == Detail::Full)
            addFull();
        return m_values;
    }

private:
    Phase phase(int index) const
    {
        const UpsReadings& r = m_readings;
        Phase p;
        const double share = 1.0 / r.load.size();
        if (r.hasOutput()) {
            p.outputVolts = r.outputVoltage + 0.3 * index;
            p.outputWatts = r.nominalWatts * share * r.load.at(index) / 100.0;
            p.outputVoltAmperes = p.outputWatts / r.powerFactor;
            p.outputAmperes = p.outputVoltAmperes / p.outputVolts;
            p.outputVars = std::sqrt(
                std::max(0.0, p.outputVoltAmperes * p.outputVoltAmperes - p.outputWatts * p.outputWatts));
        }
        if (r.mainsPresent) {
            p.inputVolts = r.inputVoltage.value(index, r.inputVoltage.value(0, 230.0));
            const double drawn = r.isDischarging() ? 0.0 : p.outputWatts / efficiency;
            p.inputWatts = drawn + (r.charging ? r.nominalWatts * share * chargerShare : 0.0);
            p.inputAmperes = p.inputWatts / inputPowerFactor / p.inputVolts;
        }
        return p;
    }

    void put(const char* key, const QString& text) { m_values.insert(QLatin1String(key), text); }
    void put(const char* key, double value, int decimals) { put(key, QString::number(value, 'f', decimals)); }

    // One figure for each phase, joined the way the panel expects a load.
    void putPhases(const char* key, double Phase::*member, int decimals)
    {
        QStringList parts;
        for (const Phase& p : m_phases)
            parts.append(QString::number(p.*member, 'f', decimals));
        put(key, parts.join(QLatin1Char('/')));
    }

    void putSum(const char* key, double Phase::*member)
    {
        double sum = 0.0;
        for (const Phase& p : m_phases)
            sum += p.*member;
        put(key, sum, 0);
    }

    double inputHertz() const { return m_readings.mainsPresent ? m_readings.inputFrequency : 0.0; }
    double outputHertz() const { return m_readings.hasOutput() ? m_readings.outputFrequency : 0.0; }

    double batteryVolts() const
    {
        const UpsReadings& r = m_readings;
        if (r.charging)
            return r.batteryVolts * 1.13;
        return r.isDischarging() ? r.batteryVolts * (0.9 + r.batteryPercent / 100.0 * 0.14)
                                 : r.batteryVolts * 1.12;
    }

    double batteryAmperes() const
    {
        const UpsReadings& r = m_readings;
        if (r.isDischarging())
            return -r.outputWatts() / efficiency / batteryVolts();
        return r.charging ? r.batteryAmpereHours * 0.1 : 0.0;
    }

    double internalTemperature() const
    {
        double load = 0.0;
        for (const double percent : m_readings.load)
            load += percent / m_readings.load.size();
        return m_readings.ambient + 5.0 + load * 0.14;
    }

    void addBasic();
    void addStandard();
    void addFull();
    void addFullPhases();

    const UpsReadings& m_readings;
    QVector<Phase> m_phases;
    KeyValues m_values;
};

void Report::addBasic()
{
    const UpsReadings& r = m_readings;
    put("device_status", workModeKeyword(r.mode));
    put("nominal_active_power", r.nominalWatts, 0);
    put("nominal_spurious_power", r.nominalVoltAmperes, 0);
    QStringList load;
    for (const double percent : r.load)
        load.append(QString::number(r.hasOutput() ? percent : 0.0, 'f', 0));
    put("output_load", load.join(QLatin1Char('/')));
    put("battery_capacity", r.batteryPercent, 0);
    put("autonomy_time", r.autonomyMinutes, 0);
    put("input_frequency", inputHertz(), 1);
    put("output_frequency", outputHertz(), 1);
    putPhases("input_voltage", &Phase::inputVolts, 1);
    putPhases("output_voltage", &Phase::outputVolts, 1);
    put("battery_voltage", batteryVolts(), 1);
    if (r.detail == Detail::Full) {
        put("radiator_temperature", internalTemperature(), 0);
        put("battery_temperature", r.ambient + 1.0, 0);
    } else {
        put("temperature", internalTemperature(), 0);
    }
}

void Report::addStandard()
{
    const UpsReadings& r = m_readings;
    putPhases("output_current", &Phase::outputAmperes, 1);
    putSum("output_active_power", &Phase::outputWatts);
    putSum("output_spurious_power", &Phase::outputVoltAmperes);
    put("output_pf", r.powerFactor, 2);
    put("battery_current", batteryAmperes(), 1);
    put("accumulator_capacity", r.batteryAmpereHours, 0);
    put("seconds_on_battery", static_cast<double>(r.secondsOnBattery), 0);
    put("bypass_voltage", r.mainsPresent ? r.inputVoltage.value(0) : 0.0, 1);
    put("bypass_frequency", inputHertz(), 1);
    put("positive_bus_voltage", r.hasOutput() ? 372.0 : 0.0, 0);
    put("negative_bus_voltage", r.hasOutput() ? -371.0 : 0.0, 0);
    put("input_maximum_voltage", r.highestInputVoltage, 1);
    put("input_minimum_voltage", r.mainsFailures > 0 ? 0.0 : r.lowestInputVoltage, 1);
    put("counter_mains_out_of_range", r.mainsFailures, 0);
    put("counter_discharge", r.mainsFailures, 0);
    put("time_on_battery", std::floor(static_cast<double>(r.totalSecondsOnBattery) / 60.0), 0);
}

void Report::addFull()
{
    const UpsReadings& r = m_readings;
    putPhases("input_current", &Phase::inputAmperes, 1);
    putSum("input_active_power", &Phase::inputWatts);
    put("input_pf", r.mainsPresent ? inputPowerFactor : 0.0, 2);
    putSum("output_reactive_power", &Phase::outputVars);
    putSum("output_load_power", &Phase::outputWatts);
    put("accumulator_state", r.batteryPercent, 0);
    put("environment_temperature", r.ambient, 0);
    put("relative_humidity", r.humidity, 0);
    put("temperature1", internalTemperature() + 3.0, 0);
    put("temperature2", internalTemperature() + 4.0, 0);
    put("rectifier_frequency", inputHertz(), 1);
    putPhases("rectifier_voltage", &Phase::inputVolts, 0);
    putPhases("rectifier_current", &Phase::inputAmperes, 1);
    putSum("rectifier_active_power", &Phase::inputWatts);
    put("rectifier_pf", r.mainsPresent ? inputPowerFactor : 0.0, 2);
    put("bypass_current", 0.0, 1);
    put("bypass_active_power", 0.0, 0);
    put("bypass_pf", 0.0, 2);
    put("battery_remaining_time_limit", QStringLiteral("180"));
    put("counter_overload", QStringLiteral("2"));
    put("counter_shortcut", QStringLiteral("0"));
    if (m_phases.size() == 3)
        addFullPhases();
}

void Report::addFullPhases()
{
    const UpsReadings& r = m_readings;
    putPhases("input_active_power_L1_L2_L3", &Phase::inputWatts, 0);
    putPhases("output_active_power_L1_L2_L3", &Phase::outputWatts, 0);
    putPhases("output_spurious_power_L1_L2_L3", &Phase::outputVoltAmperes, 0);
    putPhases("output_reactive_power_L1_L2_L3", &Phase::outputVars, 0);
    putPhases("bypass_voltage_L1_L2_L3", &Phase::inputVolts, 1);
    put("bypass_current_L1_L2_L3", QStringLiteral("0.0/0.0/0.0"));
    put("bypass_active_power_L1_L2_L3", QStringLiteral("0/0/0"));
    put("ups_input_output_phase", QStringLiteral("3/3"));
    const double line = r.mainsPresent ? r.inputVoltage.value(0) * std::sqrt(3.0) : 0.0;
    put("input_line_to_line_voltage", line, 0);
    if (r.compensating) {
        put("compensation_base_factor_L1_L2_L3", QStringLiteral("0.42/0.44/0.41"));
        const QString factor = QString::number(0.30 + r.load.value(0) / 400.0, 'f', 2);
        put("compensation_factor_L1_L2_L3", factor % QLatin1Char('/') % factor % QLatin1Char('/') % factor);
    }
}

} // namespace

QString workModeKeyword(WorkMode mode)
{
    switch (mode) {
    case WorkMode::Mains:
        return QStringLiteral("on_power_line");
    case WorkMode::Battery:
        return QStringLiteral("on_battery");
    case WorkMode::BatteryTest:
        return QStringLiteral("battery_test");
    case WorkMode::Avr:
        return QStringLiteral("avr_on");
    case WorkMode::Bypass:
        return QStringLiteral("bypass");
    case WorkMode::Eco:
        return QStringLiteral("eco");
    case WorkMode::Converter:
        return QStringLiteral("converter");
    case WorkMode::Standby:
        return QStringLiteral("ups_off");
    case WorkMode::Discharged:
        break;
    }
    return QStringLiteral("shutdown");
}

bool UpsReadings::hasOutput() const
{
    return mode != WorkMode::Standby && mode != WorkMode::Discharged;
}

bool UpsReadings::isDischarging() const
{
    return mode == WorkMode::Battery || mode == WorkMode::BatteryTest;
}

double UpsReadings::outputWatts() const
{
    if (!hasOutput() || load.isEmpty())
        return 0.0;
    double sum = 0.0;
    for (const double percent : load)
        sum += percent;
    return nominalWatts * sum / load.size() / 100.0;
}

KeyValues upsReport(const UpsReadings& readings)
{
    return Report(readings).build();
}

} // namespace Velmora::Service
