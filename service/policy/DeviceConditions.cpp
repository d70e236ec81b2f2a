// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/policy/DeviceConditions.h"

#include "service/policy/ConditionTables.h"

#include <algorithm>
#include <limits>

namespace Velmora::Service {

namespace {

QString stateWord(const DeviceState& report)
{
    if (!report.found)
        return QStringLiteral("no_communication");
    // What another model says about itself is not this device's state.
    return report.proper ? report.values.value(QStringLiteral("device_status")) : QStringLiteral("unknown");
}

// "paramInputFreq" is reported as "input_frequency".
QString reportKey(const QString& parameter)
{
    QString key;
    for (const QChar& letter : parameter) {
        if (letter.isUpper())
            key += QLatin1Char('_');
        key += letter.toLower();
    }
    if (key.endsWith(QLatin1String("_freq")))
        key += QLatin1String("uency");
    else if (key.endsWith(QLatin1String("_temp")))
        key += QLatin1String("erature");
    // Both strings of a battery are reported as one.
    key.replace(QLatin1String("battery_upper"), QLatin1String("battery"));
    key.replace(QLatin1String("battery_lower"), QLatin1String("battery"));
    return key.mid(1);
}

// Phase 1 to 3 of a parameter that is named by phase, otherwise 0.
int takePhase(QString& parameter)
{
    for (int phase = 1; phase <= 3; ++phase) {
        const QString ending = QLatin1Char('L') + QString::number(phase);
        if (parameter.endsWith(ending)) {
            parameter.chop(ending.size());
            return phase;
        }
    }
    return 0;
}

} // namespace

DeviceConditions::DeviceConditions(const QString& modelName, const DeviceState& report)
{
    if (report.found && report.proper)
        m_values = report.values;
    const QStringList codes = m_values.value(QStringLiteral("messages")).split(QLatin1Char('\n'));
    m_codes = QSet<QString>(codes.cbegin(), codes.cend());
    m_states = activeStates(modelName, stateWord(report), m_codes);
}

bool DeviceConditions::isOn(const QString& key) const
{
    if (key.startsWith(QLatin1String("state")))
        return m_states.contains(key);
    const QStringList codes = codesOf(key);
    return std::any_of(codes.cbegin(), codes.cend(),
                       [this](const QString& code) { return m_codes.contains(code); });
}

double DeviceConditions::parameter(const QString& key) const
{
    QString name = key.mid(static_cast<int>(qstrlen("param")));
    const int phase = takePhase(name);
    const QString reported = reportKey(name);
    const QString byPhase = m_values.value(reported % QLatin1String("_L1_L2_L3"));
    const QString text = byPhase.isEmpty() ? m_values.value(reported) : byPhase;
    const QStringList phases = text.split(QLatin1Char('/'));
    bool valid = false;
    const double number = phases.value(qMax(0, phase - 1)).toDouble(&valid);
    return valid ? number : std::numeric_limits<double>::quiet_NaN();
}

bool isConditionKey(const QString& key)
{
    return key.startsWith(QLatin1String("state")) || key.startsWith(QLatin1String("message")) ||
           key.startsWith(QLatin1String("alarm"));
}

} // namespace Velmora::Service
